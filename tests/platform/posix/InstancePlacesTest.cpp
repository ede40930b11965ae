/// @file
/// What stands where the file of places would lie, and whose folder that is.
#include "platform/InstancePlaces.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/InstanceKey.h"
#include "tests/platform/InstanceFolder.h"

namespace {

using namespace vapp_platform;
namespace fs = std::filesystem;

class PosixInstancePlaces : public testing::Test {
protected:
    [[nodiscard]] TPlaceResult Take() const { return TakeInstancePlace(key, 1); }
    [[nodiscard]] std::size_t CountFiles(const char* below) const {
        std::size_t count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder.folder.Native(below)))
            count += entry.is_regular_file() ? 1 : 0;
        return count;
    }
    /// Two in a row: the limit holds.
    void ExpectKept() const {
        const TPlaceResult first = Take();
        EXPECT_EQ(first.answer, PlaceAnswer::Taken);
        EXPECT_EQ(Take().answer, PlaceAnswer::Full);
    }

    const platform_test::InstanceFolder folder;
    const std::string key = InstanceKey(folder.name);
    const fs::path file = folder.folder.Native("runtime") / ("vapp-" + key + ".instances");
};

TEST_F(PosixInstancePlaces, TheFileIsThisUsersAlone) {
    ExpectKept();
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::file_size(file), 0u);
    EXPECT_EQ(CountFiles("data"), 0u);
}

TEST_F(PosixInstancePlaces, WithoutARuntimeFolderTheDataFolderServes) {
    const platform_test::ScopedVariable nothing("XDG_RUNTIME_DIR", "");
    ExpectKept();
    EXPECT_EQ(CountFiles("data"), 1u);
}

TEST_F(PosixInstancePlaces, AFolderThatOthersCanWriteToIsNotUsed) {
    fs::permissions(folder.folder.Native("runtime"), fs::perms::all);
    ExpectKept();
    EXPECT_EQ(CountFiles("runtime"), 0u);
    EXPECT_EQ(CountFiles("data"), 1u);
}

TEST_F(PosixInstancePlaces, AFolderOfAnotherUserIsNotUsed) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
    ASSERT_EQ(chown(folder.folder.Native("runtime").c_str(), 12345, 12345), 0);
    ExpectKept();
    EXPECT_EQ(CountFiles("runtime"), 0u);
}

TEST_F(PosixInstancePlaces, AFileOfAnotherUserIsNotUsed) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
    folder.folder.MakeFile("runtime/" + file.filename().string());
    ASSERT_EQ(chown(file.c_str(), 12345, 12345), 0);
    ExpectKept();
    EXPECT_EQ(CountFiles("data"), 1u);
}

TEST_F(PosixInstancePlaces, WhatIsNoFileIsNotUsed) {
    fs::create_directory(file);
    ExpectKept();
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    ExpectKept();
    fs::remove(file);
    folder.folder.MakeFile("target");
    fs::create_symlink(folder.folder.Native("target"), file);
    ExpectKept();
    EXPECT_EQ(CountFiles("data"), 1u);
}

TEST_F(PosixInstancePlaces, WithNoFolderAtAllNobodyIsRefused) {
    const platform_test::ScopedVariable noRuntime("XDG_RUNTIME_DIR", "");
    const platform_test::ScopedVariable noData("XDG_DATA_HOME", "/dev/null/nowhere");
    const TPlaceResult first = Take();
    EXPECT_EQ(first.answer, PlaceAnswer::NotKept);
    EXPECT_EQ(Take().answer, PlaceAnswer::NotKept);
}

TEST_F(PosixInstancePlaces, AnotherOpeningAndClosingOfTheFileLosesNoPlace) {
    const TPlaceResult first = Take();
    { const InstanceBoard passing(key); }
    EXPECT_EQ(Take().answer, PlaceAnswer::Full);
}

}  // namespace

#include "platform/FileSystem.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <string>

#include "platform/ErrorText.h"
#include "platform/FileWalk.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/NativePath.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

using platform_test::TTemporaryFolder;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
namespace fs = std::filesystem;

// Lets the process do what any user may, though the tests are run by one who may do everything.
class TOrdinaryUser {
public:
    TOrdinaryUser() : m_user(geteuid()) { m_isOne = m_user != 0 || seteuid(cnNobody) == 0; }
    ~TOrdinaryUser() {
        if (m_user == 0) {
            EXPECT_EQ(seteuid(m_user), 0);
        }
    }
    TOrdinaryUser(const TOrdinaryUser&) = delete;
    TOrdinaryUser& operator=(const TOrdinaryUser&) = delete;
    [[nodiscard]] bool IsOne() const { return m_isOne; }

private:
    static constexpr uid_t cnNobody = 65534;
    uid_t m_user;
    bool m_isOne = false;
};

struct PosixFileSystemTest : testing::Test {
    TTemporaryFolder folder;
};

TEST_F(PosixFileSystemTest, LinksAreWhatTheyLeadTo) {
    folder.MakeFile("file", "abc").MakeFolder("lib");
    fs::create_symlink("file", folder.Native("toFile"));
    fs::create_symlink("lib", folder.Native("toLib"));
    fs::create_symlink("nowhere", folder.Native("toNothing"));
    EXPECT_TRUE(gFileExists(folder.Path("toFile")));
    EXPECT_EQ(gGetFileSize(folder.Path("toFile")), 3);
    EXPECT_TRUE(gDirectoryExists(folder.Path("toLib")));
    EXPECT_FALSE(gFileExists(folder.Path("toLib")));
    EXPECT_FALSE(gFileExists(folder.Path("toNothing")));
    EXPECT_EQ(gGetFileSize(folder.Path("toNothing")), -1);
}

TEST_F(PosixFileSystemTest, ALinkToNothingIsListedButNotCollected) {
    fs::create_symlink("nowhere", folder.Native("toNothing"));
    EXPECT_THAT(gListFolder(folder.Path()), ElementsAre("toNothing"));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Path()));
    EXPECT_TRUE(gCollectFiles(folder.Path(), "", true).empty());
}

TEST_F(PosixFileSystemTest, ALinkToNothingInTheWayOfAFolderIsAnExistingEntry) {
    fs::create_symlink("nowhere", folder.Native("link"));
    CStringU text;
    std::uint32_t code = 0;
    EXPECT_FALSE(gCreateDirectories(folder.Path("link"), &text, &code));
    EXPECT_EQ(code, 183U);
    EXPECT_EQ(text, "File exists");
}

TEST_F(PosixFileSystemTest, PipesAndDevicesAreNoFiles) {
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(gFileExists(folder.Path("pipe")));
    EXPECT_FALSE(gFileExists("/dev/null"));
    EXPECT_FALSE(gDirectoryExists("/dev/null"));
    EXPECT_EQ(gResolveShortcut(folder.Path("pipe")), folder.Path("pipe"))
        << "and it does not wait for a writer";
}

TEST_F(PosixFileSystemTest, NamesOfAnyBytesCanBeListedAndOpened) {
    for (const std::string name : {"\x80", "\xFF\xFE", "n\xC3", "a\\b", "\xED\xA0\x80", "M\xC3\xBCller"}) {
        const int file =
            open((folder.Native().string() + '/' + name).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        ASSERT_GE(file, 0);
        close(file);
    }
    const auto names = gListFolder(folder.Path());
    EXPECT_EQ(names.size(), 6U);
    for (const CStringU& name : names)
        EXPECT_TRUE(gFileExists(folder.Path() + '/' + name));
    const auto paths = gCollectFiles(folder.Path(), "", false);
    EXPECT_EQ(paths.size(), 6U);
    for (const CStringU& path : paths)
        EXPECT_EQ(gGetFileSize(path), 0);
}

TEST_F(PosixFileSystemTest, BackslashesSeparate) {
    folder.MakeFolder("lib").MakeFile("lib/inv.sch");
    EXPECT_TRUE(gFileExists(folder.Path() + "\\lib\\inv.sch"));
    EXPECT_TRUE(gDirectoryExists(folder.Path() + "\\lib\\"));
    EXPECT_TRUE(gDirectoryExists(folder.Path() + "/lib/"));
}

TEST_F(PosixFileSystemTest, WildcardsArePlainCharacters) {
    folder.MakeFile("inv.sch");
    EXPECT_FALSE(gFileExists(folder.Path("*.sch")));
    folder.MakeFile("*.sch");
    EXPECT_TRUE(gFileExists(folder.Path("*.sch")));
}

TEST_F(PosixFileSystemTest, PathsBeyond260CharactersWork) {
    std::string deep = "d";
    while (deep.size() < 1000)
        deep += "/" + std::string(100, 'd');
    EXPECT_TRUE(gCreateDirectories(folder.Path(deep)));
    folder.MakeFile(deep + "/f", "x");
    EXPECT_TRUE(gDirectoryExists(folder.Path(deep)));
    EXPECT_EQ(gGetFileSize(folder.Path(deep + "/f")), 1);
    EXPECT_THAT(gCollectFiles(folder.Path(), "", false), ElementsAre(folder.Path(deep + "/f")));
}

TEST_F(PosixFileSystemTest, PathsBeyondTheSystemsLimitAreRefusedWithItsReason) {
    CStringU text;
    std::uint32_t code = 0;
    const std::string longer(PATH_MAX, 'p');
    EXPECT_FALSE(gFileExists(folder.Path(longer)));
    EXPECT_FALSE(gCreateDirectories(folder.Path(longer), &text, &code));
    EXPECT_EQ(code, static_cast<std::uint32_t>(ENAMETOOLONG));
    EXPECT_EQ(text, "File name too long");
}

TEST_F(PosixFileSystemTest, AFolderThatMayNotBeReadHasNoEntries) {
    folder.MakeFolder("locked/lib").MakeFile("locked/inv.sch").MakeFile("seen.sch");
    fs::permissions(folder.Native(), fs::perms(0711));
    fs::permissions(folder.Native("locked"), fs::perms(0));
    {
        const TOrdinaryUser user;
        if (!user.IsOne()) GTEST_SKIP() << "runs with all rights and can't give them up";
        EXPECT_TRUE(gDirectoryExists(folder.Path("locked"))) << "its parent may be searched";
        EXPECT_FALSE(gIsDirectoryEmpty(folder.Path("locked")));
        EXPECT_TRUE(gListFolder(folder.Path("locked")).empty());
        EXPECT_FALSE(gFileExists(folder.Path("locked/inv.sch")));
        EXPECT_TRUE(gCollectFiles(folder.Path("locked"), "", false).empty());
        CStringU text;
        std::uint32_t code = 0;
        EXPECT_FALSE(gCreateDirectories(folder.Path("locked/new/one"), &text, &code));
        EXPECT_EQ(code, static_cast<std::uint32_t>(EACCES));
        EXPECT_EQ(text, "Permission denied");
    }
    fs::permissions(folder.Native("locked"), fs::perms::owner_all);
}

// As with a "/home" that users may pass through and not read.
TEST_F(PosixFileSystemTest, AFolderBelowTheRootThatMayNotBeReadIsThere) {
    const fs::path top = "/vapp-test-" + std::to_string(getpid());
    std::error_code failed;
    if (!fs::create_directory(top, failed)) GTEST_SKIP() << "the root can't be written";
    fs::permissions(top, fs::perms(0733));
    const CStringU path(std::u16string_view(top.u16string()));
    {
        const TOrdinaryUser user;
        EXPECT_TRUE(gDirectoryExists(path));
        EXPECT_TRUE(gCreateDirectories(path + "/a/b"));
        EXPECT_TRUE(gDirectoryExists(path + "/a/b"));
        EXPECT_FALSE(user.IsOne() && !gListFolder(path).empty());
    }
    fs::remove_all(top);
}

TEST_F(PosixFileSystemTest, ExistenceIsJudgedByTheRightsThatCount) {
    folder.MakeFolder("locked").MakeFile("locked/file");
    fs::permissions(folder.Native(), fs::perms(0711));
    fs::permissions(folder.Native("locked"), fs::perms(0));
    {
        const TOrdinaryUser user;
        if (!user.IsOne()) GTEST_SKIP() << "runs with all rights and can't give them up";
        EXPECT_FALSE(vapp_platform::PathExists(folder.Path("locked/file")));
        EXPECT_EQ(gGetFileSize(folder.Path("locked/file")), -1);
        EXPECT_EQ(gGetFileWriteTime(folder.Path("locked/file")), 0U);
    }
    fs::permissions(folder.Native("locked"), fs::perms::owner_all);
    EXPECT_TRUE(vapp_platform::PathExists(folder.Path("locked/file")));
}

TEST_F(PosixFileSystemTest, TimesAreExactToTheirUnit) {
    folder.MakeFile("file");
    const timespec times[2] = {{1000000000, 0}, {1000000000, 123456789}};
    ASSERT_EQ(utimensat(AT_FDCWD, folder.Native("file").c_str(), times, 0), 0);
    EXPECT_EQ(gGetFileWriteTime(folder.Path("file")), 126444736001234567U);
}

TEST_F(PosixFileSystemTest, AFolderOfManyLevelsEndsWhereThePathDoes) {
    // Made step by step, as no call takes a path that long.
    const auto old = fs::current_path();
    fs::current_path(folder.Native());
    const std::string name(200, 'd');
    constexpr int cnLevels = 30;
    for (int i = 0; i < cnLevels; ++i) {
        ASSERT_EQ(mkdir(name.c_str(), 0700), 0);
        ASSERT_EQ(chdir(name.c_str()), 0);
    }
    fs::current_path(old);
    const auto found = gCollectFiles(folder.Path(), "", true);
    EXPECT_GT(found.size(), 15U);
    EXPECT_LT(found.size(), std::size_t{cnLevels});
}

TEST_F(PosixFileSystemTest, TimesOutsideTheRangeAreCut) {
    EXPECT_EQ(vapp_platform::FileTimeOf({0, 0}), 116444736000000000U);
    EXPECT_EQ(vapp_platform::FileTimeOf({0, 199}), 116444736000000001U);
    EXPECT_EQ(vapp_platform::FileTimeOf({-11644473600, 0}), 0U);
    EXPECT_EQ(vapp_platform::FileTimeOf({-11644473601, 0}), 0U);
    EXPECT_EQ(vapp_platform::FileTimeOf({LONG_MIN, 0}), 0U);
    EXPECT_EQ(vapp_platform::FileTimeOf({LONG_MAX, 0}), static_cast<std::uint64_t>(INT64_MAX));
}

TEST_F(PosixFileSystemTest, ErrorCodesAreErrnosAndTheirTextsEnglish) {
    EXPECT_EQ(gGetErrorText(ENOENT), "No such file or directory");
    EXPECT_EQ(gGetErrorText(183), gGetErrorText(EEXIST));
    std::uint32_t code = 0;
    errno = EACCES;
    EXPECT_EQ(gGetLastErrorText("Can't open.", &code), "Can't open.\nPermission denied");
    EXPECT_EQ(code, static_cast<std::uint32_t>(EACCES));
    errno = 12345;
    EXPECT_EQ(gGetLastErrorText("Can't open.", &code), "Can't open.") << "a code without a text";
    EXPECT_EQ(code, 12345U);
}

}  // namespace

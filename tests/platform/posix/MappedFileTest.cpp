#include "platform/posix/MappedFile.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace {

using vapp_platform::MappedFile;
namespace fs = std::filesystem;

constexpr char cnInThisProgram = 0;

TEST(MappedFileTest, TheProgramsOwnMemoryIsOfItsFile) {
    EXPECT_EQ(MappedFile(&cnInThisProgram), fs::read_symlink("/proc/self/exe").string());
}

TEST(MappedFileTest, ALibrarysMemoryIsOfItsFile) {
    Dl_info info{};
    const void* const inLibrary = dlsym(RTLD_DEFAULT, "strftime");
    ASSERT_NE(inLibrary, nullptr);
    ASSERT_NE(dladdr(inLibrary, &info), 0);
    EXPECT_TRUE(fs::equivalent(MappedFile(inLibrary), info.dli_fname)) << info.dli_fname;
    EXPECT_TRUE(MappedFile(inLibrary).starts_with('/'));
}

TEST(MappedFileTest, OtherMemoryIsOfNone) {
    const auto onTheHeap = std::make_unique<int>(1);
    EXPECT_EQ(MappedFile(onTheHeap.get()), "");
    EXPECT_EQ(MappedFile(nullptr), "");
}

}  // namespace

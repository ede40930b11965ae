// Native Linux: names are their own names, and the environment is the process's own.
#include "platform/UnixSide.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "platform/Folders.h"
#include "platform/UnixEnvironment.h"
#include "platform/WineNames.h"
#include "tests/platform/TemporaryFolder.h"
#include "text/PlatformText.h"

namespace {

constexpr const char* cnName = "VAPP_TEST_UNIX_SIDE";

class UnixSideTest : public testing::Test {
protected:
    UnixSideTest() {
        vapp_platform::SetActiveCodePage(vapp_platform::cnCodePageUtf8);
        unsetenv(cnName);
    }
    ~UnixSideTest() override {
        unsetenv(cnName);
        vapp_platform::SetActiveCodePage(0);
    }
};

TEST_F(UnixSideTest, ADosNameIsTheNameItself) {
    EXPECT_EQ(gGetDosName("/var/x"), "/var/x");
    EXPECT_EQ(gGetDosName("a/b"), "a/b");
    EXPECT_EQ(gGetDosName("/\xC3\xA9"), CStringU(u"/\u00E9"));
}

// The names of a folder are the same in every locale.
TEST_F(UnixSideTest, NamesAreUtf8WhateverTheCodePage) {
    const platform_test::TTemporaryFolder folder;
    for (const char* name : {"\xC3\xA9t\xC3\xA9", "\xF0\x9D\x84\x9E", "lone \xE9", "a\\b"}) {
        const std::string path = folder.Native().string() + '/' + name;
        ASSERT_EQ(mkdir(path.c_str(), 0700), 0);
        for (const unsigned page : {20127U, 1252U, vapp_platform::cnCodePageUtf8}) {
            SCOPED_TRACE(testing::Message() << name << ' ' << page);
            vapp_platform::SetActiveCodePage(page);
            EXPECT_TRUE(gDirectoryExists(gGetDosName(path.c_str())));
            EXPECT_EQ(gGetUnixName(gGetDosName(path.c_str())), path.c_str());
            EXPECT_TRUE(gDirectoryExists(gGetUnixNameU(gGetDosName(path.c_str()))));
            EXPECT_EQ(gGetUnixPathOf(gGetDosName(path.c_str())), gGetDosName(path.c_str()));
            const CString unixName = gGetUnixName(gGetDosName(path.c_str()));
            EXPECT_EQ(access(unixName, F_OK), 0) << unixName.GetString();
        }
    }
}

TEST_F(UnixSideTest, ARelativeNameOpensToo) {
    EXPECT_EQ(gGetUnixName(CStringU(u"a\\\xDCE9\xD834\xDD1E")), "a/\xE9\xF0\x9D\x84\x9E");
    EXPECT_EQ(gGetUnixNameU(CStringU(u"a\\\xDCE9")), CStringU(u"a/\xDCE9"));
}

TEST_F(UnixSideTest, ADosPathIsUtf8WhateverTheCodePage) {
    vapp_platform::SetActiveCodePage(1252);
    EXPECT_EQ(gGetDosName("C:/\xC3\xA9/\xE9"), CStringU(u"C:\\\u00E9\\\xDCE9"));
}

TEST_F(UnixSideTest, ADosPathKeepsItsSeparators) {
    EXPECT_EQ(gGetDosName("C:/x"), "C:\\x");
    EXPECT_EQ(gGetDosName("\\a/b"), "\\a\\b");
}

TEST_F(UnixSideTest, AUnixNameTurnsItsSeparators) {
    EXPECT_EQ(gGetUnixName("\\var\\x"), "/var/x");
    EXPECT_EQ(gGetUnixName("/var/x"), "/var/x");
    EXPECT_EQ(gGetUnixName("C:\\x"), "C:/x");
    EXPECT_EQ(gGetUnixNameU("/var/a\\b"), "/var/a/b");
    EXPECT_EQ(gGetUnixPathOf("\\var\\no\\such"), "/var/no/such");
    EXPECT_EQ(gGetUnixPathOf("C:\\no\\such"), "C:/no/such");
}

TEST_F(UnixSideTest, AUnixNameKeepsBytesThatAreNoCharacters) {
    const std::string bytes = "\\var\\\xF0\x9F\x98\x80\xFF";
    EXPECT_EQ(gGetUnixName(CStringU(bytes.c_str(), TextEncoding::Utf8Auto)), "/var/\xF0\x9F\x98\x80\xFF");
}

TEST_F(UnixSideTest, VariablesAreThoseOfTheProcess) {
    EXPECT_EQ(gGetUnixEnv(cnName), "");
    EXPECT_EQ(gSetUnixEnv(cnName, "one", 0), 0);
    EXPECT_STREQ(std::getenv(cnName), "one");
    EXPECT_EQ(gSetUnixEnv(cnName, "two", 0), 0);
    EXPECT_EQ(gGetUnixEnv(cnName), "one");
    EXPECT_EQ(gSetUnixEnv(cnName, "caf\xC3\xA9", 1), 0);
    EXPECT_EQ(gGetUnixEnv(cnName), CStringU(u"caf\u00E9"));
    EXPECT_EQ(gUnsetUnixEnv(cnName), 0);
    EXPECT_EQ(std::getenv(cnName), nullptr);
}

TEST_F(UnixSideTest, AnAssignmentIsCopied) {
    std::string assignment = std::string(cnName) + "=a=b";
    EXPECT_EQ(gPutUnixEnv(assignment.c_str()), 0);
    assignment.assign(assignment.size(), 'x');
    EXPECT_EQ(gGetUnixEnv(cnName), "a=b");
}

TEST_F(UnixSideTest, AnAssignmentWithoutAValueRemovesTheVariable) {
    EXPECT_EQ(gSetUnixEnv(cnName, "v", 1), 0);
    EXPECT_EQ(gPutUnixEnv(cnName), 0);
    EXPECT_EQ(std::getenv(cnName), nullptr);
}

TEST_F(UnixSideTest, NamesThatNoVariableCanHaveAreRefused) {
    EXPECT_EQ(gSetUnixEnv("", "v", 1), -1);
    EXPECT_EQ(gSetUnixEnv("A=B", "v", 1), -1);
    EXPECT_EQ(gUnsetUnixEnv(""), -1);
    EXPECT_EQ(gUnsetUnixEnv("A=B"), -1);
    EXPECT_EQ(gPutUnixEnv("=v"), -1);
    EXPECT_EQ(gPutUnixEnv(""), -1);
    EXPECT_EQ(gGetUnixEnv(""), "");
}

}  // namespace

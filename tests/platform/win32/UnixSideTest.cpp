// The Unix side of this Wine: names against Wine's own program winepath, as far as this Wine has the entry
// points; for those that it lacks, the plain answers. Plain Windows has no Unix side, and is not tested here.
#include "platform/UnixSide.h"

#include <gtest/gtest.h>
#include <stdio.h>
#include <windows.h>

#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/UnixEnvironment.h"
#include "platform/WineNames.h"
#include "platform/World.h"
#include "tests/text/HostileText.h"

namespace {

using TNames = std::vector<std::string>;

bool HasEntryPoint(const char* name) {
    return GetProcAddress(GetModuleHandleA("KERNEL32"), name) != nullptr;
}

// By the code page, so that a character beyond 16 bits becomes the pair of units that Windows has for it.
CStringU Utf8(const std::string& bytes) {
    return {bytes.c_str(), CStringU::TAnsi{65001}};
}

std::wstring Quoted(const std::string& argument) {
    return L" \"" + Utf8(argument).ToStdWstring() + L"\"";
}

// What winepath prints for each path, one line for each.
TNames Winepath(const wchar_t* option, const TNames& paths) {
    std::wstring command = std::wstring(L"winepath ") + option;
    for (const std::string& path : paths)
        command += Quoted(path);
    struct TCloser {
        void operator()(FILE* pipe) const { _pclose(pipe); }
    };
    const std::unique_ptr<FILE, TCloser> pipe(_wpopen(command.c_str(), L"rb"));
    TNames lines;
    char buffer[4096];
    while (pipe && fgets(buffer, sizeof buffer, pipe.get()) != nullptr) {
        std::string line = buffer;
        line.erase(line.find_last_not_of("\r\n") + 1);
        lines.push_back(line);
    }
    return lines;
}

// Whether Wine takes the bytes of names as UTF-8, as it does in a locale of it; elsewhere it can't tell names
// that are not ASCII.
bool NamesAreUtf8() {
    return gGetDosName("/\xC3\xA9").EndsWith(CStringU(u"\\\u00E9"));
}

class UnixSideTest : public testing::Test {
protected:
    void SetUp() override {
        if (!vapp_platform::IsWineSystem()) GTEST_SKIP() << "plain Windows has no Unix side";
    }

    static void ExpectDosNames(const TNames& paths) {
        const TNames expected = Winepath(L"-w", paths);
        ASSERT_EQ(expected.size(), paths.size());
        for (std::size_t i = 0; i < paths.size(); ++i) {
            EXPECT_EQ(gGetDosName(paths[i].c_str()), Utf8(expected[i])) << paths[i];
        }
    }

    static void ExpectUnixNames(const TNames& paths) {
        const TNames expected = Winepath(L"-u", paths);
        ASSERT_EQ(expected.size(), paths.size());
        for (std::size_t i = 0; i < paths.size(); ++i) {
            EXPECT_EQ(gGetUnixPathOf(Utf8(paths[i])), Utf8(expected[i])) << paths[i];
        }
    }
};

TEST_F(UnixSideTest, DosNamesOfExistingAndMissingPathsAreThoseOfWinepath) {
    ASSERT_TRUE(HasEntryPoint("wine_get_dos_file_name"));
    ExpectDosNames({"/", "/usr", "/usr/bin/env", "/usr/no/such", "/no", "/proc/self/exe", "//usr//bin/../lib",
                    "relative/name", "/with blank/and more", "/usr/./bin"});
}

// To this program a link is the folder that it leads to, so that whoever removes the one removes what is in
// the other: the link stands in the build's folder, and nothing here removes it.
TEST_F(UnixSideTest, DosNamesThroughLinksAreThoseOfWinepath) {
    const std::string folder = VAPP_LINKED_FOLDER;
    const std::string link = folder + "/link";
    const std::string inside = link + "/file";
    EXPECT_TRUE(gFileExists(gGetDosName(inside.c_str())));
    ExpectDosNames({link, inside, link + "/no/such", folder, folder + "/no"});
}

TEST_F(UnixSideTest, DosNamesThatAreNotAsciiAreThoseOfWinepath) {
    if (!NamesAreUtf8()) GTEST_SKIP() << "the locale has no UTF-8, and Wine loses such names in it";
    ExpectDosNames(
        {"/usr/\xC3\xA9t\xC3\xA9", "/\xE6\x97\xA5\xE6\x9C\xAC/no", "/\xF0\x9F\x98\x80", "/e\xCC\x81"});
}

TEST_F(UnixSideTest, RandomDosNamesAreThoseOfWinepath) {
    std::mt19937 random = text_test::SeededRandom();
    const std::string pieces[] = {"usr", "bin", "..", ".", "no such", "a.b", "LIB", "x"};
    TNames paths;
    for (int i = 0; i < 60; ++i) {
        std::string path;
        for (std::size_t left = 1 + random() % 5; left > 0; --left) {
            path += (random() % 6 == 0 ? "//" : "/") + pieces[random() % std::size(pieces)];
        }
        paths.push_back(path);
    }
    ExpectDosNames(paths);
}

TEST_F(UnixSideTest, UnixNamesAreThoseOfWinepath) {
    if (!HasEntryPoint("wine_get_unix_stripped_file_name")) {
        GTEST_SKIP() << "this Wine has no wine_get_unix_stripped_file_name";
    }
    ExpectUnixNames({"C:\\windows", "C:\\windows\\no\\such", "Z:\\usr\\bin\\env", "Z:\\no\\such"});
    if (NamesAreUtf8()) ExpectUnixNames({"Z:\\no\\\xC3\xA9", "C:\\windows\\\xE6\x97\xA5\\x"});
}

TEST_F(UnixSideTest, AWineWithoutUnixNamesLeavesPathsAsTheyAre) {
    if (HasEntryPoint("wine_get_unix_stripped_file_name")) GTEST_SKIP() << "this Wine has Unix names";
    EXPECT_EQ(gGetUnixName("C:\\windows"), "C:\\windows");
    EXPECT_EQ(gGetUnixName("no\\such"), "no/such");
    EXPECT_EQ(gGetUnixNameU("C:/windows"), "C:\\windows");
    EXPECT_EQ(gGetUnixPathOf("C:\\windows\\no\\such"), "C:\\windows\\no\\such");
    EXPECT_EQ(gGetUnixPathOf("/usr/no"), "/usr/no");
}

TEST_F(UnixSideTest, VariablesOfTheUnixSideAreNotThoseOfTheProgram) {
    const char* const name = "VAPP_TEST_UNIX_SIDE";
    if (HasEntryPoint("wine_set_unix_env")) {
        EXPECT_EQ(gSetUnixEnv(name, "v", 1), 0);
        EXPECT_EQ(gGetUnixEnv(name), "v");
        EXPECT_EQ(gUnsetUnixEnv(name), 0);
        EXPECT_EQ(gGetUnixEnv(name), "");
    } else {
        EXPECT_EQ(gSetUnixEnv(name, "v", 1), -1);
        EXPECT_EQ(gUnsetUnixEnv(name), -1);
        EXPECT_EQ(gPutUnixEnv("VAPP_TEST_UNIX_SIDE=v"), -1);
        EXPECT_EQ(gGetUnixEnv("HOME"), "");
    }
    EXPECT_EQ(std::getenv(name), nullptr);
}

}  // namespace

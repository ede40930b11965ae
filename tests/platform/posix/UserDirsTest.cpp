#include "platform/posix/UserDirs.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Find(std::string_view file) {
    return vapp_platform::FindUserDir(file, "XDG_DOCUMENTS_DIR", "/home/me").value_or("none");
}

TEST(UserDirsTest, ReadsLinesAsDesktopsWriteThem) {
    const struct {
        const char* file;
        const char* path;
    } cnRows[] = {
        {"XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n", "/home/me/Documents"},
        {"XDG_DOCUMENTS_DIR=\"/data/docs\"", "/data/docs"},
        {"  XDG_DOCUMENTS_DIR = \"/data/docs/\" # mine\r\n", "/data/docs"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", "/home/me"},
        {"XDG_DOCUMENTS_DIR=\"$HOME\"\n", "/home/me"},
        {"XDG_DOCUMENTS_DIR=\"/\"\n", "/"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/a \\\"b\\\" \\$c \\\\\"\n", "/home/me/a \"b\" $c \\"},
        {"XDG_DOCUMENTS_DIR=\"/one\"\nXDG_MUSIC_DIR=\"/m\"\nXDG_DOCUMENTS_DIR=\"/two\"\n", "/two"},
        {"# XDG_DOCUMENTS_DIR=\"/commented\"\n", "none"},
        {"XDG_DOCUMENTS_DIR=\"relative\"\n", "none"},
        {"XDG_DOCUMENTS_DIR=\"$HOMEWARD\"\n", "none"},
        {"XDG_DOCUMENTS_DIR=/unquoted\n", "none"},
        {"XDG_DOCUMENTS_DIR=\"/unclosed\n\"", "none"},
        {"XDG_DOCUMENTS_DIRS=\"/other\"\n", "none"},
        {"XDG_DOCUMENTS_DIR", "none"},
        {"XDG_DOCUMENTS_DIR=\"", "none"},
        {"XDG_DOCUMENTS_DIR=\"\\", "none"},
        {"", "none"},
    };
    for (const auto& row : cnRows)
        EXPECT_EQ(Find(row.file), row.path) << row.file;
}

}  // namespace

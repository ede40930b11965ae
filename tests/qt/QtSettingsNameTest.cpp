/// @file
/// Names of settings: paths are divided where the section says so, and nowhere else.
#include "toolkit/qt/QtSettingsName.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <set>
#include <string>

using vapp_qt::gSettingsName;

TEST(QtSettingsName, SectionsAreDividedAtTheirBackslashes) {
    EXPECT_EQ(gSettingsName("LibraryNavigator", "ShowVias"), "LibraryNavigator/ShowVias");
    EXPECT_EQ(gSettingsName("LibraryNavigator\\Setup1\\Columns", "Cell name"),
              "LibraryNavigator/Setup1/Columns/Cell name");
}

TEST(QtSettingsName, WhatOnlyLooksLikeADivisionIsWrittenByNumber) {
    EXPECT_EQ(gSettingsName("s", "a\\b"), "s/a%5Cb");
    EXPECT_EQ(gSettingsName("a/b\\c", "d/e"), "a%2Fb/c/d%2Fe");
    EXPECT_EQ(gSettingsName("s", "50%"), "s/50%25");
    EXPECT_EQ(gSettingsName("s", "a\nb\x7F"), "s/a%0Ab%7F");
    EXPECT_EQ(gSettingsName("s", "[x]=y;"), "s/[x]=y;");
}

TEST(QtSettingsName, EmptyPartsKeepTheirPlace) {
    EXPECT_EQ(gSettingsName("", ""), "%/%");
    EXPECT_EQ(gSettingsName("a\\\\b\\", "k"), "a/%/b/%/k");
    EXPECT_EQ(gSettingsName("%", "%"), "%25/%25");
}

TEST(QtSettingsName, TheNameThatFilesReserveIsNeverWritten) {
    EXPECT_EQ(gSettingsName("General", "k"), "%47eneral/k");
    EXPECT_EQ(gSettingsName("general\\GENERAL", "k"), "%67eneral/%47ENERAL/k");
    EXPECT_EQ(gSettingsName("generals", "k"), "generals/k");
}

TEST(QtSettingsName, OtherLettersStayAndBrokenOnesAreWrittenByNumber) {
    EXPECT_EQ(gSettingsName("s",
                            "Gr\xC3\xB6\xC3\x9F"
                            "e"),
              QStringLiteral("s/Gr\u00F6\u00DFe"));
    EXPECT_EQ(gSettingsName("s", "\xC3"), "s/%C3");
    EXPECT_EQ(gSettingsName("s", "\xC3\xA9\xFF"), "s/%C3%A9%FF") << "a whole part is of one kind";
    EXPECT_EQ(gSettingsName("s", "\xEF\xBB\xBFx"), "s/%EF%BB%BFx") << "a byte order mark counts";
}

TEST(QtSettingsName, DifferentNamesStayDifferent) {
    const std::string characters = "a\\/%C5\xC3\xA9";
    std::set<std::pair<std::string, std::string>> names;
    std::set<QString> written;
    // All sections and keys of up to two of these characters.
    std::set<std::string> parts = {""};
    for (const char first : characters) {
        parts.insert({first});
        for (const char second : characters)
            parts.insert({first, second});
    }
    for (const std::string& section : parts) {
        for (const std::string& key : parts) {
            names.insert({section, key});
            written.insert(gSettingsName(CString(section.c_str()), CString(key.c_str())));
        }
    }
    EXPECT_EQ(written.size(), names.size());
}

#include "vapp/browser/TProfileSection.h"

#include <gtest/gtest.h>

#include <vector>

#include "vapp/toolkit/CWinAppEx.h"

using namespace vapp_library_browser;

class TProfileSectionTest : public testing::Test {
protected:
    bool ReadBool(const char* stored, bool defaultValue) {
        m_app.WriteProfileString("LibraryNavigator", "Flag", stored);
        bool value = !defaultValue;
        TProfileSection(false).ExchangeBool("Flag", value, defaultValue);
        return value;
    }

    CWinAppEx m_app{"tool"};
};

TEST_F(TProfileSectionTest, SubsectionsStandBehindABackslash) {
    EXPECT_EQ(TProfileSection(true).section, CString("LibraryNavigator"));
    EXPECT_EQ(TProfileSection(true, "Setup1\\Columns\\Cell").section,
              CString("LibraryNavigator\\Setup1\\Columns\\Cell"));
}

TEST_F(TProfileSectionTest, ABoolThatIsFalseByDefaultIsTrueForItsSpellingsOnly) {
    for (const char* text : {"true", "TRUE", "yes", "Yes", "YES", "1", "y", "Y"}) {
        EXPECT_TRUE(ReadBool(text, false)) << text;
    }
    for (const char* text : {"t", "T", "on", "yes ", " yes", "", "2", "11", "false", "no"}) {
        EXPECT_FALSE(ReadBool(text, false)) << text;
    }
}

TEST_F(TProfileSectionTest, ABoolThatIsTrueByDefaultIsFalseForItsSpellingsOnly) {
    for (const char* text : {"false", "FALSE", "no", "No", "NO", "nO", "0", "n", "N"}) {
        EXPECT_FALSE(ReadBool(text, true)) << text;
    }
    for (const char* text : {"f", "off", "no ", "", "00", "true", "x"})
        EXPECT_TRUE(ReadBool(text, true)) << text;
}

TEST_F(TProfileSectionTest, ABoolThatIsKeptAsANumberIsItsDigit) {
    const auto read = [this](int stored, bool defaultValue) {
        m_app.WriteProfileInt("LibraryNavigator", "Flag", stored);
        bool value = !defaultValue;
        TProfileSection(false).ExchangeBool("Flag", value, defaultValue);
        return value;
    };
    EXPECT_TRUE(read(1, false));
    EXPECT_FALSE(read(0, false));
    EXPECT_TRUE(read(1, true));
    EXPECT_FALSE(read(0, true));
    for (const int other : {2, -1, 10}) {
        EXPECT_FALSE(read(other, false)) << other;
        EXPECT_TRUE(read(other, true)) << other;
    }
}

TEST_F(TProfileSectionTest, AMissingBoolIsTheDefault) {
    bool value = true;
    TProfileSection(false).ExchangeBool("Missing", value, false);
    EXPECT_FALSE(value);
    TProfileSection(false).ExchangeBool("Missing", value, true);
    EXPECT_TRUE(value);
}

TEST_F(TProfileSectionTest, BoolsAreWrittenAsWords) {
    bool value = true;
    TProfileSection(true).ExchangeBool("Flag", value, false);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "Flag"), CString("true"));
    value = false;
    TProfileSection(true).ExchangeBool("Flag", value, false);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "Flag"), CString("false"));
}

TEST_F(TProfileSectionTest, TextsGoAndComeWithoutTheirMarker) {
    const CStringU accented("caf\xC3\xA9", TextEncoding::Utf8Auto);
    CStringU value = accented;
    TProfileSection(true).ExchangeText("Text", value, "default");
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "Text"), CString("caf\xC3\xA9"));
    value.Empty();
    TProfileSection(false).ExchangeText("Text", value, "default");
    EXPECT_EQ(value.Stored(), accented.Stored());
    TProfileSection(false).ExchangeText("Missing", value, "default");
    EXPECT_EQ(value, CStringU("default"));
}

TEST_F(TProfileSectionTest, AnEmptyTextIsAValueAndNotTheDefault) {
    CStringU value;
    TProfileSection(true).ExchangeText("Text", value, "default");
    value = "x";
    TProfileSection(false).ExchangeText("Text", value, "default");
    EXPECT_TRUE(value.IsEmpty());
}

TEST_F(TProfileSectionTest, IntegersKeepTheirValue) {
    int value = -7;
    TProfileSection(true).ExchangeInteger("Number", value, 1);
    value = 0;
    TProfileSection(false).ExchangeInteger("Number", value, 1);
    EXPECT_EQ(value, -7);
    TProfileSection(false).ExchangeInteger("Missing", value, 9999);
    EXPECT_EQ(value, 9999);
}

TEST_F(TProfileSectionTest, ASetComesBackWithBlanksBeforeAllNamesButTheFirst) {
    std::set<CStringIU> names = {CStringIU("b"), CStringIU("a"), CStringIU("c")};
    TProfileSection(true).ExchangeSet("Set", names);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "Set"), CString("a, b, c"));
    TProfileSection(false).ExchangeSet("Set", names);
    EXPECT_EQ(names.size(), 3u);
    EXPECT_TRUE(names.contains(CStringIU("a")));
    EXPECT_TRUE(names.contains(CStringIU(" b")));
    EXPECT_TRUE(names.contains(CStringIU(" c")));
}

TEST_F(TProfileSectionTest, ReadingASetMakesNoNameOfEmptyPieces) {
    m_app.WriteProfileString("LibraryNavigator", "Set", ",,a,,b,");
    std::set<CStringIU> names = {CStringIU("old")};
    TProfileSection(false).ExchangeSet("Set", names);
    EXPECT_EQ(names, (std::set<CStringIU>{CStringIU("a"), CStringIU("b")}));
    TProfileSection(false).ExchangeSet("Missing", names);
    EXPECT_TRUE(names.empty());
}

TEST_F(TProfileSectionTest, ANameWithACommaComesBackAsTwo) {
    std::set<CStringIU> names = {CStringIU("a,b"), CStringIU("c")};
    TProfileSection(true).ExchangeSet("Set", names);
    EXPECT_EQ(m_app.GetProfileString("LibraryNavigator", "Set"), CString("a,b, c"));
    TProfileSection(false).ExchangeSet("Set", names);
    EXPECT_EQ(names, (std::set<CStringIU>{CStringIU("a"), CStringIU("b"), CStringIU(" c")}));
}

TEST_F(TProfileSectionTest, NamesOfASetKeepCharactersOutsideOfAscii) {
    std::set<CStringIU> names = {CStringIU(CStringU(u"\u4e2d")), CStringIU(CStringU(u"a\u00e9")),
                                 CStringIU("b")};
    TProfileSection(true).ExchangeSet("Set", names);
    TProfileSection(false).ExchangeSet("Set", names);
    EXPECT_EQ(names, (std::set<CStringIU>{CStringIU(CStringU(u"a\u00e9")), CStringIU(" b"),
                                          CStringIU(CStringU(u" \u4e2d"))}));
}

TEST(TProfileSectionWithoutApplication, ReadsDefaultsAndWritesNothing) {
    ASSERT_EQ(CWinAppEx::GetApp(), nullptr);
    bool flag = true;
    TProfileSection(true).ExchangeBool("Flag", flag, false);
    TProfileSection(false).ExchangeBool("Flag", flag, false);
    EXPECT_FALSE(flag);
    int number = 1;
    TProfileSection(true).ExchangeInteger("Number", number, 5);
    TProfileSection(false).ExchangeInteger("Number", number, 5);
    EXPECT_EQ(number, 5);
    CStringU text("x");
    TProfileSection(true).ExchangeText("Text", text, "default");
    TProfileSection(false).ExchangeText("Text", text, "default");
    EXPECT_EQ(text, CStringU("default"));
    std::set<CStringIU> names = {CStringIU("x")};
    TProfileSection(true).ExchangeSet("Set", names);
    TProfileSection(false).ExchangeSet("Set", names);
    EXPECT_TRUE(names.empty());
}

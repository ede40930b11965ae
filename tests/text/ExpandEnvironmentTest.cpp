// Expanding by this process's own environment, in both worlds: which answers the walk gets, and what becomes
// of the text. How references are read is tested with the walk itself.
#include "text/ExpandEnvironment.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/World.h"
#include "tests/platform/SystemEnvironment.h"
#include "tests/text/TextHelpers.h"

namespace {

using namespace std::string_view_literals;
using namespace text_test;
using path_test::VariableGuard;
using vapp_text::ExpandEnvironment;

class ExpandEnvironmentTest : public testing::Test {
protected:
    ~ExpandEnvironmentTest() override { vapp_platform::SetWineAnswer(std::nullopt); }

private:
    VariableGuard m_name{u"VAPP_NAME", u"nand"};
    VariableGuard m_accent{u"VAPP_ACCENT", u"\u00e9"};
    VariableGuard m_drive{u"VAPP_DRIVE", u"C:/libs"};
    VariableGuard m_unix{u"VAPP_UNIX", u"/libs"};
    VariableGuard m_chain{u"VAPP_CHAIN", u"$VAPP_DRIVE"};
    VariableGuard m_self{u"VAPP_SELF", u"/$VAPP_SELF"};
};

struct TExpansionRow {
    std::u16string_view text;
    std::u16string_view onWindows;
    std::u16string_view underWine;
};

constexpr TExpansionRow cnExpansionRows[] = {
    {u"", u"", u""},
    {u"plain", u"plain", u"plain"},
    {u"${VAPP_NAME}2.sym", u"nand2.sym", u"nand2.sym"},
    {u"$VAPP_NAME-2", u"nand-2", u"nand-2"},
    {u"%VAPP_NAME%2", u"nand2", u"nand2"},
    {u"$VAPP_NAME%VAPP_NAME%${VAPP_NAME}", u"nandnandnand", u"nandnandnand"},
    {u"a$VAPP_ACCENT\u4e2d", u"a\u00e9\u4e2d", u"a\u00e9\u4e2d"},
    {u"a${VAPP_NO_SUCH_VARIABLE}b", u"a${VAPP_NO_SUCH_VARIABLE}b", u"a${VAPP_NO_SUCH_VARIABLE}b"},
    {u"D:\\base\\$VAPP_DRIVE\\$VAPP_NAME", u"C:/libs\\nand", u"C:/libs\\nand"},
    {u"base/$VAPP_UNIX/$VAPP_NAME", u"base//libs/nand", u"/libs/nand"},
    {u"base/$VAPP_CHAIN/x", u"$VAPP_DRIVE/x", u"$VAPP_DRIVE/x"},
    {u"base$VAPP_SELF", u"base/$VAPP_SELF", u"base/$VAPP_SELF"},
    {u"${VAPP_NAME", u"${VAPP_NAME", u"${VAPP_NAME"},
    {u"50%", u"50%", u"50%"},
};

TEST_F(ExpandEnvironmentTest, ReferencesGetTheValuesOfThisProcess) {
    for (const TExpansionRow& row : cnExpansionRows) {
        for (const bool wine : {false, true}) {
            vapp_platform::SetWineAnswer(wine);
            const std::u16string_view expected = wine ? row.underWine : row.onWindows;
            const CStringU expanded = ExpandEnvironment(CStringU(row.text));
            EXPECT_EQ(ExpandEnvironment(row.text), expected);
            EXPECT_EQ(expanded, CStringU(expected));
            EXPECT_TRUE(HoldsMarkerInvariant(expanded));
        }
    }
}

TEST_F(ExpandEnvironmentTest, AChangedVariableIsSeenByTheNextText) {
    vapp_platform::SetWineAnswer(true);
    EXPECT_EQ(ExpandEnvironment(u"a$VAPP_NAME"sv), u"anand");
    const VariableGuard changed(u"VAPP_NAME", u"/nor");
    EXPECT_EQ(ExpandEnvironment(u"a$VAPP_NAME"sv), u"/nor");
}

TEST_F(ExpandEnvironmentTest, AsciiTextWithoutReferencesIsShared) {
    const CStringU text("a/../b");
    EXPECT_EQ(ExpandEnvironment(text).Stored().GetString(), text.Stored().GetString());
}

TEST_F(ExpandEnvironmentTest, TheMarkerFollowsTheExpandedText) {
    EXPECT_EQ(Stored(ExpandEnvironment(CStringU("a$VAPP_ACCENT"))),
              "\x80"
              "a\xC3\xA9");
    EXPECT_EQ(Stored(ExpandEnvironment(CStringU(u"\u4e2d$VAPP_DRIVE"))), "C:/libs");
}

TEST_F(ExpandEnvironmentTest, ASignInALongerFormThanItNeedsBeginsAReferenceToo) {
    EXPECT_EQ(Stored(ExpandEnvironment(Utf8("\xC0\xA4VAPP_NAME"))), "nand");
}

}  // namespace

// What is particular to replacing a text without case: the two letters that may fold into ASCII, and texts
// that say that they aren't ASCII, and are. The rest, beside plain models, stands in CStringUReplaceTest.cpp.
#include <gtest/gtest.h>

#include <string>

#include "tests/text/TextHelpers.h"
#include "text/Fold.h"
#include "vapp/text/CStringU.h"

namespace {

int CountOfReplaced(const std::u16string& text, const std::u16string& oldText) {
    CStringU changed(text);
    return changed.ReplaceNoCase(CStringU(oldText), "m");
}

// Encoded text is searched by bytes where these two letters aren't in the way.
TEST(CStringUReplaceNoCase, AtMostTwoForeignLettersFoldIntoAscii) {
    for (char16_t unit = 0x80; unit != 0; ++unit) {
        if (unit == 0x130 || unit == 0x212A) continue;
        ASSERT_GE(vapp_text::FoldChar(unit), 0x80) << static_cast<int>(unit);
    }
    EXPECT_EQ(CountOfReplaced(u"x\u00e9X\u4e2dx", u"x"), 3);
    for (const std::u16string letter : {u"\u0130", u"\u212a"}) {
        const std::u16string text = u"\u00e9" + letter + u" iI kK";
        for (const std::u16string oldText : {u"i", u"K"}) {
            const bool isHit = vapp_text::FoldChar(letter[0]) == vapp_text::FoldChar(oldText[0]);
            EXPECT_EQ(CountOfReplaced(text, oldText), isHit ? 3 : 2);
        }
    }
}

TEST(CStringUReplaceNoCase, AnEncodedTextIsEditedWhereItStands) {
    CStringU text(u"x\u00e9X\u4e2d_x_");
    EXPECT_EQ(text.ReplaceNoCase("X", "y"), 3);
    EXPECT_EQ(text.ToWide(), u"y\u00e9y\u4e2d_y_");
    EXPECT_EQ(text.Stored(), CStringU(u"y\u00e9y\u4e2d_y_").Stored());
}

TEST(CStringUReplaceNoCase, AStaleMarkerGoesAndStaysWhereNothingIsFound) {
    for (const std::string newText : {"y", "yy"}) {
        CStringU text("aXbX", TextEncoding::Utf8);
        ASSERT_TRUE(text.HasNonAscii());
        EXPECT_EQ(text.ReplaceNoCase("c", newText.c_str()), 0);
        EXPECT_TRUE(text.HasNonAscii());
        EXPECT_EQ(text.ReplaceNoCase("x", newText.c_str()), 2);
        EXPECT_EQ(text.Stored(), newText.size() == 1 ? "ayby" : "ayyyyX");
    }
}

}  // namespace

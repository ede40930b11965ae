// Which "&" goes.
#include "text/Accelerator.h"

#include <gtest/gtest.h>

namespace {

using vapp_text::StripAccelerator;

TEST(Accelerator, TheFirstMarkBeforeTheLastCharacterGoes) {
    const struct {
        const char* text;
        const char* stripped;
    } rows[] = {{"", ""},
                {"&", "&"},
                {"a", "a"},
                {"&a", "a"},
                {"a&", "a&"},
                {"a&b", "ab"},
                {"&a&b", "a&b"},
                {"a&&b", "a&b"},
                {"&&", "&"},
                {"a&b&", "ab&"},
                {"&File", "File"},
                {"E&xit", "Exit"},
                {"no mark", "no mark"}};
    for (const auto& row : rows) {
        EXPECT_EQ(StripAccelerator(CString(row.text)), row.stripped);
        const std::string text = row.text;
        const std::string stripped = row.stripped;
        EXPECT_EQ(StripAccelerator(std::u16string(text.begin(), text.end())),
                  std::u16string(stripped.begin(), stripped.end()));
    }
}

TEST(Accelerator, OtherCharactersStay) {
    EXPECT_EQ(StripAccelerator(u"\u00e9&\u4e2d"), u"\u00e9\u4e2d");
    EXPECT_EQ(StripAccelerator(CString("\xE9&\xC9")), "\xE9\xC9");
}

TEST(Accelerator, ATextWithoutAMarkIsShared) {
    const CString text("ab&");
    EXPECT_EQ(StripAccelerator(text).GetString(), text.GetString());
}

}  // namespace

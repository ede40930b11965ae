// Formatting of CStringU: the payload is the format, the result finds its own marker.

#include <gtest/gtest.h>

#include "tests/text/TextHelpers.h"
#include "vapp/text/CStringU.h"

namespace {

using text_test::Stored;
using text_test::TCodePageGuard;

template <typename... Arguments>
concept Formats = requires(Arguments... arguments) {
    CStringU::Formatted("%s", arguments...);
};

static_assert(Formats<int, const char*, double>);
static_assert(!Formats<CStringU>, "a text is passed by its payload");
static_assert(!Formats<CString> && !Formats<std::string>);

TEST(CStringUFormat, ResultIsClassifiedByItsBytes) {
    const CStringU name(u"\u00E9");
    EXPECT_EQ(Stored(CStringU::Formatted("%d", 5)), "5");
    EXPECT_EQ(Stored(CStringU::Formatted("<%s>", name.Payload())), "\x80<\xC3\xA9>");
    EXPECT_EQ(Stored(CStringU::Formatted("%s!", name.Payload())), "\xC3\xA9!");
    EXPECT_EQ(Stored(CStringU::Formatted("")), "");
}

TEST(CStringUFormat, MarkOfTheFormatIsNoPartOfIt) {
    EXPECT_EQ(Stored(CStringU::Formatted(u"a\u00E9%d", 1)),
              "\x80"
              "a\xC3\xA9"
              "1");
    EXPECT_EQ(Stored(CStringU::Formatted(L"%.0s%d", "\u00E9", 1)), "1");
}

TEST(CStringUFormat, NarrowFormatIsInTheActiveCodePage) {
    const TCodePageGuard guard(1252);
    EXPECT_EQ(CStringU::Formatted("\xE9%d", 1), CStringU(u"\u00E9"
                                                         u"1"));
}

TEST(CStringUFormat, SizesOfUserTexts) {
    EXPECT_EQ(CStringU::Formatted("%Iu of %Iu cells", std::size_t{2}, std::size_t{5'000'000'000U}),
              "2 of 5000000000 cells");
}

TEST(CStringUFormat, FormatInPlaceMayUseItsOwnText) {
    CStringU text(u"\u00E9");
    text.Format("[%s]", text.Payload());
    EXPECT_EQ(text, CStringU(u"[\u00E9]"));
    text = "%d-%s";
    text.Format(text, 7, "x");
    EXPECT_EQ(text, "7-x");
}

CStringU ByArgumentList(const CStringU* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    CStringU text = CStringU::FormattedV(*format, arguments);
    va_end(arguments);
    return text;
}

TEST(CStringUFormat, TakesAnArgumentList) {
    const CStringU format("%d %Iu");
    EXPECT_EQ(ByArgumentList(&format, 1, std::size_t{2}), "1 2");
}

TEST(CStringUFormat, MarkOfTheFormatDoesNotReachTheResult) {
    const CStringU format(u"%s\u00E9");
    ASSERT_NE(format.Stored().GetString(), format.Payload()) << "the format is marked, its result is not";
    EXPECT_EQ(Stored(CStringU::Formatted(format, "\u00E9")), "\xC3\xA9\xC3\xA9");
    EXPECT_EQ(Stored(ByArgumentList(&format, "\u00E9")), "\xC3\xA9\xC3\xA9");
}

}  // namespace

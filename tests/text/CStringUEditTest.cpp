// Appending, cutting and editing: where the marker comes from and goes to.

#include <gtest/gtest.h>

#include <climits>

#include "tests/text/TextHelpers.h"
#include "vapp/text/CStringU.h"

namespace {

using text_test::HoldsMarkerInvariant;
using text_test::Raw;
using text_test::Stored;

constexpr const char* csMarkedAE =
    "\x80"
    "a\xC3\xA9";

TEST(CStringUEdit, AppendingNonAsciiToAsciiBringsTheMarker) {
    CStringU text("a");
    text += u'\u00E9';
    EXPECT_EQ(Stored(text), csMarkedAE);
    EXPECT_EQ(Stored(CStringU("a") + CStringU(u"\u00E9")), csMarkedAE);
    EXPECT_EQ(Stored("a" + CStringU(u"\u00E9")), csMarkedAE);
    EXPECT_EQ(Stored(u"a" + CStringU(u"\u00E9")), csMarkedAE);
    EXPECT_EQ(Stored(L"a" + CStringU(u"\u00E9")), csMarkedAE);
    EXPECT_EQ(Stored(CStringU("a") + u'\u00E9'), csMarkedAE);
    EXPECT_EQ(Stored(CStringU("a") + L'\u00E9'), csMarkedAE);
}

TEST(CStringUEdit, AppendingAsciiToANonAsciiStartAddsNoMarker) {
    CStringU text(u"\u00E9");
    text += "a";
    EXPECT_EQ(Stored(text),
              "\xC3\xA9"
              "a");
}

TEST(CStringUEdit, AppendingMarkedTextToEmptyTextDerivesTheMarker) {
    CStringU text;
    text += CStringU(u"a\u00E9");
    EXPECT_EQ(Stored(text), csMarkedAE);
    CStringU high;
    high += Raw("\x80\xC3\xA9");
    EXPECT_EQ(Stored(high), "\xC3\xA9") << "the payload begins with a high byte: no marker";
    CStringU one;
    one += u'\u00E9';
    EXPECT_EQ(Stored(one), "\xC3\xA9");
}

TEST(CStringUEdit, OnlyThePayloadIsAppended) {
    const CStringU marked(u"a\u00E9");
    EXPECT_EQ(Stored(marked + marked), std::string(csMarkedAE) + "a\xC3\xA9");
    CStringU self = marked;
    self += self;
    EXPECT_EQ(self, marked + marked);
    EXPECT_EQ(Stored(CStringU("x") + Raw("\x80")), "\x80x") << "a marker alone still says non-ASCII";
    EXPECT_EQ(Stored(CStringU() + Raw("\x80")), "\x80");
}

TEST(CStringUEdit, AppendingNulOrAByteLeavesTheMarkerAlone) {
    CStringU text("a");
    text += u'\0';
    text += L'\0';
    text += '\0';
    EXPECT_EQ(Stored(text), "a");
    text += u'b';
    text += 'c';
    EXPECT_EQ(Stored(text), "abc");
    text += '\xE9';
    EXPECT_EQ(Stored(text), "abc\xE9") << "a byte is for ASCII only: no marker";
}

TEST(CStringUEdit, PiecesGetTheMarkerByTheirOwnContent) {
    const CStringU text(u"ab\u00E9cd");
    EXPECT_EQ(Stored(text.Left(2)), "ab");
    EXPECT_EQ(Stored(text.Head(text.Begin() + 2)), "ab");
    EXPECT_EQ(Stored(text.Left(4)),
              "\x80"
              "ab\xC3\xA9");
    EXPECT_EQ(Stored(text.Tail(text.Begin() + 1)),
              "\x80"
              "b\xC3\xA9"
              "cd");
    EXPECT_EQ(Stored(text.Tail(text.Begin() + 2)),
              "\xC3\xA9"
              "cd");
    EXPECT_EQ(Stored(text.Tail(text.Begin() + 3)), "cd");
    EXPECT_EQ(Stored(text.Mid(text.Begin() + 1, 2)),
              "\x80"
              "b\xC3\xA9");
    EXPECT_EQ(Stored(text.Mid(text.Begin() + 3, 1)), "c");
}

TEST(CStringUEdit, PieceOfAsciiTextIsTakenAsItStands) {
    const CStringU text("abcdef");
    EXPECT_EQ(text.Left(3), "abc");
    EXPECT_EQ(text.Left(99).Payload(), text.Payload()) << "the whole text is shared";
    EXPECT_EQ(text.Mid(text.Begin() + 2, 3), "cde");
    EXPECT_EQ(Stored(Raw("a\xC3\xA9z").Left(3)), "a\xC3\xA9") << "the first byte says ASCII: not classified";
}

TEST(CStringUEdit, RangesOutsideOfTheTextAreClamped) {
    const CStringU text(u"a\u00E9");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(INT64_MAX), text);
    EXPECT_EQ(text.Tail({-5, &text}), text);
    EXPECT_EQ(text.Tail({99, &text}), "");
    EXPECT_EQ(text.Mid({-5, &text}, 1), "a");
    EXPECT_EQ(text.Mid(text.Begin(), -1), "");
    EXPECT_EQ(text.Mid(text.Begin(), INT64_MAX), text);
    EXPECT_EQ(text.Mid({INT64_MAX, nullptr}, 5), "");
}

TEST(CStringUEdit, RebuildingDropsAStaleMarker) {
    CStringU text(u"a\u00E9");
    EXPECT_EQ(text.Erase(text.Begin() + 1, 1), 1);
    EXPECT_EQ(Stored(text), "a");
    EXPECT_EQ(Stored(Raw("\x80"
                         "abc")
                         .Left(99)),
              "abc");
}

TEST(CStringUEdit, PrefixIsTheFirstTwoCharacters) {
    EXPECT_EQ(CStringU("c:\\x").Prefix2(), "c:");
    EXPECT_EQ(CStringU("c:\\x").PrefixBytes2(), 2);
    EXPECT_EQ(CStringU("c").Prefix2(), "c");
    EXPECT_EQ(CStringU("c").PrefixBytes2(), 2) << "two for ASCII text, however short";
    EXPECT_EQ(CStringU(u"\u00E9\u4E2Dx").Prefix2(), CStringU(u"\u00E9\u4E2D"));
    EXPECT_EQ(CStringU(u"\u00E9\u4E2Dx").PrefixBytes2(), 5);
    EXPECT_EQ(Stored(CStringU(u"c:\u00E9").Prefix2()), "c:");
    EXPECT_EQ(CStringU(u"\u00E9").PrefixBytes2(), 2);
}

TEST(CStringUEdit, LastCharIsZeroForEmptyText) {
    EXPECT_EQ(CStringU().LastChar(), 0);
    EXPECT_EQ(Raw("\x80").LastChar(), 0);
    EXPECT_EQ(CStringU("ab").LastChar(), u'b');
    EXPECT_EQ(CStringU(u"a\u4E2D").LastChar(), u'\u4E2D');
    EXPECT_EQ(CStringU(u"\U0001F600").LastChar(), 0xDE00) << "a unit, not a pair";
}

TEST(CStringUEdit, InsertGivesTheNewCharacterCount) {
    CStringU text("ac");
    EXPECT_EQ(text.Insert(text.Begin() + 1, u'\u00E9'), 3);
    EXPECT_EQ(Stored(text),
              "\x80"
              "a\xC3\xA9"
              "c");
    EXPECT_EQ(text.Insert(text.Begin(), CStringU(u"\u4E2D")), 4);
    EXPECT_EQ(Stored(text),
              "\xE4\xB8\xAD"
              "a\xC3\xA9"
              "c")
        << "the old marker went";
    EXPECT_EQ(text.Insert(text.End(), "xy"), 6);
    EXPECT_EQ(text.LastChar(), u'y');
    EXPECT_EQ(text.Insert(text.Begin(), L'-'), 7);
    EXPECT_TRUE(HoldsMarkerInvariant(text));
    EXPECT_EQ(text.Insert(text.Begin(), u'\0'), 7) << "0 is no character";
    EXPECT_EQ(text.Insert({99, &text}, "!"), 8);
    EXPECT_EQ(text.LastChar(), u'!');
    CStringU self("ab");
    EXPECT_EQ(self.Insert(self.Begin() + 1, self), 4);
    EXPECT_EQ(self, "aabb");
}

TEST(CStringUEdit, EraseRemovesCharactersOrARange) {
    CStringU text(u"a\u00E9b\u4E2Dc");
    EXPECT_EQ(text.Erase(text.Begin() + 1, 2), 3);
    EXPECT_EQ(text, CStringU(u"a\u4E2Dc"));
    EXPECT_EQ(text.Erase(text.Begin() + 2, text.Begin()), 1) << "in either order";
    EXPECT_EQ(Stored(text), "c");
    EXPECT_EQ(text.Erase(text.Begin(), -1), 1);
    EXPECT_EQ(text.Erase({-7, &text}, {INT64_MAX, &text}), 0);
    EXPECT_EQ(Stored(text), "");
}

}  // namespace

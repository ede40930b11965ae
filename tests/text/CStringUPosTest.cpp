// Positions: their steps, their ends, and what they do where text is malformed.

#include "vapp/text/CStringUPos.h"

#include <gtest/gtest.h>

#include <climits>
#include <type_traits>

#include "tests/text/TextHelpers.h"
#include "vapp/text/CStringU.h"

namespace {

using text_test::Raw;
using text_test::Utf8;

static_assert(sizeof(CStringUPos) == sizeof(std::int64_t) + sizeof(void*));
static_assert(std::is_trivially_copyable_v<CStringUPos>);

TEST(CStringUPos, WalksForwardAndBackOverCharacters) {
    const CStringU text(u"a\u00E9\u4E2Dz");
    std::u16string forward;
    for (CStringUPos pos = text.Begin(); !pos.AtEnd(); ++pos) {
        forward += *pos;
    }
    EXPECT_EQ(forward, u"a\u00E9\u4E2Dz");
    std::u16string backward;
    for (CStringUPos pos = text.End(); pos.offset > 0;) {
        backward += *--pos;
    }
    EXPECT_EQ(backward, u"z\u4E2D\u00E9a");
    EXPECT_EQ(text.End() - text.Begin(), 7);
    EXPECT_EQ(*text.End(), 0);
}

TEST(CStringUPos, OffsetsDoNotCountTheMarker) {
    const CStringU text(u"a\u00E9");
    EXPECT_EQ(text.Begin().offset, 0);
    EXPECT_EQ(text.End().offset, 3);
    EXPECT_EQ(*(text.Begin() + 1), u'\u00E9');
}

TEST(CStringUPos, StepMovesByTheBytesAndDecodingByTheLead) {
    const CStringU text = Utf8("\xE4\xB8\xADz");
    EXPECT_EQ((text.Begin() + 1).offset, 3);
    EXPECT_EQ(text.Left(3).GetCharCount(), 1);
    // Malformed, each keeps its own rule: the lead byte promises three bytes, but only one goes with it.
    const CStringU broken = Utf8("\xE4zyx");
    EXPECT_EQ((broken.Begin() + 1).offset, 1);
    EXPECT_EQ(broken.GetCharCount(), 2);
    // A four-byte lead with five bytes behind it: the step goes over all of them.
    EXPECT_EQ((Utf8("\xF0\x80\x80\x80\x80\x80z").Begin() + 1).offset, 6);
}

TEST(CStringUPos, StepBackGoesOverAtMostFourBytes) {
    const CStringU text = Utf8("\xF0\x80\x80\x80\x80\x80z");
    EXPECT_EQ((text.Begin() + 1 - 1).offset, 2);
    EXPECT_EQ(CStringUPos(1, &text).StepBack().offset, 0);
}

TEST(CStringUPos, IncrementsAndDecrementsInBothForms) {
    const CStringU text(u"\u00E9b");
    CStringUPos pos = text.Begin();
    EXPECT_EQ((pos++).offset, 0);
    EXPECT_EQ(pos.offset, 2);
    EXPECT_EQ((pos--).offset, 2);
    EXPECT_EQ(pos.offset, 0);
    EXPECT_EQ((++pos).offset, 2);
    EXPECT_EQ((--pos).offset, 0);
    pos += 2;
    pos -= 1;
    EXPECT_EQ(pos.offset, 2);
    EXPECT_EQ((pos + -1).offset, 0);
    EXPECT_EQ((pos - -1).offset, 3);
    EXPECT_EQ((pos + 0), pos);
}

TEST(CStringUPos, AdvanceStopsAtTheEndAndAtAnOverlongNul) {
    const CStringU text(u"a\u00E9b");
    EXPECT_EQ(text.Begin().Advance(std::int32_t{2}).offset, 3);
    EXPECT_EQ(text.Begin().Advance(std::int64_t{99}), text.End());
    EXPECT_EQ(text.Begin().Advance(UINT32_MAX), text.End());
    EXPECT_EQ(text.Begin().Advance(UINT64_MAX), text.End());
    EXPECT_EQ(text.Begin().Advance(std::int32_t{0}).offset, 0);
    EXPECT_EQ(text.End().Advance(std::int32_t{-1}), text.End());
    EXPECT_EQ(text.End().Advance(std::int64_t{INT64_MIN}), text.End());
    const CStringU overlong = Utf8("\xC3\xA9\xC0\x80z");
    EXPECT_EQ(overlong.Begin().Advance(std::int64_t{9}).offset, 2);
    EXPECT_EQ((overlong.Begin() + 9).offset, 5) << "the plain sum steps over it";
    EXPECT_TRUE((overlong.Begin() + 1).AtEnd());
    EXPECT_EQ(*(overlong.Begin() + 1), 0);
}

TEST(CStringUPos, PositionSurvivesAMoveOfTheBuffer) {
    CStringU text(u"a\u00E9b");
    const CStringUPos pos = text.Begin() + 2;
    const CStringU copy = text;
    text += CStringU(CString('x', 1000));
    EXPECT_EQ(*pos, u'b');
    CStringU becomesMarked("ab");
    const CStringUPos second = becomesMarked.Begin() + 1;
    becomesMarked += u'\u00E9';
    EXPECT_EQ(*second, u'b') << "the marker came in, the payload's offsets stayed";
}

TEST(CStringUPos, PositionOutsideOfTheTextReadsAsItsEnd) {
    const CStringU text("abc");
    for (const std::int64_t offset : {std::int64_t{-1}, std::int64_t{4}, INT64_MAX, INT64_MIN}) {
        CStringUPos pos(offset, &text);
        EXPECT_TRUE(pos.AtEnd());
        EXPECT_EQ(*pos, 0);
        EXPECT_LE((pos + 1).offset, 3);
        EXPECT_GE((pos - 1).offset, 0);
        EXPECT_LE(pos.Advance(INT64_MAX).offset, 3);
    }
    CStringUPos none;
    EXPECT_TRUE(none.AtEnd());
    EXPECT_EQ((none + 5).offset, 0);
    EXPECT_EQ((none - 5).offset, 0);
    EXPECT_EQ(none.Advance(5).offset, 0);
}

TEST(CStringUPos, HugeCountsEndWithTheText) {
    const CStringU text(u"a\u00E9b");
    EXPECT_EQ(text.Begin() + INT64_MAX, text.End());
    EXPECT_EQ(text.End() + INT64_MIN, text.Begin());
    EXPECT_EQ(text.Begin() - INT64_MIN, text.End());
    EXPECT_EQ(text.End() - INT64_MAX, text.Begin());
}

TEST(CStringUPos, PositionsAreOrderedByOffset) {
    const CStringU text("abc");
    EXPECT_LT(text.Begin(), text.End());
    EXPECT_EQ(text.Begin() + 3, text.End());
}

}  // namespace

/// @file
/// The rules of clicks and keys, one test for each rule.
#include "vapp/toolkit/RowCursor.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Ranges = std::vector<RowSelection::Range>;
constexpr TModifiers cnPlain{};
constexpr TModifiers cnShift{.shift = true, .control = false};
constexpr TModifiers cnControl{.shift = false, .control = true};
constexpr TModifiers cnShiftAndControl{.shift = true, .control = true};
constexpr int cnRowCount = 100;
constexpr int cnPage = 10;

bool Press(RowCursor& cursor, TKey key, TModifiers modifiers = cnPlain) {
    return cursor.Key(key, modifiers, cnRowCount, cnPage);
}

Ranges Selected(const RowCursor& cursor) {
    return cursor.GetSelection().GetRanges();
}

}  // namespace

TEST(RowCursor, PlainClickSelectsOneRow) {
    RowCursor cursor;
    EXPECT_TRUE(cursor.Click(3, cnPlain));
    EXPECT_TRUE(cursor.Click(7, cnPlain));
    EXPECT_EQ(Selected(cursor), (Ranges{{7, 7}}));
    EXPECT_EQ(cursor.GetFocus(), 7);
    EXPECT_EQ(cursor.GetAnchor(), 7);
    EXPECT_FALSE(cursor.Click(7, cnPlain)) << "nothing changed";
}

TEST(RowCursor, ShiftClickSelectsTheRangeFromTheAnchor) {
    RowCursor cursor;
    cursor.Click(5, cnPlain);
    EXPECT_TRUE(cursor.Click(8, cnShift));
    EXPECT_EQ(Selected(cursor), (Ranges{{5, 8}}));
    EXPECT_TRUE(cursor.Click(2, cnShift));
    EXPECT_EQ(Selected(cursor), (Ranges{{2, 5}})) << "the anchor stays";
    EXPECT_EQ(cursor.GetFocus(), 2);
}

TEST(RowCursor, RangeWithoutAnchorBeginsAtTheFocusOrAtTheRowItself) {
    RowCursor cursor;
    cursor.SetFocus(4);
    cursor.Click(6, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{4, 6}}));
    cursor.Reset();
    cursor.Click(6, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{6, 6}}));
}

TEST(RowCursor, ControlClickTogglesAndMovesTheAnchor) {
    RowCursor cursor;
    cursor.Click(1, cnPlain);
    EXPECT_TRUE(cursor.Click(5, cnControl));
    EXPECT_EQ(Selected(cursor), (Ranges{{1, 1}, {5, 5}}));
    EXPECT_TRUE(cursor.Click(1, cnControl));
    EXPECT_EQ(Selected(cursor), (Ranges{{5, 5}}));
    EXPECT_EQ(cursor.GetFocus(), 1);
    cursor.Click(3, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{1, 3}}));
}

TEST(RowCursor, ControlShiftClickAddsTheRange) {
    RowCursor cursor;
    cursor.Click(1, cnPlain);
    cursor.Click(5, cnControl);
    EXPECT_TRUE(cursor.Click(8, cnShiftAndControl));
    EXPECT_EQ(Selected(cursor), (Ranges{{1, 1}, {5, 8}}));
    EXPECT_EQ(cursor.GetAnchor(), 5);
}

TEST(RowCursor, ClickOnTheEmptyAreaClearsUnlessAModifierIsDown) {
    RowCursor cursor;
    cursor.Click(3, cnPlain);
    EXPECT_FALSE(cursor.Click(-1, cnShift));
    EXPECT_FALSE(cursor.Click(-1, cnControl));
    EXPECT_EQ(Selected(cursor), (Ranges{{3, 3}}));
    EXPECT_TRUE(cursor.Click(-1, cnPlain));
    EXPECT_TRUE(cursor.GetSelection().IsEmpty());
    EXPECT_EQ(cursor.GetFocus(), 3);
    EXPECT_FALSE(cursor.Click(-1, cnPlain));
}

TEST(RowCursor, RightClickOutsideSelectsAndInsideKeepsTheSelection) {
    RowCursor cursor;
    cursor.Click(3, cnPlain);
    cursor.Click(6, cnShift);
    EXPECT_TRUE(cursor.ContextClick(4));
    EXPECT_EQ(Selected(cursor), (Ranges{{3, 6}}));
    EXPECT_EQ(cursor.GetFocus(), 4);
    EXPECT_FALSE(cursor.ContextClick(4));
    EXPECT_TRUE(cursor.ContextClick(9));
    EXPECT_EQ(Selected(cursor), (Ranges{{9, 9}}));
    EXPECT_TRUE(cursor.ContextClick(-1));
    EXPECT_TRUE(cursor.GetSelection().IsEmpty());
}

TEST(RowCursor, KeysLeadWhereTheTableSays) {
    struct Row {
        TKey key;
        int from;
        int to;
    };
    const Row table[] = {
        {TKey::Up, 50, 49},     {TKey::Up, 0, 0},         {TKey::Up, -1, 0},        {TKey::Down, 50, 51},
        {TKey::Down, 99, 99},   {TKey::Down, -1, 0},      {TKey::PageUp, 50, 41},   {TKey::PageUp, 5, 0},
        {TKey::PageUp, -1, 0},  {TKey::PageDown, 50, 59}, {TKey::PageDown, 95, 99}, {TKey::PageDown, -1, 0},
        {TKey::Home, 50, 0},    {TKey::Home, -1, 0},      {TKey::End, 50, 99},      {TKey::End, -1, 99},
        {TKey::Down, 5000, 99}, {TKey::Up, 5000, 98},
    };
    for (const Row& row : table) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(row.key) << " from " << row.from);
        RowCursor cursor;
        cursor.SetFocus(row.from);
        Press(cursor, row.key);
        EXPECT_EQ(cursor.GetFocus(), row.to);
        EXPECT_EQ(Selected(cursor), (Ranges{{row.to, row.to}}));
    }
}

TEST(RowCursor, ArrowAtTheEndChangesNothing) {
    RowCursor cursor;
    cursor.Click(99, cnPlain);
    EXPECT_FALSE(Press(cursor, TKey::Down));
    EXPECT_FALSE(Press(cursor, TKey::PageDown));
    EXPECT_FALSE(Press(cursor, TKey::End));
}

TEST(RowCursor, ShiftArrowsGrowAndShrinkTheRange) {
    RowCursor cursor;
    cursor.Click(10, cnPlain);
    Press(cursor, TKey::Down, cnShift);
    Press(cursor, TKey::Down, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{10, 12}}));
    Press(cursor, TKey::Up, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{10, 11}}));
    Press(cursor, TKey::Home, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{0, 10}}));
    Press(cursor, TKey::End, cnShiftAndControl);
    EXPECT_EQ(Selected(cursor), (Ranges{{0, 99}}));
}

TEST(RowCursor, ControlArrowMovesTheFocusAlone) {
    RowCursor cursor;
    cursor.Click(10, cnPlain);
    EXPECT_TRUE(Press(cursor, TKey::Down, cnControl));
    EXPECT_EQ(cursor.GetFocus(), 11);
    EXPECT_EQ(cursor.GetAnchor(), 10);
    EXPECT_EQ(Selected(cursor), (Ranges{{10, 10}}));
    Press(cursor, TKey::End, cnControl);
    EXPECT_FALSE(Press(cursor, TKey::End, cnControl));
}

TEST(RowCursor, SpaceSelectsTheFocusedRowAndWithControlToggles) {
    RowCursor cursor;
    EXPECT_FALSE(Press(cursor, TKey::Space)) << "no focused row";
    cursor.Click(10, cnPlain);
    Press(cursor, TKey::Down, cnControl);
    Press(cursor, TKey::Down, cnControl);
    EXPECT_TRUE(Press(cursor, TKey::Space, cnControl));
    EXPECT_EQ(Selected(cursor), (Ranges{{10, 10}, {12, 12}}));
    EXPECT_TRUE(Press(cursor, TKey::Space));
    EXPECT_EQ(Selected(cursor), (Ranges{{12, 12}}));
    Press(cursor, TKey::Up, cnControl);
    Press(cursor, TKey::Space, cnShift);
    EXPECT_EQ(Selected(cursor), (Ranges{{11, 12}}));
}

TEST(RowCursor, SelectAllKeepsTheFocusAndIsOneRange) {
    RowCursor cursor;
    cursor.Click(10, cnPlain);
    EXPECT_TRUE(Press(cursor, TKey::SelectAll));
    EXPECT_EQ(Selected(cursor), (Ranges{{0, 99}}));
    EXPECT_EQ(cursor.GetFocus(), 10);
    EXPECT_FALSE(Press(cursor, TKey::SelectAll));
}

TEST(RowCursor, OtherKeysAndEmptyListsChangeNothing) {
    RowCursor cursor;
    for (const TKey key : {TKey::Left, TKey::Right, TKey::Escape, TKey::Return})
        EXPECT_FALSE(Press(cursor, key));
    for (const TKey key : {TKey::Up, TKey::Down, TKey::PageUp, TKey::PageDown, TKey::Home, TKey::End,
                           TKey::Space, TKey::SelectAll}) {
        EXPECT_FALSE(cursor.Key(key, cnPlain, 0, 0));
    }
    EXPECT_EQ(cursor.GetFocus(), -1);
}

TEST(RowCursor, NumbersAtTheLimitsDoNotOverflow) {
    constexpr int most = std::numeric_limits<int>::max();
    RowCursor cursor;
    cursor.Key(TKey::End, cnPlain, most, most);
    EXPECT_EQ(cursor.GetFocus(), most - 1);
    cursor.Key(TKey::PageDown, cnPlain, most, most);
    EXPECT_EQ(cursor.GetFocus(), most - 1);
    cursor.Key(TKey::PageUp, cnPlain, most, most);
    EXPECT_EQ(cursor.GetFocus(), 0);
    cursor.Key(TKey::PageDown, cnPlain, most, std::numeric_limits<int>::min());
    EXPECT_EQ(cursor.GetFocus(), 1) << "a page is at least a row";
}

TEST(RowCursor, TruncateDropsWhatLiesBeyond) {
    RowCursor cursor;
    cursor.Click(5, cnPlain);
    EXPECT_FALSE(cursor.Truncate(6));
    EXPECT_TRUE(cursor.Truncate(5));
    EXPECT_EQ(cursor.GetFocus(), -1);
    EXPECT_EQ(cursor.GetAnchor(), -1);
    EXPECT_TRUE(cursor.GetSelection().IsEmpty());
    EXPECT_FALSE(cursor.Truncate(0));
}

TEST(RowCursor, InsertedRowMovesWhatLiesBehindIt) {
    RowCursor cursor;
    cursor.Click(5, cnPlain);
    cursor.Click(7, cnShift);
    cursor.RowInserted(6);
    EXPECT_EQ(Selected(cursor), (Ranges{{5, 5}, {7, 8}}));
    EXPECT_EQ(cursor.GetFocus(), 8);
    EXPECT_EQ(cursor.GetAnchor(), 5);
}

/// @file
/// The three options as numbers, texts and items.
#include "vapp/app/AskReserve.h"

#include <gtest/gtest.h>

using namespace prefs;

TEST(AskReserve, TheNumbersAreFixed) {
    EXPECT_EQ(AskAlways, 0);
    EXPECT_EQ(AskNever, 1);
    EXPECT_EQ(AskManagedCellsOnly, 2);
    EXPECT_EQ(Declined, 0);
    EXPECT_EQ(Agreed, 1);
    EXPECT_EQ(NotAsked, 2);
}

TEST(AskReserve, AStoredTextIsReadByteForByte) {
    const struct {
        const char* text;
        TAskReserveOption option;
    } rows[] = {
        {"Always", AskAlways},
        {"Never", AskNever},
        {"Managed Cells Only", AskManagedCellsOnly},
        {"always", AskNever},
        {"ALWAYS", AskNever},
        {"Always ", AskNever},
        {"", AskNever},
        {"0", AskNever},
        {"Managed cells only", AskNever},
        {"__$$Translatable$$_Always", AskNever},
    };
    for (const auto& row : rows)
        EXPECT_EQ(gConvertStringToEnum(row.text), row.option) << row.text;
}

TEST(AskReserve, TheComboHasTheTextsInTheOrderOfTheirNumbers) {
    for (const bool sorted : {false, true}) {
        TComboBoxCtrl combo(sorted);
        gInitAskReserveCombo(&combo, 2);
        ASSERT_EQ(combo.GetCount(), 3);
        for (int item = 0; item < 3; ++item)
            EXPECT_EQ(gConvertStringToEnum(combo.GetLBText(item)), item);
        EXPECT_EQ(combo.GetCurSel(), 2);
    }
}

TEST(AskReserve, AChoiceOutOfRangeIsNone) {
    for (const int selection : {-1, 3, 1000000}) {
        TComboBoxCtrl combo;
        gInitAskReserveCombo(&combo, selection);
        EXPECT_EQ(combo.GetCount(), 3);
        EXPECT_EQ(combo.GetCurSel(), -1) << selection;
    }
    gInitAskReserveCombo(nullptr, 0);
}

TEST(AskReserve, ItemsThatAreThereMoveDown) {
    TComboBoxCtrl combo;
    combo.AddString("there");
    gInitAskReserveCombo(&combo, 0);
    EXPECT_EQ(combo.GetLBText(0), "Always");
    EXPECT_EQ(combo.GetLBText(3), "there");
}

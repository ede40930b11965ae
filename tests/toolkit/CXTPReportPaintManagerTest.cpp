/// @file
/// Colours and the no-items text.
#include "vapp/toolkit/CXTPReportPaintManager.h"

#include "tests/toolkit/TestReport.h"

using CXTPReportPaintManagerTest = TestReport;

TEST_F(CXTPReportPaintManagerTest, CustomColourHidesTheDefaultUntilItIsTakenBack) {
    CXTPReportPaintManager& looks = report.GetPaintManager();
    EXPECT_EQ(looks.GetColor(TReportColor::FilteredList), cnNoColor);
    looks.SetCustomColor(TReportColor::FilteredList, 0xE8FAFF);
    looks.SetCustomColor(TReportColor::FilteredList, 0xE8FAFF);
    EXPECT_EQ(looks.GetColor(TReportColor::FilteredList), 0xE8FAFFu);
    EXPECT_EQ(looks.GetColor(TReportColor::ControlBack), cnNoColor);
    EXPECT_FALSE(looks.IsDefaultColor(TReportColor::FilteredList));
    looks.SetCustomColor(TReportColor::FilteredList, cnNoColor);
    EXPECT_TRUE(looks.IsDefaultColor(TReportColor::FilteredList));
    EXPECT_EQ(Told().changes, std::vector<UINT>(2, cnChangeLook));
}

TEST_F(CXTPReportPaintManagerTest, StandardValueShowsWhereNoCustomOneIs) {
    CXTPPaintManagerColor color;
    color.SetStandardValue(1);
    EXPECT_EQ(COLORREF(color), 1u);
    color.SetCustomValue(2);
    EXPECT_EQ(COLORREF(color), 2u);
    color.SetDefaultValue();
    EXPECT_EQ(COLORREF(color), 1u);
}

TEST_F(CXTPReportPaintManagerTest, NoItemsTextIsToldOnce) {
    report.GetPaintManager().SetNoItemsText("No cells");
    report.GetPaintManager().SetNoItemsText("No cells");
    EXPECT_EQ(report.GetPaintManager().GetNoItemsText(), "No cells");
    EXPECT_EQ(Told().changes, std::vector<UINT>{cnChangeLook});
}

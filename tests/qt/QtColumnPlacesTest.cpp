/// @file
/// The places of columns agree with the control's own hit test, whatever is hidden, frozen or scrolled.
#include "toolkit/qt/QtColumnPlaces.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "tests/text/HostileText.h"
#include "vapp/toolkit/CXTPReportControl.h"

using namespace vapp_qt;

namespace {

void AddColumns(CXTPReportControl& report, const std::vector<int>& widths) {
    for (const int width : widths) {
        report.AddColumn(std::make_unique<CXTPReportColumn>(report.GetColumns().GetCount(), "c", "c", width));
    }
}

}  // namespace

TEST(QtColumnPlaces, FrozenColumnsStayAndCutTheOthers) {
    CXTPReportControl report;
    report.Create(nullptr, 1, {0, 0, 200, 100});
    AddColumns(report, {100, 80, 60, 70});
    report.SetFreezeColumnsCount(1);
    report.SetScrollX(90);
    const std::vector<QtColumnPlace> places = gColumnPlaces(report);
    ASSERT_EQ(places.size(), 3U);
    EXPECT_EQ(places[0].left, 0);
    EXPECT_EQ(places[1].visibleIndex, 2) << "the second one is behind the first";
    EXPECT_EQ(places[1].left, 90);
    EXPECT_EQ(places[1].shownLeft, 100);
    EXPECT_EQ(places[1].ShownWidth(), 50);
    EXPECT_EQ(places[2].Right(), 220);
    EXPECT_EQ(gPlaceOfColumn(report, nullptr).column, nullptr);
    EXPECT_EQ(gPlaceOfColumn(report, report.GetColumns().GetAt(1)).Right(), 90);
}

TEST(QtColumnPlaces, AgreeWithTheControlsHitTest) {
    std::mt19937 random = text_test::SeededRandom();
    const auto below = [&random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    for (int round = 0; round < 200; ++round) {
        CXTPReportControl report;
        report.Create(nullptr, 1, {0, 0, 150 + below(100), 100});
        AddColumns(report, {below(90), below(90), below(90), below(90), below(90)});
        for (int position = 0; position < 5; ++position)
            report.GetColumns().GetAt(position)->SetVisible(below(4) != 0);
        report.SetFreezeColumnsCount(below(3));
        report.SetScrollX(below(200));
        for (int x = 0; x < report.GetClientRect().right; ++x) {
            const CXTPReportColumn* shown = nullptr;
            for (const QtColumnPlace& place : gColumnPlaces(report)) {
                if (x >= place.shownLeft && x < place.Right()) shown = place.column;
            }
            ASSERT_EQ(shown, report.GetReportHeader().HitTest({x, 5})) << "at " << x;
        }
    }
}

TEST(QtColumnPlaces, HopelessWidthsStayWithinReach) {
    CXTPReportControl report;
    report.Create(nullptr, 1, {0, 0, 200, 100});
    AddColumns(report, {0x7FFFFFFF, 0x7FFFFFFF, -0x7FFFFFFF, 0x7FFFFFFF});
    report.SetFreezeColumnsCount(1);
    for (const int scrollX : {0, 0x7FFFFFFF}) {
        report.SetScrollX(scrollX);
        for (const QtColumnPlace& place : gColumnPlaces(report)) {
            EXPECT_GE(place.width, 0);
            EXPECT_LE(place.Right(), 1 << 25);
        }
    }
}

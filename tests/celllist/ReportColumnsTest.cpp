#include <tcl.h>

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class ReportColumnsTest : public CellListFixture {
protected:
    [[nodiscard]] TReport::TColumn& Own(const char* caption) {
        return dynamic_cast<TReport::TColumn&>(Column(caption));
    }
};

TEST_F(ReportColumnsTest, HaveTheirDefaultsForEachSetup) {
    Show({});
    Report().AddColumn("Shown", "a", true, false);
    Report().AddColumn("Hidden", "b", true, true);
    struct Case {
        const char* caption;
        int width[3];
        bool visible[3];
    };
    const Case cases[] = {{"Cell", {140, 140, 120}, {true, true, true}},
                          {"View", {60, 60, 50}, {true, true, true}},
                          {"Library", {60, 60, 50}, {true, true, true}},
                          {"Shown", {50, 50, 50}, {false, true, true}},
                          {"Hidden", {50, 50, 50}, {false, true, false}}};
    for (const Case& row : cases) {
        for (int setup = 0; setup < 3; ++setup) {
            SCOPED_TRACE(std::string(row.caption) + " in setup " + std::to_string(setup));
            EXPECT_EQ(Own(row.caption).GetDefaultWidth(setup), row.width[setup]);
            EXPECT_EQ(Own(row.caption).GetDefaultVisible(setup), row.visible[setup]);
        }
    }
}

TEST_F(ReportColumnsTest, AreMadeWithCaptionIndexAndInternalName) {
    Show({});
    Report().AddColumn("My column", "a", true, false);
    int index = 0;
    for (const char* caption : {"Cell", "View", "Library", "My column"}) {
        const CXTPReportColumn& column = Column(caption);
        EXPECT_EQ(column.GetItemIndex(), index++);
        EXPECT_EQ(column.GetInternalName(), CString("column_") + caption);
        EXPECT_EQ(column.GetWidth(), 50);
        EXPECT_TRUE(column.IsAutoSize() && column.IsSortable() && column.IsVisible());
        EXPECT_EQ(column.GetIconID(), -1);
    }
}

TEST_F(ReportColumnsTest, AddingOnePopulatesNothing) {
    ShowCells({{"l1", "a", "v"}});
    Report().AddColumn("More", "more", true, false);
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(ReportColumnsTest, ShowTheFirstIconThatApplies) {
    ShowCells({{"l1", "a", "v"}});
    const std::pair<const char*, int> icons[] = {
        {"is_vcell", 6}, {"is_guardring", 16}, {"is_customviadef", 19}, {"is_stdviadef", 13}, {"is_fab", 3}};
    m_host.AnswerStart("database cellviewinfo", "0");
    EXPECT_EQ(Own("Cell").GetCellIcon(Report().GetCell(0)), -1);
    m_host.AnswerStart("database cellviewinfo is_lockedbyuser", "1");
    EXPECT_EQ(Own("Cell").GetCellIcon(Report().GetCell(0)), 1);
    // From the last question to the first, so that each new one hides those before.
    for (const auto& [key, icon] : icons) {
        m_host.AnswerStart(std::string("database cellviewinfo ") + key, "-5");
        m_host.AnswerStart("database cellviewinfo is_lockedbyuser", "0");
        EXPECT_EQ(Own("Cell").GetCellIcon(Report().GetCell(0)), icon);
        m_host.AnswerStart("database cellviewinfo is_lockedbyuser", "1");
        EXPECT_EQ(Own("Cell").GetCellIcon(Report().GetCell(0)), icon + 1);
    }
    EXPECT_EQ(Own("View").GetCellIcon(Report().GetCell(0)), -1);
}

TEST_F(ReportColumnsTest, SendTheHostsCommandWithDesignAndTripleSanitised) {
    const HookGuard hook;
    ShowCells({{"l 1", "a{", "v"}});
    m_host.AddCommand("state");
    m_host.AnswerStart("state -now", "is \xC3\xA9");
    Report().AddColumn("State", "state -now", true, false);
    const CStringU text = Own("State").GetCellText(Report().GetCell(0));
    EXPECT_EQ(m_host.Lines(), TLines{"state -now top {l 1} a\\{ v"});
    EXPECT_STREQ(text.Payload(), "is \xC3\xA9");
    EXPECT_TRUE(text.HasNonAscii());
}

TEST_F(ReportColumnsTest, AskTheHostsFunctionAlsoWithoutADesign) {
    ShowCells({{"l1", "a", "v"}});
    Report().AddColumn(
        "Upper", [](const TLibCellView& cell) { return cell.Join("/"); }, true, false);
    Libraries().GetDesignCombo().ResetContent();
    EXPECT_EQ(Own("Upper").GetCellText(Report().GetCell(0)), "l1/a/v");
}

TEST_F(ReportColumnsTest, OfAHostAreEmptyWithoutADesign) {
    ShowCells({{"l1", "a", "v"}});
    Report().AddColumn("State", "state", true, false);
    Libraries().GetDesignCombo().ResetContent();
    EXPECT_TRUE(Own("State").GetCellText(Report().GetCell(0)).IsEmpty());
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(ReportColumnsTest, CompareInNaturalOrderAndHostColumnsByTheirKeys) {
    Show({});
    EXPECT_LT(Own("Cell").CompareCells({"l", "c9", "v"}, {"l", "C10", "v"}), 0);
    EXPECT_EQ(Own("Library").CompareCells({"L", "a", "v"}, {"l", "b", "w"}), 0);
    EXPECT_GT(Own("View").CompareCells({"l", "a", "w"}, {"l", "a", "V"}), 0);
    Report().AddColumn("Forward", "a", true, false);
    Report().AddColumn("Backward", "a", false, false);
    TLibCellView left("l", "a", "v");
    TLibCellView right("l", "b", "v");
    EXPECT_EQ(Own("Forward").CompareCells(left, right), 0);
    left.sortKey = "k9";
    right.sortKey = "k10";
    EXPECT_LT(Own("Forward").CompareCells(left, right), 0);
    EXPECT_GT(Own("Backward").CompareCells(left, right), 0);
}

TEST_F(ReportColumnsTest, MatchASubString) {
    Show({});
    const TLibCellView cell("l", CStringU("Inv\xC3\x89x", TextEncoding::Utf8Auto), "v");
    const auto matches = [&](const char* text, bool caseSensitive) {
        return Own("Cell").MatchesFilter(cell, CStringU(text, TextEncoding::Utf8Auto), caseSensitive);
    };
    EXPECT_TRUE(matches("iNV", false));
    EXPECT_FALSE(matches("iNV", true));
    EXPECT_TRUE(matches("nv\xC3\x89", true));
    EXPECT_FALSE(matches("nv\xC3\xA9", true));
    EXPECT_TRUE(matches("", false));
    // Without regard to case a letter that takes several bytes is found at the end of a text only.
    EXPECT_FALSE(matches("\xC3\xA9", false));
    EXPECT_TRUE(Own("Cell").MatchesFilter({"l", CStringU("a\xC3\x89", TextEncoding::Utf8Auto), "v"},
                                          CStringU("\xC3\xA9", TextEncoding::Utf8Auto), false));
}

}  // namespace

#include <tcl.h>

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

// One row; every question is answered by 0 unless a test says otherwise.
class ReportRecordTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"lib", "inv", "sym"}});
        m_host.AnswerStart("database cellviewinfo", "0");
        m_host.ClearLines();
    }
    void Say(const std::string& key, const std::string& answer) {
        m_host.Answer("database cellviewinfo " + key + " top lib inv sym ", answer);
    }
    void HideInLists() { Say("is_hiddeninlists", "1"); }
};

TEST_F(ReportRecordTest, AsksInAFixedOrder) {
    TLines all;
    for (const char* caption : {"Cell", "View"}) {
        Measure(0, caption);
        all.insert(all.end(), m_host.Lines().begin(), m_host.Lines().end());
        m_host.ClearLines();
    }
    Say("is_customviadef", "1");
    Measure(0, "Cell");
    all.insert(all.end(), m_host.Lines().begin(), m_host.Lines().end());
    ExpectGolden("metrics_lines.txt", all);
}

TEST_F(ReportRecordTest, ShowsACellModifiedInTheColumnOfCellsOnly) {
    Say("is_modified", "1");
    EXPECT_EQ(Measure(0, "Cell").font, &XTPPaintManager::GetRegularBoldFont());
    EXPECT_EQ(Measure(0, "View").font, nullptr);
    EXPECT_EQ(Measure(0, "Library").font, nullptr);
    Say("is_modified", "not a number");
    EXPECT_EQ(Measure(0, "Cell").font, nullptr);
}

TEST_F(ReportRecordTest, ColoursTheForegroundByHiddenAndUnresolved) {
    struct Case {
        bool hidden;
        const char* state;
        bool colorHidden;
        bool colorUnresolved;
        COLORREF foreground;
    };
    const Case cases[] = {
        {true, "Unresolved", true, false, 0x808080},   {true, "Unresolved", true, true, 0x0000BF},
        {true, "Cycle", true, true, 0x0000BF},         {false, "Unresolved", true, true, 0x0000DF},
        {false, "Cycle", false, true, 0x0000DF},       {true, "Cycle", false, true, 0x0000DF},
        {true, "Normal", true, true, 0x808080},        {true, "Normal", false, true, cnNoColor},
        {false, "Unresolved", true, false, cnNoColor}, {false, "unresolved", true, true, cnNoColor},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(std::string(row.state) + (row.hidden ? " hidden" : ""));
        Say("is_hiddeninlists", row.hidden ? "7" : "0");
        Say("cache", row.state);
        TReport::TOptions options = Report().GetOptions();
        options.colorHiddenCells = row.colorHidden;
        options.colorUnresolvedCells = row.colorUnresolved;
        Report().SetOptions(options);
        EXPECT_EQ(Measure(0, "View").foreground, row.foreground);
    }
}

TEST_F(ReportRecordTest, LeavesTheForegroundIfTheStateFailsAlsoOfAHiddenCell) {
    HideInLists();
    m_host.AnswerCode("database cellviewinfo cache top lib inv sym ", TCL_ERROR, "Unresolved");
    EXPECT_EQ(Measure(0, "View").foreground, cnNoColor);
}

TEST_F(ReportRecordTest, LeavesTheForegroundIfTheStateFailsAlsoWithoutColourForUnresolvedCells) {
    HideInLists();
    SetOptions([](auto& options) { options.colorUnresolvedCells = false; });
    EXPECT_EQ(Measure(0, "View").foreground, 0x808080u);
    m_host.AnswerCode("database cellviewinfo cache top lib inv sym ", TCL_ERROR, "");
    EXPECT_EQ(Measure(0, "View").foreground, cnNoColor);
}

TEST_F(ReportRecordTest, AsksForHiddenAndStateWhateverIsColoured) {
    SetOptions([](auto& options) { options.colorHiddenCells = false; });
    Measure(0, "View");
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo is_hiddeninlists").size(), 1u);
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo cache").size(), 1u);
    SetOptions([](auto& options) { options.colorUnresolvedCells = false; });
    m_host.ClearLines();
    Measure(0, "View");
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo is_hiddeninlists").size(), 1u);
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo cache").size(), 1u);
}

TEST_F(ReportRecordTest, AsksForReservedCellsOnlyIfTheyAreColoured) {
    Say("is_reserved", "1");
    EXPECT_EQ(Measure(0, "View").background, 0xE6E6FFu);
    SetOptions([](auto& options) { options.colorReservedCells = false; });
    m_host.ClearLines();
    EXPECT_EQ(Measure(0, "View").background, cnNoColor);
    EXPECT_EQ(m_host.LinesStarting("database cellviewinfo is_reserved"), TLines());
}

TEST_F(ReportRecordTest, AsksForNoIconInTheSchematicEditorsMode) {
    m_browser.ModifyForQEdit();
    Say("is_fab", "1");
    EXPECT_EQ(Measure(0, "Cell").icon, -1);
    EXPECT_EQ(m_host.Lines().size(), 4u);
    EXPECT_EQ(m_host.Lines().front(), "database cellviewinfo is_modified top lib inv sym ");
}

TEST_F(ReportRecordTest, StopsAfterTheTextWithoutACellOrADesign) {
    AnswerCells({{"lib", "", "sym"}});
    Repopulate();
    m_host.ClearLines();
    EXPECT_EQ(Measure(0, "View").text, "");
    EXPECT_EQ(m_host.Lines(), TLines());
    AnswerCells({{"lib", "inv", "sym"}});
    Repopulate();
    Libraries().GetDesignCombo().ResetContent();
    m_host.ClearLines();
    EXPECT_EQ(Measure(0, "Cell").text, "inv");
    EXPECT_EQ(m_host.Lines(), TLines());
}

TEST_F(ReportRecordTest, HasAnItemForEachColumnOfItsPopulation) {
    EXPECT_EQ(Report().GetVirtualRecord()->GetItemCount(), 3);
    Report().AddColumn("More", "more", true, false);
    EXPECT_EQ(Report().GetVirtualRecord()->GetItemCount(), 3);
    Repopulate();
    EXPECT_EQ(Report().GetVirtualRecord()->GetItemCount(), 4);
}

TEST_F(ReportRecordTest, SurvivesAPopulationInTheMiddleOfAnyOfItsLines) {
    for (const std::string key : {"is_fab", "is_lockedbyuser", "is_modified", "is_reserved", "cache"}) {
        SCOPED_TRACE(key);
        AnswerCells({{"lib", "inv", "sym"}});
        Repopulate();
        const std::string line = "database cellviewinfo " + key + " top lib inv sym ";
        m_host.Handle(line, [this](Tcl_Interp* interp) {
            AnswerCells({});
            Repopulate();
            Tcl_SetObjResult(interp, Tcl_NewStringObj("1", -1));
            return TCL_OK;
        });
        EXPECT_EQ(Measure(0, "Cell").text, "inv");
        EXPECT_EQ(Report().GetCellViewCount(), 0u);
        Say(key, "0");
    }
}

}  // namespace

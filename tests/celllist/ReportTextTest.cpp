#include <tcl.h>

#include "tests/celllist/CellListFixture.h"

namespace {

using namespace vapp_library_browser;

class ReportTextTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "a", "sym"}, {"l1", "a", "lay"}, {"l2", "", "v"}, {"l2", "b\xC3\xA9", "v"}});
    }
    [[nodiscard]] std::string Dump(const std::vector<CStringU>& columns) {
        CStringU out = "old";
        Report().DumpContents(columns, out);
        return out.Payload();
    }
};

TEST_F(ReportTextTest, DumpsTheVisibleColumnsAsTheyStand) {
    Column("View").SetVisible(false);
    Report().GetColumns().ChangeColumnOrder(0, &Column("Library"));
    Report().Populate();
    EXPECT_EQ(Dump({}), "Library,Cell\nl1,a\nl1,a\nl2,\nl2,b\xC3\xA9\n");
}

TEST_F(ReportTextTest, DumpsNamedColumnsAlsoHiddenOnesAndSkipsUnknownOnes) {
    Column("View").SetVisible(false);
    EXPECT_EQ(Dump({"View", "No such", "Cell", "View"}),
              "View,Cell,View\nv,,v\nlay,a,lay\nsym,a,sym\nv,b\xC3\xA9,v\n");
}

TEST_F(ReportTextTest, DumpsNothingWithoutColumns) {
    EXPECT_EQ(Dump({"No such"}), "");
    for (const char* caption : {"Cell", "View", "Library"})
        Column(caption).SetVisible(false);
    EXPECT_EQ(Dump({}), "");
}

TEST_F(ReportTextTest, DoesNotEscapeSeparators) {
    AnswerCells({{"a,b", "c\"d", "v"}});
    Repopulate();
    EXPECT_EQ(Dump({"Library", "Cell"}), "Library,Cell\na,b,c\"d\n");
}

TEST_F(ReportTextTest, SurvivesAPopulationInTheMiddleOfADump) {
    m_host.AddCommand("state");
    m_host.HandleStart("state", [this](Tcl_Interp*) {
        AnswerCells({});
        Repopulate();
        return TCL_OK;
    });
    Report().AddColumn("State", "state", true, false);
    EXPECT_EQ(Dump({"State", "Library"}), "State,Library\n,l2\n");
}

TEST_F(ReportTextTest, EndsThoughTheListGrowsWithEveryRowOfTheDump) {
    m_host.AddCommand("state");
    TTriples triples = {{"l1", "a", "v"}, {"l1", "b", "v"}};
    AnswerCells(triples);
    Repopulate();
    int asked = 0;
    m_host.HandleStart("state", [&](Tcl_Interp*) {
        if (++asked > 20) return TCL_OK;
        triples.push_back({"l1", "c" + std::to_string(asked), "v"});
        AnswerCells(triples);
        Repopulate();
        return TCL_OK;
    });
    Report().AddColumn("State", "state", true, false);
    EXPECT_EQ(Dump({"State", "Cell"}), "State,Cell\n,a\n,b\n");
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Report().GetCellViewCount(), 4u);
}

TEST_F(ReportTextTest, ListsTheCellsOfRowsThatHaveOne) {
    EXPECT_STREQ(Report().GetShownCellList().Payload(), "a\r\na\r\nb\xC3\xA9\r\n");
    EXPECT_STREQ(Report().GetShownCellViewList().Payload(), "l1 a lay\r\nl1 a sym\r\nl2 b\xC3\xA9 v\r\n");
    EXPECT_TRUE(Report().GetShownCellList().HasNonAscii());
    AnswerCells({});
    Repopulate();
    EXPECT_TRUE(Report().GetShownCellList().IsEmpty());
}

}  // namespace

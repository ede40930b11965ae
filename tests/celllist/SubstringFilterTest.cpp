#include "celllist/SubstringFilter.h"

#include <tcl.h>

#include "tests/celllist/CellListFixture.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

using namespace vapp_library_browser;
using TLines = std::vector<std::string>;

class SubstringFilterTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"lib_x", "inv", "sym"}, {"lib_x", "nor_SYM", "lay"}, {"lib_y", "INVx2", "lay"}});
    }
    TLines Filter(const char* text) {
        Type(text);
        Repopulate();
        return Rows();
    }
};

TEST_F(SubstringFilterTest, KeepsAllRowsWithoutAText) {
    EXPECT_EQ(Filter("").size(), 3u);
}

TEST_F(SubstringFilterTest, LooksAtTheCellAloneAtFirst) {
    EXPECT_EQ(Filter("inv"), (TLines{"lib_x inv sym", "lib_y INVx2 lay"}));
    EXPECT_EQ(Filter("sym"), TLines{"lib_x nor_SYM lay"});
    EXPECT_EQ(Filter("lib"), TLines());
}

TEST_F(SubstringFilterTest, LooksAtTheViewOrAtAllColumnsIfToldSo) {
    SetOptions([](auto& options) { options.filterViewName = true; });
    EXPECT_EQ(Filter("sym"), (TLines{"lib_x inv sym", "lib_x nor_SYM lay"}));
    SetOptions([](auto& options) { options.filterCellName = false; });
    EXPECT_EQ(Filter("sym"), TLines{"lib_x inv sym"});
    SetOptions([](auto& options) {
        options.filterViewName = false;
        options.filterAllColumns = true;
    });
    EXPECT_EQ(Filter("lib_y"), TLines{"lib_y INVx2 lay"});
}

TEST_F(SubstringFilterTest, TellsCasesApartIfToldSo) {
    SetOptions([](auto& options) { options.filterCaseSensitive = true; });
    EXPECT_EQ(Filter("INV"), TLines{"lib_y INVx2 lay"});
}

// Texts outside of ASCII go to the column's own test: without regard to case they are found at the end of a
// name alone, and with it anywhere.
TEST_F(SubstringFilterTest, TakesLettersOutsideOfAsciiFromTheEditInBothModes) {
    AnswerCells({{"l",
                  "pr\xC3\xBC"
                  "fer",
                  "v"},
                 {"l",
                  "gr\xC3\x9C"
                  "N",
                  "v"},
                 {"l", "x\xC3\xBC", "v"},
                 {"l", "y\xC3\x9C", "v"}});
    const TLines none;
    gSetActiveCodePage(cnUtf8CodePage);
    EXPECT_EQ(Filter("\xC3\xBC"), (TLines{"l x\xC3\xBC v", "l y\xC3\x9C v"})) << "in either case, at the end";
    EXPECT_EQ(Filter("GR\xC3\xBCn"), TLines{"l gr\xC3\x9CN v"});
    EXPECT_EQ(Filter("\xC3\xBC"
                     "fe"),
              none);
    SetOptions([](auto& options) { options.filterCaseSensitive = true; });
    EXPECT_EQ(Filter("\xC3\xBC"), (TLines{"l pr\xC3\xBC"
                                          "fer v",
                                          "l x\xC3\xBC v"}));
    EXPECT_EQ(Filter("\xC3\x9CN"), TLines{"l gr\xC3\x9CN v"});
    gSetActiveCodePage(0);
}

TEST_F(SubstringFilterTest, FindsNothingInAHiddenColumn) {
    Column("Cell").SetVisible(false);
    EXPECT_EQ(Filter("inv"), TLines());
}

TEST_F(SubstringFilterTest, AsksAHostColumnOnlyForRowsThatNoEarlierColumnKeeps) {
    m_host.AddCommand("state");
    m_host.Answer("state top lib_x nor_SYM lay", "inverse");
    m_host.AnswerStart("state", "");
    Report().AddColumn("State", "state", true, false);
    SetOptions([](auto& options) { options.filterAllColumns = true; });
    m_host.ClearLines();
    EXPECT_EQ(Filter("inv").size(), 3u);
    EXPECT_EQ(m_host.LinesStarting("state"), TLines{"state top lib_x nor_SYM lay"});
    Column("State").SetVisible(false);
    m_host.ClearLines();
    EXPECT_EQ(Filter("inv").size(), 2u);
    EXPECT_EQ(m_host.LinesStarting("state"), TLines());
}

TEST_F(SubstringFilterTest, AsksAHostColumnInTheOrderOfTheSetWhateverTheSortOrder) {
    m_host.AddCommand("state");
    m_host.AnswerStart("state", "");
    Report().AddColumn("State", "state", true, false);
    SetOptions([](auto& options) { options.filterAllColumns = true; });
    Report().GetColumns().SetSortColumn(&Column("View"), false);
    m_host.ClearLines();
    EXPECT_EQ(Filter("~"), TLines());
    EXPECT_EQ(m_host.LinesStarting("state"), (TLines{"state top lib_x inv sym", "state top lib_y INVx2 lay",
                                                     "state top lib_x nor_SYM lay"}));
}

TEST_F(SubstringFilterTest, SeesTheFirstOfTriplesThatDifferInCaseAlone) {
    AnswerCells({{"l", "INV", "v"}, {"l", "inv", "v"}});
    SetOptions([](auto& options) { options.filterCaseSensitive = true; });
    EXPECT_EQ(Filter("inv"), TLines());
    EXPECT_EQ(Filter("INV"), TLines{"l INV v"});
}

TEST_F(SubstringFilterTest, TakesAnyBytes) {
    for (const char* text : {"[exec ls]", "{", "\"", "$x", "\xFF\xFE", "\t"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Filter(text), TLines());
    }
    EXPECT_EQ(Filter(std::string(10000, 'x').c_str()), TLines());
    EXPECT_EQ(Filter("\n").size(), 3u) << "an edit of one line takes no line break";
}

}  // namespace

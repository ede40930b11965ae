/// The words of `database cells`, and which views its answer has.

#include "host/CellsQuery.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/DatabaseCommand.h"
#include "tests/host/TempFolder.h"
#include "tests/host/TestInterp.h"

namespace navigator {
namespace {

using navigator_test::SchematicOf;
using navigator_test::TempFolder;
using navigator_test::TestInterp;
using testing::ElementsAre;

class CellsQueryTest : public testing::Test {
protected:
    CellsQueryTest() {
        m_folder.Write("d/Lib/inv.sym", "");
        m_folder.Write("d/Lib/inv.sch", SchematicOf("absent"));
        m_folder.Write("d/Lib/inv.v", "");
        m_folder.Write("d/other/via.sym", "K {type=stdvia}\n");
        m_folder.Write("d/other/cut.sym", "K {type=customvia}\n");
        m_folder.Write("d/other/old.sym", "K {hidden=true}\n");
        EXPECT_EQ(m_store.OpenFolder(m_folder.Path() / "d"), std::nullopt);
    }

    std::vector<std::string> Cells(const std::string& options) {
        return m_interp.List("database cells -lcv -library d" + options);
    }

    TempFolder m_folder;
    TestInterp m_interp;
    DesignStore m_store;
    DatabaseCommand m_command{m_interp.Get(), m_store};
};

TEST_F(CellsQueryTest, ListsTriplesWithoutHiddenOnesAndVias) {
    EXPECT_THAT(Cells(""), ElementsAre("Lib inv schematic", "Lib inv symbol", "Lib inv verilog"));
    EXPECT_THAT(Cells(" -showvias -libraries {other}"), ElementsAre("other cut symbol", "other via symbol"));
    EXPECT_THAT(Cells(" -showhiddencells -libraries {other}"), ElementsAre("other old symbol"));
    EXPECT_EQ(Cells(" -showhiddencells -showvias").size(), 6u);
}

TEST_F(CellsQueryTest, LibrariesAndViewsNarrowWithoutRegardToCase) {
    EXPECT_EQ(Cells(" -libraries {LIB}").size(), 3u);
    EXPECT_THAT(Cells(" -libraries {lib other} -views {Symbol VERILOG}"),
                ElementsAre("Lib inv symbol", "Lib inv verilog"));
    EXPECT_EQ(Cells(" -libraries {}").size(), 0u);
    EXPECT_EQ(Cells(" -views {none}").size(), 0u);
}

TEST_F(CellsQueryTest, BlanksAroundNamesOfViewsDoNotCount) {
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library d -count -showvias -views {{ symbol} { }}"),
              m_interp.Answer("database cells -lcv -library d -count -showvias -views {symbol}"));
}

TEST_F(CellsQueryTest, EachFilterTypeOfTheTableListsItsViews) {
    m_store.SetMark({"", "Lib", "inv", "verilog"}, CellKey::IsModified, "1");
    m_store.SetMark({"", "Lib", "inv", "symbol"}, CellKey::IsReserved, "1");
    m_store.SetMark({"", "Lib", "inv", "schematic"}, CellKey::IsLockedByUser, "1");
    const std::pair<std::string_view, std::vector<std::string>> rows[] = {
        {"All", {"Lib inv schematic", "Lib inv symbol", "Lib inv verilog"}},
        {"Symbols", {"Lib inv symbol"}},
        {"Schematics", {"Lib inv schematic"}},
        {"Layouts", {}},
        {"HDL", {"Lib inv verilog"}},
        {"Netlists", {}},
        {"Modified", {"Lib inv verilog"}},
        {"Reserved", {"Lib inv symbol"}},
        {"Locked", {"Lib inv schematic"}},
        {"Unresolved", {"Lib inv schematic"}},
    };
    ASSERT_EQ(std::size(rows), gFilterTypes().size());
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        EXPECT_EQ(rows[row].first, gFilterTypes()[row].text);
        EXPECT_EQ(Cells(" -filter " + std::string(rows[row].first)), rows[row].second) << rows[row].first;
    }
}

TEST_F(CellsQueryTest, LayoutsLanguagesAndNetlistsAreKnownByTheViewsName) {
    for (const char* file : {"n/l/a.cdl", "n/l/a.cir", "n/l/a.sp", "n/l/a.sv", "n/l/a.va", "n/l/a.vhd",
                             "n/l/a/Layout/x", "n/l/a/layout_flat/x", "n/l/a/spicebook/x", "n/l/b/verilog/x"})
        m_folder.Write(file, "");
    ASSERT_EQ(m_store.OpenFolder(m_folder.Path() / "n"), std::nullopt);
    const auto cells = [this](const std::string& type) {
        return m_interp.List("database cells -lcv -library n -filter " + type);
    };
    EXPECT_THAT(cells("Layouts"), ElementsAre("l a Layout", "l a layout_flat"));
    EXPECT_THAT(cells("HDL"), ElementsAre("l a systemverilog", "l a veriloga", "l a vhdl", "l b verilog"));
    EXPECT_THAT(cells("Netlists"), ElementsAre("l a cdl", "l a circuit", "l a spice"));
}

TEST_F(CellsQueryTest, ViewsThatTheUserLeavesOutCountForNothing) {
    m_command.SetExcludedViews([] { return std::string("none; Symbol;;\tverilog "); });
    EXPECT_THAT(Cells(" -showvias"), ElementsAre("Lib inv schematic"));
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library d -count -showvias"), "1");
    EXPECT_THAT(Cells(" -views {symbol}"), ElementsAre()) << "also where they are asked for";
    EXPECT_EQ(Cells(" -showexcluded").size(), 3u);
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library d -count -showexcluded -views {symbol}"), "1");
}

TEST(ExcludedViewsTest, NamesAreDividedBySemicolonsAndBlanks) {
    using testing::UnorderedElementsAre;
    EXPECT_THAT(gReadExcludedViews("ads; ARVance_MS;ams"), UnorderedElementsAre("ads", "arvance_ms", "ams"));
    EXPECT_THAT(gReadExcludedViews(" ;; \t a\r\nb ;"), UnorderedElementsAre("a", "b"));
    EXPECT_THAT(gReadExcludedViews("\xC3\x89tat"), UnorderedElementsAre("\xC3\xA9tat"));
    EXPECT_TRUE(gReadExcludedViews("").empty());
    EXPECT_TRUE(gReadExcludedViews(" ;\n;").empty());
}

TEST_F(CellsQueryTest, ATrailingFilterWithNothingBehindItListsAll) {
    EXPECT_EQ(Cells(" -filter ").size(), 3u);
    EXPECT_EQ(Cells(" -filter  -views {symbol}").size(), 1u);
    EXPECT_EQ(Cells(" -filter -showvias -libraries {other}").size(), 2u);
}

TEST_F(CellsQueryTest, AFilterOfSeveralWordsReachesToTheNextOption) {
    CellsQuery query;
    Tcl_Obj* const line =
        Tcl_NewStringObj("-lcv -library d -filter my own type -showvias -tab 3 -views {a b}", -1);
    Tcl_IncrRefCount(line);
    int count = 0;
    Tcl_Obj** words = nullptr;
    ASSERT_EQ(Tcl_ListObjGetElements(nullptr, line, &count, &words), TCL_OK);
    EXPECT_EQ(gParseCellsQuery(m_interp.Get(), TclWords(words, static_cast<std::size_t>(count)), query),
              TCL_OK);
    Tcl_DecrRefCount(line);
    EXPECT_EQ(query.filter, "my own type");
    EXPECT_TRUE(query.showVias);
    EXPECT_EQ(query.tab, 3);
    EXPECT_EQ(query.views->size(), 2u);
    EXPECT_EQ(Cells(" -filter my own type").size(), 3u);
}

TEST_F(CellsQueryTest, TheCountLeavesTheFilterTypeOutOfAccount) {
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library d -count"), "3");
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library d -count -filter Symbols"), "3");
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library d -count -showvias -views {symbol}"), "3");
}

TEST_F(CellsQueryTest, WrongLinesAreErrors) {
    for (const char* line :
         {"database cells", "database cells -lcv", "database cells -lcv -library",
          "database cells -lcv -library nowhere", "database cells -lcv -library d -frob",
          "database cells -lcv -library d -tab x", "database cells -lcv -library d -views \"{\""})
        EXPECT_EQ(m_interp.Eval(line), TCL_ERROR) << line;
}

TEST_F(CellsQueryTest, EachNameIsOneObjectHoweverManyTriplesHaveIt) {
    ASSERT_EQ(m_interp.Eval("database cells -lcv -library d"), TCL_OK);
    int count = 0;
    Tcl_Obj** triples = nullptr;
    ASSERT_EQ(Tcl_ListObjGetElements(nullptr, Tcl_GetObjResult(m_interp.Get()), &count, &triples), TCL_OK);
    ASSERT_EQ(count, 3);
    Tcl_Obj* first[3];
    Tcl_Obj* second[3];
    for (int item = 0; item < 3; ++item) {
        Tcl_ListObjIndex(nullptr, triples[0], item, &first[item]);
        Tcl_ListObjIndex(nullptr, triples[1], item, &second[item]);
    }
    EXPECT_EQ(first[0], second[0]);
    EXPECT_EQ(first[1], second[1]);
    EXPECT_NE(first[2], second[2]);
}

TEST_F(CellsQueryTest, AnEmptyDesignGivesAnEmptyList) {
    std::filesystem::create_directory(m_folder.Path() / "empty");
    ASSERT_EQ(m_store.OpenFolder(m_folder.Path() / "empty"), std::nullopt);
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library empty -filter "), "");
    EXPECT_EQ(m_interp.Answer("database cells -lcv -library empty -count"), "0");
}

}  // namespace
}  // namespace navigator

/// The navigator's own items: which there are, when they are greyed, and what picking them does.

#include "host/DesignerMenus.h"

#include "host/TclList.h"
#include "tests/host/MenuFixture.h"
#include "vapp/browser/Messages.h"
#include "vapp/toolkit/Clipboard.h"

namespace navigator_test {
namespace {

using namespace navigator;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using vapp_library_browser::TLibCellView;

bool IsEnabled(const std::vector<MenuItem>& items, const std::string& text) {
    for (const MenuItem& item : items)
        if (item.text == text) return !item.isDisabled;
    ADD_FAILURE() << "no item " << text;
    return false;
}

TEST(DesignerItemsTest, ItemsAreGreyedWhereTheyHaveNothingToDo) {
    const struct {
        const char* text;
        bool CellMenuFacts::*needed;
        bool needsSelection;
    } rows[] = {{"&Open as text", &CellMenuFacts::hasFocusedCell, false},
                {"Selected &cell names", &CellMenuFacts::hasSelection, true},
                {"Selected cell &views", &CellMenuFacts::hasSelection, true},
                {"Selected &files", &CellMenuFacts::hasSelection, true},
                {"&All cell names", &CellMenuFacts::hasRows, false},
                {"A&ll cell views", &CellMenuFacts::hasRows, false},
                {"&Reserve", &CellMenuFacts::hasFree, true},
                {"Re&lease", &CellMenuFacts::hasReserved, true},
                {"&Hide in lists", &CellMenuFacts::hasShown, true},
                {"&Show in lists again", &CellMenuFacts::hasHidden, true}};
    for (const auto& row : rows) {
        EXPECT_FALSE(IsEnabled(gCellItems({}), row.text)) << row.text;
        CellMenuFacts facts;
        facts.*row.needed = true;
        facts.hasSelection = facts.hasSelection || row.needsSelection;
        EXPECT_TRUE(IsEnabled(gCellItems(facts), row.text)) << row.text;
    }
}

TEST(DesignerItemsTest, ThePreferenceIsChecked) {
    for (const auto option : {prefs::AskAlways, prefs::AskNever, prefs::AskManagedCellsOnly}) {
        CellMenuFacts facts;
        facts.askReserve = option;
        std::vector<std::string> checked;
        for (const MenuItem& item : gCellItems(facts))
            if (item.isChecked) checked.push_back(item.command);
        const char* const words[] = {"Always", "Never", "{Managed Cells Only}"};
        EXPECT_THAT(checked, ElementsAre(std::string("cell askreserve ") + words[option]));
    }
}

class DesignerMenusTest : public MenuFixture {};

TEST_F(DesignerMenusTest, TheMenuOfACellHasAllItemsInOrder) {
    Start();
    SelectRows(0, 0);
    PickFromCells("");
    ASSERT_GE(m_seen.size(), 17U);
    m_seen.resize(17);
    EXPECT_THAT(
        m_seen,
        ElementsAre("&Open as text !", "&Copy>Selected &cell names", "&Copy>Selected cell &views",
                    "&Copy>Selected &files", "&Copy>--", "&Copy>&All cell names", "&Copy>A&ll cell views",
                    "--", "&Reserve", "Re&lease -", "Ask before reserving>&Always",
                    "Ask before reserving>&Managed cells only *", "Ask before reserving>&Never", "--",
                    "&Hide in lists", "&Show in lists again -", "--"));
}

TEST_F(DesignerMenusTest, PickingActsAndIsLogged) {
    Start();
    SelectRows(1, 2);
    PickFromCells("&Reserve");
    EXPECT_EQ(Log().front(), "cell reserve " + m_design + " -lcvs { \"lib a symbol\"  \"lib b symbol\" }");
    PickFromCells("Re&lease");
    PickFromCells("&Hide in lists");
    m_navigator->Populate();
    EXPECT_EQ(Answer("dict get [user state] rows"), "2");
    PickFromCells("&Never");
    EXPECT_EQ(Answer("cell askreserve"), "Never");
    EXPECT_EQ(Log().back(), "cell askreserve Never");
}

TEST_F(DesignerMenusTest, SelectHierarchyIsTheHosts) {
    Start();
    SelectRows(0, 0);
    PickFromCells("Select Hierarchy");
    EXPECT_EQ(m_navigator->Browser().GetSelectedCells().size(), 3U);
    EXPECT_TRUE(m_peers.boxes.empty());
}

TEST_F(DesignerMenusTest, NamesAreCopied) {
    Start();
    SelectRows(1, 2);
    PickFromCells("Selected &cell names");
    EXPECT_EQ(GetClipboardText(), "a\nb\n");
    PickFromCells("Selected cell &views");
    EXPECT_EQ(GetClipboardText(), "lib a symbol\nlib b symbol\n");
    PickFromCells("Selected &files");
    EXPECT_EQ(GetClipboardText(), ((m_folder.Path() / "lib" / "a.sym").string() + "\n" +
                                   (m_folder.Path() / "lib" / "b.sym").string() + "\n")
                                      .c_str());
    m_navigator->Browser().SelectInLibraryList("other");
    PickFromLibraries("&Copy names");
    EXPECT_EQ(GetClipboardText(), "other\r\n");
}

TEST_F(DesignerMenusTest, NamesOfAnyKindArriveAsOneWordAndNothingRuns) {
    m_folder.Write("l [set ::ran 1]/[set ::ran 2] {.sym", "v {}\n");
    Start();
    const auto rows = static_cast<int>(m_navigator->Browser().GetCellViewCount());
    ASSERT_EQ(rows, 5);
    for (int row = 0; row < rows; ++row) {
        SelectRows(row, row);
        PickFromCells("&Open as text");
        EXPECT_EQ(Log().back(), "there is no window to show it") << "the view was found";
    }
    EXPECT_EQ(Answer("info exists ::ran"), "0");
}

TEST_F(DesignerMenusTest, ItemsForSelectedViewsAreGreyedWhereANameWouldNotArrive) {
    const struct {
        const char* cell;
        bool arrives;
    } cells[] = {{"\"ab", false}, {"\"a\"", false}, {"a\\b", false},   {"a\\", false},  {"{b", false},
                 {"a\"b", true},  {"ab\"", true},   {"my cell", true}, {"a$[x]", true}, {"a{b}c", true},
                 {"a{b", true},   {"a}b", true},    {"a;b#", true},    {"a\nb", true}};
    for (const auto& cell : cells)
        m_folder.Write(std::string("names/") + cell.cell + ".sym", "v {}\n");
    Start();
    auto& browser = m_navigator->Browser();
    browser.SelectInLibraryList("names");
    m_navigator->Populate();
    ASSERT_EQ(browser.GetCellViewCount(), std::size(cells));
    const auto isReserved = [this](const std::string& cell) {
        return Answer(gListOfWords(
                   {"database", "cellviewinfo", "is_reserved", m_design, "names", cell, "symbol"})) == "1";
    };
    for (const auto& cell : cells) {
        SCOPED_TRACE(cell.cell);
        browser.HighlightCellInList("names", cell.cell);
        ASSERT_EQ(browser.GetFocusedCell().cell, cell.cell);
        const std::size_t before = Log().size();
        PickFromCells("&Reserve");
        EXPECT_THAT(m_seen, Contains(cell.arrives ? "&Reserve" : "&Reserve -"));
        EXPECT_THAT(m_seen, Contains(cell.arrives ? "&Hide in lists" : "&Hide in lists -"));
        EXPECT_THAT(m_seen, Contains("&Open as text !")) << "the focused one can always be told";
        EXPECT_EQ(isReserved(cell.cell), cell.arrives);
        EXPECT_EQ(Log().size(), cell.arrives ? before + 2 : before) << "nothing fails";
        browser.AddToCellListSelections({{"names", "my cell", "symbol"}});
        PickFromCells("");
        EXPECT_THAT(m_seen, Contains(cell.arrives ? "&Hide in lists" : "&Hide in lists -"))
            << "one such name spoils the whole list";
    }
}

TEST_F(DesignerMenusTest, ADoubleClickOpens) {
    Start();
    std::string opened;
    m_navigator->Cells().SetOpenHandler([&](const CellViewName& name, const std::filesystem::path&) {
        opened = name.cell + " " + name.view;
    });
    auto& report = m_navigator->Browser().GetCellListView()->GetReport();
    const CPoint point{10, report.GetHeaderHeight() + 2 * report.GetRowHeight() + 1};
    report.ClickedByUser(2, {});
    report.DoubleClickedByUser(point);
    EXPECT_EQ(opened, "b symbol");
}

TEST_F(DesignerMenusTest, TheOrderOfLibrariesIsChecked) {
    Start();
    PickFromLibraries("Order of &definition");
    PickFromLibraries("");
    EXPECT_THAT(m_seen, ElementsAre("&Copy names -", "&Alphabetical order", "Order of &definition *",
                                    "&Show hidden cells again"));
    Answer("cell hide " + m_design + " -lcvs {{lib a symbol} {other c symbol}}");
    m_navigator->Browser().SelectInLibraryList("other");
    PickFromLibraries("&Show hidden cells again");
    EXPECT_EQ(Answer("database cellviewinfo is_hiddeninlists " + m_design + " other c symbol"), "0");
    EXPECT_EQ(Answer("database cellviewinfo is_hiddeninlists " + m_design + " lib a symbol"), "1");
}

TEST_F(DesignerMenusTest, ATabIsRenamedAndKeepsItsName) {
    Start();
    PickFromTab(1, "Rename...");
    EXPECT_EQ(Tabs().GetItemText(1), "Details") << "nobody could be asked";
    m_navigator->Menus().SetTabNameQuestion([](const std::string& now) { return now + " [x]"; });
    PickFromTab(1, "Rename...");
    EXPECT_EQ(Tabs().GetItemText(1), "Details [x]");
    EXPECT_EQ(Log().back(), "navigator tabtext 1 {Details [x]}");
    m_navigator->Menus().SetTabNameQuestion([](const std::string&) { return std::nullopt; });
    PickFromTab(1, "Rename...");
    EXPECT_EQ(Tabs().GetItemText(1), "Details [x]");
    m_navigator.reset();
    m_navigator.emplace(m_app);
    Start();
    EXPECT_EQ(Tabs().GetItemText(1), "Details [x]");
    PickFromTab(1, "Original name");
    EXPECT_EQ(Tabs().GetItemText(1), "Details");
    PickFromTab(1, "");
    EXPECT_THAT(m_seen, ElementsAre("Rename..."));
}

TEST_F(DesignerMenusTest, StatusTextsOfTheListsAreHandedOn) {
    Start();
    std::vector<std::string> told;
    m_navigator->Menus().SetStatusHandler([&](const std::string& text) { told.push_back(text); });
    const CStringU text("lib: /libs");
    using namespace vapp_library_browser;
    EXPECT_EQ(
        m_navigator->Menus().Answer(WM_LN_HOSTNOTIFY, cnNotifyStatusText, reinterpret_cast<LPARAM>(&text)),
        0);
    EXPECT_EQ(m_navigator->Menus().Answer(WM_LN_HOSTNOTIFY, cnNotifyStatusText, 0), 0);
    EXPECT_EQ(m_navigator->Menus().Answer(WM_LN_HOSTNOTIFY, cnNotifySelectionChanged, 0), std::nullopt);
    EXPECT_THAT(told, ElementsAre("lib: /libs", ""));
}

TEST_F(DesignerMenusTest, AScriptMayEndTheWindowFromItsItem) {
    Start();
    m_navigator->Menus().SetTabNameQuestion([this](const std::string&) -> std::optional<std::string> {
        m_navigator->Frame().DestroyWindow();
        return "late";
    });
    PickFromTab(0, "Rename...");
    EXPECT_EQ(m_navigator->Browser().GetCellListView(), nullptr);
    EXPECT_EQ(m_app.GetProfileString("TabNames", "Tab1"), "late") << "it counts at the next start";
}

}  // namespace
}  // namespace navigator_test

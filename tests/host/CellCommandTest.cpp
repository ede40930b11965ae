/// The lines of the navigator's own menu items.

#include "host/CellCommand.h"

#include "tests/host/MenuFixture.h"
#include "tests/host/TestInterp.h"
#include "vapp/toolkit/Clipboard.h"

namespace navigator_test {
namespace {

using namespace navigator;
using testing::HasSubstr;
using testing::StartsWith;
using vapp_library_browser::TLibCellView;

class CellCommandTest : public MenuFixture {
protected:
    void SetUp() override {
        MenuFixture::SetUp();
        Start();
        m_word = Word(m_design);
    }
    /// `cell WHAT DESIGN -lcvs {VIEWS}`.
    std::string Do(const std::string& what, const std::string& views) {
        const std::string answer = Answer("cell " + what + " " + m_word + " -lcvs {" + views + "}");
        m_navigator->Populate();
        return answer;
    }
    std::string Rows() { return Answer("dict get [user state] rows"); }
    bool IsReserved(const char* cell) {
        return Answer("database cellviewinfo is_reserved " + m_word + " lib " + cell + " symbol") == "1";
    }
    std::string m_word;
};

TEST_F(CellCommandTest, HiddenViewsLeaveTheListUntilTheyAreShownAgain) {
    EXPECT_EQ(Rows(), "4");
    EXPECT_EQ(Do("hide", "\"lib a symbol\" \"other c symbol\""), "");
    EXPECT_EQ(Rows(), "2");
    PickFromCells("Show Hidden Cells");
    EXPECT_EQ(Rows(), "4");
    EXPECT_EQ(Answer("database cellviewinfo is_hiddeninlists " + m_word + " lib a symbol"), "1");
    PickFromCells("Show Hidden Cells");
    EXPECT_EQ(Rows(), "2");
    EXPECT_EQ(Do("unhide", "{lib a symbol}"), "");
    EXPECT_EQ(Rows(), "3");
}

TEST_F(CellCommandTest, AllHiddenOnesOfALibraryAreShownAgain) {
    Do("hide", "{lib a symbol} {lib b symbol} {other c symbol}");
    EXPECT_EQ(Answer("cell unhideall " + m_word + " -libraries { \"lib\" }"), "2");
    m_navigator->Populate();
    EXPECT_EQ(Rows(), "3");
    EXPECT_EQ(Answer("cell unhideall " + m_word), "1");
    m_navigator->Populate();
    EXPECT_EQ(Rows(), "4");
    EXPECT_EQ(Answer("cell unhideall " + m_word), "0");
}

TEST_F(CellCommandTest, AnotherRunKnowsWhatWasHiddenAndReserved) {
    Do("hide", "{lib a symbol}");
    Do("reserve", "{lib b symbol}");
    m_navigator.reset();
    m_navigator.emplace(m_app);
    Start();
    EXPECT_EQ(Rows(), "3");
    EXPECT_TRUE(IsReserved("b"));
    EXPECT_TRUE(m_navigator->Browser().HasOaReservedViews("lib"));
    EXPECT_FALSE(m_navigator->Browser().HasOaReservedViews("other"));
}

TEST_F(CellCommandTest, AFolderThatIsOpenedLaterHasItsMarksToo) {
    Do("hide", "{lib a symbol}");
    const TempFolder first;
    first.Write("lib/z.sym", "v {}\n");
    m_navigator.reset();
    m_navigator.emplace(m_app);
    ASSERT_FALSE(m_navigator->OpenFolder(first.Path()));
    m_navigator->CreateWindow(600, 800, false);
    EXPECT_EQ(Answer("database open " + Word(m_folder.Path().string())), m_design);
    EXPECT_EQ(Answer("database cellviewinfo is_hiddeninlists " + m_word + " lib a symbol"), "1");
}

TEST_F(CellCommandTest, ReservingAsksAsThePreferenceSays) {
    EXPECT_EQ(Answer("cell askreserve"), "Managed Cells Only");
    Do("reserve", "{lib a symbol}");
    EXPECT_TRUE(IsReserved("a"));
    EXPECT_TRUE(m_peers.boxes.empty()) << "a library that is not managed";
    std::filesystem::create_directory(m_folder.Path() / "lib" / ".git");
    m_peers.answer = IDCANCEL;
    EXPECT_EQ(Do("reserve", "{lib b symbol} {other c symbol}"), "");
    ASSERT_EQ(m_peers.boxes.size(), 1U) << "one question for all";
    EXPECT_EQ(m_peers.boxes[0].GetText(), "Do you want to reserve the cellview?");
    EXPECT_FALSE(IsReserved("b"));
    EXPECT_EQ(Log().back(), "Not reserved.");
    m_peers.answer = IDOK;
    Do("reserve", "{lib b symbol} {other c symbol}");
    EXPECT_TRUE(IsReserved("b"));
    EXPECT_EQ(Log().back(), "Reserved: 2 views.");
    EXPECT_EQ(Answer("cell askreserve Never"), "Never");
    Do("release", "{lib b symbol}");
    EXPECT_FALSE(IsReserved("b"));
    Do("reserve", "{lib b symbol}");
    EXPECT_TRUE(IsReserved("b"));
    EXPECT_EQ(m_peers.boxes.size(), 2U);
    EXPECT_EQ(Answer("cell askreserve Always"), "Always");
    Do("reserve", "{other c symbol}");
    EXPECT_EQ(m_peers.boxes.size(), 3U);
    EXPECT_THAT(Answer("cell askreserve always"), StartsWith("ERROR: "));
    EXPECT_EQ(Answer("cell askreserve"), "Always");
}

TEST_F(CellCommandTest, ReservedViewsMarkTheirLibrary) {
    Do("reserve", "{lib a symbol}");
    EXPECT_TRUE(m_navigator->Browser().HasOaReservedViews("lib"));
    Do("release", "{lib a symbol}");
    EXPECT_FALSE(m_navigator->Browser().HasOaReservedViews("lib"));
}

TEST_F(CellCommandTest, TheHierarchyIsSelectedBesideWhatIs) {
    SelectRows(0, 0);
    EXPECT_EQ(Answer("cell selecthierarchy " + m_word + " lib a schematic"), "2");
    const auto selected = m_navigator->Browser().GetSelectedCells();
    EXPECT_THAT(selected, testing::UnorderedElementsAre(TLibCellView("lib", "a", "schematic"),
                                                        TLibCellView("lib", "b", "symbol"),
                                                        TLibCellView("other", "c", "symbol")));
    EXPECT_EQ(Log().back(), "Below a: 2 views, 2 of them in the list.");
}

TEST_F(CellCommandTest, OfTheHierarchyOnlyWhatIsListedCanBeSelected) {
    m_folder.Rewrite("lib/a.sch", SchematicOf("b", "other/c", "gone"));
    m_navigator->Rescan();
    m_navigator->Browser().SelectInLibraryList("lib");
    m_navigator->Browser().RequestCellListViewDelayedPopulate(vapp_library_browser::UpdateAlways);
    m_navigator->Populate();
    EXPECT_EQ(Answer("cell selecthierarchy " + m_word + " lib a schematic"), "2");
    EXPECT_EQ(Log().back(), "Below a: 2 views, 1 of them in the list; 1 reference leads nowhere.");
}

TEST_F(CellCommandTest, AViewIsOpenedByWhoeverShowsIt) {
    EXPECT_EQ(Answer("cell open " + m_word + " lib a schematic"), "ERROR: there is no window to show it");
    CellViewName name;
    std::filesystem::path path;
    m_navigator->Cells().SetOpenHandler([&](const CellViewName& opened, const std::filesystem::path& file) {
        name = opened;
        path = file;
    });
    EXPECT_EQ(Answer("cell open " + m_word + " lib a schematic"), "");
    EXPECT_EQ(name, (CellViewName{m_design, "lib", "a", "schematic"}));
    EXPECT_EQ(path, m_folder.Path() / "lib" / "a.sch");
}

TEST_F(CellCommandTest, PathsOfFilesAreCopied) {
    EXPECT_EQ(Do("copyfiles", "{lib a schematic} {other c symbol}"), "");
    EXPECT_EQ(GetClipboardText(), ((m_folder.Path() / "lib" / "a.sch").string() + "\n" +
                                   (m_folder.Path() / "other" / "c.sym").string() + "\n")
                                      .c_str());
}

TEST_F(CellCommandTest, LinesThatNameNoViewChangeNothing) {
    const std::string lines[] = {"cell hide " + m_word + " -lcvs {{lib a}}",
                                 "cell hide " + m_word + " -lcvs {{lib a nosuch}}",
                                 "cell hide " + m_word + " -lcvs \\{",
                                 "cell hide " + m_word + " -other {}",
                                 "cell hide nosuch -lcvs {{lib a symbol}}",
                                 "cell reserve " + m_word + " {{lib a symbol} {lib a nosuch}}",
                                 "cell open " + m_word,
                                 "cell open " + m_word + " lib a nosuch",
                                 "cell selecthierarchy " + m_word,
                                 "cell unhideall nosuch",
                                 "cell unhideall " + m_word + " lib",
                                 "cell unhideall " + m_word + " -other lib",
                                 "cell unhideall " + m_word + " -libraries \\{"};
    for (const std::string& line : lines)
        EXPECT_THAT(Answer(line), StartsWith("ERROR: ")) << line;
    m_navigator->Populate();
    EXPECT_EQ(Rows(), "4");
    EXPECT_FALSE(IsReserved("a"));
    EXPECT_EQ(Answer("cell open " + m_word), "ERROR: no cell has the focus");
}

}  // namespace
}  // namespace navigator_test

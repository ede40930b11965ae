/// Marks that come back with the next run.

#include "host/KeptMarks.h"

#include <gtest/gtest.h>

#include "host/NavigatorApp.h"
#include "tests/host/TempFolder.h"
#include "vapp/text/ActiveCodePage.h"

namespace navigator_test {
namespace {

using namespace navigator;

class KeptMarksTest : public testing::Test {
protected:
    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        m_folder.Write("lib/a.sym", "v {}\n");
        m_folder.Write("lib/q\"u{o}te\\.sym", "v {}\n");
        m_folder.Write("lib/veiled.sym", "K {hidden=true}\n");
        ASSERT_FALSE(m_store.OpenFolder(m_folder.Path()));
    }
    void TearDown() override { gSetActiveCodePage(0); }
    static CellViewName Name(const DesignStore& store, const std::string& cell) {
        return {store.Designs().front().name, "lib", cell, "symbol"};
    }
    static bool IsHidden(const DesignStore& store, const std::string& cell) {
        const CellViewName name = Name(store, cell);
        return store.Flag(store.Find(name.design, name.library, name.cell, name.view),
                          CellKey::IsHiddenInLists);
    }
    bool Hide(const std::string& cell, bool isHidden) {
        return m_marks.Set({Name(m_store, cell)}, CellKey::IsHiddenInLists, isHidden);
    }
    /// The store of the next run.
    DesignStore NextRun(const std::filesystem::path& folder) {
        DesignStore next;
        EXPECT_FALSE(next.OpenFolder(folder));
        KeptMarks(m_app, next).Restore(next.Designs().front());
        return next;
    }

    TempFolder m_folder;
    NavigatorApp m_app;
    DesignStore m_store;
    KeptMarks m_marks{m_app, m_store};
};

TEST_F(KeptMarksTest, AHiddenViewIsHiddenInTheNextRunToo) {
    for (const std::string cell : {"a", "q\"u{o}te\\"}) {
        EXPECT_TRUE(Hide(cell, true));
        EXPECT_TRUE(IsHidden(m_store, cell)) << cell;
        EXPECT_TRUE(IsHidden(NextRun(m_folder.Path() / "lib" / ".."), cell)) << cell;
    }
    EXPECT_TRUE(Hide("a", false));
    EXPECT_FALSE(IsHidden(NextRun(m_folder.Path()), "a"));
}

TEST_F(KeptMarksTest, AViewThatItsFileHidesCanBeShown) {
    EXPECT_TRUE(IsHidden(m_store, "veiled"));
    EXPECT_TRUE(Hide("veiled", false));
    EXPECT_FALSE(IsHidden(m_store, "veiled"));
    EXPECT_FALSE(IsHidden(NextRun(m_folder.Path()), "veiled"));
    EXPECT_TRUE(m_marks.Marked(m_store.Designs().front(), CellKey::IsHiddenInLists).empty());
    EXPECT_TRUE(Hide("veiled", true));
    EXPECT_TRUE(m_app.GetProfileString("Marks", "Views").IsEmpty()) << "what the file says is no mark";
}

TEST_F(KeptMarksTest, MarksOfAnotherFolderAreNotForThisOneAndStay) {
    const TempFolder other;
    other.Write("lib/a.sym", "v {}\n");
    EXPECT_TRUE(Hide("a", true));
    DesignStore next = NextRun(other.Path());
    EXPECT_FALSE(IsHidden(next, "a"));
    KeptMarks marks(m_app, next);
    EXPECT_TRUE(marks.Set({Name(next, "a")}, CellKey::IsReserved, true));
    EXPECT_EQ(marks.Marked(next.Designs().front(), CellKey::IsReserved).size(), 1U);
    EXPECT_TRUE(marks.Marked(next.Designs().front(), CellKey::IsHiddenInLists).empty());
    EXPECT_TRUE(IsHidden(NextRun(m_folder.Path()), "a"));
}

TEST_F(KeptMarksTest, SettingsThatAreNoMarksAreNotRead) {
    for (const char* text : {"{", "a b c", "{1 2 3 4 5 6}", "{/ hidden lib a symbol}"}) {
        m_app.WriteProfileString("Marks", "Views", text);
        EXPECT_FALSE(IsHidden(NextRun(m_folder.Path()), "a")) << text;
        EXPECT_TRUE(Hide("a", true));
        EXPECT_TRUE(IsHidden(NextRun(m_folder.Path()), "a")) << text;
        EXPECT_TRUE(Hide("a", false));
    }
}

TEST_F(KeptMarksTest, MoreMarksThanSettingsShouldHoldAreNotAllKept) {
    std::vector<CellViewName> views;
    for (std::size_t number = 0; number <= KeptMarks::cnMostKept; ++number)
        views.push_back(Name(m_store, "c" + std::to_string(number)));
    EXPECT_FALSE(m_marks.Set(views, CellKey::IsReserved, true));
    EXPECT_EQ(m_marks.Marked(m_store.Designs().front(), CellKey::IsReserved).size(), KeptMarks::cnMostKept);
}

}  // namespace
}  // namespace navigator_test

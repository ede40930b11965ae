/// Changes on the disk, as other programs make them, while the event loop runs.

#include "host/FolderWatcher.h"

#include <gtest/gtest.h>

#include <QTest>
#include <fstream>

#include "tests/host/TempFolder.h"

namespace navigator_test {
namespace {

namespace fs = std::filesystem;
using navigator::DesignStore;
using navigator::FolderWatcher;

constexpr int cnPatience = 20000;

class FolderWatcherTest : public testing::Test {
protected:
    void Open() {
        ASSERT_FALSE(m_store.OpenFolder(m_folder.Path() / "w"));
        m_watcher.Watch(m_store);
    }
    /// True if the store has found a difference, told or to be told.
    bool WaitForChange() {
        return QTest::qWaitFor([this] { return m_differences > 0; }, cnPatience);
    }
    /// True if the watcher was called, whatever the store found.
    bool WaitForCall() {
        return QTest::qWaitFor([this] { return m_calls > 0; }, cnPatience);
    }
    bool HasView(const char* library, const char* cell, const char* view) {
        return static_cast<bool>(m_store.Find("w", library, cell, view));
    }
    std::string Type(const char* cell) { return m_store.TypeOf(m_store.Find("w", "lib", cell, "symbol")); }

    TempFolder m_folder;
    DesignStore m_store;
    int m_calls = 0;
    int m_differences = 0;
    FolderWatcher m_watcher{[this] {
        ++m_calls;
        if (m_store.Rescan()) ++m_differences;
        m_watcher.Watch(m_store);
    }};
};

// The same file all the time, as an editor without a temporary file saves it.
TEST_F(FolderWatcherTest, TellsOfAFileThatIsSavedInPlace) {
    const fs::path file = m_folder.Write("w/lib/inv.sym", "K {type=fab}\n");
    Open();
    EXPECT_EQ(Type("inv"), "fab");
    std::ofstream(file, std::ios::binary | std::ios::in | std::ios::out) << "K {type=vcell}\n";
    ASSERT_TRUE(WaitForChange());
    EXPECT_EQ(Type("inv"), "vcell");
}

TEST_F(FolderWatcherTest, TellsOfAFileThatIsLocked) {
    const fs::path file = m_folder.Write("w/lib/inv.sym", "v {}\n");
    Open();
    const auto isLocked = [this] {
        return m_store.Flag(m_store.Find("w", "lib", "inv", "symbol"), navigator::CellKey::IsLockedByUser);
    };
    EXPECT_FALSE(isLocked());
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(file, anyWrite, fs::perm_options::remove);
    ASSERT_TRUE(WaitForChange());
    EXPECT_TRUE(isLocked());
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
}

TEST_F(FolderWatcherTest, TellsOfANewCellFileAndOfOneThatIsGone) {
    m_folder.Write("w/lib/inv.sym", "v {}\n");
    Open();
    m_folder.Write("w/lib/buf.sym", "v {}\n");
    ASSERT_TRUE(WaitForChange());
    EXPECT_TRUE(HasView("lib", "buf", "symbol"));
    m_differences = 0;
    fs::remove(m_folder.Path() / "w/lib/inv.sym");
    ASSERT_TRUE(WaitForChange());
    EXPECT_FALSE(HasView("lib", "inv", "symbol"));
}

// The folder of a cell without views is nothing in the list, and yet the place where its first view appears.
TEST_F(FolderWatcherTest, TellsOfAViewFolderInACellFolderThatWasEmpty) {
    fs::create_directories(m_folder.Path() / "w/lib/folded");
    Open();
    fs::create_directory(m_folder.Path() / "w/lib/folded/schematic");
    ASSERT_TRUE(WaitForChange());
    EXPECT_TRUE(HasView("lib", "folded", "schematic"));
}

TEST_F(FolderWatcherTest, TellsOfADrawingInAViewFolder) {
    const fs::path file = m_folder.Write("w/lib/folded/symbol/folded.sym", "K {type=fab}\n");
    Open();
    EXPECT_EQ(Type("folded"), "fab");
    std::ofstream(file, std::ios::binary) << "K {type=guardring}\n";
    ASSERT_TRUE(WaitForChange());
    EXPECT_EQ(Type("folded"), "guardring");
}

TEST_F(FolderWatcherTest, FollowsLibrariesAndCellsThatCameLater) {
    m_folder.Write("w/lib/inv.sym", "v {}\n");
    Open();
    fs::create_directories(m_folder.Path() / "w/late/folded");
    ASSERT_TRUE(WaitForChange());
    m_differences = 0;
    fs::create_directory(m_folder.Path() / "w/late/folded/symbol");
    ASSERT_TRUE(WaitForChange());
    EXPECT_TRUE(HasView("late", "folded", "symbol"));
}

TEST_F(FolderWatcherTest, FollowsADesignThatGoesAndComesBack) {
    m_folder.Write("w/lib/inv.sym", "v {}\n");
    Open();
    fs::rename(m_folder.Path() / "w", m_folder.Path() / "away");
    m_folder.Write("elsewhere/x.sym", "v {}\n");
    ASSERT_TRUE(WaitForCall());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !HasView("lib", "inv", "symbol"); }, cnPatience));
    fs::rename(m_folder.Path() / "away", m_folder.Path() / "w");
    EXPECT_TRUE(QTest::qWaitFor([this] { return HasView("lib", "inv", "symbol"); }, cnPatience));
}

// Whether a file is locked is learnt by opening it for writing: an answer to that would ask again for ever.
TEST_F(FolderWatcherTest, DoesNotTellOfAFileThatIsOnlyOpenedForWriting) {
    const fs::path file = m_folder.Write("w/lib/inv.sym", "v {}\n");
    Open();
    { const std::fstream opened(file, std::ios::in | std::ios::out | std::ios::binary); }
    m_folder.Write("w/lib/last.sym", "v {}\n");
    ASSERT_TRUE(WaitForChange());
    EXPECT_EQ(m_calls, 1);
}

}  // namespace
}  // namespace navigator_test

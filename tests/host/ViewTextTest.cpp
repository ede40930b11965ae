/// What the host's columns say about views.

#include "host/ViewText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDateTime>

#include "tests/host/TempFolder.h"

namespace navigator {
namespace {

using navigator_test::SchematicOf;
using navigator_test::TempFolder;
using testing::MatchesRegex;

class ViewTextTest : public testing::Test {
protected:
    ViewTextTest() {
        m_folder.Write("d/lib/inv.sym", "K {type=vcell}\n");
        m_folder.Write("d/lib/inv.sch", SchematicOf("absent"));
        m_folder.Write("d/lib/inv/layout/rows.txt", "12345");
        m_folder.Write("d/lib/buf/symbol/buf.sym", "K {type=fab}\n");
        EXPECT_EQ(m_store.OpenFolder(m_folder.Path() / "d"), std::nullopt);
    }
    std::string Text(const char* key, const char* cell, const char* view) {
        return gViewText(m_store, m_store.Find("d", "lib", cell, view), gFindViewTextKey(key).value());
    }

    TempFolder m_folder;
    DesignStore m_store;
};

TEST_F(ViewTextTest, TellsSizeTypeAndPath) {
    EXPECT_EQ(Text("bytes", "inv", "symbol"), "15");
    EXPECT_EQ(Text("type", "inv", "symbol"), "vcell");
    EXPECT_EQ(Text("type", "inv", "schematic"), "vcell") << "that of the cell's symbol";
    EXPECT_EQ(Text("path", "inv", "symbol"), (m_folder.Path() / "d/lib/inv.sym").string());
    EXPECT_EQ(Text("bytes", "buf", "symbol"), "13") << "the drawing in a view's folder";
    EXPECT_EQ(Text("bytes", "inv", "layout"), "") << "a folder without a drawing";
    EXPECT_EQ(Text("changed", "inv", "layout"), "");
}

TEST_F(ViewTextTest, TellsTheLocalTimeOfTheFile) {
    const auto file = m_folder.Path() / "d/lib/inv.sym";
    const QDateTime local(QDate(2019, 2, 28), QTime(17, 5));
    const std::chrono::sys_time<std::chrono::milliseconds> moment{
        std::chrono::milliseconds(local.toMSecsSinceEpoch())};
    std::filesystem::last_write_time(file, std::chrono::file_clock::from_sys(moment));
    ASSERT_TRUE(m_store.Rescan() || Text("changed", "inv", "symbol") != "");
    EXPECT_EQ(Text("changed", "inv", "symbol"), "2019-02-28 17:05");
    EXPECT_THAT(Text("changed", "inv", "schematic"), MatchesRegex("[0-9]+-[0-9]+-[0-9]+ [0-9]+:[0-9]+"));
}

TEST_F(ViewTextTest, StateIsEveryWordThatAppliesTheWorstFirst) {
    EXPECT_EQ(Text("state", "buf", "symbol"), "");
    EXPECT_EQ(Text("state", "inv", "symbol"), "V-Cell");
    EXPECT_EQ(Text("state", "inv", "schematic"), "Unresolved, V-Cell");
    const CellViewName name{"", "lib", "inv", "schematic"};
    for (const CellKey key : {CellKey::IsReserved, CellKey::IsModified, CellKey::IsLockedByUser,
                              CellKey::IsStdViaDef, CellKey::IsCustomViaDef})
        m_store.SetMark(name, key, "1");
    m_store.SetMark(name, CellKey::Cache, "OutOfDate");
    EXPECT_EQ(Text("state", "inv", "schematic"),
              "OutOfDate, Modified, Reserved, Locked, StdVia, CustomVia, V-Cell");
}

TEST_F(ViewTextTest, AViewThatIsGoneHasNoText) {
    for (const char* key : {"bytes", "changed", "path", "state", "type"})
        EXPECT_EQ(Text(key, "nothing", "symbol"), "") << key;
    EXPECT_EQ(gFindViewTextKey("State"), std::nullopt);
    EXPECT_EQ(gFindViewTextKey(""), std::nullopt);
}

}  // namespace
}  // namespace navigator

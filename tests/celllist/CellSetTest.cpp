#include "celllist/CellSet.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include "tests/browser/RecordingHost.h"
#include "vapp/browser/TTclObject.h"

namespace {

using namespace vapp_library_browser;

TEST(CellSet, FindsRowsWithoutRegardToCase) {
    const RecordingHost host;
    const TTclObject list(Tcl_NewStringObj("{l a v} {l b v} {L A V} {m a v} {l \xC3\x89 v}", -1));
    const CellRows rows = *CellRows::Read(list.Get());
    CellSet set;
    EXPECT_TRUE(set.IsEmpty());
    EXPECT_TRUE(set.RowsOf(rows).empty());
    set.Add({"L", "A", "v"});
    set.Add({"x", "y", "z"});
    set.Add({"l", CStringU("\xC3\xA9", TextEncoding::Utf8Auto), "v"});
    EXPECT_EQ(set.RowsOf(rows), (std::vector<std::uint32_t>{0, 2, 4}));
}

TEST(CellSet, FindsANameThatIsNoTextByItsBytes) {
    const RecordingHost host;
    const TTclObject list(Tcl_NewStringObj("{l \xC3\x80 v} {l \xC3 v} {l \x80 v}", -1));
    const CellRows rows = *CellRows::Read(list.Get());
    CellSet set;
    CellSet::Adder adder(set, rows);
    adder.Add(1);
    EXPECT_EQ(set.RowsOf(rows), (std::vector<std::uint32_t>{1}));
    CellSet whole;
    whole.Add(rows.At(0));
    EXPECT_EQ(whole.RowsOf(rows), (std::vector<std::uint32_t>{0}));
}

TEST(CellSet, TakesRowsOfAnotherList) {
    const RecordingHost host;
    const TTclObject before(Tcl_NewStringObj("{l a v} {l b v} {l c v}", -1));
    const TTclObject after(Tcl_NewStringObj("{k c v} {l C v} {l aa v} {l a v}", -1));
    const CellRows rowsBefore = *CellRows::Read(before.Get());
    CellSet set;
    CellSet::Adder adder(set, rowsBefore);
    adder.Add(0);
    adder.Add(2);
    EXPECT_EQ(set.RowsOf(*CellRows::Read(after.Get())), (std::vector<std::uint32_t>{1, 3}));
}

}  // namespace

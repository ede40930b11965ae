/// @file
/// The current application, and the profile operations over their store.
#include "vapp/toolkit/CWinAppEx.h"

#include <gtest/gtest.h>

#include "vapp/toolkit/CWnd.h"

TEST(CWinAppEx, FirstConstructedIsCurrentUntilItEnds) {
    EXPECT_EQ(CWinAppEx::GetApp(), nullptr);
    EXPECT_EQ(gGetMainWnd(), nullptr);
    {
        CWinAppEx first("first");
        {
            CWinAppEx second("second");
            EXPECT_EQ(CWinAppEx::GetApp(), &first);
        }
        EXPECT_EQ(CWinAppEx::GetApp(), &first);
        EXPECT_EQ(gGetMainWnd(), nullptr);
        CWnd window;
        first.SetMainWnd(&window);
        EXPECT_EQ(gGetMainWnd(), &window);
    }
    EXPECT_EQ(CWinAppEx::GetApp(), nullptr);
}

TEST(CWinAppEx, ProfileGivesTheDefaultUntilSomethingIsWritten) {
    CWinAppEx app;
    EXPECT_EQ(app.GetProfileString("Section\\Sub", "key", "default"), "default");
    EXPECT_EQ(app.GetProfileInt("Section", "key", -7), -7);
    app.WriteProfileString("Section\\Sub", "key", "");
    app.WriteProfileInt("Section", "key", 0);
    EXPECT_EQ(app.GetProfileString("Section\\Sub", "key", "default"), "") << "an empty text is a text";
    EXPECT_EQ(app.GetProfileInt("Section", "key", -7), 0);
}

TEST(CWinAppEx, StoreCanBeReplacedAndIsNeverNull) {
    CWinAppEx app;
    auto store = std::make_unique<MemoryProfileStore>();
    const MemoryProfileStore& seen = *store;
    app.SetProfileStore(std::move(store));
    app.WriteProfileInt("s", "k", 3);
    EXPECT_EQ(seen.GetWriteCount(), 1u);
    EXPECT_EQ(seen.ReadInteger("s", "k"), 3);
    app.SetProfileStore(nullptr);
    EXPECT_EQ(app.GetProfileInt("s", "k", 9), 9);
}

TEST(CWinAppEx, OnlyTheCurrentApplicationStarts) {
    CWinAppEx first("first");
    CWinAppEx second("second");
    EXPECT_EQ(first.InitInstance(), 1);
    EXPECT_EQ(second.InitInstance(), 0);
}

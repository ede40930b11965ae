/// @file
/// The store in memory.
#include "vapp/toolkit/MemoryProfileStore.h"

#include <gtest/gtest.h>

TEST(MemoryProfileStore, IntegerIsNoTextAndTextIsNoInteger) {
    MemoryProfileStore store;
    store.WriteText("s", "text", "12");
    store.WriteInteger("s", "integer", 12);
    EXPECT_EQ(store.ReadInteger("s", "text"), std::nullopt);
    EXPECT_EQ(store.ReadText("s", "integer"), std::nullopt);
    EXPECT_EQ(store.ReadText("s", "text"), CString("12"));
    EXPECT_EQ(store.ReadInteger("s", "integer"), 12);
}

TEST(MemoryProfileStore, LastWriteOfEitherKindWins) {
    MemoryProfileStore store;
    store.WriteText("s", "k", "a");
    store.WriteInteger("s", "k", 1);
    EXPECT_EQ(store.ReadText("s", "k"), std::nullopt);
    EXPECT_EQ(store.ReadInteger("s", "k"), 1);
    store.WriteText("s", "k", "b");
    EXPECT_EQ(store.ReadText("s", "k"), CString("b"));
    EXPECT_EQ(store.ReadInteger("s", "k"), std::nullopt);
    EXPECT_EQ(store.GetWriteCount(), 3u);
}

TEST(MemoryProfileStore, SectionAndKeyDoNotRunIntoOneAnother) {
    MemoryProfileStore store;
    store.WriteText("a\\b", "c", "1");
    store.WriteText("a", "b\\c", "2");
    EXPECT_EQ(store.ReadText("a\\b", "c"), CString("1"));
    EXPECT_EQ(store.ReadText("a", "b\\c"), CString("2"));
}

#include "platform/ProcessorCounts.h"

#include <gtest/gtest.h>

namespace {

using vapp_platform::cnRelationCore;
using vapp_platform::cnRelationPackage;
using vapp_platform::CountProcessors;
using vapp_platform::ProcessorLayout;
using vapp_platform::TProcessorCounts;
using vapp_platform::TProcessorRecord;

using TRecords = std::vector<TProcessorRecord>;

void ExpectCounts(const TRecords& records, std::uint32_t logical, std::uint32_t cores, std::uint32_t packages,
                  int layout) {
    const TProcessorCounts counts = CountProcessors(records);
    EXPECT_EQ(counts.logical, logical);
    EXPECT_EQ(counts.cores, cores);
    EXPECT_EQ(counts.packages, packages);
    EXPECT_EQ(static_cast<int>(counts.layout), layout);
}

TRecords Cores(std::initializer_list<std::uint64_t> masks, unsigned packages = 1) {
    TRecords records;
    for (const std::uint64_t mask : masks)
        records.push_back({.mask = mask, .relation = cnRelationCore});
    records.resize(records.size() + packages, {.mask = 1, .relation = cnRelationPackage});
    return records;
}

TEST(ProcessorCountsTest, EachLayoutHasItsCode) {
    ExpectCounts(Cores({0b11}), 2, 1, 1, 1);
    ExpectCounts(Cores({0b1}), 1, 1, 1, 4);
    ExpectCounts(Cores({0b1, 0b10}), 2, 2, 1, 5);
    ExpectCounts(Cores({0b1, 0b10, 0b100, 0b1000}, 2), 4, 4, 2, 5);
    ExpectCounts(Cores({0b11, 0b1100}), 4, 2, 1, 6);
}

// Cores of two kinds: one with two processors, one with one.
TEST(ProcessorCountsTest, MixedCoresAreThreaded) {
    ExpectCounts(Cores({0b11, 0b100, 0b1000}), 4, 3, 1, 6);
}

TEST(ProcessorCountsTest, AMaskMayHoldAll64Bits) {
    ExpectCounts(Cores({~std::uint64_t{0}}), 64, 1, 1, 1);
}

TEST(ProcessorCountsTest, OtherRelationsAreSkipped) {
    TRecords records = Cores({0b1});
    for (const std::uint32_t relation : {1u, 2u, 4u, 5u, 0xFFFFu}) {
        records.push_back({.mask = 0xFF, .relation = relation});
    }
    ExpectCounts(records, 1, 1, 1, 4);
}

TEST(ProcessorCountsTest, AListWithoutPackagesStillCountsItsCores) {
    ExpectCounts(Cores({0b1, 0b10}, 0), 2, 2, 0, 5);
}

TEST(ProcessorCountsTest, WhatTellsNothingLeavesTheCountsAtOne) {
    ExpectCounts({}, 1, 1, 1, 8);
    ExpectCounts(Cores({}, 4), 1, 1, 1, 8);
    ExpectCounts(Cores({0b1, 0}), 1, 1, 1, 8);
    const TProcessorCounts none = CountProcessors(std::nullopt);
    EXPECT_EQ(none.layout, ProcessorLayout::Unknown);
    EXPECT_EQ(none.logical + none.cores + none.packages, 3u);
}

}  // namespace

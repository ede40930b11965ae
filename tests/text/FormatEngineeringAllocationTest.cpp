// A number's text costs one allocation, its own. Blocks that the thread has kept would hide it, so all of
// them are in use while it is counted, and the texts that come stay.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "tests/text/AllocationCount.h"
#include "text/BlockCache.h"
#include "vapp/text/CString.h"
#include "vapp/text/FormatEngineering.h"

namespace {

using text_test::CountAllocations;

/// As many texts of each size as a thread keeps blocks of it, so that it has none left.
std::vector<CString> TextsInAllBlocks() {
    std::vector<CString> texts;
    for (std::size_t length = 1; length <= vapp_text::BlockCache::cnLargest; ++length) {
        for (unsigned i = 0; i < vapp_text::BlockCache::cnKept; ++i)
            texts.push_back(CString::Filled(length, [&](char* text) { std::fill_n(text, length, 'x'); }));
    }
    return texts;
}

/// The allocations of a call whose result stays in use until the program ends.
template <typename Call>
std::size_t CountKept(const Call& call) {
    using TResult = decltype(call());
    static std::vector<TResult> s_kept;
    std::optional<TResult> result;
    const std::size_t count = CountAllocations([&] { result.emplace(call()); });
    s_kept.push_back(*std::move(result));
    return count;
}

constexpr double cnValues[] = {0.0, -1.5, 1e-12, 123456.789, 1e300, -5e-324, HUGE_VAL, 0.1};

TEST(FormatEngineeringAllocation, ATextIsTheOnlyAllocation) {
    const std::vector<CString> inUse = TextsInAllBlocks();
    for (const double value : cnValues) {
        for (const unsigned digits : {3U, 4U, 17U, 18U, 100U, 800U, 4'000'000'000U}) {
            for (int scale = 0; scale <= 4; ++scale) {
                const std::size_t count = CountKept([&] {
                    return vapp::FormatEngineering(value, digits, scale % 2 == 0, digits % 2 == 0, scale > 2,
                                                   static_cast<TeUnitScale>(scale), true);
                });
                EXPECT_EQ(count, 1U) << value << ' ' << digits << ' ' << scale;
            }
        }
        EXPECT_EQ(CountKept([&] { return vapp::FormatGeneral(value); }), 1U) << value;
        EXPECT_EQ(CountKept([&] { return vapp::FormatEngineeringFull(value); }), 1U) << value;
        EXPECT_EQ(CountKept([&] { return vapp::FormatEngineeringOptions(value); }), 1U) << value;
    }
}

TEST(FormatEngineeringAllocation, TwoValuesThatDifferAtOnceCostTwo) {
    const std::vector<CString> inUse = TextsInAllBlocks();
    EXPECT_EQ(CountKept([] { return vapp::FormatDistinct(1, 2, TeUnitScale::Si); }), 2U);
}

}  // namespace

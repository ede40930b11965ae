// A number's text costs one allocation, its own.

#include <gtest/gtest.h>

#include <cmath>

#include "tests/text/AllocationCount.h"
#include "text/FormatEngineering.h"

namespace {

using text_test::CountAllocations;

constexpr double cnValues[] = {0.0, -1.5, 1e-12, 123456.789, 1e300, -5e-324, HUGE_VAL, 0.1};

TEST(FormatEngineeringAllocation, ATextIsTheOnlyAllocation) {
    for (const double value : cnValues) {
        for (const unsigned digits : {3U, 4U, 17U, 18U, 100U, 800U, 4'000'000'000U}) {
            for (int scale = 0; scale <= 4; ++scale) {
                const std::size_t count = CountAllocations([&] {
                    static_cast<void>(vapp_text::FormatEngineering(value, digits, scale % 2 == 0,
                                                                   digits % 2 == 0, scale > 2,
                                                                   static_cast<TeUnitScale>(scale), true));
                });
                EXPECT_LE(count, 1U) << value << ' ' << digits << ' ' << scale;
            }
        }
        EXPECT_LE(CountAllocations([&] { static_cast<void>(vapp_text::FormatGeneral(value)); }), 1U) << value;
        EXPECT_LE(CountAllocations([&] { static_cast<void>(vapp_text::FormatEngineeringFull(value)); }), 1U)
            << value;
        EXPECT_LE(CountAllocations([&] { static_cast<void>(vapp_text::FormatEngineeringOptions(value)); }),
                  1U)
            << value;
    }
}

TEST(FormatEngineeringAllocation, TwoValuesThatDifferAtOnceCostTwo) {
    EXPECT_LE(CountAllocations([] { static_cast<void>(vapp_text::FormatDistinct(1, 2, TeUnitScale::Si)); }),
              2U);
}

}  // namespace

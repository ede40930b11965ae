// A number's text costs one allocation, its own. A program for itself, since it counts every allocation of
// the process.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <new>

#include "text/FormatEngineering.h"

namespace {

std::size_t gAllocations = 0;

}  // namespace

void* operator new(std::size_t size) {
    ++gAllocations;
    void* const memory = std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

constexpr double cnValues[] = {0.0, -1.5, 1e-12, 123456.789, 1e300, -5e-324, HUGE_VAL, 0.1};

template <typename Function>
std::size_t CountAllocations(Function function) {
    const std::size_t before = gAllocations;
    function();
    return gAllocations - before;
}

TEST(FormatEngineeringAllocation, ATextIsTheOnlyAllocation) {
    for (const double value : cnValues) {
        for (const unsigned digits : {3U, 4U, 17U, 18U, 100U, 800U, 4'000'000'000U}) {
            for (int scale = 0; scale <= 4; ++scale) {
                const std::size_t count = CountAllocations([&] {
                    static_cast<void>(vapp_text::FormatEngineering(value, digits, scale % 2 == 0,
                                                                   digits % 2 == 0, scale > 2,
                                                                   static_cast<TeUnitScale>(scale), true));
                });
                EXPECT_EQ(count, 1U) << value << ' ' << digits << ' ' << scale;
            }
        }
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(vapp_text::FormatGeneral(value)); }), 1U) << value;
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(vapp_text::FormatEngineeringFull(value)); }), 1U)
            << value;
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(vapp_text::FormatEngineeringOptions(value)); }),
                  1U)
            << value;
    }
}

TEST(FormatEngineeringAllocation, TwoValuesThatDifferAtOnceCostTwo) {
    EXPECT_EQ(CountAllocations([] { static_cast<void>(vapp_text::FormatDistinct(1, 2, TeUnitScale::Si)); }),
              2U);
}

}  // namespace

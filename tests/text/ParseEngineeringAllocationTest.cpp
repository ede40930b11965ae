// Reading a number costs no allocation, also where there is none. Only the words for it do, for those who ask
// for them.

#include <gtest/gtest.h>

#include "tests/text/AllocationCount.h"
#include "text/ReadDouble.h"
#include "vapp/text/CStringU.h"
#include "vapp/text/ParseEngineering.h"

namespace {

using text_test::CountAllocations;

constexpr const char* cnTexts[] = {"",     "abc",   "-",     ".",
                                   "1.5k", "10MEG", "1e5",   "-3.3n ohm",
                                   "nan(", "1e999", "0x1p5", "123456789012345678901234567890"};

TEST(ParseEngineeringAllocation, ReadingCostsNone) {
    for (const char* const bytes : cnTexts) {
        const CStringU text(bytes);
        CStringUPos pos;
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(text.ToDouble(&pos)); }), 0U) << bytes;
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(text.ToInt(&pos)); }), 0U) << bytes;
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(text.ToUInt64(&pos)); }), 0U) << bytes;
        EXPECT_EQ(CountAllocations([&] { static_cast<void>(vapp_text::ReadDouble(bytes, nullptr)); }), 0U)
            << bytes;
        for (const bool spice : {false, true}) {
            EXPECT_EQ(CountAllocations([&] { static_cast<void>(text.ToDoubleEngineering(spice, &pos)); }), 0U)
                << bytes;
        }
    }
}

TEST(ParseEngineeringAllocation, OnlyTheWordsForNoNumberCost) {
    double value = 0;
    for (const bool si : {false, true}) {
        EXPECT_EQ(
            CountAllocations([&] { static_cast<void>(vapp::ParseEngineering("1.5k", &value, nullptr, si)); }),
            0U);
        EXPECT_LE(
            CountAllocations([&] { static_cast<void>(vapp::ParseEngineering("abc", &value, nullptr, si)); }),
            1U);
    }
}

}  // namespace

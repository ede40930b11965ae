#include "platform/CpuModelName.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

using vapp_platform::CpuModelName;
using vapp_platform::CpuModelOf;
using vapp_platform::CpuName;
using vapp_platform::TCpuidRegisters;
using vapp_platform::TCpuModel;

struct TModelRow {
    TCpuModel model;
    const char* name;
};

const std::vector<TModelRow> cnIntel{
    {{6, 0, 10, 2}, "Core i7 (32nm)"},        {{6, 0, 5, 2}, "Core i3/i5M/i7M (32nm)"},
    {{6, 0, 12, 2}, "Core i7/Xeon (32nm)"},   {{6, 0, 15, 2}, "Xeon MP (32nm)"},
    {{6, 0, 14, 2}, "Xeon MP (45nm)"},        {{6, 0, 14, 1}, "Core i5/i7 (45nm)"},
    {{6, 0, 13, 1}, "Xeon MP (45nm)"},        {{6, 0, 10, 1}, "Core i7/Xeon (45nm)"},
    {{6, 0, 7, 1}, "Core 2 Extreme (45nm)"},  {{6, 0, 6, 1}, "Celeron (65nm)"},
    {{6, 0, 15, 0}, "Core 2 Duo (65nm)"},     {{6, 0, 14, 0}, "Core (65nm)"},
    {{15, 0, 6, 0}, "P4/Xeon/Celeron (65nm)"}};

const std::vector<TModelRow> cnOthers{{{5, 0, 0, 0}, "AMD-K5 Model 0"},
                                      {{5, 0, 1, 0}, "AMD-K5 Model 1"},
                                      {{5, 0, 2, 0}, "AMD-K5 Model 2"},
                                      {{5, 0, 3, 0}, "AMD-K5 Model 3"},
                                      {{5, 0, 6, 0}, "AMD-K6 Model 6"},
                                      {{5, 0, 7, 0}, "AMD-K6 Model 7"},
                                      {{5, 0, 8, 0}, "AMD-K6-2 Model 8"},
                                      {{5, 0, 9, 0}, "AMD-K6-III Model 9"},
                                      {{6, 0, 1, 0}, "AMD Athlon Model 1"},
                                      {{6, 0, 2, 0}, "AMD Athlon Model 2"},
                                      {{6, 0, 3, 0}, "AMD Duron Model 3 / Mobile AMD Duron Model 3"},
                                      {{6, 0, 4, 0}, "AMD Athlon Model 4"},
                                      {{6, 0, 6, 0}, "AMD Athlon MP / XP / Mobile / Duron Model 6"},
                                      {{6, 0, 7, 0}, "AMD Duron Model 7 / Mobile Duron 7"},
                                      {{6, 0, 8, 0}, "AMD Athlon MP / XP / Sempron Model 8"},
                                      {{6, 0, 10, 0}, "AMD Athlon MP / XP / Mobile / Sempron Model 10"}};

CStringU Numbers(const TCpuModel& model) {
    return CStringU::Formatted("Family %u, Extendedfamily %u, Model %u, Extendedmodel %u", model.family,
                               model.extendedFamily, model.model, model.extendedModel);
}

// Every family and model that four bits can tell, with small extensions: the rows have their names, all
// others their numbers.
void ExpectTable(const char* vendor, const std::vector<TModelRow>& rows) {
    for (std::uint32_t bits = 0; bits < 1u << 12; ++bits) {
        const TCpuModel model{bits & 15, bits >> 11 & 1, bits >> 4 & 15, bits >> 8 & 7};
        CStringU expected = Numbers(model);
        for (const TModelRow& row : rows) {
            if (row.model == model) expected = row.name;
        }
        ASSERT_EQ(CpuModelName(vendor, model), expected) << vendor << " " << bits;
    }
}

TEST(CpuModelNameTest, EveryRowOfIntelAndNothingElseHasAName) {
    ExpectTable("GenuineIntel", cnIntel);
}

TEST(CpuModelNameTest, AllOtherVendorsShareOneTable) {
    ExpectTable("AuthenticAMD", cnOthers);
    for (const char* vendor : {"", "genuineintel", "GenuineIntel ", "HygonGenuine", "KVMKVMKVM"}) {
        EXPECT_EQ(CpuModelName(vendor, {6, 0, 4, 0}), "AMD Athlon Model 4") << vendor;
    }
}

TEST(CpuModelNameTest, NumbersOfANewProcessorAreToldInWords) {
    EXPECT_EQ(CpuModelName("AuthenticAMD", {15, 10, 1, 1}),
              "Family 15, Extendedfamily 10, Model 1, Extendedmodel 1");
    EXPECT_EQ(CpuModelName("GenuineIntel", {0, 0, 0, 0}),
              "Family 0, Extendedfamily 0, Model 0, Extendedmodel 0");
}

TEST(CpuModelNameTest, TheFourNumbersAreBitsOfTheSignature) {
    EXPECT_EQ(CpuModelOf(0x000206A7), (TCpuModel{6, 0, 10, 2}));
    EXPECT_EQ(CpuModelOf(0x00A10F11), (TCpuModel{15, 10, 1, 1}));
    EXPECT_EQ(CpuModelOf(0xFFFFFFFF), (TCpuModel{15, 255, 15, 15}));
    EXPECT_EQ(CpuModelOf(0xF000F00F), (TCpuModel{0, 0, 0, 0}));
}

TCpuidRegisters VendorLeaf(const char (&vendor)[13], std::uint32_t highest) {
    TCpuidRegisters leaf{.eax = highest};
    std::memcpy(&leaf.ebx, vendor, 4);
    std::memcpy(&leaf.edx, vendor + 4, 4);
    std::memcpy(&leaf.ecx, vendor + 8, 4);
    return leaf;
}

TEST(CpuModelNameTest, TheNameOfACpuIsItsVendorAndModel) {
    const auto intel = [](std::uint32_t leaf) {
        return leaf == 0 ? VendorLeaf("GenuineIntel", 13) : TCpuidRegisters{.eax = 0x000206A7};
    };
    EXPECT_EQ(CpuName(intel), "GenuineIntel Core i7 (32nm)");
    const auto other = [](std::uint32_t leaf) {
        return leaf == 0 ? VendorLeaf("AuthenticAMD", 1) : TCpuidRegisters{.eax = 0x00000640};
    };
    EXPECT_EQ(CpuName(other), "AuthenticAMD AMD Athlon Model 4");
}

TEST(CpuModelNameTest, AProcessorWithoutNumbersIsNotAskedForThem) {
    const auto old = [](std::uint32_t leaf) {
        EXPECT_EQ(leaf, 0u);
        return VendorLeaf("AuthenticAMD", 0);
    };
    EXPECT_EQ(CpuName(old), "AuthenticAMD Family 0, Extendedfamily 0, Model 0, Extendedmodel 0");
}

TEST(CpuModelNameTest, AVendorOfAnyBytesGivesAText) {
    const auto none = [](std::uint32_t) { return TCpuidRegisters{.eax = 1}; };
    EXPECT_EQ(CpuName(none), " Family 0, Extendedfamily 0, Model 0, Extendedmodel 0");
    const auto wild = [](std::uint32_t) { return TCpuidRegisters{~0u, ~0u, ~0u, ~0u}; };
    EXPECT_TRUE(CpuName(wild).EndsWith(" Family 15, Extendedfamily 255, Model 15, Extendedmodel 15"));
}

}  // namespace

/// @file
/// The two tables of processors. The first row that fits is the answer.
#include "platform/CpuModelName.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

namespace vapp_platform {

namespace {

struct TNamedModel {
    TCpuModel model;
    const char* name;
};

constexpr std::array cnIntelModels = std::to_array<TNamedModel>({
    {{6, 0, 10, 2}, "Core i7 (32nm)"},
    {{6, 0, 5, 2}, "Core i3/i5M/i7M (32nm)"},
    {{6, 0, 12, 2}, "Core i7/Xeon (32nm)"},
    {{6, 0, 15, 2}, "Xeon MP (32nm)"},
    {{6, 0, 14, 2}, "Xeon MP (45nm)"},
    {{6, 0, 14, 1}, "Core i5/i7 (45nm)"},
    {{6, 0, 13, 1}, "Xeon MP (45nm)"},
    {{6, 0, 10, 1}, "Core i7/Xeon (45nm)"},
    {{6, 0, 7, 1}, "Core 2 Extreme (45nm)"},
    {{6, 0, 6, 1}, "Celeron (65nm)"},
    {{6, 0, 15, 0}, "Core 2 Duo (65nm)"},
    {{6, 0, 14, 0}, "Core (65nm)"},
    {{15, 0, 6, 0}, "P4/Xeon/Celeron (65nm)"},
});

constexpr std::array cnOtherModels = std::to_array<TNamedModel>({
    {{5, 0, 0, 0}, "AMD-K5 Model 0"},
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
    {{6, 0, 10, 0}, "AMD Athlon MP / XP / Mobile / Sempron Model 10"},
});

constexpr std::uint32_t Bits(std::uint32_t value, unsigned first, unsigned count) {
    return (value >> first) & ((1u << count) - 1);
}

// Twelve bytes in three registers; the order EBX, EDX, ECX is the processor's.
CStringU VendorOf(const TCpuidRegisters& leaf0) {
    const std::array<std::uint32_t, 3> words{leaf0.ebx, leaf0.edx, leaf0.ecx};
    std::array<char, sizeof words> letters{};
    std::memcpy(letters.data(), words.data(), sizeof words);
    return {letters.data(), TextEncoding::Utf8Auto, static_cast<int>(letters.size())};
}

}  // namespace

CStringU CpuModelName(const CStringU& vendor, const TCpuModel& model) {
    const auto models = vendor == "GenuineIntel" ? std::span<const TNamedModel>(cnIntelModels)
                                                 : std::span<const TNamedModel>(cnOtherModels);
    const auto row = std::ranges::find(models, model, &TNamedModel::model);
    if (row != models.end()) return row->name;
    return CStringU::Formatted(
        "Family %d, Extendedfamily %d, Model %d, Extendedmodel %d", static_cast<std::int32_t>(model.family),
        static_cast<std::int32_t>(model.extendedFamily), static_cast<std::int32_t>(model.model),
        static_cast<std::int32_t>(model.extendedModel));
}

TCpuModel CpuModelOf(std::uint32_t leaf1Eax) noexcept {
    return {.family = Bits(leaf1Eax, 8, 4),
            .extendedFamily = Bits(leaf1Eax, 20, 8),
            .model = Bits(leaf1Eax, 4, 4),
            .extendedModel = Bits(leaf1Eax, 16, 4)};
}

CStringU CpuName(const TCpuidReader& readCpuid) {
    const TCpuidRegisters leaf0 = readCpuid(0);
    const CStringU vendor = VendorOf(leaf0);
    const TCpuModel model = leaf0.eax >= 1 ? CpuModelOf(readCpuid(1).eax) : TCpuModel{};
    return vendor + " " + CpuModelName(vendor, model);
}

}  // namespace vapp_platform

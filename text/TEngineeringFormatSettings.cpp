/// The defaults of number reading and writing: plain atomics, since no setting depends on another one.

#include "vapp/text/TEngineeringFormatSettings.h"

#include <algorithm>

#include "vapp/text/DigitsSetting.h"

namespace {

// Made without code, so that the constructors of a host's own globals may use it already.
constinit TEngineeringFormatSettings gSettings;

bool IsChoice(TeUnitScale scale) noexcept {
    return scale >= TeUnitScale::Si && scale <= TeUnitScale::Engineering;
}

bool Choose(boost::logic::tribool choice, const std::atomic<bool>& stored) noexcept {
    return indeterminate(choice) ? stored.load(std::memory_order_relaxed) : static_cast<bool>(choice);
}

}  // namespace

TEngineeringFormatSettings& gGetEngineeringFormatSettings() noexcept {
    return gSettings;
}

bool TEngineeringFormatSettings::GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(
    boost::logic::tribool choice) const noexcept {
    return Choose(choice, m_useSiSuffix);
}

TeUnitScale TEngineeringFormatSettings::GetValidEngineeringFormatUnitScale(
    TeUnitScale choice) const noexcept {
    return IsChoice(choice) ? choice : GetDefaultEngineeringFormatUnitScale();
}

bool TEngineeringFormatSettings::GetValidEngineeringFormatRemoveTrailingZeroes(
    boost::logic::tribool choice) const noexcept {
    return Choose(choice, m_removeTrailingZeroes);
}

bool TEngineeringFormatSettings::GetValidEngineeringFormatRemoveZeroExponents(
    boost::logic::tribool choice) const noexcept {
    return Choose(choice, m_removeZeroExponents);
}

unsigned TEngineeringFormatSettings::GetDefaultEngineeringFormatDigits() const noexcept {
    return m_digits.load(std::memory_order_relaxed);
}

TeUnitScale TEngineeringFormatSettings::GetDefaultEngineeringFormatUnitScale() const noexcept {
    return m_unitScale.load(std::memory_order_relaxed);
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(bool useSi) noexcept {
    m_useSiSuffix.store(useSi, std::memory_order_relaxed);
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatUnitScale(TeUnitScale scale) noexcept {
    if (IsChoice(scale)) m_unitScale.store(scale, std::memory_order_relaxed);
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatRemoveTrailingZeroes(bool remove) noexcept {
    m_removeTrailingZeroes.store(remove, std::memory_order_relaxed);
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatRemoveZeroExponents(bool remove) noexcept {
    m_removeZeroExponents.store(remove, std::memory_order_relaxed);
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatDigits(unsigned digits) noexcept {
    m_digits.store(std::clamp(digits, vapp::GetMinDigits(), vapp::GetMaxDigits()), std::memory_order_relaxed);
}

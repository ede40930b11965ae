/// @file
/// TEngineeringFormatSettings: how the process reads and writes numbers where a caller states no choice.
///
/// One object for the process, gGetEngineeringFormatSettings(); a host sets its defaults there, usually once
/// at its start. What stores them between two runs is the host's business.
///
/// A host that says nothing reads and writes SI: *10M* is ten million in both directions. The notations do
/// not read one another ("M" is milli to SPICE), so a host that changes one of UnitScale and
/// UseSiSuffixInsteadOfSpice for SPICE should change the other too; neither follows the other by itself.
#pragma once

#include <atomic>
#include <boost/logic/tribool.hpp>

#include "vapp/Export.h"
#include "vapp/text/TeUnitScale.h"

/// The defaults of number reading and writing. Each of them may be read and set from any thread; a thread
/// that reads while another sets sees the old value or the new one, of each setting for itself.
class VAPP_EXPORT TEngineeringFormatSettings {
public:
    constexpr TEngineeringFormatSettings() noexcept = default;
    TEngineeringFormatSettings(const TEngineeringFormatSettings&) = delete;
    TEngineeringFormatSettings& operator=(const TEngineeringFormatSettings&) = delete;

    // --- The choice to use: the caller's, or the default where the caller states none -------------------

    /// True for the SI reading of suffixes, false for the SPICE reading. Stored default: true.
    [[nodiscard]] bool GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(
        boost::logic::tribool choice) const noexcept;
    /// The notation to write; a value outside of 0 to 4 states no choice. Stored default: Si.
    [[nodiscard]] TeUnitScale GetValidEngineeringFormatUnitScale(TeUnitScale choice) const noexcept;
    /// True to write "1.5k" for "1.50k". Stored default: true.
    [[nodiscard]] bool GetValidEngineeringFormatRemoveTrailingZeroes(
        boost::logic::tribool choice) const noexcept;
    /// True to write "1" for "1e000". Stored default: true.
    [[nodiscard]] bool GetValidEngineeringFormatRemoveZeroExponents(
        boost::logic::tribool choice) const noexcept;

    // --- The stored defaults -----------------------------------------------------------------------------

    /// The count of digits where a caller gives 0. Stored default: 4, which an empty settings field means
    /// too.
    [[nodiscard]] unsigned GetDefaultEngineeringFormatDigits() const noexcept;
    [[nodiscard]] TeUnitScale GetDefaultEngineeringFormatUnitScale() const noexcept;

    void SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(bool useSi) noexcept;
    /// A value outside of 0 to 4 is no notation and changes nothing.
    void SetDefaultEngineeringFormatUnitScale(TeUnitScale scale) noexcept;
    void SetDefaultEngineeringFormatRemoveTrailingZeroes(bool remove) noexcept;
    void SetDefaultEngineeringFormatRemoveZeroExponents(bool remove) noexcept;
    /// Clamped to 1 to 18, the counts that a settings field can hold.
    void SetDefaultEngineeringFormatDigits(unsigned digits) noexcept;

private:
    std::atomic<bool> m_useSiSuffix{true};
    std::atomic<bool> m_removeTrailingZeroes{true};
    std::atomic<bool> m_removeZeroExponents{true};
    std::atomic<unsigned> m_digits{4};
    std::atomic<TeUnitScale> m_unitScale{TeUnitScale::Si};
};

/// The settings of the process; they live as long as it does.
[[nodiscard]] VAPP_EXPORT TEngineeringFormatSettings& gGetEngineeringFormatSettings() noexcept;

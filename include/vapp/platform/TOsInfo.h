/// @file
/// TOsInfo: what an application knows of the machine that it runs on, and the texts about it that go into
/// logs and support reports.
///
/// A base of the application object. It gathers its fields once, at construction; the operations ask the
/// system anew. None of them throws for what the system refuses: a name then says so, a count is 1, a flag
/// false.
///
/// The surprise: under Wine, and on Linux itself, the system's name is "Linux". What Windows calls itself
/// there is still told by GetWindowsName.
#pragma once

#include <cstdint>

#include "vapp/Export.h"
#include "vapp/platform/SystemStructs.h"
#include "vapp/text/CStringU.h"

class VAPP_EXPORT TOsInfo {
public:
    TOsInfo();

    /// "Linux" where the display is Wine's and on Linux itself, otherwise GetWindowsName.
    [[nodiscard]] CStringU GetOsName() const;
    /// Name, edition, service pack and build of Windows. "Unknown version of Windows" where it is none, the
    /// system's error text where it gives no version. To a program whose manifest doesn't name Windows 8.1 or
    /// 10, these say that they are version 6.2, "Windows 8"; that manifest is the host's.
    [[nodiscard]] CStringU GetWindowsName() const;
    /// The edition that the system names for a version of Windows; an edition without a text is told by its
    /// code, which is 0 where the system names none.
    [[nodiscard]] CStringU GetEditionName(std::uint32_t major, std::uint32_t minor) const;
    /// The maker of the processor, a blank, and its model.
    [[nodiscard]] CStringU GetCpuName() const;
    /// The model by its maker ("GenuineIntel", or any other) and numbers, which are told in words where they
    /// have no name.
    [[nodiscard]] static CStringU GetCpuModelName(const CStringU& vendor, std::uint32_t family,
                                                  std::uint32_t extendedFamily, std::uint32_t model,
                                                  std::uint32_t extendedModel);
    /// Counts processors, cores and packages in use. The answer is 1 for one core with several processors, 4
    /// for one with one, 5 for several cores with one processor each, 6 for several with more, and 8, all
    /// counts 1, where nothing could be found out.
    int GetProcessorCounts(std::uint32_t& logical, std::uint32_t& cores, std::uint32_t& packages) const;
    /// The bits that are set.
    [[nodiscard]] static int CountBits(std::uint64_t mask) noexcept;
    /// The rate of the time-stamp counter, ticks in a second, measured during 5 ms; 0.0 where a clock fails.
    [[nodiscard]] double GetTscFrequency() const;
    /// Whether the user is an administrator of the machine: on Linux root, by the effective user.
    [[nodiscard]] bool IsUserAdmin() const noexcept;
    /// Whether the primary display is that of Wine, found out once in the process; also true on Linux itself.
    /// Any thread.
    [[nodiscard]] bool IsWineDisplay() const noexcept;
    /// IsWineDisplay, found out anew.
    [[nodiscard]] static bool IsWineDisplayNow() noexcept;

    // Facts of the construction, for reading.

    TSystemInfo m_systemInfo;
    TVersionInfo m_versionInfo;
    /// Empty at construction; the application's own to fill.
    CStringU m_osName;
    CStringU m_cpuName;
    bool m_hasMmx;
    bool m_hasSse2;
};

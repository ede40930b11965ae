/// @file
/// Each operation fetches its facts and hands them to the rule that words or counts them.
#include "vapp/platform/TOsInfo.h"

#include <bit>

#include "platform/CpuModelName.h"
#include "platform/Cpuid.h"
#include "platform/EditionNames.h"
#include "platform/OsName.h"
#include "platform/ProcessorCounts.h"
#include "platform/ProcessorRecords.h"
#include "platform/SystemFacts.h"
#include "platform/TscFrequency.h"
#include "platform/VersionNumbers.h"
#include "platform/WindowsName.h"

using namespace vapp_platform;

namespace {

bool HasMmx() noexcept {
    constexpr std::uint32_t cnMmx = 1u << 23;
    return ReadCpuid(0).eax >= 1 && (ReadCpuid(1).edx & cnMmx) != 0;
}

}  // namespace

TOsInfo::TOsInfo()
    : m_systemInfo(ReadSystemInfo()),
      m_versionInfo(WithPlainBuildNumber(ReadVersionInfo())),
      m_hasMmx(HasMmx()),
      m_hasSse2(HasProcessorFeature(ProcessorFeature::Sse2)) {}

CStringU TOsInfo::GetOsName() const {
    return OsName(IsWineDisplay(), ReadWindowsFacts());
}

CStringU TOsInfo::GetWindowsName() const {
    return WindowsName(ReadWindowsFacts());
}

CStringU TOsInfo::GetEditionName(std::uint32_t major, std::uint32_t minor) const {
    return EditionName(ReadProductCode(major, minor));
}

CStringU TOsInfo::GetCpuName() const {
    return CpuName(ReadCpuid);
}

CStringU TOsInfo::GetCpuModelName(const CStringU& vendor, std::uint32_t family, std::uint32_t extendedFamily,
                                  std::uint32_t model, std::uint32_t extendedModel) {
    return CpuModelName(
        vendor,
        {.family = family, .extendedFamily = extendedFamily, .model = model, .extendedModel = extendedModel});
}

int TOsInfo::GetProcessorCounts(std::uint32_t& logical, std::uint32_t& cores, std::uint32_t& packages) const {
    const TProcessorCounts counts = CountProcessors(ReadProcessorRecords());
    logical = counts.logical;
    cores = counts.cores;
    packages = counts.packages;
    return static_cast<int>(counts.layout);
}

int TOsInfo::CountBits(std::uint64_t mask) noexcept {
    return std::popcount(mask);
}

double TOsInfo::GetTscFrequency() const {
    return TscFrequencyOfMachine();
}

bool TOsInfo::IsUserAdmin() const noexcept {
    return IsUserAdministrator();
}

bool TOsInfo::IsWineDisplay() const noexcept {
    static const bool isWine = IsWineDisplaySystem();
    return isWine;
}

bool TOsInfo::IsWineDisplayNow() noexcept {
    return IsWineDisplaySystem();
}

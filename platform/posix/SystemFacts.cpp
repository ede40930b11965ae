/// @file
/// The facts of Linux, in the places where Windows has its own.
#include "platform/SystemFacts.h"

#include <sched.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>

#include "platform/CpuModelName.h"
#include "platform/Cpuid.h"
#include "platform/posix/KernelRelease.h"

namespace vapp_platform {

namespace {

constexpr std::uint16_t cnReportedArchitecture = 9;
constexpr std::uint32_t cnProcessorX64 = 8664;
// No Windows has this one, so that no version is taken for one of Windows.
constexpr std::uint32_t cnPlatformUnix = 4;

// Programs get no address below the first and none above the second, unless an administrator says otherwise.
constexpr std::uintptr_t cnLowestAddress = 0x10000;
constexpr std::uintptr_t cnHighestAddress = 0x7FFFFFFFEFFF;

std::uint32_t CountOnline() noexcept {
    const long count = sysconf(_SC_NPROCESSORS_ONLN);
    return count > 0 ? static_cast<std::uint32_t>(count) : 1;
}

std::uint64_t AffinityMask() noexcept {
    cpu_set_t processors;
    CPU_ZERO(&processors);
    if (sched_getaffinity(0, sizeof processors, &processors) != 0) return 1;
    std::uint64_t mask = 0;
    for (unsigned i = 0; i < 64; ++i) {
        if (CPU_ISSET(i, &processors)) mask |= std::uint64_t{1} << i;
    }
    return mask;
}

void* Address(std::uintptr_t number) noexcept {
    return reinterpret_cast<void*>(number);  // NOLINT(performance-no-int-to-ptr): a number told as an address
}

}  // namespace

TSystemInfo ReadSystemInfo() noexcept {
    const auto page = static_cast<std::uint32_t>(sysconf(_SC_PAGESIZE));
    const std::uint32_t signature = ReadCpuid(0).eax >= 1 ? ReadCpuid(1).eax : 0;
    const TCpuModel model = CpuModelOf(signature);
    // As processors' manuals say: the extended family adds to family 15.
    const std::uint32_t family = model.family + (model.family == 15 ? model.extendedFamily : 0);
    const std::uint32_t modelAndStepping = (model.extendedModel << 4 | model.model) << 8 | (signature & 0xF);
    return {.wProcessorArchitecture = cnReportedArchitecture,
            .wReserved = 0,
            .dwPageSize = page,
            .lpMinimumApplicationAddress = Address(cnLowestAddress),
            .lpMaximumApplicationAddress = Address(cnHighestAddress),
            .dwActiveProcessorMask = AffinityMask(),
            .dwNumberOfProcessors = CountOnline(),
            .dwProcessorType = cnProcessorX64,
            .dwAllocationGranularity = page,
            .wProcessorLevel = static_cast<std::uint16_t>(family),
            .wProcessorRevision = static_cast<std::uint16_t>(modelAndStepping)};
}

TVersionInfo ReadVersionInfo() noexcept {
    TVersionInfo version{};
    version.dwOSVersionInfoSize = sizeof version;
    version.dwPlatformId = cnPlatformUnix;
    utsname names{};
    if (uname(&names) != 0) return version;
    const TKernelRelease release = ParseKernelRelease(names.release);
    version.dwMajorVersion = release.major;
    version.dwMinorVersion = release.minor;
    version.dwBuildNumber = release.patch;
    const std::size_t room = sizeof version.szCSDVersion - 1;
    release.rest.copy(version.szCSDVersion, std::min(room, release.rest.size()));
    return version;
}

TWindowsFacts ReadWindowsFacts() {
    const TVersionInfo version = ReadVersionInfo();
    TWindowsFacts facts;
    facts.platformId = version.dwPlatformId;
    facts.major = version.dwMajorVersion;
    facts.minor = version.dwMinorVersion;
    facts.build = version.dwBuildNumber;
    return facts;
}

std::uint32_t ReadProductCode(std::uint32_t /*major*/, std::uint32_t /*minor*/) noexcept {
    return 0;
}

bool IsUserAdministrator() noexcept {
    return geteuid() == 0;
}

bool IsWineDisplaySystem() noexcept {
    return true;
}

bool HasProcessorFeature(ProcessorFeature feature) noexcept {
    if (ReadCpuid(0).eax < 1) return false;
    const unsigned bit = feature == ProcessorFeature::Sse ? 25 : 26;
    return (ReadCpuid(1).edx >> bit & 1) != 0;
}

}  // namespace vapp_platform

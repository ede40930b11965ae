// Prints what the library knows of the machine it runs on, one fact a line, for a support report.
#include <cinttypes>
#include <cstdint>
#include <cstdio>

#include "vapp/platform/TOsInfo.h"

namespace {

const char* Word(bool fact) {
    return fact ? "yes" : "no";
}

// Texts of the library leave it by Payload(), which is UTF-8.
void PrintNames(const TOsInfo& info) {
    const TVersionInfo& version = info.m_versionInfo;
    std::printf("system: %s\n", info.GetOsName().Payload());
    std::printf("windows: %s\n", info.GetWindowsName().Payload());
    std::printf("edition: %s\n",
                info.GetEditionName(version.dwMajorVersion, version.dwMinorVersion).Payload());
    std::printf("version: %u.%u.%u\n", static_cast<unsigned>(version.dwMajorVersion),
                static_cast<unsigned>(version.dwMinorVersion), static_cast<unsigned>(version.dwBuildNumber));
    std::printf("release: %s\n", version.szCSDVersion);
    std::printf("platform: %u\n", static_cast<unsigned>(version.dwPlatformId));
    std::printf("display of Wine: %s\n", Word(info.IsWineDisplay()));
    std::printf("administrator: %s\n", Word(info.IsUserAdmin()));
}

void PrintProcessor(const TOsInfo& info) {
    std::uint32_t logical = 0;
    std::uint32_t cores = 0;
    std::uint32_t packages = 0;
    const int layout = info.GetProcessorCounts(logical, cores, packages);
    std::printf("cpu: %s\n", info.GetCpuName().Payload());
    std::printf("logical processors: %u\n", static_cast<unsigned>(logical));
    std::printf("cores: %u\n", static_cast<unsigned>(cores));
    std::printf("packages: %u\n", static_cast<unsigned>(packages));
    std::printf("layout code: %d\n", layout);
    std::printf("mmx: %s\n", Word(info.m_hasMmx));
    std::printf("sse2: %s\n", Word(info.m_hasSse2));
    std::printf("time stamps: %.0f MHz\n", info.GetTscFrequency() / 1e6);
}

void PrintSystemInfo(const TSystemInfo& system) {
    std::printf("architecture: %u\n", static_cast<unsigned>(system.wProcessorArchitecture));
    std::printf("processor type: %u\n", static_cast<unsigned>(system.dwProcessorType));
    std::printf("processor level: %u\n", static_cast<unsigned>(system.wProcessorLevel));
    std::printf("processor revision: %04X\n", static_cast<unsigned>(system.wProcessorRevision));
    std::printf("processors: %u\n", static_cast<unsigned>(system.dwNumberOfProcessors));
    std::printf("processor mask: %016" PRIX64 "\n", system.dwActiveProcessorMask);
    std::printf("page: %u bytes\n", static_cast<unsigned>(system.dwPageSize));
    std::printf("granularity: %u bytes\n", static_cast<unsigned>(system.dwAllocationGranularity));
    std::printf("lowest address: %" PRIXPTR "\n",
                reinterpret_cast<std::uintptr_t>(system.lpMinimumApplicationAddress));
    std::printf("highest address: %" PRIXPTR "\n",
                reinterpret_cast<std::uintptr_t>(system.lpMaximumApplicationAddress));
}

}  // namespace

int main() {
    const TOsInfo info;
    PrintNames(info);
    PrintProcessor(info);
    PrintSystemInfo(info.m_systemInfo);
    return 0;
}

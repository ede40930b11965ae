// Prints what the library knows of the machine it runs on, one fact a line, for a support report.
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
    std::printf("page: %u bytes\n", static_cast<unsigned>(info.m_systemInfo.dwPageSize));
}

}  // namespace

int main() {
    const TOsInfo info;
    PrintNames(info);
    PrintProcessor(info);
    return 0;
}

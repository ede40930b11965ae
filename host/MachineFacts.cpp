/// Words for what TOsInfo knows.

#include "host/MachineFacts.h"

#include <cmath>
#include <cstdint>

#include "vapp/platform/TOsInfo.h"

namespace navigator {

namespace {

/// What a version of Windows has as its platform.
constexpr std::uint32_t cnWindows = 2;

std::string Line(const char* name, const std::string& value) {
    return std::string(name) + ": " + value + '\n';
}

std::string Line(const char* name, const CStringU& value) {
    return Line(name, std::string(value.Payload()));
}

std::string YesOrNo(bool fact) {
    return fact ? "yes" : "no";
}

std::string VersionLines(const TOsInfo& machine) {
    const TVersionInfo& version = machine.m_versionInfo;
    std::string text = Line("system", machine.GetOsName());
    // Where the system calls itself something else than what runs it, both help.
    if (version.dwPlatformId == cnWindows && machine.GetOsName() != machine.GetWindowsName())
        text += Line("as seen by Windows programs", machine.GetWindowsName());
    text += Line("system version", std::to_string(version.dwMajorVersion) + '.' +
                                       std::to_string(version.dwMinorVersion) + '.' +
                                       std::to_string(version.dwBuildNumber));
    return text;
}

std::string ProcessorLines(const TOsInfo& machine) {
    constexpr double cnHertzOfMegahertz = 1e6;
    std::uint32_t logical = 0;
    std::uint32_t cores = 0;
    std::uint32_t packages = 0;
    machine.GetProcessorCounts(logical, cores, packages);
    return Line("processor", machine.GetCpuName()) +
           Line("processors, cores, packages",
                std::to_string(logical) + ", " + std::to_string(cores) + ", " + std::to_string(packages)) +
           Line("time stamps",
                std::to_string(std::llround(machine.GetTscFrequency() / cnHertzOfMegahertz)) + " MHz") +
           Line("SSE2", YesOrNo(machine.m_hasSse2));
}

}  // namespace

std::string gMachineFacts(const TOsInfo& machine) {
    return VersionLines(machine) + ProcessorLines(machine) +
           Line("memory page", std::to_string(machine.m_systemInfo.dwPageSize) + " bytes") +
           Line("administrator", YesOrNo(machine.IsUserAdmin()));
}

}  // namespace navigator

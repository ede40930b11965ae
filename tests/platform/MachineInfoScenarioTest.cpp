// The example machine-info, run as a program: its lines against what the library says here.
#include <gtest/gtest.h>
#include <stdio.h>

#include <array>
#include <cstdint>
#include <iomanip>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "platform/WineNames.h"
#include "vapp/platform/TOsInfo.h"

namespace {

struct TOutput {
    std::vector<std::string> names;
    std::map<std::string, std::string> values;
};

TOutput RunMachineInfo() {
    struct TCloser {
        void operator()(FILE* pipe) const { EXPECT_EQ(pclose(pipe), 0); }
    };
    // The build tells its name on its own system, which need not be the one that the program is for.
    const std::string command = "\"" + std::string(gGetDosName(VAPP_MACHINE_INFO).Payload()) + "\"";
    const std::unique_ptr<FILE, TCloser> pipe(popen(command.c_str(), "r"));
    TOutput output;
    std::array<char, 1024> buffer{};
    while (pipe && fgets(buffer.data(), static_cast<int>(buffer.size()), pipe.get()) != nullptr) {
        std::string line = buffer.data();
        line.erase(line.find_last_not_of("\r\n") + 1);
        const std::size_t colon = line.find(": ");
        EXPECT_NE(colon, std::string::npos) << line;
        if (colon == std::string::npos) continue;
        output.names.push_back(line.substr(0, colon));
        output.values[output.names.back()] = line.substr(colon + 2);
    }
    return output;
}

std::string Hexadecimal(std::uint64_t number, int digits) {
    std::ostringstream text;
    text << std::uppercase << std::hex << std::setfill('0') << std::setw(digits) << number;
    return text.str();
}

TEST(MachineInfoTest, EachFactIsALineAndWhatTheLibrarySays) {
    const TOutput output = RunMachineInfo();
    EXPECT_EQ(output.names, (std::vector<std::string>{"system",
                                                      "windows",
                                                      "edition",
                                                      "version",
                                                      "release",
                                                      "platform",
                                                      "display of Wine",
                                                      "administrator",
                                                      "cpu",
                                                      "logical processors",
                                                      "cores",
                                                      "packages",
                                                      "layout code",
                                                      "mmx",
                                                      "sse2",
                                                      "time stamps",
                                                      "architecture",
                                                      "processor type",
                                                      "processor level",
                                                      "processor revision",
                                                      "processors",
                                                      "processor mask",
                                                      "page",
                                                      "granularity",
                                                      "lowest address",
                                                      "highest address"}));
    const TOsInfo info;
    const auto expect = [&output](const char* name, const std::string& value) {
        ASSERT_TRUE(output.values.contains(name)) << name;
        EXPECT_EQ(output.values.at(name), value) << name;
    };
    const auto word = [](bool fact) { return fact ? "yes" : "no"; };
    std::uint32_t logical = 0;
    std::uint32_t cores = 0;
    std::uint32_t packages = 0;
    const int layout = info.GetProcessorCounts(logical, cores, packages);
    expect("system", info.GetOsName().Payload());
    expect("windows", info.GetWindowsName().Payload());
    expect("cpu", info.GetCpuName().Payload());
    expect("display of Wine", word(info.IsWineDisplay()));
    expect("administrator", word(info.IsUserAdmin()));
    expect("logical processors", std::to_string(logical));
    expect("cores", std::to_string(cores));
    expect("packages", std::to_string(packages));
    expect("layout code", std::to_string(layout));
    expect("mmx", word(info.m_hasMmx));
    expect("sse2", word(info.m_hasSse2));
    const TVersionInfo& version = info.m_versionInfo;
    expect("version", std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion) +
                          "." + std::to_string(version.dwBuildNumber));
    expect("release", version.szCSDVersion);
    expect("edition", info.GetEditionName(version.dwMajorVersion, version.dwMinorVersion).Payload());
    expect("platform", std::to_string(version.dwPlatformId));
    const TSystemInfo& system = info.m_systemInfo;
    expect("architecture", std::to_string(system.wProcessorArchitecture));
    expect("processor type", std::to_string(system.dwProcessorType));
    expect("processor level", std::to_string(system.wProcessorLevel));
    expect("processor revision", Hexadecimal(system.wProcessorRevision, 4));
    expect("processors", std::to_string(system.dwNumberOfProcessors));
    expect("processor mask", Hexadecimal(system.dwActiveProcessorMask, 16));
    expect("page", std::to_string(system.dwPageSize) + " bytes");
    expect("granularity", std::to_string(system.dwAllocationGranularity) + " bytes");
    expect("lowest address",
           Hexadecimal(reinterpret_cast<std::uintptr_t>(system.lpMinimumApplicationAddress), 0));
    expect("highest address",
           Hexadecimal(reinterpret_cast<std::uintptr_t>(system.lpMaximumApplicationAddress), 0));
    ASSERT_TRUE(output.values.contains("time stamps"));
    EXPECT_GT(std::stod(output.values.at("time stamps")), 10.0);
}

}  // namespace

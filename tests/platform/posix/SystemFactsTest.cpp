// The facts of this Linux against what its own tools and files say.
#include "platform/SystemFacts.h"

#include <gtest/gtest.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <thread>

#include "platform/ProcessorCounts.h"
#include "platform/ProcessorRecords.h"
#include "vapp/platform/TOsInfo.h"

namespace {

std::string OutputOf(const char* command) {
    struct TCloser {
        void operator()(FILE* pipe) const { pclose(pipe); }
    };
    const std::unique_ptr<FILE, TCloser> pipe(popen(command, "r"));
    std::string output;
    std::array<char, 4096> buffer{};
    while (pipe && std::fgets(buffer.data(), static_cast<int>(buffer.size()), pipe.get()) != nullptr) {
        output += buffer.data();
    }
    return output;
}

TEST(SystemFactsTest, CountsAreThoseOfLscpu) {
    const std::string table = OutputOf("LC_ALL=C lscpu -p=CPU,CORE,SOCKET 2>/dev/null");
    if (table.empty()) GTEST_SKIP() << "this machine has no lscpu";
    if (!vapp_platform::ReadProcessorRecords()) GTEST_SKIP() << "the kernel's folder of processors is hidden";
    std::set<std::string> processors;
    std::set<std::string> cores;
    std::set<std::string> packages;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.front() == '#') continue;
        const std::size_t first = line.find(',');
        const std::size_t second = line.find(',', first + 1);
        processors.insert(line.substr(0, first));
        cores.insert(line.substr(first + 1, second - first - 1));
        packages.insert(line.substr(second + 1));
    }
    std::uint32_t logical = 0;
    std::uint32_t coreCount = 0;
    std::uint32_t packageCount = 0;
    EXPECT_NE(TOsInfo().GetProcessorCounts(logical, coreCount, packageCount), 8);
    EXPECT_EQ(logical, processors.size());
    EXPECT_EQ(coreCount, cores.size());
    EXPECT_EQ(packageCount, packages.size());
}

TEST(SystemFactsTest, TheVendorIsThatOfProc) {
    std::ifstream file("/proc/cpuinfo");
    std::string vendor;
    for (std::string line; std::getline(file, line) && vendor.empty();) {
        if (line.starts_with("vendor_id")) vendor = line.substr(line.find(": ") + 2);
    }
    ASSERT_FALSE(vendor.empty());
    EXPECT_TRUE(std::string(TOsInfo().GetCpuName().Payload()).starts_with(vendor + " "));
}

TEST(SystemFactsTest, FamilyAndModelAreThoseOfProc) {
    std::ifstream file("/proc/cpuinfo");
    std::string family;
    std::string model;
    for (std::string line; std::getline(file, line) && model.empty();) {
        if (line.starts_with("cpu family")) family = line.substr(line.find(": ") + 2);
        if (line.starts_with("model\t\t:")) model = line.substr(line.find(": ") + 2);
    }
    ASSERT_FALSE(model.empty());
    const TSystemInfo info = vapp_platform::ReadSystemInfo();
    EXPECT_EQ(std::to_string(info.wProcessorLevel), family);
    EXPECT_EQ(std::to_string(info.wProcessorRevision >> 8), model);
}

TEST(SystemFactsTest, FlagsAreThoseOfProc) {
    std::ifstream file("/proc/cpuinfo");
    std::string flags;
    for (std::string line; std::getline(file, line) && flags.empty();) {
        if (line.starts_with("flags")) flags = line + " ";
    }
    ASSERT_FALSE(flags.empty());
    const TOsInfo info;
    EXPECT_EQ(info.m_hasMmx, flags.find(" mmx ") != std::string::npos);
    EXPECT_EQ(info.m_hasSse2, flags.find(" sse2 ") != std::string::npos);
    EXPECT_EQ(vapp_platform::HasProcessorFeature(vapp_platform::ProcessorFeature::Sse),
              flags.find(" sse ") != std::string::npos);
}

TEST(SystemFactsTest, SystemInfoIsThatOfTheKernel) {
    const TSystemInfo info = vapp_platform::ReadSystemInfo();
    EXPECT_EQ(info.wProcessorArchitecture, 9);
    EXPECT_EQ(info.dwPageSize, static_cast<std::uint32_t>(getpagesize()));
    EXPECT_EQ(info.dwNumberOfProcessors, static_cast<std::uint32_t>(sysconf(_SC_NPROCESSORS_ONLN)));
    EXPECT_NE(info.dwActiveProcessorMask, 0u);
    int onTheStack = 0;
    EXPECT_LT(info.lpMinimumApplicationAddress, static_cast<void*>(&onTheStack));
    EXPECT_GT(info.lpMaximumApplicationAddress, static_cast<void*>(&onTheStack));
}

TEST(SystemFactsTest, TheVersionIsTheKernelsRelease) {
    utsname names{};
    ASSERT_EQ(uname(&names), 0);
    const TVersionInfo version = vapp_platform::ReadVersionInfo();
    std::ostringstream release;
    release << version.dwMajorVersion << '.' << version.dwMinorVersion << '.' << version.dwBuildNumber
            << version.szCSDVersion;
    EXPECT_EQ(release.str(), names.release);
    EXPECT_EQ(version.dwOSVersionInfoSize, 148u);
    EXPECT_EQ(version.dwPlatformId, 4u);
}

TEST(SystemFactsTest, TheAdministratorIsRoot) {
    EXPECT_EQ(vapp_platform::IsUserAdministrator(), geteuid() == 0);
}

TEST(SystemFactsTest, LinuxIsNoWindowsAndHasNoEdition) {
    const TOsInfo info;
    EXPECT_TRUE(info.IsWineDisplay());
    EXPECT_EQ(info.GetOsName(), "Linux");
    EXPECT_EQ(info.GetWindowsName(), "Unknown version of Windows");
    EXPECT_EQ(info.GetEditionName(10, 0), "(Unknown product type: 0)");
}

}  // namespace

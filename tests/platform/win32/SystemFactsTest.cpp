// The facts of this Windows against the system's own calls, made here in the test's own way.
#include "platform/SystemFacts.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <string>

#include "platform/EditionNames.h"
#include "platform/ErrorText.h"
#include "platform/World.h"
#include "platform/win32/WindowsFacts.h"
#include "vapp/platform/TOsInfo.h"

namespace {

TEST(SystemFactsTest, SystemInfoIsTheSystems) {
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    const TSystemInfo ours = vapp_platform::ReadSystemInfo();
    EXPECT_EQ(ours.dwPageSize, info.dwPageSize);
    EXPECT_EQ(ours.dwNumberOfProcessors, info.dwNumberOfProcessors);
    EXPECT_EQ(ours.dwActiveProcessorMask, info.dwActiveProcessorMask);
    EXPECT_EQ(ours.dwAllocationGranularity, info.dwAllocationGranularity);
    EXPECT_EQ(ours.wProcessorArchitecture, info.wProcessorArchitecture);
    EXPECT_EQ(ours.lpMaximumApplicationAddress, info.lpMaximumApplicationAddress);
    EXPECT_EQ(ours.wProcessorRevision, info.wProcessorRevision);
}

TEST(SystemFactsTest, TheVersionIsTheSystems) {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    ASSERT_NE(GetVersionExA(&version), 0);
    const TVersionInfo ours = vapp_platform::ReadVersionInfo();
    EXPECT_EQ(ours.dwMajorVersion, version.dwMajorVersion);
    EXPECT_EQ(ours.dwMinorVersion, version.dwMinorVersion);
    EXPECT_EQ(ours.dwBuildNumber, version.dwBuildNumber);
    EXPECT_EQ(ours.dwPlatformId, 2u);
    EXPECT_STREQ(ours.szCSDVersion, version.szCSDVersion);
}

TEST(SystemFactsTest, TheNameHoldsVersionEditionAndBuild) {
    OSVERSIONINFOEXA version{};
    version.dwOSVersionInfoSize = sizeof version;
    ASSERT_NE(GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&version)), 0);
    DWORD code = 0;
    ASSERT_NE(GetProductInfo(version.dwMajorVersion, version.dwMinorVersion, 0, 0, &code), 0);
    const TOsInfo info;
    const CStringU edition = info.GetEditionName(version.dwMajorVersion, version.dwMinorVersion);
    EXPECT_EQ(edition, vapp_platform::EditionName(code));
    const std::string name = info.GetWindowsName().Payload();
    EXPECT_TRUE(name.starts_with("Microsoft ")) << name;
    EXPECT_NE(name.find(edition.Payload()), std::string::npos) << name;
    EXPECT_NE(name.find("(build " + std::to_string(version.dwBuildNumber) + ")"), std::string::npos) << name;
    EXPECT_TRUE(name.ends_with(", 64-bit")) << name;
}

BOOL WINAPI RefuseVersion(OSVERSIONINFOA* /*version*/) {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

TEST(SystemFactsTest, AVersionThatIsRefusedIsToldByTheErrorsText) {
    const vapp_platform::TWindowsFacts facts = vapp_platform::VersionFactsBy(RefuseVersion);
    EXPECT_FALSE(facts.known);
    EXPECT_FALSE(facts.errorText.IsEmpty());
    EXPECT_EQ(vapp_platform::WindowsName(facts), gGetErrorText(ERROR_ACCESS_DENIED));
}

BOOL WINAPI TellVersion(OSVERSIONINFOA* version) {
    auto* const told = reinterpret_cast<OSVERSIONINFOEXA*>(version);
    if (told->dwOSVersionInfoSize != sizeof *told) return FALSE;
    told->dwPlatformId = 2;
    told->dwMajorVersion = 6;
    told->dwMinorVersion = 3;
    told->dwBuildNumber = 9600;
    told->wProductType = 3;
    told->wSuiteMask = 0x110;
    std::memset(told->szCSDVersion, 'x', sizeof told->szCSDVersion);  // and no NUL
    return TRUE;
}

TEST(SystemFactsTest, FactsAreThoseOfTheCall) {
    const vapp_platform::TWindowsFacts facts = vapp_platform::VersionFactsBy(TellVersion);
    EXPECT_TRUE(facts.known);
    EXPECT_EQ(facts.platformId, 2U);
    EXPECT_EQ(facts.major, 6U);
    EXPECT_EQ(facts.minor, 3U);
    EXPECT_EQ(facts.build, 9600U);
    EXPECT_EQ(facts.productType, 3U);
    EXPECT_EQ(facts.suites, 0x110U);
    EXPECT_EQ(facts.servicePack, CStringU(std::string(128, 'x').c_str()));
}

BOOL WINAPI RefuseProduct(DWORD, DWORD, DWORD, DWORD, DWORD* code) {
    *code = 48;
    return FALSE;
}
BOOL WINAPI TellProduct(DWORD major, DWORD minor, DWORD packMajor, DWORD packMinor, DWORD* code) {
    *code = major * 1000 + minor * 100 + packMajor * 10 + packMinor;
    return TRUE;
}

TEST(SystemFactsTest, AnEditionThatNobodyTellsHasCode0) {
    EXPECT_EQ(vapp_platform::ProductCodeBy(nullptr, 6, 1), 0U);
    EXPECT_EQ(vapp_platform::ProductCodeBy(RefuseProduct, 6, 1), 0U);
    EXPECT_EQ(vapp_platform::ProductCodeBy(TellProduct, 6, 1), 6100U);
}

TEST(SystemFactsTest, BothDetectionsOfWineAgree) {
    EXPECT_EQ(TOsInfo::IsWineDisplayNow(), vapp_platform::IsWineSystem());
}

TEST(SystemFactsTest, EveryActiveProcessorIsCounted) {
    std::uint32_t logical = 0;
    std::uint32_t cores = 0;
    std::uint32_t packages = 0;
    EXPECT_NE(TOsInfo().GetProcessorCounts(logical, cores, packages), 8);
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    EXPECT_EQ(logical, info.dwNumberOfProcessors);
    EXPECT_GE(packages, 1u);
}

TEST(SystemFactsTest, FeaturesAreTheSystems) {
    using vapp_platform::HasProcessorFeature;
    using vapp_platform::ProcessorFeature;
    EXPECT_EQ(HasProcessorFeature(ProcessorFeature::Sse),
              IsProcessorFeaturePresent(PF_XMMI_INSTRUCTIONS_AVAILABLE) != 0);
    EXPECT_EQ(HasProcessorFeature(ProcessorFeature::Sse2),
              IsProcessorFeaturePresent(PF_XMMI64_INSTRUCTIONS_AVAILABLE) != 0);
}

// The token's own list of groups, in place of the system's membership test.
TEST(SystemFactsTest, AnAdministratorHasTheGroupInTheToken) {
    HANDLE token = nullptr;
    ASSERT_NE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token), 0);
    alignas(TOKEN_GROUPS) char buffer[16384];
    DWORD bytes = 0;
    const BOOL asked = GetTokenInformation(token, TokenGroups, buffer, sizeof buffer, &bytes);
    CloseHandle(token);
    ASSERT_NE(asked, 0);
    const auto* const groups = reinterpret_cast<const TOKEN_GROUPS*>(buffer);
    bool isAdministrator = false;
    for (DWORD i = 0; i < groups->GroupCount; ++i) {
        const SID_AND_ATTRIBUTES& group = groups->Groups[i];
        if (IsWellKnownSid(group.Sid, WinBuiltinAdministratorsSid) != 0) {
            isAdministrator = (group.Attributes & SE_GROUP_ENABLED) != 0;
        }
    }
    EXPECT_EQ(vapp_platform::IsUserAdministrator(), isAdministrator);
}

}  // namespace

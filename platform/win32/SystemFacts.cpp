/// @file
/// The facts of Windows by its own calls. Calls that not every version has are looked up.
#include "platform/SystemFacts.h"

#include <windows.h>

#include <bit>
#include <cstring>

#include "platform/ErrorText.h"
#include "platform/win32/EntryPoint.h"

namespace vapp_platform {

namespace {

static_assert(sizeof(TSystemInfo) == sizeof(SYSTEM_INFO) &&
              offsetof(TSystemInfo, dwActiveProcessorMask) == offsetof(SYSTEM_INFO, dwActiveProcessorMask) &&
              offsetof(TSystemInfo, wProcessorRevision) == offsetof(SYSTEM_INFO, wProcessorRevision));
static_assert(sizeof(TVersionInfo) == sizeof(OSVERSIONINFOA) &&
              offsetof(TVersionInfo, szCSDVersion) == offsetof(OSVERSIONINFOA, szCSDVersion));
static_assert(sizeof(OSVERSIONINFOEXA) == 156 && sizeof(DEVMODEA) == 156);

constexpr int cnMetricServerR2 = 89;

std::uint32_t MachineArchitecture() noexcept {
    using TGetNative = void(WINAPI*)(SYSTEM_INFO*);
    SYSTEM_INFO info{};
    if (const auto getNative = KernelEntryPoint<TGetNative>("GetNativeSystemInfo"); getNative != nullptr) {
        getNative(&info);
    } else {
        GetSystemInfo(&info);
    }
    return info.wProcessorArchitecture;
}

}  // namespace

TSystemInfo ReadSystemInfo() noexcept {
    SYSTEM_INFO info{};
    GetSystemInfo(&info);
    return std::bit_cast<TSystemInfo>(info);
}

TVersionInfo ReadVersionInfo() noexcept {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(&version);
    return std::bit_cast<TVersionInfo>(version);
}

TWindowsFacts ReadWindowsFacts() {
    OSVERSIONINFOEXA version{};
    version.dwOSVersionInfoSize = sizeof version;
    TWindowsFacts facts;
    if (GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&version)) == 0) {
        facts.known = false;
        facts.errorText = gGetLastErrorText(CStringU());
        return facts;
    }
    facts.platformId = version.dwPlatformId;
    facts.major = version.dwMajorVersion;
    facts.minor = version.dwMinorVersion;
    facts.build = version.dwBuildNumber;
    facts.productType = version.wProductType;
    facts.suites = version.wSuiteMask;
    const std::size_t servicePack = strnlen(version.szCSDVersion, sizeof version.szCSDVersion);
    facts.servicePack = {version.szCSDVersion, TextEncoding::AnsiAuto, static_cast<int>(servicePack)};
    facts.architecture = MachineArchitecture();
    facts.serverR2 = GetSystemMetrics(cnMetricServerR2);
    facts.productCode = ReadProductCode(facts.major, facts.minor);
    return facts;
}

std::uint32_t ReadProductCode(std::uint32_t major, std::uint32_t minor) noexcept {
    using TGetProduct = BOOL(WINAPI*)(DWORD, DWORD, DWORD, DWORD, DWORD*);
    const auto getProduct = KernelEntryPoint<TGetProduct>("GetProductInfo");
    DWORD code = 0;
    if (getProduct == nullptr || getProduct(major, minor, 0, 0, &code) == 0) return 0;
    return code;
}

bool IsUserAdministrator() noexcept {
    SID_IDENTIFIER_AUTHORITY authority = {{0, 0, 0, 0, 0, 5}};
    PSID administrators = nullptr;
    if (AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0,
                                 0, 0, 0, &administrators) == 0) {
        return false;
    }
    BOOL isMember = FALSE;
    const BOOL asked = CheckTokenMembership(nullptr, administrators, &isMember);
    FreeSid(administrators);
    return asked != 0 && isMember != 0;
}

bool IsWineDisplaySystem() noexcept {
    DEVMODEA mode{};
    mode.dmSize = sizeof mode;
    EnumDisplaySettingsA(nullptr, ENUM_CURRENT_SETTINGS, &mode);
    return std::memcmp(mode.dmDeviceName, "Wine", 4) == 0;
}

bool HasProcessorFeature(ProcessorFeature feature) noexcept {
    using THasFeature = BOOL(WINAPI*)(DWORD);
    const HMODULE kernel = LoadLibraryA("kernel32.dll");
    if (kernel == nullptr) return false;
    const auto hasFeature = reinterpret_cast<THasFeature>(
        reinterpret_cast<void (*)()>(GetProcAddress(kernel, "IsProcessorFeaturePresent")));
    const bool has = hasFeature != nullptr && hasFeature(static_cast<DWORD>(feature)) != 0;
    FreeLibrary(kernel);
    return has;
}

}  // namespace vapp_platform

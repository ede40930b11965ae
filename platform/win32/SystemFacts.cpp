/// @file
/// The facts of Windows by its own calls. Calls that not every version has are looked up.
#include "platform/SystemFacts.h"

#include <windows.h>

#include <bit>
#include <cstring>

#include "platform/ErrorText.h"
#include "platform/OsName.h"
#include "platform/win32/EntryPoint.h"
#include "platform/win32/WindowsFacts.h"

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

TWindowsFacts VersionFactsBy(TReadVersion readVersion) {
    OSVERSIONINFOEXA version{};
    version.dwOSVersionInfoSize = sizeof version;
    TWindowsFacts facts;
    if (readVersion(reinterpret_cast<OSVERSIONINFOA*>(&version)) == 0) {
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
    return facts;
}

TWindowsFacts ReadWindowsFacts() {
    TWindowsFacts facts = VersionFactsBy(GetVersionExA);
    if (!facts.known) return facts;
    facts.architecture = MachineArchitecture();
    facts.serverR2 = GetSystemMetrics(cnMetricServerR2);
    facts.productCode = ReadProductCode(facts.major, facts.minor);
    return facts;
}

std::uint32_t ProductCodeBy(TReadProduct readProduct, std::uint32_t major, std::uint32_t minor) noexcept {
    DWORD code = 0;
    if (readProduct == nullptr || readProduct(major, minor, 0, 0, &code) == 0) return 0;
    return code;
}

std::uint32_t ReadProductCode(std::uint32_t major, std::uint32_t minor) noexcept {
    return ProductCodeBy(KernelEntryPoint<TReadProduct>("GetProductInfo"), major, minor);
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
    const auto* const name = reinterpret_cast<const char*>(mode.dmDeviceName);
    return IsWineDeviceName({name, strnlen(name, sizeof mode.dmDeviceName)});
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

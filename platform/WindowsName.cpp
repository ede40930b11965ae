/// @file
/// The name by version, one function for each generation of the system.
#include "platform/WindowsName.h"

#include <array>

#include "platform/EditionNames.h"

namespace vapp_platform {

namespace {

constexpr std::uint32_t cnPlatformNt = 2;
constexpr std::uint32_t cnWorkstation = 1;

constexpr std::uint32_t cnArchitectureX86 = 0;
constexpr std::uint32_t cnArchitectureItanium = 6;
constexpr std::uint32_t cnArchitectureX64 = 9;

constexpr std::uint32_t cnSuiteEnterprise = 0x2;
constexpr std::uint32_t cnSuiteDatacenter = 0x80;
constexpr std::uint32_t cnSuitePersonal = 0x200;
constexpr std::uint32_t cnSuiteBlade = 0x400;
constexpr std::uint32_t cnSuiteStorage = 0x2000;
constexpr std::uint32_t cnSuiteCompute = 0x4000;
constexpr std::uint32_t cnSuiteHome = 0x8000;

bool IsWorkstation(const TWindowsFacts& facts) {
    return facts.productType == cnWorkstation;
}

bool HasSuite(const TWindowsFacts& facts, std::uint32_t mask) {
    return (facts.suites & mask) != 0;
}

struct TNames {
    const char* workstation;
    const char* server;
};

constexpr std::array<TNames, 4> cnNames6{{
    {"Windows Vista ", "Windows Server 2008 "},
    {"Windows 7 ", "Windows Server 2008 R2 "},
    {"Windows 8 ", "Windows Server 2012 "},
    {"Windows 8.1 ", "Windows Server 2012 R2 "},
}};

// A later 10.x has no name, so that its edition follows the maker's at once.
CStringU Name10(const TWindowsFacts& facts) {
    if (facts.minor != 0) return {};
    return IsWorkstation(facts) ? "Windows 10 " : "Windows 10 Server ";
}

CStringU Name6(const TWindowsFacts& facts) {
    if (facts.minor < cnNames6.size()) {
        const TNames& names = cnNames6[facts.minor];
        return IsWorkstation(facts) ? names.workstation : names.server;
    }
    return CStringU::Formatted(
        IsWorkstation(facts) ? "Unknown Windows (6.%d) " : "Unknown Windows Server (6.%d) ",
        static_cast<std::int32_t>(facts.minor));
}

const char* ServerEdition52(const TWindowsFacts& facts) {
    if (facts.architecture == cnArchitectureItanium) {
        if (HasSuite(facts, cnSuiteDatacenter)) return "Datacenter Edition for Itanium-based Systems";
        if (HasSuite(facts, cnSuiteEnterprise)) return "Enterprise Edition for Itanium-based Systems";
        return "";
    }
    if (facts.architecture == cnArchitectureX64) {
        if (HasSuite(facts, cnSuiteDatacenter)) return "Datacenter x64 Edition";
        if (HasSuite(facts, cnSuiteEnterprise)) return "Enterprise x64 Edition";
        return "Standard x64 Edition";
    }
    if (HasSuite(facts, cnSuiteCompute)) return "Compute Cluster Edition";
    if (HasSuite(facts, cnSuiteDatacenter)) return "Datacenter Edition";
    if (HasSuite(facts, cnSuiteEnterprise)) return "Enterprise Edition";
    if (HasSuite(facts, cnSuiteBlade)) return "Web Edition";
    return "Standard Edition";
}

const char* Product52(const TWindowsFacts& facts) {
    if (facts.serverR2 != 0) return "Windows Server 2003 R2, ";
    if (HasSuite(facts, cnSuiteStorage)) return "Windows Storage Server 2003";
    if (HasSuite(facts, cnSuiteHome)) return "Windows Home Server";
    if (IsWorkstation(facts) && facts.architecture == cnArchitectureX64) {
        return "Windows XP Professional x64 Edition";
    }
    return "Windows Server 2003, ";
}

CStringU Name52(const TWindowsFacts& facts) {
    const CStringU product = Product52(facts);
    return IsWorkstation(facts) ? product : product + ServerEdition52(facts);
}

const char* Name51(const TWindowsFacts& facts) {
    return HasSuite(facts, cnSuitePersonal) ? "Windows XP Home Edition" : "Windows XP Professional";
}

const char* Name50(const TWindowsFacts& facts) {
    if (IsWorkstation(facts)) return "Windows 2000 Professional";
    if (HasSuite(facts, cnSuiteDatacenter)) return "Windows 2000 Datacenter Server";
    if (HasSuite(facts, cnSuiteEnterprise)) return "Windows 2000 Advanced Server";
    return "Windows 2000 Server";
}

// Name and edition. A version that nobody knows is not said to be of the maker.
CStringU Product(const TWindowsFacts& facts) {
    const CStringU maker = "Microsoft ";
    if (facts.major == 10) return maker + Name10(facts) + EditionName(facts.productCode);
    if (facts.major == 6) return maker + Name6(facts) + EditionName(facts.productCode);
    if (facts.major == 5 && facts.minor == 2) return maker + Name52(facts);
    if (facts.major == 5 && facts.minor == 1) return maker + Name51(facts);
    if (facts.major == 5 && facts.minor == 0) return maker + Name50(facts);
    return CStringU::Formatted("Windows %d.%d", static_cast<std::int32_t>(facts.major),
                               static_cast<std::int32_t>(facts.minor));
}

const char* Width(const TWindowsFacts& facts) {
    if (facts.major <= 5) return "";
    if (facts.architecture == cnArchitectureX64) return ", 64-bit";
    return facts.architecture == cnArchitectureX86 ? ", 32-bit" : "";
}

}  // namespace

CStringU WindowsName(const TWindowsFacts& facts) {
    if (!facts.known) return facts.errorText;
    if (facts.platformId != cnPlatformNt || facts.major <= 4) return "Unknown version of Windows";
    CStringU text = Product(facts);
    if (!facts.servicePack.IsEmpty()) text += " " + facts.servicePack;
    text += CStringU::Formatted(" (build %d)", static_cast<std::int32_t>(facts.build));
    return text + Width(facts);
}

}  // namespace vapp_platform

#include "platform/WindowsName.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/EditionNames.h"

namespace {

using vapp_platform::EditionName;
using vapp_platform::TWindowsFacts;
using vapp_platform::WindowsName;

constexpr std::uint32_t cnWorkstation = 1;
constexpr std::uint32_t cnDomainController = 2;
constexpr std::uint32_t cnServer = 3;
constexpr std::uint32_t cnX86 = 0;
constexpr std::uint32_t cnItanium = 6;
constexpr std::uint32_t cnX64 = 9;

TWindowsFacts Version(std::uint32_t major, std::uint32_t minor, std::uint32_t productType = cnWorkstation) {
    TWindowsFacts facts;
    facts.major = major;
    facts.minor = minor;
    facts.build = 7601;
    facts.productType = productType;
    facts.productCode = 48;
    return facts;
}

struct TNamedVersion {
    std::uint32_t major, minor;
    const char* workstation;
    const char* server;
};

const std::array cnVersions = std::to_array<TNamedVersion>({
    {10, 0, "Windows 10 ", "Windows 10 Server "},
    {10, 1, "", ""},
    {10, 7, "", ""},
    {6, 0, "Windows Vista ", "Windows Server 2008 "},
    {6, 1, "Windows 7 ", "Windows Server 2008 R2 "},
    {6, 2, "Windows 8 ", "Windows Server 2012 "},
    {6, 3, "Windows 8.1 ", "Windows Server 2012 R2 "},
    {6, 4, "Unknown Windows (6.4) ", "Unknown Windows Server (6.4) "},
    {6, 25, "Unknown Windows (6.25) ", "Unknown Windows Server (6.25) "},
});

TEST(WindowsNameTest, EveryNamedVersionIsToldWithItsEdition) {
    for (const TNamedVersion& version : cnVersions) {
        const CStringU behind = "Professional (build 7601), 64-bit";
        EXPECT_EQ(WindowsName(Version(version.major, version.minor)),
                  CStringU("Microsoft ") + version.workstation + behind);
        for (const std::uint32_t productType : {0u, cnDomainController, cnServer}) {
            EXPECT_EQ(WindowsName(Version(version.major, version.minor, productType)),
                      CStringU("Microsoft ") + version.server + behind);
        }
    }
}

TEST(WindowsNameTest, ALaterMinorOfTenHasOnlyItsEdition) {
    EXPECT_EQ(WindowsName(Version(10, 1)), "Microsoft Professional (build 7601), 64-bit");
}

TEST(WindowsNameTest, TheEditionIsThatOfTheCode) {
    for (const std::uint32_t code : {0u, 1u, 5u, 200u, 0xABCDABCDu}) {
        TWindowsFacts facts = Version(6, 1);
        facts.productCode = code;
        EXPECT_EQ(WindowsName(facts),
                  CStringU("Microsoft Windows 7 ") + EditionName(code) + " (build 7601), 64-bit");
    }
}

TEST(WindowsNameTest, AnUnknownVersionIsNotSaidToBeOfTheMaker) {
    EXPECT_EQ(WindowsName(Version(7, 1)), "Windows 7.1 (build 7601), 64-bit");
    EXPECT_EQ(WindowsName(Version(11, 0, cnServer)), "Windows 11.0 (build 7601), 64-bit");
    EXPECT_EQ(WindowsName(Version(5, 3)), "Windows 5.3 (build 7601)");
}

TEST(WindowsNameTest, NoVersionGivesTheSystemsErrorText) {
    TWindowsFacts facts = Version(6, 1);
    facts.known = false;
    facts.errorText = "Access is denied.";
    EXPECT_EQ(WindowsName(facts), "Access is denied.");
}

TEST(WindowsNameTest, OnlyTheNewLineFromFiveOnIsKnown) {
    for (const std::uint32_t platformId : {0u, 1u, 3u, 4u}) {
        TWindowsFacts facts = Version(6, 1);
        facts.platformId = platformId;
        EXPECT_EQ(WindowsName(facts), "Unknown version of Windows") << platformId;
    }
    for (const std::uint32_t major : {0u, 3u, 4u}) {
        EXPECT_EQ(WindowsName(Version(major, 0)), "Unknown version of Windows") << major;
    }
}

struct TCase52 {
    std::uint32_t productType;
    std::uint32_t architecture;
    std::uint32_t suites;
    std::int32_t serverR2;
    const char* text;
};

// The suites of each row but the first ones hold every bit that must not count before the one that does.
const std::array cnCases52 = std::to_array<TCase52>({
    // Which product it is, in the order of the questions. A workstation has no edition.
    {cnWorkstation, cnX64, 0xFFFF, 1, "Windows Server 2003 R2, "},
    {cnWorkstation, cnX64, 0xFFFF, -1, "Windows Server 2003 R2, "},
    {cnWorkstation, cnX64, 0xA000, 0, "Windows Storage Server 2003"},
    {cnWorkstation, cnX64, 0x8000, 0, "Windows Home Server"},
    {cnWorkstation, cnX64, 0, 0, "Windows XP Professional x64 Edition"},
    {cnWorkstation, cnX86, 0, 0, "Windows Server 2003, "},
    {cnWorkstation, cnItanium, 0x82, 0, "Windows Server 2003, "},
    // Products without a blank at the end touch their edition.
    {cnServer, cnX64, 0, 1, "Windows Server 2003 R2, Standard x64 Edition"},
    {cnServer, cnX86, 0x2000, 0, "Windows Storage Server 2003Standard Edition"},
    {cnServer, cnX64, 0x8000, 0, "Windows Home ServerStandard x64 Edition"},
    // Editions by architecture.
    {cnServer, cnItanium, 0x82, 0, "Windows Server 2003, Datacenter Edition for Itanium-based Systems"},
    {cnServer, cnItanium, 0x402, 0, "Windows Server 2003, Enterprise Edition for Itanium-based Systems"},
    {cnServer, cnItanium, 0x4400, 0, "Windows Server 2003, "},
    {cnServer, cnX64, 0x82, 0, "Windows Server 2003, Datacenter x64 Edition"},
    {cnServer, cnX64, 0x402, 0, "Windows Server 2003, Enterprise x64 Edition"},
    {cnDomainController, cnX64, 0x4400, 0, "Windows Server 2003, Standard x64 Edition"},
    {cnServer, cnX86, 0x4482, 0, "Windows Server 2003, Compute Cluster Edition"},
    {cnServer, cnX86, 0x482, 0, "Windows Server 2003, Datacenter Edition"},
    {cnServer, cnX86, 0x402, 0, "Windows Server 2003, Enterprise Edition"},
    {cnServer, cnX86, 0x400, 0, "Windows Server 2003, Web Edition"},
    {cnServer, cnX86, 0x200, 0, "Windows Server 2003, Standard Edition"},
    {cnServer, 5, 0x400, 0, "Windows Server 2003, Web Edition"},
});

TEST(WindowsNameTest, FiveTwoIsToldByReleaseSuiteAndArchitecture) {
    for (const TCase52& row : cnCases52) {
        TWindowsFacts facts = Version(5, 2, row.productType);
        facts.architecture = row.architecture;
        facts.suites = row.suites;
        facts.serverR2 = row.serverR2;
        EXPECT_EQ(WindowsName(facts), CStringU("Microsoft ") + row.text + " (build 7601)");
    }
}

TEST(WindowsNameTest, FiveOneIsHomeOrProfessional) {
    TWindowsFacts facts = Version(5, 1);
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows XP Professional (build 7601)");
    facts.suites = 0x200;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows XP Home Edition (build 7601)");
    facts.suites = 0xFDFF;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows XP Professional (build 7601)");
}

TEST(WindowsNameTest, FiveZeroIsToldBySuiteUnlessAWorkstation) {
    TWindowsFacts facts = Version(5, 0);
    facts.suites = 0x82;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows 2000 Professional (build 7601)");
    facts.productType = cnServer;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows 2000 Datacenter Server (build 7601)");
    facts.suites = 0x2;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows 2000 Advanced Server (build 7601)");
    facts.suites = 0xFF7D;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows 2000 Server (build 7601)");
}

TEST(WindowsNameTest, TheServicePackStandsBeforeTheBuild) {
    TWindowsFacts facts = Version(6, 1);
    facts.servicePack = "Service Pack 1";
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows 7 Professional Service Pack 1 (build 7601), 64-bit");
    facts.major = 7;
    EXPECT_EQ(WindowsName(facts), "Windows 7.1 Service Pack 1 (build 7601), 64-bit");
}

TEST(WindowsNameTest, TheWidthIsToldFromSixOn) {
    TWindowsFacts facts = Version(6, 1);
    facts.architecture = cnX86;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows 7 Professional (build 7601), 32-bit");
    for (const std::uint32_t other : {cnItanium, 5u, 12u, 0xFFFFu}) {
        facts.architecture = other;
        EXPECT_EQ(WindowsName(facts), "Microsoft Windows 7 Professional (build 7601)") << other;
    }
    facts = Version(5, 1);
    facts.architecture = cnX86;
    EXPECT_EQ(WindowsName(facts), "Microsoft Windows XP Professional (build 7601)");
}

}  // namespace

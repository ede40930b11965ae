/// @file
/// Two structs of facts about the machine, on either system laid out and named, field by field, as Windows
/// lays out its SYSTEM_INFO and OSVERSIONINFOA.
///
/// They are ours, so that whoever includes an exported header doesn't get the system's own with its macros;
/// on Windows std::bit_cast turns one into the other. The field names therefore keep the system's spelling.
/// What the fields say on Linux stands beside them.
#pragma once

#include <cstddef>
#include <cstdint>

/// As SYSTEM_INFO of 64-bit Windows.
struct TSystemInfo {
    /// 9 is x86-64, 0 is x86, 6 Itanium. Linux: 9.
    std::uint16_t wProcessorArchitecture;
    std::uint16_t wReserved;
    /// Bytes of a page.
    std::uint32_t dwPageSize;
    /// The addresses that a program can have. Linux: those of the usual 47 bits, above the system's own
    /// minimum.
    void* lpMinimumApplicationAddress;
    void* lpMaximumApplicationAddress;
    /// One bit for each of the first 64 processors. Linux: those that the process may run on.
    std::uint64_t dwActiveProcessorMask;
    std::uint32_t dwNumberOfProcessors;
    /// 8664 is x86-64.
    std::uint32_t dwProcessorType;
    /// What addresses of fresh memory are multiples of. Linux: the page.
    std::uint32_t dwAllocationGranularity;
    /// The processor's family, and its model and stepping in one byte each.
    std::uint16_t wProcessorLevel;
    std::uint16_t wProcessorRevision;
};

/// As OSVERSIONINFOA.
struct TVersionInfo {
    /// Bytes of the struct.
    std::uint32_t dwOSVersionInfoSize;
    /// Linux: the three numbers of the kernel's release.
    std::uint32_t dwMajorVersion;
    std::uint32_t dwMinorVersion;
    std::uint32_t dwBuildNumber;
    /// 2 is Windows of the NT line. Linux: 4, which no Windows has.
    std::uint32_t dwPlatformId;
    /// The service pack, in the active code page. Linux: what follows the three numbers in the kernel's
    /// release.
    char szCSDVersion[128];
};

static_assert(sizeof(TSystemInfo) == 48 && offsetof(TSystemInfo, dwActiveProcessorMask) == 24 &&
              offsetof(TSystemInfo, wProcessorRevision) == 46);
static_assert(sizeof(TVersionInfo) == 148 && offsetof(TVersionInfo, szCSDVersion) == 20);

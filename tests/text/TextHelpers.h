/// @file
/// Small things that the text tests share.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "text/PlatformText.h"
#include "vapp/text/CStringU.h"

namespace text_test {

/// Sets the active code page for one test.
class TCodePageGuard {
public:
    explicit TCodePageGuard(unsigned codePage) { vapp_platform::SetActiveCodePage(codePage); }
    ~TCodePageGuard() { vapp_platform::SetActiveCodePage(0); }
    TCodePageGuard(const TCodePageGuard&) = delete;
    TCodePageGuard& operator=(const TCodePageGuard&) = delete;
};

/// The bytes as they are stored, marker included.
inline std::string Stored(const CStringU& text) {
    return std::string(text.Stored().View());
}

/// A text from UTF-8 bytes.
inline CStringU Utf8(const char* bytes) {
    return {bytes, TextEncoding::Utf8Auto};
}

/// A text of exactly these stored bytes, the way damaged text comes from outside.
inline CStringU Raw(const char* bytes) {
    return {bytes, TextEncoding::Raw};
}

/// True where the first stored byte says what the payload holds.
inline bool HoldsMarkerInvariant(const CStringU& text) {
    const std::string_view payload = text.PayloadView();
    bool nonAscii = false;
    for (const char byte : payload) {
        nonAscii = nonAscii || static_cast<signed char>(byte) < 0;
    }
    const bool marked = text.Stored().GetLength() != text.GetByteLength();
    const bool wantsMarker = nonAscii && static_cast<signed char>(payload.front()) >= 0;
    return text.HasNonAscii() == nonAscii && marked == wantsMarker;
}

/// A random source whose seed is printed, and can be given again in VAPP_TEST_SEED.
inline std::mt19937 SeededRandom(const char* test) {
    const char* const given = std::getenv("VAPP_TEST_SEED");
    const std::uint32_t seed = given != nullptr ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10))
                                                : std::random_device()();
    std::cout << test << ": VAPP_TEST_SEED=" << seed << '\n';
    return std::mt19937(seed);
}

}  // namespace text_test

/// @file
/// Escaping, and a number for what is too long.
#include "platform/InstanceKey.h"

#include <cstdint>

namespace vapp_platform {

namespace {

bool StandsForItself(unsigned char byte) {
    const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return isLetter || (byte >= '0' && byte <= '9') || byte == '.' || byte == '-' || byte == '_';
}

// A plain multiplicative hash of 64 bits: nothing but a low chance of meeting is asked of it.
std::uint64_t NumberOf(std::string_view name) {
    std::uint64_t number = 14695981039346656037u;
    for (const char byte : name)
        number = (number ^ static_cast<unsigned char>(byte)) * 1099511628211u;
    return number;
}

void AppendHex(std::string& key, std::uint64_t value, int digits) {
    constexpr char csDigits[] = "0123456789abcdef";
    for (int i = digits - 1; i >= 0; --i)
        key += csDigits[value >> (4 * i) & 0xF];
}

}  // namespace

std::string InstanceKey(std::string_view name) {
    std::string key;
    for (const char byte : name) {
        const auto value = static_cast<unsigned char>(byte);
        if (StandsForItself(value)) {
            key += byte;
        } else {
            key += '%';
            AppendHex(key, value, 2);
        }
    }
    // A sign that no escaped name has in this place marks what was cut, and what is empty.
    constexpr std::size_t cnNumberBytes = 17;
    if (key.empty()) return "%";
    if (key.size() <= cnMostKeyBytes) return key;
    key.resize(cnMostKeyBytes - cnNumberBytes);
    key += '~';
    AppendHex(key, NumberOf(name), 16);
    return key;
}

}  // namespace vapp_platform

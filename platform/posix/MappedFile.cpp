/// @file
/// One line for each piece: "first-last rights offset device number   path", the first two in hexadecimal.
#include "platform/posix/MappedFile.h"

#include <charconv>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace vapp_platform {

namespace {

bool HoldsAddress(std::string_view line, std::uintptr_t address) {
    constexpr int cnHexadecimal = 16;
    std::uintptr_t first = 0;
    std::uintptr_t last = 0;
    const char* const end = line.data() + line.size();
    const auto read = std::from_chars(line.data(), end, first, cnHexadecimal);
    if (read.ec != std::errc() || read.ptr == end || *read.ptr != '-') return false;
    if (std::from_chars(read.ptr + 1, end, last, cnHexadecimal).ec != std::errc()) return false;
    return address >= first && address < last;
}

}  // namespace

std::string MappedFile(const void* address) {
    std::ifstream pieces("/proc/self/maps");
    for (std::string line; std::getline(pieces, line);) {
        if (!HoldsAddress(line, reinterpret_cast<std::uintptr_t>(address))) continue;
        const std::size_t path = line.find('/');
        return path != std::string::npos ? line.substr(path) : std::string();
    }
    return {};
}

}  // namespace vapp_platform

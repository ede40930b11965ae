/// @file
/// Handles: the C runtime's streams would turn line ends.
#include "examples/connect/Streams.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t cnBlock = 65536;

}  // namespace

std::string ReadInput() {
    std::array<char, cnBlock> buffer{};
    DWORD got = 0;
    if (ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), cnBlock, &got, nullptr) == 0) got = 0;
    return {buffer.data(), got};
}

bool WriteOutput(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD done = 0;
        const auto size = static_cast<DWORD>(std::min(bytes.size(), cnBlock));
        if (WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), bytes.data(), size, &done, nullptr) == 0) return false;
        bytes.remove_prefix(done);
    }
    return true;
}

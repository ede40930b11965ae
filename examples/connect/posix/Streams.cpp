/// @file
/// Bare descriptors.
#include "examples/connect/Streams.h"

#include <unistd.h>

#include <array>
#include <cerrno>

std::string ReadInput() {
    std::array<char, 65536> buffer{};
    ssize_t got = 0;
    do {
        got = read(STDIN_FILENO, buffer.data(), buffer.size());
    } while (got < 0 && errno == EINTR);
    return {buffer.data(), got > 0 ? static_cast<std::size_t>(got) : 0};
}

bool WriteOutput(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t done = write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (done < 0 && errno == EINTR) continue;
        if (done <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(done));
    }
    return true;
}

/// @file
/// What a worker says that does not know how to: made from a seed, so that the worker and its host, two
/// processes, make the same.
#pragma once

#include <cstdint>
#include <string>

namespace soak_test {

struct BadHandshake {
    std::string keyword;
    std::string bytes;
    /// The worker goes on living, silent.
    bool stays = false;
};

/// The rounds go through every kind: each cut of each keyword, more than the keyword, NULs, bytes that are no
/// text, noise of up to 64 KB. Some are accepted all the same.
[[nodiscard]] BadHandshake MakeBadHandshake(std::uint32_t seed, int round);

/// Whether the rule of a transport accepts it.
[[nodiscard]] bool IsAccepted(const BadHandshake& handshake, const std::string& transport);

}  // namespace soak_test

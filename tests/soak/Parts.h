/// @file
/// The parts of a soak. Each leaves the process as it was.
#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "connection/Limits.h"
#include "tests/soak/Tally.h"
#include "vapp/connection/TConnectionModule.h"

namespace soak_test {

/// The transports, "pipe" or "tcp" by the parity of a round.
[[nodiscard]] const char* TransportOf(int round);
/// A connection to a worker of this program with these words, not started yet.
[[nodiscard]] std::unique_ptr<TConnectionModule> MakeConnection(const std::string& transport,
                                                                const std::vector<std::string>& words,
                                                                const std::string& keyword);
/// Limits as ever, but a pipe is looked at often.
[[nodiscard]] vapp_connection::Limits PatientLimits();
/// Add what workers do here and nowhere else.
void AddEndWords();
void AddHandshakeWord();

/// Start, talk, close.
void SoakCycles(int rounds, std::mt19937& random, Tally& tally);
/// Workers that are killed at any instant from their birth on.
void SoakKills(int rounds, std::mt19937& random, Tally& tally);
/// Workers that end, or refuse to, in every way, and channels that are full; `rounds` of each kind.
void SoakEnds(int rounds, std::mt19937& random, Tally& tally);
/// First words that are none.
void SoakHandshakes(int rounds, std::uint32_t seed, Tally& tally);

}  // namespace soak_test

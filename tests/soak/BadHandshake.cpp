/// @file
/// The rules are told here a second time, from the bytes alone.
#include "tests/soak/BadHandshake.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string_view>

namespace soak_test {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t cnKeywordBuffer = 4096;
constexpr std::size_t cnMostNoise = 65536;
constexpr int cnKinds = 6;

constexpr std::array csKeywords = {"KEYW"sv, "x"sv, "Sch\xc3\xbcssel \xe2\x86\x92"sv, "ABABAC"sv,
                                   "%s\\\"%d"sv};
// Pieces of sequences of several bytes among them, alone and cut.
constexpr std::array csPieces = {"\0"sv,   "\x80"sv, "\xc3"sv, "\xe2\x86"sv, "\xf0\x9f\x98"sv, "\xff"sv,
                                 "\xc0"sv, "\n"sv,   "\r\n"sv, "AB"sv,       "KEY"sv,          "$ "sv};

std::string Pieces(std::mt19937& random, std::size_t most) {
    std::string bytes;
    for (std::size_t left = random() % (most + 1); left > 0; --left)
        bytes += csPieces[random() % csPieces.size()];
    return bytes;
}

// Without the keyword, which is then found or not by where it stands in front alone.
std::string Noise(std::mt19937& random, const std::string& keyword) {
    std::string bytes(random() % (cnMostNoise - keyword.size() + 1), ' ');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    for (auto at = bytes.find(keyword); at != std::string::npos; at = bytes.find(keyword))
        bytes[at] = static_cast<char>(~bytes[at]);
    return bytes;
}

std::string MakeBytes(std::mt19937& random, int kind, int turn, const std::string& keyword) {
    switch (kind) {
        case 0:
            return keyword.substr(0, static_cast<std::size_t>(turn) % (keyword.size() + 1));
        case 1:
            return keyword + Pieces(random, 8);
        case 2:
            return Pieces(random, 8) + keyword;
        case 3:
            return Pieces(random, 20);
        case 4: {
            std::string bytes = keyword;
            return bytes.insert(random() % (keyword.size() + 1), 1, '\0');
        }
        default:
            return (random() % 4 == 0 ? keyword : std::string()) + Noise(random, keyword);
    }
}

// A text ends at its first NUL.
std::string_view AsText(std::string_view bytes) {
    return bytes.substr(0, bytes.find('\0'));
}

}  // namespace

BadHandshake MakeBadHandshake(std::uint32_t seed, int round) {
    std::mt19937 random(seed + static_cast<std::uint32_t>(round));
    // Both transports meet every kind, every keyword and every cut.
    const int turn = round / 2;
    BadHandshake handshake;
    handshake.keyword = csKeywords[static_cast<std::size_t>(turn / cnKinds) % csKeywords.size()];
    const int cut = turn / (cnKinds * static_cast<int>(csKeywords.size()));
    handshake.bytes = MakeBytes(random, turn % cnKinds, cut, handshake.keyword);
    handshake.stays = random() % 32 == 0;
    return handshake;
}

bool IsAccepted(const BadHandshake& handshake, const std::string& transport) {
    if (transport == "tcp") return handshake.bytes.starts_with(handshake.keyword);
    const std::string_view seen = std::string_view(handshake.bytes).substr(0, cnKeywordBuffer);
    return AsText(seen).find(handshake.keyword) != std::string_view::npos;
}

}  // namespace soak_test

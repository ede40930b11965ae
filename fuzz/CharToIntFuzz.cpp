// Hostile bytes through the readers of integers.
//
// Besides not crashing, the target holds what no input may break: the end lies within the text, what is
// behind it has no say, and a wider reader that reads no further than a narrower one has the same value.
//
// Input: the bytes of one text.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

#include "text/CharToInt.h"
#include "text/Codec.h"

namespace {

using namespace vapp_text;

void Require(bool holds) {
    if (!holds) std::abort();
}

template <typename Integer>
std::pair<Integer, std::int64_t> Read(const std::string& text) {
    std::int64_t offset = -1;
    const auto value = CharToInt<Integer>(text.c_str(), offset);
    Require(offset >= 0 && offset <= static_cast<std::int64_t>(text.size()));
    return {value, offset};
}

/// In malformed text a character may reach into bytes that the next step finds again.
std::string WellFormed(const std::string& text) {
    std::string bytes;
    for (const char* walk = text.c_str(); *walk != '\0';) {
        char encoded[cnMaxEncodedBytes];
        bytes.append(encoded, static_cast<std::size_t>(EncodeChar(DecodeNext(walk), encoded)));
    }
    return bytes.substr(0, bytes.find('\0'));
}

template <typename Integer>
void IgnoresTheRest(const std::string& text) {
    const auto [value, offset] = Read<Integer>(text);
    Require(Read<Integer>(text.substr(0, static_cast<std::size_t>(offset))) == std::pair(value, offset));
}

template <typename Narrow, typename Wide>
void Agree(const std::pair<Narrow, std::int64_t>& narrow, const std::pair<Wide, std::int64_t>& wide) {
    Require(wide.second >= narrow.second);
    if (wide.second == narrow.second) Require(std::cmp_equal(wide.first, narrow.first));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const std::string text = bytes.substr(0, bytes.find('\0'));
    Agree(Read<std::int32_t>(text), Read<std::int64_t>(text));
    Agree(Read<std::uint32_t>(text), Read<std::uint64_t>(text));
    IgnoresTheRest<std::int32_t>(WellFormed(text));
    IgnoresTheRest<std::uint64_t>(WellFormed(text));
    return 0;
}

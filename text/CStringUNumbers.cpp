/// The numbers that a CStringU reads out of itself.
///
/// Floating values are read from narrow text: the payload where it is ASCII, otherwise a copy in the active
/// code page, whose conversion may turn a foreign digit into an ASCII one. Integers are read from the
/// characters themselves.

#include <algorithm>
#include <string>
#include <string_view>

#include "text/CharToInt.h"
#include "text/Codec.h"
#include "text/PlatformText.h"
#include "text/ReadDouble.h"
#include "vapp/text/CStringU.h"
#include "vapp/text/ParseEngineering.h"

using namespace vapp_text;  // NOLINT(google-build-using-namespace): members of a global class

namespace {

/// How many characters of a text became these first bytes of it. One character may have become several bytes
/// of a number, and stateful code pages put bytes between characters, so that only converting tells.
std::size_t CharactersOf(std::string_view bytes, std::u16string_view units, unsigned codePage) {
    // Nearly all pages have the characters of numbers where ASCII has them.
    const bool plain = bytes.size() <= units.size() &&
                       std::equal(bytes.begin(), bytes.end(), units.begin(), [](char byte, char16_t unit) {
                           return static_cast<unsigned char>(byte) == unit;
                       });
    if (plain) return bytes.size();
    std::size_t least = 0;
    std::size_t most = units.size();
    while (least < most) {
        const std::size_t middle = least + (most - least) / 2;
        if (vapp_platform::Utf16ToCodePage(codePage, units.substr(0, middle)).size() < bytes.size()) {
            least = middle + 1;
        } else {
            most = middle;
        }
    }
    return least;
}

std::int64_t OffsetOf(const CStringU& text, std::size_t characters) noexcept {
    const char* walk = text.Payload();
    for (; characters > 0 && *walk != '\0'; --characters)
        static_cast<void>(DecodeNext(walk));
    return walk - text.Payload();
}

/// Runs `read` on the narrow form of a text and moves `pos` to where it ended.
template <typename Reader>
double ReadNarrow(const CStringU& text, CStringUPos* pos, Reader read) {
    if (!text.HasNonAscii()) {
        const char* end = text.Payload();
        const double value = read(text.Payload(), &end);
        if (pos != nullptr) *pos = {end - text.Payload(), &text};
        return value;
    }
    const unsigned codePage = vapp_platform::ActiveCodePage();
    const CString narrow = text.ToAnsi(codePage);
    const char* const begin = narrow.GetString();
    const char* end = begin;
    const double value = read(begin, &end);
    if (pos != nullptr) {
        const std::string_view taken(begin, static_cast<std::size_t>(end - begin));
        *pos = {OffsetOf(text, CharactersOf(taken, text.ToWide(), codePage)), &text};
    }
    return value;
}

template <std::integral Integer>
Integer ReadInteger(const CStringU& text, CStringUPos* pos) noexcept {
    std::int64_t offset = 0;
    const auto value = CharToInt<Integer>(text.Payload(), offset);
    if (pos != nullptr) *pos = {offset, &text};
    return value;
}

}  // namespace

double CStringU::ToDouble(CStringUPos* pos) const {
    return ReadNarrow(*this, pos, &ReadDouble);
}

double CStringU::ToDoubleEngineering(bool spiceOnly, CStringUPos* pos) const {
    return ReadNarrow(*this, pos, [spiceOnly](const char* text, const char** end) {
        double value = 0.0;
        static_cast<void>(vapp::ReadEngineering(text, &value, end, !spiceOnly));
        return value;
    });
}

std::int32_t CStringU::ToInt(CStringUPos* pos) const noexcept {
    return ReadInteger<std::int32_t>(*this, pos);
}

std::uint32_t CStringU::ToUInt(CStringUPos* pos) const noexcept {
    return ReadInteger<std::uint32_t>(*this, pos);
}

std::int64_t CStringU::ToInt64(CStringUPos* pos) const noexcept {
    return ReadInteger<std::int64_t>(*this, pos);
}

std::uint64_t CStringU::ToUInt64(CStringUPos* pos) const noexcept {
    return ReadInteger<std::uint64_t>(*this, pos);
}

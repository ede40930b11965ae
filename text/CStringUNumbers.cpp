/// The numbers that a CStringU reads out of itself.
///
/// Floating values are read from narrow text: the payload where it is ASCII, otherwise a copy in the active
/// code page, whose conversion may turn a foreign digit into an ASCII one. Integers are read from the
/// characters themselves.

#include "text/CharToInt.h"
#include "text/Codec.h"
#include "text/ParseEngineering.h"
#include "text/ReadDouble.h"
#include "vapp/text/CStringU.h"

using namespace vapp_text;  // NOLINT(google-build-using-namespace): members of a global class

namespace {

/// Runs `read` on the narrow form of a text and moves `pos` to where it ended.
template <typename Reader>
double ReadNarrow(const CStringU& text, CStringUPos* pos, Reader read) {
    const bool ascii = !text.HasNonAscii();
    const CString narrow = ascii ? CString() : text.ToAnsi();
    const char* begin = ascii ? text.Payload() : narrow.GetString();
    const char* end = begin;
    const double value = read(begin, &end);
    if (pos != nullptr) {
        // What numbers are made of has one byte for each character, in every code page.
        const char* walk = text.Payload();
        for (auto left = end - begin; left > 0 && *walk != '\0'; --left)
            static_cast<void>(DecodeNext(walk));
        *pos = {walk - text.Payload(), &text};
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
        static_cast<void>(ParseEngineering(text, &value, end, !spiceOnly));
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

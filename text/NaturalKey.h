/// @file
/// Sort keys: bytes whose plain order (memcmp, the shorter first) is the natural order or the folded order.
///
/// For sorting very many names: the work on each name is done once, instead of in each of twenty compares,
/// and what remains is memcmp. Also for text of unknown origin, where the compare functions may contradict
/// one another and std::sort must not see that: the order of keys is an order whatever the bytes are, namely
/// that of the characters they decode to. Not for showing or storing: a key is no text.
///
/// Grammar of a natural key:
///
///     key     = *( char / number ) %x00 *count     ; one count for each number: its leading zeros
///     number  = "0" count 1*DIGIT                  ; count: of its digits, leading zeros not among them
///     char    = UTF-8 of one 16-bit unit, folded where case is ignored; never an ASCII digit, never %x00
///     count   = %x00-F7 / %xF8-FF 1*8OCTET         ; above 0xF7: %xF7 + count of octets, octets big-endian
///
/// A number of zeros alone has one digit and one leading zero less than zeros. Digits of all scripts become
/// ASCII ones. No digit starts anything but a number, so a number meets a character as "0" meets it, which is
/// what any digit would do; two numbers are decided by length, then by digits; leading zeros only when all
/// else is equal.
///
/// No key is the front part of a different key. So keys may be strung together to order by several names in
/// turn, and the strung keys still compare by memcmp alone.
///
/// On well-formed text the order of the keys has exactly the sign of CompareNatural (with longNumbersFirst
/// false) or CompareNaturalNoCase, and that of fold keys the sign of CompareNoCaseU.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace vapp_text {

/// The most bytes that the key of a payload of that many bytes can take, of either kind.
[[nodiscard]] constexpr std::size_t KeyBound(std::size_t payloadBytes) noexcept {
    return 4 * payloadBytes + 1;
}

/// Writes the natural key of a payload to `out`, which has room for KeyBound bytes, and gives the end of what
/// it wrote. For callers who keep keys in memory of their own.
[[nodiscard]] char* WriteNaturalKey(const char* payload, bool foldCase, char* out) noexcept;
/// Writes the fold key, the folded characters with a 0 byte at the end, in the same way.
[[nodiscard]] char* WriteFoldKey(const char* payload, char* out) noexcept;

/// Appends the natural key of a payload.
void AppendNaturalKey(const char* payload, bool foldCase, std::string& out);
/// Appends the fold key of a payload.
void AppendFoldKey(const char* payload, std::string& out);

/// The first eight bytes of a key as a number, zeros where the key is shorter: where two of them differ,
/// their order is that of the keys; where they are equal, the keys have to be asked.
[[nodiscard]] inline std::uint64_t KeyPrefix(std::string_view key) noexcept {
    char bytes[8] = {};
    if (key.size() >= sizeof bytes) {
        std::memcpy(bytes, key.data(), sizeof bytes);
    } else {
        key.copy(bytes, sizeof bytes);
    }
    std::uint64_t prefix = 0;
    for (const char byte : bytes)
        prefix = prefix << 8U | static_cast<unsigned char>(byte);
    return prefix;
}

}  // namespace vapp_text

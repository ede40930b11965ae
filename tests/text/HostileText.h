/// @file
/// Texts for the property tests of this room: names that are made to fall over rules (zeros, digits of
/// several scripts, letters whose case crosses byte lengths, halves of surrogate pairs), bytes that are no
/// text at all, and buffers that end exactly at their NUL, so that a sanitizer sees a read behind it.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/text/TextHelpers.h"
#include "text/Codec.h"

namespace text_test {

/// SeededRandom, under the name of the running test.
inline std::mt19937 SeededRandom() {
    return SeededRandom(testing::UnitTest::GetInstance()->current_test_info()->name());
}

/// A number from 0 to `last`.
inline std::size_t UpTo(std::mt19937& random, std::size_t last) {
    return std::uniform_int_distribution<std::size_t>(0, last)(random);
}

/// Units as payload bytes.
inline std::string Bytes(std::u16string_view units) {
    std::string bytes;
    for (const char16_t unit : units) {
        char encoded[vapp_text::cnMaxEncodedBytes];
        bytes.append(encoded, static_cast<std::size_t>(vapp_text::EncodeChar(unit, encoded)));
    }
    return bytes;
}

/// A well-formed name of few different characters, so that names share prefixes and differ only a little.
inline std::u16string HostileName(std::mt19937& random, std::size_t longest = 10) {
    static constexpr std::u16string_view alphabet =
        u"000011129aAbBzZ_[/:."
        u"\u00e9\u00c9\u00df\u0130\u0660\u0661\u0669\u06f0\u06f9\u0966\u096f\uff10\uff11\uff19\u065f\u066a"
        u"\u023a\u2c65\u212a\u0410\u0430\u4e2d\x01\x7f\x80\u07ff\u0800\xd83d\xde00\uffff";
    std::u16string name;
    for (std::size_t left = UpTo(random, longest); left > 0; --left) {
        // Half of the characters come from the front of the alphabet: digits, most of them zeros.
        const std::size_t last = UpTo(random, 1) == 0 ? 8 : alphabet.size() - 1;
        name.push_back(alphabet[UpTo(random, last)]);
    }
    return name;
}

/// A name that differs from another in at most two places.
inline std::u16string Mutated(std::mt19937& random, std::u16string name) {
    for (std::size_t changes = UpTo(random, 2); changes > 0; --changes) {
        const std::size_t at = UpTo(random, name.size());
        const std::u16string piece = HostileName(random, 2);
        const std::size_t removed = UpTo(random, 2);
        name.replace(at, removed, piece);
    }
    return name;
}

/// Bytes without a NUL, most of them such as malformed UTF-8 is made of.
inline std::string HostileBytes(std::mt19937& random, std::size_t longest = 12) {
    static constexpr std::string_view favourites =
        "0019aA\x80\x81\xb0\xb1\xbf\xa0\xc0\xc3\xd9\xe0\xe4\xef\xf0\xf4\xf8\xff";
    std::string bytes;
    for (std::size_t left = UpTo(random, longest); left > 0; --left) {
        bytes.push_back(UpTo(random, 3) == 0 ? static_cast<char>(1 + UpTo(random, 254))
                                             : favourites[UpTo(random, favourites.size() - 1)]);
    }
    return bytes;
}

/// A terminated copy on the heap with not one unit behind the terminator.
template <typename Unit>
class ExactCopy {
public:
    explicit ExactCopy(std::basic_string_view<Unit> text) : m_units(new Unit[text.size() + 1]) {
        text.copy(m_units.get(), text.size());
        m_units[text.size()] = Unit();
    }
    [[nodiscard]] const Unit* Get() const { return m_units.get(); }

private:
    std::unique_ptr<Unit[]> m_units;
};

class ExactBytes : public ExactCopy<char> {
public:
    explicit ExactBytes(std::string_view text) : ExactCopy(text) {}
};

class ExactUnits : public ExactCopy<char16_t> {
public:
    explicit ExactUnits(std::u16string_view text) : ExactCopy(text) {}
};

inline int Sign(std::int64_t value) {
    return static_cast<int>(value > 0) - static_cast<int>(value < 0);
}

/// What a failing test shows of a text.
inline std::string Shown(std::string_view bytes) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string shown = "\"";
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (value > 0x20 && value < 0x7F && byte != '\\') {
            shown += byte;
        } else {
            shown += {'\\', 'x', digits[value >> 4U], digits[value & 0xFU]};
        }
    }
    return shown + '"';
}

/// All characters of a payload, decoded to its NUL.
inline std::u16string Decoded(const char* payload) {
    std::u16string units;
    while (*payload != '\0')
        units.push_back(vapp_text::DecodeNext(payload));
    return units;
}

}  // namespace text_test

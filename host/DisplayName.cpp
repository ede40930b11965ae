/// How a file's name becomes text. The table of valid sequences is the one of the Unicode standard: overlong
/// forms, surrogates and values above U+10FFFF are not valid, and so their bytes are escaped one by one.

#include "host/DisplayName.h"

#include <QString>

namespace navigator {

namespace {

constexpr char csHexDigits[] = "0123456789ABCDEF";

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

bool IsBetween(unsigned char byte, unsigned char low, unsigned char high) {
    return byte >= low && byte <= high;
}

/// Length of the valid sequence of several bytes at `at`, 0 if there is none.
std::size_t SequenceLength(std::string_view bytes, std::size_t at) {
    const unsigned char lead = ByteAt(bytes, at);
    const unsigned char second = ByteAt(bytes, at + 1);
    const bool thirdFits = IsBetween(ByteAt(bytes, at + 2), 0x80, 0xBF);
    if (IsBetween(lead, 0xC2, 0xDF)) return IsBetween(second, 0x80, 0xBF) ? 2 : 0;
    if (IsBetween(lead, 0xE0, 0xEF)) {
        const unsigned char low = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned char high = lead == 0xED ? 0x9F : 0xBF;
        return IsBetween(second, low, high) && thirdFits ? 3 : 0;
    }
    if (IsBetween(lead, 0xF0, 0xF4)) {
        const unsigned char low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = lead == 0xF4 ? 0x8F : 0xBF;
        const bool fourthFits = IsBetween(ByteAt(bytes, at + 3), 0x80, 0xBF);
        return IsBetween(second, low, high) && thirdFits && fourthFits ? 4 : 0;
    }
    return 0;
}

}  // namespace

std::string gSanitisedUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const unsigned char byte = ByteAt(bytes, at);
        const std::size_t length = byte < 0x80 ? 1 : SequenceLength(bytes, at);
        if (length == 0) {
            text += '%';
            text += csHexDigits[byte >> 4];
            text += csHexDigits[byte & 0x0F];
        } else {
            text.append(bytes.substr(at, length));
        }
        at += length == 0 ? 1 : length;
    }
    return text;
}

namespace {

// NATIVE: names of one byte a unit are UTF-8 or unknown bytes; wider ones are UTF-16.
std::string FromNative(const std::string& name) {
    return gSanitisedUtf8(name);
}
[[maybe_unused]] std::string FromNative(const std::wstring& name) {
    return gSanitisedUtf8(QString::fromStdWString(name).toUtf8().toStdString());
}

}  // namespace

std::string gDisplayName(const NativeName& name) {
    return FromNative(name);
}

}  // namespace navigator

/// @file
/// Characters of four bytes count as odd too: what is kept of them may be the end of the text.
#include "celllist/OddName.h"

#include <algorithm>

namespace vapp_library_browser {

bool IsOddName(std::string_view name) {
    const auto byte = [name](std::size_t at) {
        return at < name.size() ? static_cast<unsigned char>(name[at]) : 0U;
    };
    const auto continues = [&byte](std::size_t at) { return (byte(at) & 0xC0U) == 0x80U; };
    for (std::size_t at = 0; at < name.size();) {
        const unsigned lead = byte(at);
        if (lead < 0x80) {
            ++at;
        } else if (lead >= 0xC2 && lead <= 0xDF && continues(at + 1)) {
            at += 2;
        } else if ((lead & 0xF0U) == 0xE0U && continues(at + 1) && continues(at + 2) &&
                   (lead > 0xE0 || byte(at + 1) >= 0xA0)) {
            at += 3;
        } else {
            return true;
        }
    }
    return false;
}

bool HasOddName(const NameTable& names) {
    const std::string_view bytes = names.AllBytes();
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(bytes.begin(), bytes.end(), isAscii)) return false;
    for (std::uint32_t number = 0; number < names.Count(); ++number) {
        if (IsOddName(names.At(number))) return true;
    }
    return false;
}

}  // namespace vapp_library_browser

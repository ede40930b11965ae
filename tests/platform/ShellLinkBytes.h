// Makes shortcuts byte for byte, good ones and bad ones.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform_test {

inline std::string Number16(std::uint32_t number) {
    return {static_cast<char>(number & 0xFFU), static_cast<char>(number >> 8U & 0xFFU)};
}
inline std::string Number32(std::uint32_t number) {
    return Number16(number & 0xFFFFU) + Number16(number >> 16U);
}
inline std::string Wide(std::u16string_view text) {
    std::string bytes;
    for (const char16_t unit : text)
        bytes += Number16(unit);
    return bytes;
}

/// What a shortcut is made of; an empty text leaves its piece out.
struct TShellLinkParts {
    std::string ids = {};  ///< bytes of the item list, without its size
    std::string localBase = {};
    std::u16string localBaseWide = {};
    std::string share = {};
    std::u16string shareWide = {};
    std::string suffix = {};
    std::u16string suffixWide = {};
    std::u16string name = {};
    std::u16string relativePath = {};
    std::string narrowRelativePath = {};  ///< makes all strings narrow
    std::uint32_t moreFlags = 0;
};

inline std::string ShellLinkHeader(std::uint32_t flags) {
    std::string header = Number32(76);
    header += std::string("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);
    header += Number32(flags) + Number32(0x20);  // an ordinary file
    header.resize(76, '\0');
    return header;
}

inline std::string NetworkBlock(const TShellLinkParts& parts) {
    const bool isWide = !parts.shareWide.empty();
    const std::uint32_t head = isWide ? 28 : 20;
    const auto narrowSize = static_cast<std::uint32_t>(parts.share.size() + 1);
    std::string block = Number32(2) + Number32(head) + Number32(0) + Number32(0x20000);
    if (isWide) block += Number32(head + narrowSize) + Number32(0);
    block += parts.share + '\0';
    if (isWide) block += Wide(parts.shareWide) + Number16(0);
    return Number32(static_cast<std::uint32_t>(block.size() + 4)) + block;
}

inline std::string InfoBlock(const TShellLinkParts& parts) {
    const bool isWide = !parts.localBaseWide.empty() || !parts.suffixWide.empty();
    const bool isLocal = !parts.localBase.empty() || !parts.localBaseWide.empty();
    const bool isShared = !parts.share.empty() || !parts.shareWide.empty();
    const std::uint32_t head = isWide ? 36 : 28;
    std::string data;
    const auto place = [&data, head](const std::string& bytes) {
        data += bytes;
        return static_cast<std::uint32_t>(head + data.size() - bytes.size());
    };
    const std::string volume = Number32(17) + Number32(3) + Number32(0x1234) + Number32(16) + '\0';
    const std::uint32_t volumeAt = isLocal ? place(volume) : 0;
    const std::uint32_t localAt = isLocal ? place(parts.localBase + '\0') : 0;
    const std::uint32_t networkAt = isShared ? place(NetworkBlock(parts)) : 0;
    const std::uint32_t suffixAt = place(parts.suffix + '\0');
    std::string tail;
    if (isWide) {
        tail += Number32(isLocal ? place(Wide(parts.localBaseWide) + Number16(0)) : 0);
        tail += Number32(place(Wide(parts.suffixWide) + Number16(0)));
    }
    const auto size = static_cast<std::uint32_t>(head + data.size());
    return Number32(size) + Number32(head) + Number32((isLocal ? 1U : 0U) | (isShared ? 2U : 0U)) +
           Number32(volumeAt) + Number32(localAt) + Number32(networkAt) + Number32(suffixAt) + tail + data;
}

inline std::string ShellLinkBytes(const TShellLinkParts& parts) {
    const bool isNarrow = !parts.narrowRelativePath.empty();
    const bool hasInfo =
        !(parts.localBase + parts.share).empty() || !(parts.localBaseWide + parts.shareWide).empty();
    const bool hasRelative = isNarrow || !parts.relativePath.empty();
    std::uint32_t flags = parts.moreFlags | (isNarrow ? 0 : 0x80U);
    flags |= (parts.ids.empty() ? 0 : 0x1U) | (hasInfo ? 0x2U : 0) | (parts.name.empty() ? 0 : 0x4U) |
             (hasRelative ? 0x8U : 0);
    std::string bytes = ShellLinkHeader(flags);
    if (!parts.ids.empty()) bytes += Number16(static_cast<std::uint32_t>(parts.ids.size())) + parts.ids;
    if (hasInfo) bytes += InfoBlock(parts);
    if (!parts.name.empty())
        bytes += Number16(static_cast<std::uint32_t>(parts.name.size())) + Wide(parts.name);
    if (isNarrow) {
        bytes +=
            Number16(static_cast<std::uint32_t>(parts.narrowRelativePath.size())) + parts.narrowRelativePath;
    } else if (hasRelative) {
        bytes += Number16(static_cast<std::uint32_t>(parts.relativePath.size())) + Wide(parts.relativePath);
    }
    return bytes + Number32(0);  // the end of the extra blocks
}

}  // namespace platform_test

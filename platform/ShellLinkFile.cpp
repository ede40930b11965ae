/// @file
/// Every number and text is read through one class that knows the bounds of its structure.
#include "platform/ShellLinkFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "text/PlatformText.h"

namespace vapp_platform {

namespace {

// The size of the header, and the class id of shell links.
constexpr std::string_view cnBeginning{"\x4C\0\0\0\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 20};
constexpr std::size_t cnHeaderSize = 76;
constexpr std::size_t cnFlagsAt = 20;

enum THeaderFlags : std::uint32_t {
    flagIds = 0x1,
    flagInfo = 0x2,
    flagName = 0x4,
    flagRelativePath = 0x8,
    flagWideStrings = 0x80,
    flagIgnoreInfo = 0x100,
};

constexpr std::uint32_t cnHasLocalPath = 0x1;
constexpr std::uint32_t cnHasNetworkPath = 0x2;
constexpr std::uint32_t cnInfoSizeWithWide = 36;
constexpr std::uint32_t cnNetworkSizeWithWide =
    20;  // a name behind this offset leaves room for the wide ones

// The page of narrow texts: that of the machine that wrote them. It is not told; where the active one is
// UTF-8, which no such machine writes, the one of Western Windows is the best guess.
constexpr unsigned cnWesternWindows = 1252;

CStringU FromNarrow(std::string_view bytes) {
    const unsigned active = ActiveCodePage();
    return CStringU(CodePageToUtf16(active == cnCodePageUtf8 ? cnWesternWindows : active, bytes));
}

// A structure of the file: reads within it, and nothing behind it.
class TBlock {
public:
    explicit TBlock(std::string_view bytes) : m_bytes(bytes) {}

    [[nodiscard]] std::size_t Size() const { return m_bytes.size(); }

    [[nodiscard]] std::uint32_t Number(std::size_t at, std::size_t bytes) const {
        if (at > m_bytes.size() || m_bytes.size() - at < bytes) return 0;
        std::uint32_t number = 0;
        for (std::size_t i = bytes; i > 0; --i)
            number = number << 8U | static_cast<unsigned char>(m_bytes[at + i - 1]);
        return number;
    }
    [[nodiscard]] std::uint32_t Number16(std::size_t at) const { return Number(at, 2); }
    [[nodiscard]] std::uint32_t Number32(std::size_t at) const { return Number(at, 4); }

    /// What stands from an offset on, at most `size` bytes.
    [[nodiscard]] TBlock From(std::size_t at, std::size_t size = std::string_view::npos) const {
        return TBlock(at <= m_bytes.size() ? m_bytes.substr(at, size) : std::string_view());
    }

    /// All of it as characters, up to a NUL. A text that the end of the structure cuts off is taken as far as
    /// it goes.
    [[nodiscard]] CStringU Narrow() const { return FromNarrow(m_bytes.substr(0, m_bytes.find('\0'))); }
    [[nodiscard]] CStringU Wide() const {
        std::u16string units;
        for (std::size_t at = 0; at + 1 < m_bytes.size() && Number16(at) != 0; at += 2)
            units += static_cast<char16_t>(Number16(at));
        return CStringU(std::u16string_view(units));
    }

private:
    std::string_view m_bytes;
};

// A text told twice: the wide offset is 0 where there is no wide form.
CStringU TextAt(const TBlock& block, std::uint32_t narrowAt, std::uint32_t wideAt) {
    if (wideAt != 0) return block.From(wideAt).Wide();
    return narrowAt != 0 ? block.From(narrowAt).Narrow() : CStringU();
}

CStringU ShareName(const TBlock& network) {
    const std::uint32_t nameAt = network.Number32(8);
    return TextAt(network, nameAt, nameAt > cnNetworkSizeWithWide ? network.Number32(20) : 0);
}

void ReadInfo(const TBlock& info, TShellLink& link) {
    const bool hasWide = info.Number32(4) >= cnInfoSizeWithWide;
    const std::uint32_t flags = info.Number32(8);
    const CStringU suffix = TextAt(info, info.Number32(24), hasWide ? info.Number32(32) : 0);
    if ((flags & cnHasLocalPath) != 0) {
        const CStringU base = TextAt(info, info.Number32(16), hasWide ? info.Number32(28) : 0);
        if (!base.IsEmpty()) link.localPath = base + suffix;
    }
    if ((flags & cnHasNetworkPath) == 0) return;
    const std::uint32_t networkAt = info.Number32(20);
    const CStringU share = ShareName(info.From(networkAt, info.Number32(networkAt)));
    if (!share.IsEmpty()) link.networkPath = suffix.IsEmpty() ? share : share + '\\' + suffix;
}

// A string, and the place behind it.
CStringU ReadString(const TBlock& file, bool isWide, std::size_t& at) {
    const std::size_t size = std::size_t{file.Number16(at)} * (isWide ? 2 : 1);
    const TBlock text = file.From(at + 2, size);
    at += 2 + size;
    return isWide ? text.Wide() : text.Narrow();
}

}  // namespace

std::optional<TShellLink> ReadShellLink(std::string_view bytes) {
    if (bytes.size() < cnHeaderSize || !bytes.starts_with(cnBeginning)) return std::nullopt;
    const TBlock file(bytes);
    const std::uint32_t flags = file.Number32(cnFlagsAt);
    std::size_t at = cnHeaderSize;
    if ((flags & flagIds) != 0) at += 2 + file.Number16(at);
    TShellLink link;
    if ((flags & flagInfo) != 0) {
        const std::uint32_t size = file.Number32(at);
        if ((flags & flagIgnoreInfo) == 0) ReadInfo(file.From(at, size), link);
        at += std::max<std::uint32_t>(size, 4);
    }
    const bool isWide = (flags & flagWideStrings) != 0;
    if ((flags & flagName) != 0) static_cast<void>(ReadString(file, isWide, at));
    if ((flags & flagRelativePath) != 0) link.relativePath = ReadString(file, isWide, at);
    return link;
}

}  // namespace vapp_platform

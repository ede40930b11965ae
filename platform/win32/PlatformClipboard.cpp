/// @file
/// The clipboard of the window station.
///
/// No attempt is made to wait for it: whoever holds it open is another program with reasons of its own, and
/// the caller's user presses the key again.
#include "text/PlatformClipboard.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace vapp_platform {

namespace {

// Open while it lives.
class OpenedClipboard {
public:
    OpenedClipboard() noexcept : m_open(OpenClipboard(nullptr) != 0) {}
    ~OpenedClipboard() {
        if (m_open) CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    [[nodiscard]] bool IsOpen() const noexcept { return m_open; }

private:
    bool m_open;
};

// The system's memory, as bytes. The flag GMEM_DDESHARE is 0x2000; old readers of the clipboard ask for it.
constexpr UINT cnClipboardMemory = GMEM_MOVEABLE | 0x2000;

template <typename Unit>
bool Put(UINT format, std::basic_string_view<Unit> text) noexcept {
    const std::size_t bytes = text.size() * sizeof(Unit);
    const HGLOBAL block = GlobalAlloc(cnClipboardMemory, bytes + sizeof(Unit));
    if (block == nullptr) return false;
    void* const memory = GlobalLock(block);
    if (memory != nullptr) {
        std::memcpy(memory, text.data(), bytes);
        std::memset(static_cast<char*>(memory) + bytes, 0, sizeof(Unit));
        GlobalUnlock(block);
        // From here on the block is the system's.
        if (SetClipboardData(format, block) != nullptr) return true;
    }
    GlobalFree(block);
    return false;
}

}  // namespace

bool HasSystemClipboard() noexcept {
    return true;
}

bool SetSystemClipboardText(std::u16string_view wide, std::string_view narrow) noexcept {
    const OpenedClipboard clipboard;
    if (!clipboard.IsOpen()) return false;
    EmptyClipboard();
    const bool wideTaken = Put(CF_UNICODETEXT, wide);
    const bool narrowTaken = Put(CF_TEXT, narrow);
    return wideTaken && narrowTaken;
}

std::u16string GetSystemClipboardText() {
    const OpenedClipboard clipboard;
    if (!clipboard.IsOpen()) return {};
    const HGLOBAL block = GetClipboardData(CF_UNICODETEXT);
    if (block == nullptr) return {};
    const void* const memory = GlobalLock(block);
    if (memory == nullptr) return {};
    // Another program has filled it, perhaps without a NUL.
    const std::size_t room = GlobalSize(block) / sizeof(char16_t);
    std::u16string text(room, u'\0');
    std::memcpy(text.data(), memory, room * sizeof(char16_t));
    GlobalUnlock(block);
    text.resize(std::min(text.find(u'\0'), room));
    return text;
}

}  // namespace vapp_platform

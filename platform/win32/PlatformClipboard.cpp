/// @file
/// The clipboard of the window station.
///
/// No attempt is made to wait for it: whoever holds it open is another program with reasons of its own, and
/// the caller's user presses the key again.
#include "text/PlatformClipboard.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "platform/win32/ClipboardMemory.h"

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

// A block's memory, held in its place while this lives.
class LockedBlock {
public:
    explicit LockedBlock(HGLOBAL block) noexcept : m_block(block), m_memory(GlobalLock(block)) {}
    ~LockedBlock() {
        if (m_memory != nullptr) GlobalUnlock(m_block);
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;
    /// Null where it can't be had.
    [[nodiscard]] char* Bytes() const noexcept { return static_cast<char*>(m_memory); }

private:
    HGLOBAL m_block;
    void* m_memory;
};

template <typename Unit>
bool Fill(HGLOBAL block, std::basic_string_view<Unit> text) noexcept {
    const LockedBlock memory(block);
    if (memory.Bytes() == nullptr) return false;
    const std::size_t bytes = text.size() * sizeof(Unit);
    if (bytes > 0) std::memcpy(memory.Bytes(), text.data(), bytes);
    std::memset(memory.Bytes() + bytes, 0, sizeof(Unit));
    return true;
}

template <typename Unit>
bool Put(UINT format, std::basic_string_view<Unit> text) noexcept {
    const HGLOBAL block = GlobalAlloc(cnClipboardMemory, ClipboardBytes(text));
    if (block == nullptr) return false;
    // Once the clipboard has taken it, the block is the system's.
    if (Fill(block, text) && SetClipboardData(format, block) != nullptr) return true;
    GlobalFree(block);
    return false;
}

// Another program has filled the block, perhaps without a NUL, and as large as it liked.
std::u16string TextOf(HGLOBAL block) {
    const LockedBlock memory(block);
    if (memory.Bytes() == nullptr) return {};
    const std::size_t room = GlobalSize(block) / sizeof(char16_t);
    std::u16string text(room, u'\0');
    std::memcpy(text.data(), memory.Bytes(), room * sizeof(char16_t));
    text.resize(std::min(text.find(u'\0'), room));
    return text;
}

}  // namespace

bool HasSystemClipboard() noexcept {
    return true;
}

bool SetSystemClipboardText(std::u16string_view wide, std::optional<std::string_view> narrow) noexcept {
    const OpenedClipboard clipboard;
    if (!clipboard.IsOpen()) return false;
    EmptyClipboard();
    const bool wideTaken = Put(CF_UNICODETEXT, wide);
    const bool narrowTaken = !narrow || Put(CF_TEXT, *narrow);
    return wideTaken && narrowTaken;
}

std::u16string GetSystemClipboardText() {
    const OpenedClipboard clipboard;
    if (!clipboard.IsOpen()) return {};
    const HGLOBAL block = GetClipboardData(CF_UNICODETEXT);
    if (block == nullptr) return {};
    try {
        return TextOf(block);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace vapp_platform

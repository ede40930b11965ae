/// @file
/// Case of one character and code pages, by the system's own calls.
///
/// The surprise: a code page that the system has may refuse the very arguments that all others want, so
/// nothing but the number, the text and the room is handed over; and a call that fails gives empty text, as
/// an unknown code page does.
#include "text/PlatformText.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdint>

static_assert(sizeof(wchar_t) == sizeof(char16_t), "the system's wide characters are the units of the model");

namespace vapp_platform {

namespace {

std::atomic<unsigned> activeCodePage{0};

// 0 stands for the active code page wherever one is named.
unsigned Named(unsigned codePage) noexcept {
    return codePage != 0 ? codePage : ActiveCodePage();
}

// The system counts in int; a text is never longer.
template <typename View>
int Count(const View& view) noexcept {
    return static_cast<int>(std::min<std::size_t>(view.size(), INT_MAX));
}

// The two calls map a lone character, handed over in the place of a pointer, when the pointer's high part is
// 0.
LPWSTR AsPointer(char16_t unit) noexcept {
    return reinterpret_cast<LPWSTR>(std::uintptr_t{unit});
}

char16_t AsUnit(LPWSTR answer) noexcept {
    return static_cast<char16_t>(reinterpret_cast<std::uintptr_t>(answer) & 0xFFFFU);
}

int SmallLetter(char sign) noexcept {
    const unsigned char byte = static_cast<unsigned char>(sign);
    return byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte;
}

}  // namespace

char16_t LowerCaseChar(char16_t unit) noexcept {
    return AsUnit(CharLowerW(AsPointer(unit)));
}

char16_t UpperCaseChar(char16_t unit) noexcept {
    return AsUnit(CharUpperW(AsPointer(unit)));
}

// By hand, since the C library here goes by the host's locale and promises the sign of the difference only.
int CompareAsciiNoCase(const char* a, const char* b) noexcept {
    for (;; ++a, ++b) {
        const int difference = SmallLetter(*a) - SmallLetter(*b);
        if (difference != 0 || *a == '\0') return difference;
    }
}

unsigned SystemCodePage() noexcept {
    return GetACP();
}

unsigned ActiveCodePage() noexcept {
    const unsigned chosen = activeCodePage.load(std::memory_order_relaxed);
    return chosen != 0 ? chosen : SystemCodePage();
}

void SetActiveCodePage(unsigned codePage) noexcept {
    activeCodePage.store(codePage, std::memory_order_relaxed);
}

std::u16string CodePageToUtf16(unsigned codePage, std::string_view bytes) {
    if (bytes.empty()) return {};
    codePage = Named(codePage);
    const int count = Count(bytes);
    const int size = MultiByteToWideChar(codePage, 0, bytes.data(), count, nullptr, 0);
    if (size <= 0) return {};
    std::u16string out(static_cast<std::size_t>(size), u'\0');
    const int filled =
        MultiByteToWideChar(codePage, 0, bytes.data(), count, reinterpret_cast<wchar_t*>(out.data()), size);
    return filled == size ? out : std::u16string();
}

std::string Utf16ToCodePage(unsigned codePage, std::u16string_view text) {
    if (text.empty()) return {};
    codePage = Named(codePage);
    const auto* const wide = reinterpret_cast<const wchar_t*>(text.data());
    const int count = Count(text);
    const int size = WideCharToMultiByte(codePage, 0, wide, count, nullptr, 0, nullptr, nullptr);
    if (size <= 0) return {};
    std::string out(static_cast<std::size_t>(size), '\0');
    const int filled = WideCharToMultiByte(codePage, 0, wide, count, out.data(), size, nullptr, nullptr);
    return filled == size ? out : std::string();
}

}  // namespace vapp_platform

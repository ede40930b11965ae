/// @file
/// The codes of GetLastError and the system's own texts, in the language of the process.
#include "platform/SystemError.h"

#include <windows.h>

#include <memory>

namespace vapp_platform {

namespace {

constexpr DWORD cnProcessLanguage = 1024;

struct TLocalFree {
    void operator()(wchar_t* text) const noexcept { LocalFree(text); }
};

}  // namespace

std::uint32_t LastErrorCode() noexcept {
    return GetLastError();
}

CStringU SystemErrorText(std::uint32_t code) {
    wchar_t* allocated = nullptr;
    // With ALLOCATE_BUFFER the argument is the address of the pointer, whatever its type says.
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM, nullptr,
        code, cnProcessLanguage, reinterpret_cast<wchar_t*>(&allocated), 0, nullptr);
    const std::unique_ptr<wchar_t, TLocalFree> text(allocated);
    return length != 0 ? CStringU(text.get()) : CStringU();
}

}  // namespace vapp_platform

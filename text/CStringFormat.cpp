/// @file
/// The printf family of CString.
///
/// The surprise: user texts write a size as "%Iu" ("%Iu cells"), which the C library of one system reads as a
/// size and that of another as "digits of the locale". So the prefix `I` is rewritten before the C library
/// sees the format, and only inside of a conversion:
///
///     conversion = "%" flags width precision [ "I64" | "I32" | "I" ] letter
///     I64 -> ll      I32 -> nothing      I -> z

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

#include "vapp/text/CString.h"

namespace {

// Appends the portable form of one conversion, `walk` standing behind its "%"; leaves `walk` behind the
// flags, width, precision and size prefix.
void TranslateConversion(const char*& walk, std::string& out) {
    const std::size_t head = std::strspn(walk, "-+ #0'123456789*.$");
    out.append(walk, head);
    walk += head;
    if (*walk != 'I') return;
    ++walk;
    if (std::strncmp(walk, "64", 2) == 0) {
        out += "ll";
        walk += 2;
    } else if (std::strncmp(walk, "32", 2) == 0) {
        walk += 2;
    } else {
        out += 'z';
    }
}

std::string TranslateSizePrefix(const char* format) {
    std::string out;
    const char* walk = format;
    while (*walk != '\0') {
        out += *walk;
        if (*walk++ != '%') continue;
        if (*walk == '%') {
            out += *walk++;
        } else {
            TranslateConversion(walk, out);
        }
    }
    return out;
}

// The one place where a format of run time meets the C library.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
int Print(char* out, std::size_t room, const char* format, va_list arguments) {
    va_list copy;
    va_copy(copy, arguments);
    const int length = std::vsnprintf(out, room, format, copy);
    va_end(copy);
    return length;
}
#pragma GCC diagnostic pop

CString Printed(const char* format, va_list arguments) {
    std::array<char, 256> local{};
    const int length = Print(local.data(), local.size(), format, arguments);
    if (length < 0) return {};
    if (static_cast<std::size_t>(length) < local.size()) return {local.data(), length};
    CString text;
    Print(text.GetBuffer(length), static_cast<std::size_t>(length) + 1, format, arguments);
    text.ReleaseBuffer(length);
    return text;
}

}  // namespace

void CString::Format(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::AppendFormat(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    AppendFormatV(format, arguments);
    va_end(arguments);
}

void CString::FormatV(const char* format, va_list arguments) {
    CString text;
    text.AppendFormatV(format, arguments);
    Swap(text);
}

void CString::AppendFormatV(const char* format, va_list arguments) {
    if (format == nullptr) return;
    const bool translate = std::strstr(format, "I") != nullptr;
    Append(translate ? Printed(TranslateSizePrefix(format).c_str(), arguments) : Printed(format, arguments));
}

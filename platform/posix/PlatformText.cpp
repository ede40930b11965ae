/// @file
/// Case of one character and code pages, by ICU.
///
/// Code pages go by their Windows numbers everywhere in this system; here they are turned into converter
/// names. The active one is that of the user's locale, asked without changing the host's: a locale that knows
/// ASCII alone counts as UTF-8, since there its high bytes would have no meaning at all.

#include "text/PlatformText.h"

#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is POSIX
#include <strings.h>
#include <unicode/uchar.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <clocale>
#include <memory>

namespace vapp_platform {

namespace {

constexpr UChar32 cnReplacement = 0xFFFD;

struct TCodePageName {
    unsigned codePage;
    const char* name;
};

// Numbers whose converter is not called "windows-NUMBER" or "ibm-NUMBER".
constexpr std::array<TCodePageName, 13> cnNamedCodePages{{{1200, "UTF-16LE"},
                                                          {1201, "UTF-16BE"},
                                                          {10000, "macintosh"},
                                                          {12000, "UTF-32LE"},
                                                          {12001, "UTF-32BE"},
                                                          {20127, "US-ASCII"},
                                                          {20866, "KOI8-R"},
                                                          {20932, "EUC-JP"},
                                                          {21866, "KOI8-U"},
                                                          {51932, "EUC-JP"},
                                                          {51949, "EUC-KR"},
                                                          {54936, "gb18030"},
                                                          {65000, "UTF-7"}}};

// What locales call their encodings, beside UTF-8 and the numbered families.
constexpr std::array<TCodePageName, 10> cnLocaleEncodings{{{20866, "KOI8-R"},
                                                           {21866, "KOI8-U"},
                                                           {51932, "EUC-JP"},
                                                           {51949, "EUC-KR"},
                                                           {54936, "GB18030"},
                                                           {936, "GBK"},
                                                           {936, "GB2312"},
                                                           {950, "BIG5"},
                                                           {932, "SHIFT_JIS"},
                                                           {874, "TIS-620"}}};

// ISO-8859-n is code page 28590 + n.
constexpr unsigned cnIso8859Base = 28590;

unsigned NumberBehind(const std::string& text, const std::string& prefix) {
    if (text.compare(0, prefix.size(), prefix) != 0) return 0;
    unsigned number = 0;
    for (std::size_t i = prefix.size(); i < text.size(); ++i) {
        const unsigned digit = static_cast<unsigned char>(text[i]) - unsigned{'0'};
        if (digit > 9 || number > 9999) return 0;
        number = number * 10 + digit;
    }
    return number;
}

unsigned CodePageOfEncoding(const std::string& encoding) {
    if (const unsigned part = NumberBehind(encoding, "ISO-8859-"); part != 0) return cnIso8859Base + part;
    if (const unsigned number = NumberBehind(encoding, "CP"); number != 0) return number;
    for (const TCodePageName& known : cnLocaleEncodings) {
        if (encoding == known.name) return known.codePage;
    }
    return cnCodePageUtf8;
}

unsigned CodePageOfLocale() {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(nullptr));
    if (locale == nullptr) return cnCodePageUtf8;
    const std::string encoding = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return CodePageOfEncoding(encoding);
}

std::atomic<unsigned> activeCodePage{0};

struct TConverterCloser {
    void operator()(UConverter* converter) const noexcept { ucnv_close(converter); }
};
using TConverter = std::unique_ptr<UConverter, TConverterCloser>;

TConverter OpenByName(const std::string& name) {
    UErrorCode status = U_ZERO_ERROR;
    TConverter converter(ucnv_open(name.c_str(), &status));
    return U_SUCCESS(status) ? std::move(converter) : nullptr;
}

// 0 stands for the active code page wherever one is named.
unsigned Named(unsigned codePage) {
    return codePage != 0 ? codePage : ActiveCodePage();
}

// Null where the number says nothing to ICU.
TConverter OpenCodePage(unsigned codePage) {
    for (const TCodePageName& known : cnNamedCodePages) {
        if (codePage == known.codePage) return OpenByName(known.name);
    }
    if (codePage > cnIso8859Base && codePage <= cnIso8859Base + 15) {
        return OpenByName("ISO-8859-" + std::to_string(codePage - cnIso8859Base));
    }
    const std::string number = std::to_string(codePage);
    TConverter converter = OpenByName("windows-" + number);
    return converter != nullptr ? std::move(converter) : OpenByName("ibm-" + number);
}

// What the code page can't express becomes one substitution for each unit of it. ICU's own way of
// substituting leaves out characters that are invisible, such as a zero width space: what was parted by one
// would be joined, and be another number, say, or another file.
void SubstituteEachUnit(const void* /*context*/, UConverterFromUnicodeArgs* args, const char16_t* /*units*/,
                        int32_t length, UChar32 /*character*/, UConverterCallbackReason reason,
                        UErrorCode* status) {
    if (reason > UCNV_IRREGULAR) return;  // the converter is reset or closed
    *status = U_ZERO_ERROR;
    for (int32_t unit = 0; unit < length; ++unit)
        ucnv_cbFromUWriteSub(args, 0, status);
}

// ICU counts in 32 bits; a text is never longer.
template <typename View>
int32_t Count(const View& view) {
    return static_cast<int32_t>(std::min<std::size_t>(view.size(), INT32_MAX));
}

// Runs a conversion of ICU's twice, for its size and for its data. `convert(out, room, status)` gives the
// size.
template <typename Text, typename Convert>
Text SizedThenFilled(const Convert& convert) {
    UErrorCode status = U_ZERO_ERROR;
    const int32_t size = convert(nullptr, 0, status);
    if (size <= 0 || (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)) return {};
    Text out(static_cast<std::size_t>(size), typename Text::value_type());
    status = U_ZERO_ERROR;
    convert(out.data(), size, status);
    return U_SUCCESS(status) ? out : Text();
}

// The locale of CompareAsciiNoCase: not that of the host, in which a capital "I" need not be an "i". The C
// library answers every request for it with the same object, which is never freed, so that threads may race
// for it. A static local would be simpler, but its guard costs a fifth of the compare.
constinit std::atomic<locale_t> gPlainLocale{nullptr};

[[gnu::noinline]] int CompareInNewPlainLocale(const char* a, const char* b) noexcept {
    const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    gPlainLocale.store(plain, std::memory_order_relaxed);
    return strcasecmp_l(a, b, plain);
}

}  // namespace

// A character has another case only where that one leads back to it, as in the tables of the system that has
// a one-character call: "K" and "k" are a pair, and the Kelvin sign, whose small letter is "k" too, stays
// alone.
char16_t LowerCaseChar(char16_t unit) noexcept {
    const UChar32 lower = u_tolower(unit);
    return lower <= 0xFFFF && u_toupper(lower) == unit ? static_cast<char16_t>(lower) : unit;
}

char16_t UpperCaseChar(char16_t unit) noexcept {
    const UChar32 upper = u_toupper(unit);
    return upper <= 0xFFFF && u_tolower(upper) == unit ? static_cast<char16_t>(upper) : unit;
}

int CompareAsciiNoCase(const char* a, const char* b) noexcept {
    const locale_t plain = gPlainLocale.load(std::memory_order_relaxed);
    return plain != nullptr ? strcasecmp_l(a, b, plain) : CompareInNewPlainLocale(a, b);
}

unsigned SystemCodePage() noexcept {
    static const unsigned ofLocale = CodePageOfLocale();
    return ofLocale;
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
    if (codePage == cnCodePageUtf8) {
        return SizedThenFilled<std::u16string>([bytes](char16_t* out, int32_t room, UErrorCode& status) {
            int32_t size = 0;
            u_strFromUTF8WithSub(out, room, &size, bytes.data(), Count(bytes), cnReplacement, nullptr,
                                 &status);
            return size;
        });
    }
    const TConverter converter = OpenCodePage(codePage);
    if (converter == nullptr) return {};
    return SizedThenFilled<std::u16string>([&](char16_t* out, int32_t room, UErrorCode& status) {
        return ucnv_toUChars(converter.get(), out, room, bytes.data(), Count(bytes), &status);
    });
}

std::string Utf16ToCodePage(unsigned codePage, std::u16string_view text) {
    if (text.empty()) return {};
    codePage = Named(codePage);
    if (codePage == cnCodePageUtf8) {
        return SizedThenFilled<std::string>([text](char* out, int32_t room, UErrorCode& status) {
            int32_t size = 0;
            u_strToUTF8WithSub(out, room, &size, text.data(), Count(text), cnReplacement, nullptr, &status);
            return size;
        });
    }
    const TConverter converter = OpenCodePage(codePage);
    if (converter == nullptr) return {};
    UErrorCode ignored = U_ZERO_ERROR;
    ucnv_setSubstString(converter.get(), u"?", 1, &ignored);
    ucnv_setFromUCallBack(converter.get(), SubstituteEachUnit, nullptr, nullptr, nullptr, &ignored);
    ucnv_setFallback(converter.get(), true);
    return SizedThenFilled<std::string>([&](char* out, int32_t room, UErrorCode& status) {
        return ucnv_fromUChars(converter.get(), out, room, text.data(), Count(text), &status);
    });
}

}  // namespace vapp_platform

/// @file
/// Locales that have made text operations go wrong elsewhere, by their names on each system.
#pragma once

#include <clocale>
#include <string>

namespace text_test {

/// Runs a check in each locale that this machine has: Turkish ones, where "I" is no capital "i", and German
/// ones, where a number has a comma. The C locale is always there. The host's locale comes back behind it.
template <typename Check>
void InEveryLocale(const Check& check) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8", "tr_TR.UTF-8", "tr_TR.ISO-8859-9", "Turkish_Turkey.1254",
                               "tr-TR", "de_DE.UTF-8", "de_DE.ISO-8859-1", "German_Germany.1252", "de-DE"}) {
        if (std::setlocale(LC_ALL, locale) == nullptr) continue;  // not installed here
        check(locale);
    }
    std::setlocale(LC_ALL, before.c_str());
}

}  // namespace text_test

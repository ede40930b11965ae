/// @file
/// One check in every locale that has made text operations go wrong elsewhere.
#pragma once

#include <gtest/gtest.h>

#include "tests/text/LocaleGuard.h"

namespace text_test {

/// Runs a check in the C locale, in a Turkish one, where "I" is no capital "i", and in one where a number has
/// a comma. Where one of the two can't be had, the test is skipped once the others are through. To be called
/// as the last of a test.
template <typename Check>
void InEveryLocale(const Check& check) {
    check("C");
    const auto runIn = [&check](std::initializer_list<const char*> locales) {
        const TLocaleGuard guard(locales);
        if (guard.IsSet()) check(std::setlocale(LC_ALL, nullptr));
        return guard.IsSet();
    };
    const bool turkish = runIn(cnTurkishLocales);
    const bool comma = runIn(cnCommaLocales);
    if (!turkish) GTEST_SKIP() << "no Turkish locale is installed";
    if (!comma) GTEST_SKIP() << "no locale with a decimal comma is installed";
}

}  // namespace text_test

/// @file
/// A locale of the host for the time of a test: one with a decimal comma, or the Turkish one, in which "i" is
/// not the small form of "I".
///
/// The names differ from system to system, and not every machine has them: on Linux tools/test makes them in
/// a folder, whose path it hands over in VAPP_TEST_LOCALES. A test that finds none says so and is skipped.
///
/// The surprise: the C library is told of the folder only for the moment of the switch. Each newlocale of a
/// process that has LOCPATH set would lose some memory, and the leak checker would blame us for it.
#pragma once

#include <clocale>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include "platform/ChildEnvironment.h"

namespace text_test {

/// Sets the first of some locales that there is; at the end all is as it was before.
class TLocaleGuard {
public:
    explicit TLocaleGuard(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            m_set = m_set || Switch(name);
        }
    }
    ~TLocaleGuard() { Switch(m_before.c_str()); }
    TLocaleGuard(const TLocaleGuard&) = delete;
    TLocaleGuard& operator=(const TLocaleGuard&) = delete;
    [[nodiscard]] bool IsSet() const { return m_set; }

private:
    static bool Switch(const char* name) {
        const char* const folder = std::getenv("VAPP_TEST_LOCALES");
        if (folder != nullptr) vapp_platform::SetEnvironmentValue("LOCPATH", folder);
        const bool done = std::setlocale(LC_ALL, name) != nullptr;
        if (folder != nullptr) vapp_platform::UnsetEnvironmentValue("LOCPATH");
        return done;
    }

    std::string m_before = std::setlocale(LC_ALL, nullptr);
    bool m_set = false;
};

/// Locales with a decimal comma.
inline constexpr std::initializer_list<const char*> cnCommaLocales = {"de_DE.UTF-8", "de_DE.utf8", "de_DE",
                                                                      "fr_FR.UTF-8", "German_Germany.1252"};

/// Turkish locales.
inline constexpr std::initializer_list<const char*> cnTurkishLocales = {"tr_TR.UTF-8", "tr_TR.utf8", "tr_TR",
                                                                        "Turkish_Turkey.1254"};

}  // namespace text_test

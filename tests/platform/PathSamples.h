/// @file
/// What the tests of paths share: an environment of their own, both worlds, and random paths made to fall
/// over rules (drives, shares, dots, empty parts, both separators, names beyond ASCII, quotes).
#pragma once

#include <array>
#include <initializer_list>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "platform/PathRules.h"
#include "tests/text/HostileText.h"
#include "tests/text/TextHelpers.h"

namespace path_test {

using text_test::UpTo;
using text_test::Utf8;
using vapp_platform::PathRules;
using vapp_platform::World;

inline constexpr std::array cnWorlds = {World::Windows, World::Wine};

inline const char* NameOf(World world) {
    return world == World::Windows ? "Windows" : "Wine";
}

/// Variables of a test, in place of the system's.
class FakeEnvironment {
public:
    FakeEnvironment() = default;
    FakeEnvironment(std::initializer_list<std::pair<const std::u16string, std::u16string>> variables)
        : m_variables(variables) {}
    explicit FakeEnvironment(std::map<std::u16string, std::u16string> variables)
        : m_variables(std::move(variables)) {}

    [[nodiscard]] const vapp_text::EnvironmentLookup& Lookup() const { return m_lookup; }
    [[nodiscard]] PathRules RulesOf(World world) const { return {world, m_lookup}; }
    [[nodiscard]] const std::map<std::u16string, std::u16string>& Variables() const { return m_variables; }
    /// How often a variable was asked for.
    [[nodiscard]] std::size_t Asked() const { return m_asked; }

    FakeEnvironment(const FakeEnvironment&) = delete;
    FakeEnvironment& operator=(const FakeEnvironment&) = delete;

private:
    std::map<std::u16string, std::u16string> m_variables;
    std::size_t m_asked = 0;
    vapp_text::EnvironmentLookup m_lookup =
        [this](std::u16string_view name) -> std::optional<std::u16string> {
        ++m_asked;
        const auto found = m_variables.find(std::u16string(name));
        return found != m_variables.end() ? std::optional(found->second) : std::nullopt;
    };
};

/// The payload, for a failing test to show.
inline std::string Bytes(const CStringU& text) {
    return std::string(text.PayloadView());
}

template <std::size_t Count>
std::u16string_view OneOf(std::mt19937& random, const std::u16string_view (&choices)[Count]) {
    return choices[UpTo(random, Count - 1)];
}

/// A random path. `parts` are its names; the start and the separators come from here.
template <std::size_t Count>
std::u16string RandomPathOf(std::mt19937& random, const std::u16string_view (&parts)[Count]) {
    static constexpr std::u16string_view starts[] = {
        u"",     u"",     u"/",    u"\\",     u"//",      u"\\\\", u"///",   u"C:",  u"C:\\",    u"c:/",
        u"D:\\", u"\\/s", u"\\\\", u"/home/", u"\u00E9:", u"/:",   u"\"/a/", u"./.", u"\\\\s\\", u"::"};
    static constexpr std::u16string_view separators[] = {u"/", u"\\", u"/", u"\\", u"//", u"\\/", u":"};
    std::u16string path(OneOf(random, starts));
    for (std::size_t left = UpTo(random, 7); left > 0; --left) {
        path += OneOf(random, parts);
        if (left > 1 || UpTo(random, 2) == 0) path += OneOf(random, separators);
    }
    return path;
}

inline std::u16string RandomPath(std::mt19937& random) {
    static constexpr std::u16string_view parts[] = {
        u"a",       u"B",  u"b",  u".",      u"..",           u"..",  u"...", u"",      u"dir.d",
        u"\u00E9t", u".x", u"x.", u"\u4E2D", u"\xD83D\xDE00", u"D:.", u"'q'", u"\"q\"", u"long name"};
    return RandomPathOf(random, parts);
}

}  // namespace path_test

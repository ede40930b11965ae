/// @file
/// References to environment variables in a text: where they stand, and what becomes of them.
///
/// A pure walk over UTF-16; the environment, and the test for absolute paths, come in as functions. Not for
/// asking the system: that is a service of the platform.
///
/// Grammar of a reference, looked for from the left at each place:
///
///     reference = "${" NAME "}"    NAME: what stands before the next "}"
///               | "$" NAME         NAME: letters and digits of ASCII, "_"
///               | "%" NAME "%"     NAME: what stands before the next "%"
///
/// With an empty NAME, or unclosed, it is no reference, and the search goes on at the next character. So
/// "%%A%" holds the reference "%A%".
///
/// The surprise: a value that is an absolute path throws away all that stands in front of its reference, so
/// that "C:\base\$HOME\x" is a path below the home folder. A value is never searched for references.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vapp_text {

/// The value of the variable of a name, nothing where it is unset.
using EnvironmentLookup = std::function<std::optional<std::u16string>(std::u16string_view name)>;

/// The value of a variable, and whether it is an absolute path.
struct EnvironmentValue {
    std::u16string_view text;
    bool isAbsolute;
};

/// The value of the variable of a name, nothing where it is unset. The text must stay until the next call.
using JudgedEnvironmentLookup = std::function<std::optional<EnvironmentValue>(std::u16string_view name)>;

/// One reference: its place in the text, and the name in it.
struct EnvironmentReference {
    std::size_t first;         ///< index of the "$" or "%"
    std::size_t behind;        ///< index behind the whole reference
    std::u16string_view name;  ///< a view of the text, never empty
};

/// Finds the references of a text one after the other. The text must outlive it.
class EnvironmentReferences {
public:
    explicit EnvironmentReferences(std::u16string_view text) noexcept : m_text(text) {}

    /// The next one from the left, nothing behind the last.
    [[nodiscard]] std::optional<EnvironmentReference> Next() noexcept;

private:
    [[nodiscard]] std::optional<EnvironmentReference> ReferenceAt(std::size_t first) noexcept;
    [[nodiscard]] std::optional<EnvironmentReference> ClosedBy(char16_t close, std::size_t first,
                                                               std::size_t name) noexcept;

    std::u16string_view m_text;
    std::size_t m_at = 0;
    bool m_noMoreBraces = false;
};

/// True where a text can hold a reference at all.
[[nodiscard]] bool MayHoldEnvironmentReference(std::u16string_view text) noexcept;
[[nodiscard]] bool MayHoldEnvironmentReference(std::string_view text) noexcept;

/// The text with each reference to a set variable replaced by its value; a reference to an unset one stays. A
/// value that is an absolute path also drops everything in front of it. No more than the first `most` units
/// of the result are made: who wants to know only how it begins pays for no long values.
[[nodiscard]] std::u16string ExpandEnvironmentReferences(std::u16string_view text,
                                                         const JudgedEnvironmentLookup& lookup,
                                                         std::size_t most = std::u16string_view::npos);

}  // namespace vapp_text

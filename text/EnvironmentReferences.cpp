/// @file
/// One pass over the text; what is searched for in vain is not searched for again.
#include "text/EnvironmentReferences.h"

namespace vapp_text {
namespace {

// By range, for the host's locale must not decide where a name ends.
bool IsNameUnit(char16_t unit) noexcept {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'a' && unit <= u'z') || unit == u'_';
}

}  // namespace

std::optional<EnvironmentReference> EnvironmentReferences::Next() noexcept {
    while ((m_at = m_text.find_first_of(u"$%", m_at)) != std::u16string_view::npos) {
        if (const auto reference = ReferenceAt(m_at)) {
            m_at = reference->behind;
            return reference;
        }
        ++m_at;
    }
    m_at = m_text.size();
    return std::nullopt;
}

std::optional<EnvironmentReference> EnvironmentReferences::ReferenceAt(std::size_t first) noexcept {
    if (m_text[first] == u'%') return ClosedBy(u'%', first, first + 1);
    if (m_text.substr(first + 1).starts_with(u'{')) {
        // Where one brace was not found none of the later ones will be: a text of nothing but "${" stays
        // linear.
        return m_noMoreBraces ? std::nullopt : ClosedBy(u'}', first, first + 2);
    }
    std::size_t behind = first + 1;
    while (behind < m_text.size() && IsNameUnit(m_text[behind]))
        ++behind;
    if (behind == first + 1) return std::nullopt;
    return EnvironmentReference{first, behind, m_text.substr(first + 1, behind - first - 1)};
}

std::optional<EnvironmentReference> EnvironmentReferences::ClosedBy(char16_t close, std::size_t first,
                                                                    std::size_t name) noexcept {
    const std::size_t end = m_text.find(close, name);
    if (end == std::u16string_view::npos) {
        m_noMoreBraces = m_noMoreBraces || close == u'}';
        return std::nullopt;
    }
    if (end == name) return std::nullopt;
    return EnvironmentReference{first, end + 1, m_text.substr(name, end - name)};
}

bool MayHoldEnvironmentReference(std::u16string_view text) noexcept {
    return text.find_first_of(u"$%") != std::u16string_view::npos;
}

bool MayHoldEnvironmentReference(std::string_view text) noexcept {
    return text.find('$') != std::string_view::npos || text.find('%') != std::string_view::npos;
}

std::u16string ExpandEnvironmentReferences(std::u16string_view text, const JudgedEnvironmentLookup& lookup,
                                           std::size_t most) {
    std::u16string expanded;
    const auto append = [&expanded, most](std::u16string_view piece) {
        expanded.append(piece.substr(0, most - expanded.size()));
    };
    std::size_t copied = 0;
    EnvironmentReferences references(text);
    while (const auto reference = references.Next()) {
        const std::optional<EnvironmentValue> value = lookup(reference->name);
        if (!value) continue;
        if (value->isAbsolute) {
            expanded.clear();
        } else {
            append(text.substr(copied, reference->first - copied));
        }
        append(value->text);
        copied = reference->behind;
    }
    append(text.substr(copied));
    return expanded;
}

}  // namespace vapp_text

/// @file
/// One walk over the parts writes the normal form; ".." takes back what was written. ASCII paths are walked
/// as bytes, others as UTF-16.
#include "platform/PathNormalize.h"

#include <algorithm>

#include "platform/PathExpand.h"

namespace vapp_platform {
namespace {

/// Writes a normal form to memory that has room for as much as the text has: it never gets longer.
template <typename Unit>
class NormalForm {
public:
    using View = std::basic_string_view<Unit>;

    explicit NormalForm(Unit* out) noexcept : m_out(out) {}

    /// The length written.
    [[nodiscard]] std::size_t Write(View text) noexcept {
        std::size_t at = PrefixLength(text);
        for (const Unit unit : text.substr(0, at))
            Put(IsSeparator(unit) ? Unit('\\') : unit);
        m_rooted = at < text.size() && IsSeparator(text[at]);
        if (m_rooted) Put(Unit('\\'));
        m_root = m_length;
        while (at < text.size()) {
            const std::size_t first = at;
            while (at < text.size() && !IsSeparator(text[at]))
                ++at;
            if (at > first) TakePart(text.substr(first, at - first));
            ++at;
        }
        return m_length;
    }

private:
    /// What stays as it is at the start: the machine of a share, or a drive.
    [[nodiscard]] static std::size_t PrefixLength(View text) noexcept {
        if (text.size() < 2) return 0;
        if (!IsSeparator(text[0]) || !IsSeparator(text[1])) return text[1] == Unit(':') ? 2 : 0;
        const auto third = std::find_if(text.begin() + 2, text.end(), IsSeparator<Unit>);
        return third == text.end() ? 0 : static_cast<std::size_t>(third - text.begin());
    }

    void TakePart(View part) noexcept {
        const bool dotted = part.front() == Unit('.');
        if (dotted && part.size() == 1) return;
        const bool up = dotted && part.size() == 2 && part[1] == Unit('.');
        if (up && (m_rooted || m_names > 0)) {
            DropLastPart();
            return;
        }
        if (m_length > m_root) Put(Unit('\\'));
        std::copy(part.begin(), part.end(), m_out + m_length);
        m_length += part.size();
        m_names += up ? 0U : 1U;
    }

    // The last part is always a name: ".." is only ever written while there is none.
    void DropLastPart() noexcept {
        if (m_names == 0) return;
        --m_names;
        while (m_length > m_root && m_out[--m_length] != Unit('\\')) {
        }
    }

    void Put(Unit unit) noexcept { m_out[m_length++] = unit; }

    Unit* m_out;
    std::size_t m_length = 0;
    std::size_t m_root = 0;
    std::size_t m_names = 0;
    bool m_rooted = false;
};

/// Only a drive's root and a share keep the separators of Windows in the world of Wine.
template <typename Unit>
void UseSeparatorsOf(World world, Unit* first, std::size_t length) noexcept {
    if (world == World::Windows) return;
    const bool drive = length >= 3 && first[1] == Unit(':') && IsSeparator(first[2]);
    const bool share = length >= 2 && IsSeparator(first[0]) && IsSeparator(first[1]);
    if (!drive && !share) std::replace(first, first + length, Unit('\\'), Unit('/'));
}

/// A path up to its end or an overlong NUL.
std::u16string UnitsOf(const CStringU& path) {
    std::u16string units = path.ToWide();
    units.resize(std::min(units.find(u'\0'), units.size()));
    return units;
}

bool IsPlain(const CStringU& path) noexcept {
    return !path.HasNonAscii() && !vapp_text::MayHoldEnvironmentReference(path.PayloadView());
}

std::u16string NormalizeAndExpand(const CStringU& path, const PathRules& rules,
                                  std::size_t most = std::u16string_view::npos) {
    return ExpandEnvironment(NormalizeUnits(UnitsOf(path)), rules, most);
}

/// IsAbsolutePath of a plain path, by its first bytes: neither "." nor ".." can change the root of a path
/// that has one. A path without one becomes absolute only if dropped parts uncover a drive.
bool IsAbsolutePlain(const CStringU& path, const PathRules& rules) {
    const std::string_view bytes = path.PayloadView();
    const bool wine = rules.world == World::Wine;
    if (bytes.empty()) return false;
    if (IsSeparator(bytes[0])) {
        return wine || (StartsWithTwoSeparators(bytes) && FindSeparator(bytes, 2) != std::string_view::npos);
    }
    if (bytes.size() >= 2 && bytes[1] == ':') return bytes.size() >= 3 && IsSeparator(bytes[2]);
    if (bytes.find(':') == std::string_view::npos) return false;
    return IsAbsoluteForm(NormalizeUnits(path.ToWide()), rules.world);
}

}  // namespace

bool IsAbsolutePath(const CStringU& path, const PathRules& rules) {
    if (IsPlain(path)) return IsAbsolutePlain(path, rules);
    return IsAbsoluteForm(NormalizeAndExpand(path, rules, cnTellingUnits), rules.world);
}

CStringU NormalizePath(const CStringU& path, const PathRules& rules) {
    if (path.IsEmpty()) return {};
    if (IsPlain(path)) {
        const std::string_view bytes = path.PayloadView();
        CString normal;
        char* const out = normal.GetBuffer(static_cast<int>(bytes.size()));
        const std::size_t length = NormalForm<char>(out).Write(bytes);
        UseSeparatorsOf(rules.world, out, length);
        normal.ReleaseBuffer(static_cast<int>(length));
        return normal;
    }
    std::u16string normal = NormalizeAndExpand(path, rules);
    UseSeparatorsOf(rules.world, normal.data(), normal.size());
    return CStringU(std::u16string_view(normal));
}

std::u16string NormalizeUnits(std::u16string_view path) {
    std::u16string normal(path.size(), u'\0');
    normal.resize(NormalForm<char16_t>(normal.data()).Write(path));
    return normal;
}

bool IsAbsoluteForm(std::u16string_view normal, World world) noexcept {
    if (normal.empty()) return false;
    if (IsSeparator(normal[0])) {
        return world == World::Wine || (normal.size() >= 2 && IsSeparator(normal[1]));
    }
    return normal.size() >= 3 && normal[1] == u':' && IsSeparator(normal[2]);
}

}  // namespace vapp_platform

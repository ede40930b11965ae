// Hostile bytes, and hostile variables, through the rules of paths that read most: the normal form, the way
// between two paths, compacting.
//
// Besides not crashing and not hanging, the target holds what no input may break: a normal form is stable
// from the third time on at the latest, a path that has no reference stays absolute or not, nothing but a
// kept name is longer than asked for. It is built by libFuzzer with clang, and with Replay.cpp it replays its
// corpus in the normal tests.
//
// Input: one byte for the world and flags, one for a length, then texts with NULs between them: a base, a
// path, and the values of the variables A, B and C.

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/PathCompact.h"
#include "platform/PathJoin.h"
#include "platform/PathNames.h"
#include "platform/PathNormalize.h"
#include "platform/PathValid.h"

namespace {

using namespace vapp_platform;

void Require(bool holds) {
    if (!holds) std::abort();
}

/// The next text, up to a NUL or the end, in a block of its own.
std::string TakeText(std::string_view& rest) {
    const std::size_t end = rest.find('\0');
    std::string text(rest.substr(0, end));
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return text;
}

CStringU TextOfBytes(const std::string& bytes) {
    return {bytes.c_str(), TextEncoding::Utf8Auto};
}

/// The same characters, well-formed.
CStringU WellFormed(const CStringU& text) {
    return CStringU(std::u16string_view(text.ToWide()));
}

bool HasReference(const CStringU& path) {
    return vapp_text::MayHoldEnvironmentReference(path.PayloadView());
}

void Normalize(const CStringU& path, const PathRules& rules) {
    const CStringU once = NormalizePath(path, rules);
    static_cast<void>(IsAbsolutePath(path, rules));
    if (HasReference(path)) return;
    // One character of the three-byte kind stands for as few as one malformed byte.
    Require(once.GetByteLength() <= 3 * path.GetByteLength());
    const CStringU twice = NormalizePath(once, rules);
    if (DriveBytes(once) == 0 || DriveBytes(WellFormed(path)) > 0) {
        Require(twice == once);
        Require(IsAbsolutePath(once, rules) == IsAbsolutePath(path, rules));
    }
    const CStringU thrice = NormalizePath(twice, rules);
    Require(NormalizePath(thrice, rules) == thrice);
}

void Relate(const CStringU& base, const CStringU& path, const PathRules& rules) {
    const CStringU way = MakeRelativePath(base, path, rules);
    static_cast<void>(JoinPath(base, way, rules));
    static_cast<void>(JoinPath(base, path, rules));
    if (rules.world == World::Wine) Require(way.PayloadView().find('\\') == std::string_view::npos);
    if (base.IsEmpty() && rules.world == World::Windows) Require(way == path);
}

void Shorten(const CStringU& path, int maximum, bool keepName) {
    static_cast<void>(CompactPath(path, maximum, keepName));
    const CStringU good = WellFormed(path);
    const CStringU name = GetFileName(good);
    const CStringU compact = CompactPath(good, maximum, keepName);
    if (compact.GetCharCount() > maximum) Require((keepName && compact == name) || compact.IsEmpty());
    if (!compact.IsEmpty()) Require(compact.EndsWith(name));
}

void TakeApart(const CStringU& path, const PathRules& rules) {
    static_cast<void>(IsValidPath(path, rules.world));
    static_cast<void>(GetDirectory(path));
    static_cast<void>(GetBaseName(path));
    static_cast<void>(RemoveExtension(path, rules));
    Require(HasExtension(ReplaceExtension(path, "x")));
    Require(GetExtension(EnsureExtension(path, "x")) == CStringU("x"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2 || size > 4096) return 0;
    const std::string all(data + 2, data + size);
    std::string_view rest(all);
    const CStringU base = TextOfBytes(TakeText(rest));
    const CStringU path = TextOfBytes(TakeText(rest));
    std::array<std::u16string, 3> values;
    for (std::u16string& value : values)
        value = TextOfBytes(TakeText(rest)).ToWide();
    const vapp_text::EnvironmentLookup environment =
        [&values](std::u16string_view name) -> std::optional<std::u16string> {
        if (name.size() != 1 || name[0] < u'A' || name[0] > u'C') return std::nullopt;
        return values[static_cast<std::size_t>(name[0] - u'A')];
    };
    const PathRules rules{(data[0] & 1U) != 0 ? World::Wine : World::Windows, environment};
    Normalize(path, rules);
    Relate(base, path, rules);
    Shorten(path, static_cast<int>(data[1]) - 2, (data[0] & 2U) != 0);
    TakeApart(path, rules);
    return 0;
}

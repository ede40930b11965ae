// Hostile bytes through the compares, the searches, the natural order and the keys.
//
// Besides not crashing, the target holds what no input may break: a text equals itself, what is found lies
// within the text, and the keys agree with the compares as soon as the text is well-formed. It is built by
// libFuzzer with clang, and with Replay.cpp it replays its corpus in the normal tests.
//
// Input: one byte for a start offset and a limit, then two texts with a NUL between them.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "text/Codec.h"
#include "text/Compare.h"
#include "text/NaturalKey.h"
#include "text/NaturalOrder.h"
#include "text/Search.h"

namespace {

using namespace vapp_text;

void Require(bool holds) {
    if (!holds) std::abort();
}

int Sign(std::int64_t value) {
    return static_cast<int>(value > 0) - static_cast<int>(value < 0);
}

/// The characters of a payload, to its NUL or an overlong one.
std::u16string Characters(const char* payload) {
    std::u16string units;
    while (*payload != '\0')
        units.push_back(DecodeNext(payload));
    return units.substr(0, units.find(u'\0'));
}

std::string WellFormed(const std::u16string& units) {
    std::string bytes;
    for (const char16_t unit : units) {
        char encoded[cnMaxEncodedBytes];
        bytes.append(encoded, static_cast<std::size_t>(EncodeChar(unit, encoded)));
    }
    return bytes;
}

std::string NaturalKeyOf(const char* payload, bool fold) {
    std::string key;
    AppendNaturalKey(payload, fold, key);
    return key;
}

std::string FoldKeyOf(const char* payload) {
    std::string key;
    AppendFoldKey(payload, key);
    return key;
}

void CompareAny(const char* a, const char* b, std::size_t limit) {
    const std::u16string wide = Characters(b);
    Require(CompareNoCaseU(a, a) == 0 && CompareNaturalNoCase(a, a) == 0 && CompareNatural(a, a, true) == 0);
    Require(CompareNU(a, b, 0) == 0);
    static_cast<void>(CompareNoCaseU(a, b));
    static_cast<void>(CompareNatural(a, b, false));
    static_cast<void>(CompareNatural(a, b, true));
    static_cast<void>(CompareNaturalNoCase(a, b));
    // Without the prefix skip all forms read the same characters, whatever the bytes.
    Require(CompareNU(a, b, limit) == CompareNU(a, wide.c_str(), limit));
    Require(CompareNNoCaseU(a, b, limit) == CompareNNoCaseU(a, wide.c_str(), limit));
    Require(CompareU(a, wide.c_str()) == CompareNU(a, b, SIZE_MAX));
    Require(CompareNoCaseU(a, wide.c_str()) == CompareNNoCaseU(a, b, SIZE_MAX));
}

void CompareWellFormed(const char* a, const char* b) {
    const std::string x = WellFormed(Characters(a));
    const std::string y = WellFormed(Characters(b));
    // The key of malformed text is that of the characters it decodes to.
    Require(NaturalKeyOf(a, true) == NaturalKeyOf(x.c_str(), true));
    Require(FoldKeyOf(b) == FoldKeyOf(y.c_str()));
    Require(Sign(NaturalKeyOf(a, true).compare(NaturalKeyOf(b, true))) ==
            Sign(CompareNaturalNoCase(x.c_str(), y.c_str())));
    Require(Sign(NaturalKeyOf(a, false).compare(NaturalKeyOf(b, false))) ==
            Sign(CompareNatural(x.c_str(), y.c_str(), false)));
    Require(Sign(FoldKeyOf(a).compare(FoldKeyOf(b))) == Sign(CompareNoCaseU(x.c_str(), y.c_str())));
    Require(Sign(CompareNatural(x.c_str(), y.c_str(), true)) ==
            -Sign(CompareNatural(y.c_str(), x.c_str(), true)));
}

void Search(const std::string& text, const char* needle, std::int64_t from, std::size_t limit) {
    const char* t = text.c_str();
    const std::u16string wide = Characters(needle);
    const char16_t c = wide.empty() ? u'\0' : wide.front();
    const auto end = static_cast<std::int64_t>(text.size());
    for (const std::int64_t found : {
             FindCharU(t, c),
             FindCharIndexU(t, c),
             FindCharNoCaseU(t, c),
             FindCharIndexNoCaseU(t, c),
             FindTextU(t, needle),
             FindTextU(t, wide.c_str()),
             FindTextIndexU(t, needle),
             FindTextNoCaseU(t, needle),
             FindTextNoCaseU(t, wide.c_str()),
             FindTextIndexNoCaseU(t, needle),
             FindTextIndexNoCaseU(t, wide.c_str()),
             FindTextIndexNU(t, needle, limit),
             FindTextNoCaseNU(t, needle, limit),
             FindTextIndexNoCaseNU(t, wide.c_str(), limit),
             FindOneOfU(t, needle),
             FindOneOfIndexU(t, wide.c_str()),
             FindOneOfNoCaseU(t, needle),
             FindOneOfIndexNoCaseU(t, wide.c_str()),
         }) {
        Require(found >= cnNotFound && found <= end);
    }
    for (const std::int64_t found : {
             ReverseFindCharU(t, c, from),
             ReverseFindCharNoCaseU(t, c, from),
             ReverseFindTextU(t, needle, from),
             ReverseFindTextU(t, wide.c_str(), from),
             ReverseFindTextNoCaseU(t, needle, from),
             ReverseFindTextNoCaseU(t, wide.c_str(), from),
             ReverseFindOneOfU(t, needle, from),
             ReverseFindOneOfNoCaseU(t, needle, from),
         }) {
        Require(found >= cnNotFound && found <= std::max(from, cnNotFound) && found <= end);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::int64_t from = std::int64_t{data[0]} - 128;
    const std::size_t limit = data[0] & 0xFU;
    const std::string rest(data + 1, data + size);
    const std::size_t split = rest.find('\0');
    // Copies that end where their texts end, so that a sanitizer sees a read behind them.
    const std::string a(rest.data());
    const std::string b(split == std::string::npos ? "" : rest.c_str() + split + 1);
    CompareAny(a.c_str(), b.c_str(), limit);
    CompareWellFormed(a.c_str(), b.c_str());
    Search(a, b.c_str(), from, limit);
    return 0;
}

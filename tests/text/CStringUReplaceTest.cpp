// The four replacements: single cases with their oddities, then random texts beside plain models.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/text/HostileText.h"
#include "tests/text/LocaleTables.h"
#include "text/Search.h"
#include "text/Upper.h"
#include "vapp/text/CStringU.h"

namespace {

using namespace text_test;
using vapp_text::FoldChar;

struct TReplaced {
    int count;
    std::u16string text;
    friend bool operator==(const TReplaced&, const TReplaced&) = default;
    friend void PrintTo(const TReplaced& result, std::ostream* out) {
        *out << result.count << ' ' << Shown(Bytes(result.text));
    }
};

TReplaced Replaced(const std::u16string& text, const std::u16string& oldText, const std::u16string& newText) {
    CStringU edited(text.c_str());
    const int count = edited.Replace(CStringU(oldText.c_str()), CStringU(newText.c_str()));
    EXPECT_TRUE(HoldsMarkerInvariant(edited)) << Shown(Stored(edited));
    return {count, edited.ToWide()};
}

TReplaced ReplacedNoCase(const std::u16string& text, const std::u16string& oldText,
                         const std::u16string& newText) {
    CStringU edited(text.c_str());
    const int count = edited.ReplaceNoCase(CStringU(oldText.c_str()), CStringU(newText.c_str()));
    EXPECT_TRUE(HoldsMarkerInvariant(edited)) << Shown(Stored(edited));
    return {count, edited.ToWide()};
}

TReplaced Replaced(const std::u16string& text, char16_t oldUnit, char16_t newUnit) {
    CStringU edited(text.c_str());
    const int count = edited.Replace(oldUnit, newUnit);
    EXPECT_TRUE(HoldsMarkerInvariant(edited)) << Shown(Stored(edited));
    return {count, edited.ToWide()};
}

TReplaced ReplacedNoCase(const std::u16string& text, char16_t oldUnit, char16_t newUnit) {
    CStringU edited(text.c_str());
    const int count = edited.ReplaceNoCase(oldUnit, newUnit);
    EXPECT_TRUE(HoldsMarkerInvariant(edited)) << Shown(Stored(edited));
    return {count, edited.ToWide()};
}

// --- Characters ----------------------------------------------------------------------------------------

TEST(CStringUReplace, CharactersInEveryMixOfAsciiAndNot) {
    EXPECT_EQ(Replaced(u"a.b.c", u'.', u'/'), (TReplaced{2, u"a/b/c"}));
    EXPECT_EQ(Replaced(u"a.b.c", u'.', u'\u00e9'), (TReplaced{2, u"a\u00e9b\u00e9c"}));
    EXPECT_EQ(Replaced(u"a.b.c", u'\u00e9', u'x'), (TReplaced{0, u"a.b.c"}));
    EXPECT_EQ(Replaced(u"a\u00e9b", u'\u00e9', u'x'), (TReplaced{1, u"axb"})) << "the marker goes";
    EXPECT_EQ(Replaced(u"\u00e9a\u00e9", u'\u00e9', u'\u4e2d'), (TReplaced{2, u"\u4e2da\u4e2d"}));
    EXPECT_EQ(Replaced(u"\u00e9a", u'\u00e9', u'x'), (TReplaced{1, u"xa"}));
    EXPECT_EQ(Replaced(u"\u00e9a", u'q', u'x'), (TReplaced{0, u"\u00e9a"}));
    EXPECT_EQ(Replaced(u"", u'q', u'x'), (TReplaced{0, u""}));
}

TEST(CStringUReplace, CharactersOfOtherTypesAreReadByThem) {
    const TCodePageGuard latin(1252);
    CStringU text(u"a.B.\u00e9");
    EXPECT_EQ(text.Replace('.', '/'), 2);
    EXPECT_EQ(text.Replace('\xE9', 'e'), 1) << "narrow ones are in the active code page";
    EXPECT_EQ(text.ReplaceNoCase(L'b', '\xE9'), 1);
    EXPECT_EQ(text.ReplaceNoCase('\xC9', u'b'), 1);
    EXPECT_EQ(text.Replace(L'a', L'\u4e2d'), 1);
    EXPECT_EQ(text, CStringU(u"\u4e2d/b/e"));
    EXPECT_EQ(text.Replace('\0', 'x') + text.Replace('b', '\0') + text.Replace('b', L'\0'), 0);
    EXPECT_EQ(text.Replace('\xE9', '\0') + text.ReplaceNoCase('\0', '\xE9'), 0);
    EXPECT_EQ(text, CStringU(u"\u4e2d/b/e"));
}

TEST(CStringUReplace, ACharacterThatIsAPairIsReplacedAsATwo) {
    if (sizeof(wchar_t) == sizeof(char16_t)) GTEST_SKIP() << "no character here is wider than a unit";
    const auto pair = static_cast<wchar_t>(0x1F600);
    CStringU text(u"a\U0001F600\uf600");
    EXPECT_EQ(text.Replace(pair, L'b'), 1);
    EXPECT_EQ(text, CStringU(u"ab\uf600")) << "not taken for its lower half";
    EXPECT_EQ(text.Replace('b', pair), 1);
    EXPECT_EQ(text, CStringU(u"a\U0001F600\uf600"));
    EXPECT_EQ(text.ReplaceNoCase('A', pair), 1);
    EXPECT_EQ(text, CStringU(u"\U0001F600\U0001F600\uf600"));
}

TEST(CStringUReplace, CharacterZeroReplacesNothing) {
    EXPECT_EQ(Replaced(u"abc", u'\0', u'x'), (TReplaced{0, u"abc"}));
    EXPECT_EQ(Replaced(u"abc", u'a', u'\0'), (TReplaced{0, u"abc"}));
    EXPECT_EQ(ReplacedNoCase(u"abc", u'\0', u'x'), (TReplaced{0, u"abc"}));
    EXPECT_EQ(ReplacedNoCase(u"abc", u'a', u'\0'), (TReplaced{0, u"abc"}));
}

TEST(CStringUReplace, AsciiWithoutCaseIsOnePass) {
    EXPECT_EQ(ReplacedNoCase(u"aAbB", u'A', u'b'), (TReplaced{2, u"bbbB"}));
    EXPECT_EQ(ReplacedNoCase(u"aAbB", u'a', u'A'), (TReplaced{2, u"AAbB"}));
    EXPECT_EQ(ReplacedNoCase(u"a-b", u'-', u'+'), (TReplaced{1, u"a+b"}));
    EXPECT_EQ(ReplacedNoCase(u"abc", u'q', u'x'), (TReplaced{0, u"abc"}));
}

TEST(CStringUReplace, OtherCharactersAreReplacedFormByForm) {
    EXPECT_EQ(ReplacedNoCase(u"\u00e9\u00c9a", u'\u00c9', u'x'), (TReplaced{2, u"xxa"}));
    EXPECT_EQ(ReplacedNoCase(u"\u00e9\u00c9a", u'\u00e9', u'x'), (TReplaced{2, u"xxa"}));
    EXPECT_EQ(ReplacedNoCase(u"aA\u00e9", u'a', u'x'), (TReplaced{2, u"xx\u00e9"}));
    EXPECT_EQ(ReplacedNoCase(u"abA", u'a', u'\u00e9'), (TReplaced{2, u"\u00e9b\u00e9"}));
    // The small form, put in by the first pass, is hit again by the second.
    EXPECT_EQ(ReplacedNoCase(u"\u00c9", u'\u00c9', u'\u00e9'), (TReplaced{2, u"\u00e9"}));
}

TEST(CStringUReplace, ACharacterWithoutOtherFormsIsReplacedAlone) {
    // The Kelvin sign looks like the small letter's capital, but is nobody's form.
    EXPECT_EQ(ReplacedNoCase(u"kK\u212a", u'\u212a', u'x'), (TReplaced{1, u"kKx"}));
    EXPECT_EQ(ReplacedNoCase(u"kK\u212a", u'k', u'x'), (TReplaced{2, u"xx\u212a"}));
    EXPECT_EQ(ReplacedNoCase(u"kK", u'\u212a', u'x'), (TReplaced{0, u"kK"}));
}

// --- Texts ---------------------------------------------------------------------------------------------

TEST(CStringUReplace, TextsInEveryMixOfAsciiAndNot) {
    EXPECT_EQ(Replaced(u"a, b, c", u", ", u","), (TReplaced{2, u"a,b,c"}));
    EXPECT_EQ(Replaced(u"aaa", u"aa", u"b"), (TReplaced{1, u"ba"}));
    EXPECT_EQ(Replaced(u"abc", u"\u00e9", u"b"), (TReplaced{0, u"abc"}));
    EXPECT_EQ(Replaced(u"abc", u"b", u"\u00e9"), (TReplaced{1, u"a\u00e9c"}));
    EXPECT_EQ(Replaced(u"a\u00e9c\u00e9", u"\u00e9", u"e'"), (TReplaced{2, u"ae'ce'"}));
    EXPECT_EQ(Replaced(u"xa\u00e9", u"a\u00e9", u""), (TReplaced{1, u"x"})) << "a marked old text is found";
    EXPECT_EQ(Replaced(u"a\u00e9", u"q", u"b"), (TReplaced{0, u"a\u00e9"}));
    EXPECT_EQ(Replaced(u"Aa", u"a", u"b"), (TReplaced{1, u"Ab"})) << "with case";
}

TEST(CStringUReplace, AnEmptyOldTextReplacesNothing) {
    EXPECT_EQ(Replaced(u"abc", u"", u"x"), (TReplaced{0, u"abc"}));
    EXPECT_EQ(Replaced(u"a\u00e9", u"", u"x"), (TReplaced{0, u"a\u00e9"}));
    EXPECT_EQ(Replaced(u"abc", u"", u"\u00e9"), (TReplaced{0, u"abc"}));
}

TEST(CStringUReplace, ATextIsReplacedByItself) {
    CStringU text(u"a\u00e9");
    EXPECT_EQ(text.Replace(text, text), 1);
    EXPECT_EQ(text, CStringU(u"a\u00e9"));
    CStringU ascii("ab");
    EXPECT_EQ(ascii.Replace(ascii, CStringU("x")), 1);
    EXPECT_EQ(ascii, CStringU("x"));
}

TEST(CStringUReplace, TextsOfTheSameLengthAreReplacedInPlace) {
    EXPECT_EQ(ReplacedNoCase(u"aXbxc", u"x", u"y"), (TReplaced{2, u"aybyc"}));
    EXPECT_EQ(ReplacedNoCase(u"ONE one oNe", u"One", u"two"), (TReplaced{3, u"two two two"}));
    EXPECT_EQ(ReplacedNoCase(u"aX\u00e9x", u"X", u"-"), (TReplaced{2, u"a-\u00e9-"}));
    EXPECT_EQ(ReplacedNoCase(u"abc", u"x", u"y"), (TReplaced{0, u"abc"}));
}

TEST(CStringUReplace, LaterHitsOfALongerTextAreAppliedAtTheirOldPlaces) {
    EXPECT_EQ(ReplacedNoCase(u"aXbX", u"x", u"yy"), (TReplaced{2, u"ayyyyX"}));
    EXPECT_EQ(ReplacedNoCase(u"xaxbxc", u"X", u"123"), (TReplaced{2, u"123a123bxc"}))
        << "the next search starts behind the new text's length, and misses the hit before it";
}

TEST(CStringUReplace, LaterHitsOfAShorterTextAreAppliedTooFarRight) {
    EXPECT_EQ(ReplacedNoCase(u"xxaxxbxxcdef", u"XX", u"-"), (TReplaced{3, u"-ax-xx-ef"}));
    EXPECT_EQ(ReplacedNoCase(u"xxxx", u"xx", u"-"), (TReplaced{3, u"---"}))
        << "the search goes on inside of the hit, and the last one lies exactly at the end";
}

TEST(CStringUReplace, AnEmptyNewTextGoesOnBehindItsHit) {
    EXPECT_EQ(ReplacedNoCase(u"aXb", u"x", u""), (TReplaced{1, u"ab"}));
    EXPECT_EQ(ReplacedNoCase(u"xaxbxcdef", u"X", u""), (TReplaced{3, u"axxcef"}));
}

TEST(CStringUReplace, AHitThatHasDriftedBehindTheEndIsNone) {
    // Hits at 0, 2 and 4; by the third the text is two units long.
    EXPECT_EQ(ReplacedNoCase(u"xxxxxx", u"xx", u""), (TReplaced{2, u"xx"}));
    EXPECT_EQ(ReplacedNoCase(u"ababab", u"AB", u""), (TReplaced{2, u"ab"}));
}

TEST(CStringUReplace, AnEmptyOldTextIsFoundEverywhereWithoutCase) {
    EXPECT_EQ(ReplacedNoCase(u"ab", u"", u"-"), (TReplaced{3, u"---ab"}));
    EXPECT_EQ(ReplacedNoCase(u"ab", u"", u""), (TReplaced{3, u"ab"})) << "and ends";
    EXPECT_EQ(ReplacedNoCase(u"", u"", u""), (TReplaced{1, u""}));
}

TEST(CStringUReplace, AnOldTextOutsideOfAsciiMustStandAtTheEnd) {
    EXPECT_EQ(ReplacedNoCase(u"\u00e9a", u"\u00e9", u"x"), (TReplaced{0, u"\u00e9a"}));
    EXPECT_EQ(ReplacedNoCase(u"\u00e9a\u00c9", u"\u00e9", u"x"), (TReplaced{2, u"xax"}))
        << "once it is found there, the others are replaced too";
}

TEST(CStringUReplace, ReplacingIsLinear) {
    const std::u16string units(200000, u'x');
    CStringU text(units.c_str());
    EXPECT_EQ(text.ReplaceNoCase("X", "yy"), 100000);
    EXPECT_EQ(text.Replace("y", CStringU(u"\u00e9\u00e9")), 200000);
}

// Texts of equal letters, of which the wanted one is nowhere, or only at the end: tried at each place anew
// they would take hours.
TEST(CStringUReplace, TextsThatAreAlikeTakeNoLonger) {
    const std::u16string equal(400000, u'a');
    const std::u16string half = equal.substr(0, 200000);
    const std::u16string wide = equal + u"\u00e9";
    EXPECT_EQ(Replaced(equal, half + u"b", u"x").count, 0);
    EXPECT_EQ(ReplacedNoCase(equal, half + u"B", u"x").count, 0);
    EXPECT_TRUE(ReplacedNoCase(equal, half, u"b") == (TReplaced{200001, std::u16string(200001, u'b')}))
        << "hits overlap, and from the third on stand at the end of what is left";
    EXPECT_EQ(Replaced(wide, half + u"b", u"x").count, 0);
    EXPECT_EQ(ReplacedNoCase(wide, half + u"B", u"x").count, 0);
    EXPECT_EQ(ReplacedNoCase(wide, half + u"\u00c9", half + u"x").text, equal + u"x");
}

// Such a text can't be assigned, but it can be declared ASCII without a look at it.
TEST(CStringUReplace, ANulInsideOfATextEndsItOnlyBehindTheHits) {
    CStringU text(CString("aX\0xb", 5), CStringU::TAscii());
    EXPECT_EQ(text.ReplaceNoCase("x", "yy"), 2);
    EXPECT_EQ(text, CStringU("ayyyyxb")) << "the second hit, at index 3, is applied to the NUL";
    text = CStringU(CString("aX\0xb", 5), CStringU::TAscii());
    EXPECT_EQ(text.ReplaceNoCase("q", "yy"), 0);
    EXPECT_EQ(text.GetByteLength(), 5);
    EXPECT_EQ(text.Replace("X", CStringU(u"\u00e9")), 1);
    EXPECT_EQ(text, CStringU(u"a\u00e9"));
}

// High bytes of a text that says that it is ASCII are taken one by one, as they always were.
TEST(CStringUReplace, RawTextIsReplacedByteByByte) {
    CStringU text = Raw("a\xC3\xA9_");
    EXPECT_EQ(text.Replace(u'_', u'\u00e9'), 1);
    EXPECT_EQ(text, CStringU(u"a\u00c3\u00a9\u00e9"));
    text = Raw("a\xC3\xA9_");
    EXPECT_EQ(text.Replace("_", CStringU(u"\u00e9")), 1);
    EXPECT_EQ(text, CStringU(u"a\u00c3\u00a9\u00e9"));
}

TEST(CStringUReplace, AStaleMarkerGoesWithAReplacement) {
    CStringU text =
        Raw("\x80"
            "a_b");
    EXPECT_EQ(text.Replace(u'_', u'-'), 1);
    EXPECT_EQ(Stored(text), "a-b");
    text = Raw("\x80\xC3\xA9_");
    EXPECT_EQ(text.Replace(u'_', u'-'), 1);
    EXPECT_EQ(Stored(text), "\xC3\xA9-");
    text = Raw("\x80\xC3\xA9_");
    EXPECT_EQ(text.ReplaceNoCase(u'_', u'-'), 1);
    EXPECT_EQ(Stored(text), "\xC3\xA9-");
    text = Raw("\x80\xC3\xA9_");
    EXPECT_EQ(text.Replace("_", "-"), 1);
    EXPECT_EQ(Stored(text), "\xC3\xA9-");
}

TEST(CStringUReplace, NoLocaleChangesTheFormsOfACharacter) {
    InEveryLocale([](const char* locale) {
        EXPECT_EQ(ReplacedNoCase(u"iI\u0131\u0130", u'I', u'x'), (TReplaced{2, u"xx\u0131\u0130"})) << locale;
        EXPECT_EQ(ReplacedNoCase(u"TITLE", u"title", u"-----"), (TReplaced{1, u"-----"})) << locale;
    });
}

// --- Beside plain models -------------------------------------------------------------------------------

// Few letters in both cases, so that there is something to replace.
std::u16string Letters(std::mt19937& random, std::size_t longest) {
    static constexpr std::u16string_view ascii = u"aAbB";
    static constexpr std::u16string_view wide = u"aAbB\u00e9\u00c9\u4e2d\u212aki\u0130";
    const std::u16string_view alphabet = UpTo(random, 1) == 0 ? ascii : wide;
    std::u16string text;
    for (std::size_t left = UpTo(random, longest); left > 0; --left)
        text += alphabet[UpTo(random, alphabet.size() - 1)];
    return text;
}

// Something short, or a piece of the text that may be long; such a piece is found, and often more than once.
std::u16string OldText(std::mt19937& random, const std::u16string& text, std::u16string shortOne) {
    if (text.empty() || UpTo(random, 1) == 0) return shortOne;
    return text.substr(UpTo(random, text.size() - 1), UpTo(random, 30));
}

TReplaced ReplaceModel(std::u16string text, const std::u16string& oldText, const std::u16string& newText) {
    int count = 0;
    for (std::size_t at = oldText.empty() ? text.npos : text.find(oldText); at != text.npos;
         at = text.find(oldText, at + newText.size())) {
        text.replace(at, oldText.size(), newText);
        ++count;
    }
    return {count, text};
}

TReplaced ReplaceModel(std::u16string text, char16_t oldUnit, char16_t newUnit) {
    const auto count = std::count(text.begin(), text.end(), oldUnit);
    std::replace(text.begin(), text.end(), oldUnit, newUnit);
    return {static_cast<int>(count), text};
}

bool IsAscii(const std::u16string& text) {
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
}

TReplaced ModelNoCase(std::u16string text, char16_t oldUnit, char16_t newUnit) {
    if (IsAscii(text) && oldUnit < 0x80 && newUnit < 0x80) {
        int count = 0;
        for (char16_t& unit : text) {
            if (FoldChar(unit) != FoldChar(oldUnit)) continue;
            unit = newUnit;
            ++count;
        }
        return {count, text};
    }
    TReplaced result{0, text};
    std::u16string forms{oldUnit};
    for (const char16_t form : {FoldChar(oldUnit), vapp_text::UpperChar(oldUnit)}) {
        if (form != oldUnit) forms += form;
    }
    const bool found = std::any_of(text.begin(), text.end(),
                                   [&](char16_t unit) { return FoldChar(unit) == FoldChar(oldUnit); });
    for (const char16_t form : forms) {
        if (!found) break;
        const TReplaced pass = ReplaceModel(result.text, form, newUnit);
        result = {result.count + pass.count, pass.text};
    }
    return result;
}

std::u16string Lower(std::u16string text) {
    std::transform(text.begin(), text.end(), text.begin(), FoldChar);
    return text;
}

// The rule of a text that is found, word by word, each edit on the whole text.
TReplaced ModelOfHits(std::u16string text, const std::u16string& oldText, const std::u16string& newText) {
    const std::u16string low = Lower(text);
    const std::u16string lowOld = Lower(oldText);
    int count = 0;
    for (std::size_t at = low.find(lowOld); at != low.npos && at <= text.size();) {
        const std::size_t behind = std::min(at + oldText.size(), text.size());
        text = text.substr(0, at) + newText + text.substr(behind);
        ++count;
        const std::size_t moved = newText.empty() ? std::max<std::size_t>(oldText.size(), 1) : newText.size();
        at = low.find(lowOld, at + moved);
    }
    return {count, text};
}

TReplaced ModelNoCase(const std::u16string& text, const std::u16string& oldText,
                      const std::u16string& newText) {
    const std::u16string low = Lower(text);
    const std::u16string lowOld = Lower(oldText);
    const bool found = IsAscii(oldText) ? low.find(lowOld) != low.npos : low.ends_with(lowOld);
    return found ? ModelOfHits(text, oldText, newText) : TReplaced{0, text};
}

// ASCII is replaced by bytes, a way of its own.
TEST(CStringUReplace, RandomAsciiTextsAgreeWithPlainModels) {
    std::mt19937 random = SeededRandom();
    const auto ascii = [&](std::size_t longest) {
        const std::size_t letters = UpTo(random, 3) == 0 ? 1 : 4;
        std::u16string text;
        for (std::size_t left = UpTo(random, longest); left > 0; --left)
            text += u"aAbB_"[UpTo(random, letters)];
        return text;
    };
    for (int round = 0; round < 30000; ++round) {
        const std::u16string text = ascii(round % 3 == 0 ? 60 : 14);
        const std::u16string oldText = OldText(random, text, ascii(3));
        const std::u16string newText = ascii(round % 4 == 0 ? 24 : 4);
        ASSERT_EQ(Replaced(text, oldText, newText), ReplaceModel(text, oldText, newText))
            << Shown(Bytes(text));
        ASSERT_EQ(ReplacedNoCase(text, oldText, newText), ModelNoCase(text, oldText, newText))
            << Shown(Bytes(text)) << ": " << Shown(Bytes(oldText)) << " to " << Shown(Bytes(newText));
    }
}

TEST(CStringUReplace, ATextReplacesItself) {
    for (const bool caseSensitive : {true, false}) {
        CStringU text("abc");
        EXPECT_EQ(caseSensitive ? text.Replace(text, "xy") : text.ReplaceNoCase(text, "xy"), 1);
        EXPECT_EQ(text, CStringU("xy"));
        EXPECT_EQ(caseSensitive ? text.Replace("x", text) : text.ReplaceNoCase("X", text), 1);
        EXPECT_EQ(text, CStringU("xyy"));
    }
}

TEST(CStringUReplace, RandomTextsAgreeWithPlainModels) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const std::u16string text = Letters(random, round % 3 == 0 ? 50 : 12);
        const std::u16string oldText = OldText(random, text, Letters(random, 3));
        const std::u16string newText = Letters(random, round % 4 == 0 ? 24 : 3);
        const std::u16string two = Letters(random, 9) + u"ab\u00c9";
        const char16_t oldUnit = two[UpTo(random, two.size() - 1)];
        const char16_t newUnit = two[UpTo(random, two.size() - 1)];
        ASSERT_EQ(Replaced(text, oldText, newText), ReplaceModel(text, oldText, newText))
            << Shown(Bytes(text));
        ASSERT_EQ(Replaced(text, oldUnit, newUnit), ReplaceModel(text, oldUnit, newUnit))
            << Shown(Bytes(text));
        ASSERT_EQ(ReplacedNoCase(text, oldUnit, newUnit), ModelNoCase(text, oldUnit, newUnit))
            << Shown(Bytes(text)) << ' ' << static_cast<int>(oldUnit) << ' ' << static_cast<int>(newUnit);
        ASSERT_EQ(ReplacedNoCase(text, oldText, newText), ModelNoCase(text, oldText, newText))
            << Shown(Bytes(text)) << ' ' << Shown(Bytes(oldText)) << ' ' << Shown(Bytes(newText));
    }
}

// What is replaced in malformed text is what its characters, as they decode, say; a search that goes by the
// look of the bytes may find nothing of it, and then nothing has changed.
void ExpectModelOrNothing(const CStringU& source, const CStringU& result, int count,
                          const TReplaced& expected) {
    if (count == 0 && result == source) return;
    const std::u16string units = expected.text.substr(0, expected.text.find(u'\0'));
    ASSERT_EQ(count, expected.count) << Shown(Stored(source));
    ASSERT_EQ(result.ToWide(), units) << Shown(Stored(source));
}

// Found or not is the search's to say, which goes by the look of the bytes; all behind that is the model's.
// What is found by its bytes and not by its characters comes back as it decodes.
void ExpectReplacedAsFound(const CStringU& source, const CStringU& result, int count, const CStringU& oldText,
                           const CStringU& newText) {
    if (vapp_text::FindTextNoCaseU(source.Payload(), oldText.Payload()) == vapp_text::cnNotFound) {
        ASSERT_EQ(count, 0) << Shown(Stored(source)) << ' ' << Shown(Stored(oldText));
        ASSERT_EQ(Stored(result), Stored(source));
        return;
    }
    const TReplaced expected = ModelOfHits(source.ToWide(), oldText.ToWide(), newText.ToWide());
    ASSERT_EQ(count, expected.count) << Shown(Stored(source)) << ' ' << Shown(Stored(oldText));
    ASSERT_EQ(result.ToWide(), expected.text.substr(0, expected.text.find(u'\0'))) << Shown(Stored(source));
}

// From anywhere to the end, or some of it.
std::string PieceOf(std::mt19937& random, const CStringU& text) {
    const std::string_view bytes = text.PayloadView();
    const std::size_t from = UpTo(random, bytes.size());
    const std::size_t most = bytes.size() - from;
    return std::string(bytes.substr(from, UpTo(random, 1) == 0 ? most : UpTo(random, most)));
}

TEST(CStringUReplace, MalformedTextsAreReplacedAsTheyDecode) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const CStringU source(HostileBytes(random, round % 4 == 0 ? 60 : 12).c_str(), TextEncoding::Utf8Auto);
        // A long one is searched for in another way than a short one.
        const std::string oldBytes = round % 4 == 0 ? PieceOf(random, source) : HostileBytes(random, 3);
        const CStringU oldText(oldBytes.c_str(), TextEncoding::Utf8Auto);
        const CStringU newText(HostileBytes(random, 3).c_str(), TextEncoding::Utf8Auto);
        const char16_t oldUnit = oldText.LastChar();
        const char16_t newUnit = newText.LastChar();
        CStringU text = source;
        int count = text.Replace(oldText, newText);
        ExpectModelOrNothing(source, text, count,
                             ReplaceModel(source.ToWide(), oldText.ToWide(), newText.ToWide()));
        text = source;
        count = text.Replace(oldUnit, newUnit);
        ExpectModelOrNothing(source, text, count, ReplaceModel(source.ToWide(), oldUnit, newUnit));
        text = source;
        count = text.ReplaceNoCase(oldText, newText);
        ExpectReplacedAsFound(source, text, count, oldText, newText);
        // The model knows ASCII by its characters, the text by its first byte: an overlong letter is both.
        if (source.HasNonAscii() == IsAscii(source.ToWide())) continue;
        text = source;
        count = text.ReplaceNoCase(oldUnit, newUnit);
        ExpectModelOrNothing(source, text, count, ModelNoCase(source.ToWide(), oldUnit, newUnit));
    }
}

TEST(CStringUReplace, AnyBytesInAnyEncodingEnd) {
    std::mt19937 random = SeededRandom();
    for (int round = 0; round < 20000; ++round) {
        const CStringU source(HostileBytes(random).c_str(), static_cast<TextEncoding>(UpTo(random, 4)));
        const CStringU oldText(HostileBytes(random, 3).c_str(), static_cast<TextEncoding>(UpTo(random, 4)));
        const CStringU newText(HostileBytes(random, 3).c_str(), static_cast<TextEncoding>(UpTo(random, 4)));
        // An empty old text is found once at every character and once behind the last.
        const auto limit = static_cast<int>(Stored(source).size()) + 1;
        CStringU text = source;
        ASSERT_LE(text.Replace(oldText, newText), limit);
        text = source;
        ASSERT_LE(text.ReplaceNoCase(oldText, newText), limit);
    }
}

}  // namespace

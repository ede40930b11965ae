#include "text/EnvironmentReferences.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "tests/text/HostileText.h"

namespace {

using vapp_text::EnvironmentReference;
using vapp_text::EnvironmentReferences;
using vapp_text::ExpandEnvironmentReferences;

using Variables = std::map<std::u16string, std::u16string>;

const Variables cnVariables = {{u"A", u"<a>"},        {u"A_1", u"<a1>"},    {u"ROOT", u"/base"},
                               {u"EMPTY", u""},       {u"A B", u"<blank>"}, {u"\u00E9", u"<e>"},
                               {u"SELF", u"$SELF$A"}, {u"{A", u"<brace>"}};

// A value is an absolute path here if it begins with a slash.
vapp_text::JudgedEnvironmentLookup LookupIn(const Variables& variables) {
    return [&variables](std::u16string_view name) -> std::optional<vapp_text::EnvironmentValue> {
        const auto found = variables.find(std::u16string(name));
        if (found == variables.end()) return std::nullopt;
        return vapp_text::EnvironmentValue{found->second, found->second.starts_with(u'/')};
    };
}

std::u16string Expand(std::u16string_view text) {
    return ExpandEnvironmentReferences(text, LookupIn(cnVariables));
}

struct ExpansionCase {
    const char* name;
    std::u16string_view text;
    std::u16string_view expected;
};

void PrintTo(const ExpansionCase& row, std::ostream* out) {
    *out << row.name;
}

class EnvironmentReferencesTest : public testing::TestWithParam<ExpansionCase> {};

TEST_P(EnvironmentReferencesTest, ExpandsAsTold) {
    EXPECT_EQ(Expand(GetParam().text), GetParam().expected);
}

constexpr ExpansionCase cnCases[] = {
    {"EmptyText", u"", u""},
    {"NoReference", u"plain", u"plain"},
    {"Braces", u"x${A}y", u"x<a>y"},
    {"DollarToTheFirstOtherCharacter", u"x$A-y", u"x<a>-y"},
    {"DollarTakesDigitsAndUnderscore", u"$A_1.", u"<a1>."},
    {"DollarEndsAtTheEndOfText", u"x$A", u"x<a>"},
    {"DollarEndsAtACharacterBeyondAscii", u"$A\u00E9", u"<a>\u00E9"},
    {"Percent", u"x%A%y", u"x<a>y"},
    {"PercentAndBracesTakeAnyCharacter", u"%A B%${A B}${\u00E9}%\u00E9%", u"<blank><blank><e><e>"},
    {"BracesTakeABrace", u"${{A}", u"<brace>"},
    {"UnsetStays", u"x${NO}$NO%NO%y", u"x${NO}$NO%NO%y"},
    {"BehindAnUnsetReferenceTheScanGoesOn", u"%NO%A%", u"%NO%A%"},
    {"InAnUnsetReferenceNothingIsLookedFor", u"${N$A}", u"${N$A}"},
    {"UnclosedBraceIsLeftAlone", u"${A", u"${A"},
    {"BehindAnUnclosedBraceTheScanGoesOn", u"${A$A", u"${A<a>"},
    {"UnclosedPercentIsLeftAlone", u"%A", u"%A"},
    {"BehindAnUnclosedPercentTheScanGoesOn", u"%$A", u"%<a>"},
    {"EmptyBracesAreLeftAlone", u"${}$A", u"${}<a>"},
    {"EmptyDollarIsLeftAlone", u"$-$$A", u"$-$<a>"},
    {"EmptyPercentIsLeftAloneAndItsEndBeginsAnother", u"%%A%", u"%<a>"},
    {"LastCharacterBeginsNothing", u"A$", u"A$"},
    {"LastPercentBeginsNothing", u"A%", u"A%"},
    {"OneCharacter", u"$", u"$"},
    {"EmptyValue", u"x${EMPTY}y", u"xy"},
    {"AbsoluteValueDropsWhatIsInFront", u"a$A/${ROOT}/b$A", u"/base/b<a>"},
    {"TheLastAbsoluteValueWins", u"$ROOT$ROOT-x", u"/base-x"},
    {"ValuesAreNotExpandedAgain", u"$SELF", u"$SELF$A"},
    {"NamesAreTakenAsTheyStand", u"$a", u"$a"},
};

INSTANTIATE_TEST_SUITE_P(Cases, EnvironmentReferencesTest, testing::ValuesIn(cnCases),
                         [](const auto& row) { return row.param.name; });

/// As EnvironmentReferences, by another road: the text is edited in place, place by place.
std::u16string ExpandInPlace(std::u16string text, const Variables& variables) {
    const auto isNameUnit = [](char16_t c) { return c == u'_' || (c < 0x80 && std::isalnum(c) != 0); };
    for (std::size_t i = 0; i + 1 < text.size();) {
        std::size_t name = i + 1;
        std::size_t nameEnd = std::u16string::npos;
        std::size_t behind = 0;
        if (text[i] == u'$' && text[i + 1] == u'{') {
            name = i + 2;
            nameEnd = text.find(u'}', name);
            behind = nameEnd + 1;
        } else if (text[i] == u'$') {
            for (nameEnd = name; nameEnd < text.size() && isNameUnit(text[nameEnd]);)
                ++nameEnd;
            behind = nameEnd;
        } else if (text[i] == u'%') {
            nameEnd = text.find(u'%', name);
            behind = nameEnd + 1;
        }
        if (nameEnd == std::u16string::npos || nameEnd == name) {
            ++i;
            continue;
        }
        const auto value = LookupIn(variables)(text.substr(name, nameEnd - name));
        if (!value) {
            i = behind;
        } else if (value->isAbsolute) {
            text = std::u16string(value->text) + text.substr(behind);
            i = value->text.size();
        } else {
            text.replace(i, behind - i, value->text);
            i += value->text.size();
        }
    }
    return text;
}

TEST(EnvironmentReferencesPropertyTest, AgreesWithEditingInPlace) {
    std::mt19937 random = text_test::SeededRandom();
    static constexpr std::u16string_view pieces[] = {u"$",    u"{",  u"}",    u"%", u"A",      u"A_1",
                                                     u"ROOT", u"NO", u"x",    u"/", u"\u00E9", u"${A}",
                                                     u"%A%",  u"$A", u"SELF", u" "};
    for (int round = 0; round < 20000; ++round) {
        std::u16string text;
        for (std::size_t left = text_test::UpTo(random, 9); left > 0; --left)
            text += pieces[text_test::UpTo(random, std::size(pieces) - 1)];
        const std::u16string expected = ExpandInPlace(text, cnVariables);
        ASSERT_EQ(Expand(text), expected) << text_test::Shown(text_test::Bytes(text));
        const std::size_t most = text_test::UpTo(random, 12);
        ASSERT_EQ(ExpandEnvironmentReferences(text, LookupIn(cnVariables), most), expected.substr(0, most))
            << text_test::Shown(text_test::Bytes(text));
    }
}

TEST(EnvironmentReferencesPlacesTest, EachReferenceTellsItsPlaceAndName) {
    const std::u16string_view text = u"a${B}%C%$";
    EnvironmentReferences references(text);
    const std::optional<EnvironmentReference> first = references.Next();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->first, 1U);
    EXPECT_EQ(first->behind, 5U);
    EXPECT_EQ(first->name, u"B");
    const std::optional<EnvironmentReference> second = references.Next();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->first, 5U);
    EXPECT_EQ(second->behind, 8U);
    EXPECT_EQ(second->name, u"C");
    EXPECT_FALSE(references.Next());
    EXPECT_FALSE(references.Next());
}

TEST(EnvironmentReferencesPlacesTest, AMillionUnclosedBracesAreReadOnce) {
    std::u16string text;
    for (int i = 0; i < 1'000'000; ++i)
        text += u"${";
    EXPECT_EQ(Expand(text), text);
}

TEST(EnvironmentReferencesPlacesTest, OnlyTheTwoSignsMayBeginAReference) {
    EXPECT_FALSE(vapp_text::MayHoldEnvironmentReference(u"a{b}"));
    EXPECT_TRUE(vapp_text::MayHoldEnvironmentReference(u"a$"));
    EXPECT_TRUE(vapp_text::MayHoldEnvironmentReference(u"%a"));
    EXPECT_FALSE(vapp_text::MayHoldEnvironmentReference("a{b}"));
    EXPECT_TRUE(vapp_text::MayHoldEnvironmentReference("a$"));
    EXPECT_TRUE(vapp_text::MayHoldEnvironmentReference("%a"));
}

}  // namespace

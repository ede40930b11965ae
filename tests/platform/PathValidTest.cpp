#include "platform/PathValid.h"

#include <gtest/gtest.h>

#include "tests/platform/PathSamples.h"

namespace {

using namespace path_test;
using vapp_platform::IsValidPath;

struct ValidCase {
    const char* name;
    const char* path;
    bool windows;
    bool wine;
};

void PrintTo(const ValidCase& row, std::ostream* out) {
    *out << row.name;
}

class PathValidTest : public testing::TestWithParam<ValidCase> {};

TEST_P(PathValidTest, JudgesInEachWorld) {
    EXPECT_EQ(IsValidPath(Utf8(GetParam().path), World::Windows), GetParam().windows);
    EXPECT_EQ(IsValidPath(Utf8(GetParam().path), World::Wine), GetParam().wine);
}

constexpr ValidCase cnValidCases[] = {
    {"Empty", "", false, false},
    {"OnlyASeparator", "\\", false, false},
    {"OnlyAUnixRoot", "/", false, false},
    {"OnlyTwoSeparators", "\\\\", false, false},
    {"Name", "a", true, true},
    {"DriveAndNames", "C:\\a\\b c", true, true},
    {"DriveRoot", "C:\\", true, true},
    {"DriveAndASeparatorAtTheEnd", "C:\\a\\", true, true},
    {"SmallDrive", "c:/a", true, true},
    {"DriveAlone", "C:", true, true},
    {"DriveRelative", "C:x\\y", false, true},
    {"DriveOfADigit", "1:\\x", false, true},
    {"DriveBeyondAscii", "\xC3\xA9:\\x", false, true},
    {"ColonFirst", "::\\x", false, true},
    {"EmptyPartInside", "C:\\a\\\\b", false, true},
    {"EmptyPartInsideOfBoth", "C:\\a\\/b", false, true},
    {"EmptyPartInsideByUnixSeparators", "/a//b", false, false},
    {"TwoSeparatorsAtTheEnd", "a//", false, false},
    {"SeparatorAtTheEnd", "a/", true, true},
    {"Share", "\\\\s\\sh\\x", true, true},
    {"ThreeSeparators", "\\\\\\s", false, true},
    {"ThreeUnixSeparators", "///s", false, false},
    {"TwoUnixSeparators", "//s/x", true, true},
    {"ShareWithAForbiddenMachine", "\\\\s*\\x", false, true},
    {"RelativePathWithAForbiddenFirstPart", "a*b\\x", true, true},
    {"UnixPathWithAForbiddenFirstPart", "/a*b/x", true, true},
    {"RelativeUnixPathWithAForbiddenSecondPart", "./a*b", false, false},
    {"QuotedUnixPathEndsInAQuote", "\"/a/b\"", false, false},
    {"DoubleQuote", "a/\"", false, false},
    {"Asterisk", "a/*", false, false},
    {"QuestionMark", "a/?", false, false},
    {"Less", "a/<", false, false},
    {"Greater", "a/>", false, false},
    {"Bar", "a/|", false, false},
    {"Colon", "a/b:c", false, false},
    {"ColonBehindADrive", "C:\\b:c", false, false},
    {"SingleQuoteAndBlanks", "a/' \t;", true, true},
    {"BeyondAscii", "a/\xC3\xA9\xE4\xB8\xAD", true, true},
};

INSTANTIATE_TEST_SUITE_P(Cases, PathValidTest, testing::ValuesIn(cnValidCases),
                         [](const auto& row) { return row.param.name; });

/// The rule step by step, over lists.
bool ModelIsValid(const std::string& path, World world) {
    std::string copy = path;
    if (world == World::Windows) std::replace(copy.begin(), copy.end(), '\\', '/');
    if (copy.find("//", 1) != std::string::npos) return false;
    std::vector<std::string> parts(1);
    for (const char byte : path) {
        if (byte == '/' || byte == '\\') {
            parts.emplace_back();
        } else {
            parts.back() += byte;
        }
    }
    std::erase(parts, "");
    if (parts.empty()) return false;
    const auto isForbidden = [](const std::string& part) {
        return part.find_first_of("\"*?<>|:") != std::string::npos;
    };
    const bool unixPath = path.starts_with("/") || path.starts_with("./") || path.starts_with("../");
    if (world == World::Windows && !unixPath) {
        if (path.size() >= 2 && path[1] == ':') {
            if (parts[0].size() != 2 || std::isalpha(static_cast<unsigned char>(parts[0][0])) == 0)
                return false;
        } else if (path.starts_with("\\\\") && isForbidden(parts[0])) {
            return false;
        }
    }
    return std::none_of(parts.begin() + 1, parts.end(), isForbidden);
}

TEST(PathValidModelTest, AgreesWithTheModelStepByStep) {
    std::mt19937 random = text_test::SeededRandom();
    static constexpr std::u16string_view pieces[] = {u"/", u"\\", u"\\\\", u":", u"C:", u"a", u"*", u"."};
    for (int round = 0; round < 10000; ++round) {
        std::u16string path;
        for (std::size_t left = UpTo(random, 7); left > 0; --left)
            path += OneOf(random, pieces);
        const std::string bytes = text_test::Bytes(path);
        for (const World world : cnWorlds)
            ASSERT_EQ(IsValidPath(bytes.c_str(), world), ModelIsValid(bytes, world))
                << NameOf(world) << ' ' << bytes;
    }
}

}  // namespace

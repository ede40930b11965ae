/// Names of files become valid UTF-8 and stay readable.

#include "host/DisplayName.h"

#include <gtest/gtest.h>

#include <QString>
#include <random>

namespace navigator {
namespace {

struct NameRow {
    std::string bytes;
    std::string text;
};

TEST(DisplayName, EscapesExactlyTheBytesOfNoValidSequence) {
    const NameRow rows[] = {
        {"inv", "inv"},
        {"a b{c}\"d\n$x[exit]", "a b{c}\"d\n$x[exit]"},
        {"verst\xC3\xA4rker", "verst\xC3\xA4rker"},
        {"\xE2\x82\xAC \xF0\x9F\x98\x80", "\xE2\x82\xAC \xF0\x9F\x98\x80"},
        {"a\xFF", "a%FF"},
        {"\xC3", "%C3"},
        {"\xC0\x80", "%C0%80"},         // overlong
        {"\xE0\x80\x80", "%E0%80%80"},  // overlong
        {"\xED\xA0\x80", "%ED%A0%80"},  // surrogate
        {"\xF4\x90\x80\x80", "%F4%90%80%80"},
        {"\xE2\x82z", "%E2%82z"},
        {"%FF", "%FF"},
    };
    for (const NameRow& row : rows)
        EXPECT_EQ(gSanitisedUtf8(row.bytes), row.text);
}

TEST(DisplayName, AgreesWithQtOnWhatIsValidForRandomBytes) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string alphabet = "a\x80\xA0\xBF\xC2\xE0\xE2\xED\xF0\xF4\x90\x82";
    for (int round = 0; round < 20000; ++round) {
        std::string bytes;
        for (std::size_t length = random() % 7; length > 0; --length)
            bytes += alphabet[random() % alphabet.size()];
        const std::string text = gSanitisedUtf8(bytes);
        const QString decoded = QString::fromUtf8(text);
        EXPECT_EQ(decoded.toStdString(), text);
        EXPECT_FALSE(decoded.contains(QChar(0xFFFD)));
        const QString direct = QString::fromUtf8(bytes);
        EXPECT_EQ(text == bytes, !direct.contains(QChar(0xFFFD)));
    }
}

TEST(DisplayName, MakesUniqueNamesByANumber) {
    const auto isTaken = [](const std::string& name) { return name == "a" || name == "a~2"; };
    EXPECT_EQ(gMakeUnique("a", isTaken), "a~3");
    EXPECT_EQ(gMakeUnique("b", isTaken), "b");
}

}  // namespace
}  // namespace navigator

#include "celllist/OddName.h"

#include <gtest/gtest.h>

namespace {

using namespace vapp_library_browser;

TEST(OddName, ProperTextIsNotOdd) {
    for (const char* name : {"", "inv", "\x7F", "verst\xC3\xA4rker", "\xDF\xBF", "\xE0\xA0\x80",
                             "\xE4\xB8\xAD", "\xEF\xBF\xBF", "\xED\xA0\x80"})
        EXPECT_FALSE(IsOddName(name)) << name;
}

TEST(OddName, BytesThatAreNoCharactersAreOdd) {
    for (const char* name : {"\x80", "\xBF", "a\xC3",
                             "\xC3"
                             "a",
                             "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE4\xB8",
                             "\xE4\xB8"
                             "a",
                             "\xF0\x9F\x98\x80", "\xF8", "\xFF"})
        EXPECT_TRUE(IsOddName(name)) << name;
}

TEST(OddName, OneOddNameMakesATableOdd) {
    NameTable names;
    names.Intern("inv");
    EXPECT_FALSE(HasOddName(names));
    names.Intern("\xC3\xA4");
    EXPECT_FALSE(HasOddName(names));
    // The bytes of two names side by side would be a character.
    names.Intern("\xC3");
    names.Intern("\xA4");
    EXPECT_TRUE(HasOddName(names));
}

}  // namespace

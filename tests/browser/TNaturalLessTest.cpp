#include "vapp/browser/TNaturalLess.h"

#include <gtest/gtest.h>

#include <map>

using namespace vapp_library_browser;

namespace {

bool Less(const char* left, const char* right) {
    return TNaturalLess()(CStringU(left, TextEncoding::Utf8Auto), CStringU(right, TextEncoding::Utf8Auto));
}

}  // namespace

TEST(TNaturalLessTest, DigitsCountByTheirValue) {
    EXPECT_TRUE(Less("lib9", "lib10"));
    EXPECT_FALSE(Less("lib10", "lib9"));
    EXPECT_TRUE(Less("", "a"));
}

TEST(TNaturalLessTest, NamesThatDifferInCaseAreTwo) {
    EXPECT_NE(Less("lib", "Lib"), Less("Lib", "lib"));
    const std::map<CStringU, int, TNaturalLess> names = {{"lib", 1}, {"Lib", 2}, {"lib", 3}};
    EXPECT_EQ(names.size(), 2u);
    EXPECT_EQ(names.at("lib"), 1);
}

TEST(TNaturalLessTest, NamesThatDifferInTheScriptOfTheirDigitsAreOne) {
    EXPECT_FALSE(Less("lib3", "lib\xD9\xA3"));
    EXPECT_FALSE(Less("lib\xD9\xA3", "lib3"));
}

TEST(TNaturalLessTest, NoNameComesBeforeItself) {
    for (const char* name : {"", "lib", "lib007", "caf\xC3\xA9", "a\xFF", "\xC0\x80"})
        EXPECT_FALSE(Less(name, name)) << name;
}

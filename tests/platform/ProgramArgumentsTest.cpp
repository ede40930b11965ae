/// @file
/// The program is its own child here: it tells the words that it finds without its main function's help.
#include "platform/ProgramArguments.h"

#include <gtest/gtest.h>

#include "tests/platform/ChildRoles.h"

namespace {

std::string WordsOf(const std::vector<std::string>& words) {
    platform_test::PipedChild child = platform_test::StartRole("program-arguments", words);
    EXPECT_NE(child.child, nullptr);
    if (child.child == nullptr) return {};
    std::string all = platform_test::ReadAll(*child.output);
    EXPECT_TRUE(child.child->WaitFor(platform_test::cnLong));
    return all;
}

TEST(ProgramArguments, AreTheWordsBehindTheName) {
    EXPECT_EQ(WordsOf({}), "[--child=program-arguments]");
    EXPECT_EQ(WordsOf({"a b", "", "c\"d", "\\e\\", "\xC3\xA9"}),
              "[--child=program-arguments][a b][][c\"d][\\e\\][\xC3\xA9]");
}

}  // namespace

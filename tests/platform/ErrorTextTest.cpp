#include "platform/ErrorText.h"

#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "platform/SystemError.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

constexpr std::uint32_t cnNoSuchCode = 0x2FFFFFFF;

TEST(ErrorTextTest, TwoCodesHaveTextsOfTheirOwn) {
    EXPECT_EQ(gGetErrorText(126), "The specified module or one of its sub-modules could not be found.");
    EXPECT_EQ(gGetErrorText(193), "It is not valid Win64 application.");
}

TEST(ErrorTextTest, OtherCodesHaveTheSystemsText) {
    EXPECT_FALSE(gGetErrorText(2).IsEmpty());
    EXPECT_FALSE(gGetErrorText(vapp_platform::cnAlreadyExistsError).IsEmpty());
    EXPECT_NE(gGetErrorText(2), gGetErrorText(5));
}

TEST(ErrorTextTest, CodesThatNobodyKnowsHaveNoText) {
    EXPECT_EQ(gGetErrorText(cnNoSuchCode), CStringU());
    EXPECT_EQ(gGetErrorText(0xFFFFFFFF), CStringU());
}

TEST(ErrorTextTest, TheLastFailureIsToldBehindThePrefix) {
    const CStringU prefix = "Can't make it.";
    std::uint32_t code = 0;
    // A folder in a folder that isn't there: 3 on Windows, ENOENT elsewhere.
    const platform_test::TTemporaryFolder folder;
    const CStringU missing = folder.Path("missing/below");
    const std::uint32_t expected = vapp_platform::CreateFolder(missing);
    const CStringU text = gGetLastErrorText(prefix, &code);
    EXPECT_EQ(code, expected);
    EXPECT_EQ(text, prefix + '\n' + gGetErrorText(code));
}

TEST(ErrorTextTest, WithoutAPrefixThereIsNoLineFeedAndWithoutAPointerNoCode) {
    const platform_test::TTemporaryFolder folder;
    const CStringU missing = folder.Path("missing/below");
    const std::uint32_t code = vapp_platform::CreateFolder(missing);
    EXPECT_EQ(gGetLastErrorText(CStringU()), gGetErrorText(code));
}

}  // namespace

#include "platform/VersionNumbers.h"

#include <gtest/gtest.h>

namespace {

using vapp_platform::WithPlainBuildNumber;

TEST(VersionNumbersTest, OnlyTheNewLineKeepsAllOfItsBuildNumber) {
    for (const std::uint32_t platformId : {0u, 1u, 3u, 4u}) {
        TVersionInfo version{};
        version.dwPlatformId = platformId;
        version.dwBuildNumber = 0x040A08AE;
        EXPECT_EQ(WithPlainBuildNumber(version).dwBuildNumber, 0x08AEu) << platformId;
    }
    TVersionInfo version{};
    version.dwPlatformId = 2;
    version.dwBuildNumber = 0x040A08AE;
    EXPECT_EQ(WithPlainBuildNumber(version).dwBuildNumber, 0x040A08AEu);
}

}  // namespace

#include "platform/posix/KernelRelease.h"

#include <gtest/gtest.h>

namespace {

using vapp_platform::ParseKernelRelease;
using vapp_platform::TKernelRelease;

struct TReleaseRow {
    const char* text;
    std::uint32_t major, minor, patch;
    const char* rest;
};

const TReleaseRow cnReleaseRows[] = {
    {"6.1.0-13-amd64", 6, 1, 0, "-13-amd64"},
    {"5.15.167.4-standard", 5, 15, 167, ".4-standard"},
    {"4.4.0", 4, 4, 0, ""},
    {"6.12-rc1", 6, 12, 0, "-rc1"},
    {"7", 7, 0, 0, ""},
    {"", 0, 0, 0, ""},
    {"linux", 0, 0, 0, "linux"},
    {"6.x", 6, 0, 0, ".x"},
    {"6..1", 6, 0, 0, "..1"},
    {"-1.2", 0, 0, 0, "-1.2"},
    {"99999999999.1", 0, 0, 0, "99999999999.1"},
};

TEST(KernelReleaseTest, NumbersAreTakenWhileTheyGoOn) {
    for (const TReleaseRow& row : cnReleaseRows) {
        const TKernelRelease release = ParseKernelRelease(row.text);
        EXPECT_EQ(release.major, row.major) << row.text;
        EXPECT_EQ(release.minor, row.minor) << row.text;
        EXPECT_EQ(release.patch, row.patch) << row.text;
        EXPECT_EQ(release.rest, row.rest) << row.text;
    }
}

}  // namespace

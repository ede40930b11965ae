#include "platform/MessageBox.h"

#include <gtest/gtest.h>

namespace {

TEST(PosixMessageBox, WithoutAHostItIsALineOnStandardError) {
    testing::internal::CaptureStderr();
    vapp_platform::ShowMessageBox("text", "caption", vapp_platform::BoxStyle::Plain);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "caption: text\n");
}

}  // namespace

#include "platform/MessageBox.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string gShown;

TEST(MessageBox, TheHostsFunctionShowsIt) {
    gSetMessageBox([](const char* text, const char* caption) { gShown = std::string(caption) + '/' + text; });
    vapp_platform::ShowMessageBox("text", "caption", vapp_platform::BoxStyle::Plain);
    gSetMessageBox(nullptr);
    EXPECT_EQ(gShown, "caption/text");
}

}  // namespace

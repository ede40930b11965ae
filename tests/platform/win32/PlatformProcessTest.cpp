#include "text/PlatformProcess.h"

#include <gtest/gtest.h>
#include <windows.h>

TEST(PlatformProcess, TheNumberIsTheSystemsOwn) {
    EXPECT_EQ(vapp_platform::OwnProcessNumber(), static_cast<unsigned long>(GetCurrentProcessId()));
}

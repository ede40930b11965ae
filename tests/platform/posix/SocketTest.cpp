/// @file
/// Sockets beside the environment of the process and its children.
#include "platform/Socket.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>

#include "platform/posix/EnvironmentLock.h"
#include "tests/platform/SystemHelpers.h"

namespace {

// The resolver reads variables, which another connection may be setting.
TEST(PosixSocket, ListeningWaitsForWhoChangesTheEnvironment) {
    std::atomic<std::uint32_t> thread = 0;
    std::atomic<bool> listens = false;
    std::unique_lock lock(vapp_platform::EnvironmentLock());
    std::thread listener([&] {
        thread = platform_test::OwnThreadId();
        listens = vapp_platform::ListenAtLocalhost().socket != nullptr;
    });
    while (thread == 0)
        std::this_thread::yield();
    EXPECT_TRUE(platform_test::WaitUntilAsleep(thread));
    EXPECT_FALSE(listens);
    lock.unlock();
    listener.join();
    EXPECT_TRUE(listens);
}

}  // namespace

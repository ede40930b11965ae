/// @file
/// What Windows adds to a start: handles that can be inherited.
#include "platform/ChildProcess.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <utility>

#include "platform/Pipe.h"
#include "tests/platform/ChildRoles.h"

namespace {

using vapp_platform::ChildProcess;
using vapp_platform::ChildStart;
using vapp_platform::OwnedHandle;

bool IsInheritable(const OwnedHandle& handle) {
    DWORD flags = 0;
    EXPECT_NE(GetHandleInformation(reinterpret_cast<HANDLE>(handle.Get()), &flags), 0);
    return (flags & HANDLE_FLAG_INHERIT) != 0;
}

// A second child, which the host starts by itself, would else hold the worker's end of the stream open.
TEST(Win32ChildProcess, BehindAStartItsStreamsAreInheritedByNobody) {
    for (const char* const role : {"exit", ""}) {
        OwnedHandle readEnd, writeEnd;
        ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
        EXPECT_TRUE(IsInheritable(writeEnd));
        ChildStart start;
        start.commandLine = *role != '\0' ? platform_test::RoleCommand(role, {"0"}) : "vapp-no-such-program";
        start.output = writeEnd.Get();
        start.error = writeEnd.Get();
        EXPECT_EQ(ChildProcess::Start(start).child != nullptr, *role != '\0');
        EXPECT_FALSE(IsInheritable(writeEnd));
    }
}

TEST(Win32ChildProcess, AStreamCanBeGivenToOneChildAfterTheOther) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    ChildStart start;
    start.commandLine = platform_test::RoleCommand("both-streams");
    start.output = writeEnd.Get();
    start.error = writeEnd.Get();
    for (int round = 0; round < 2; ++round) {
        const auto started = ChildProcess::Start(start);
        ASSERT_NE(started.child, nullptr);
        EXPECT_TRUE(started.child->WaitFor(platform_test::cnLong));
    }
    writeEnd.Drop();
    vapp_platform::PipeReader reader(std::move(readEnd));
    EXPECT_EQ(platform_test::ReadAll(reader), "out errorout error");
}

}  // namespace

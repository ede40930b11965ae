#include "vapp/connection/ConnectionInfo.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

ConnectionInfo Filled() {
    ConnectionInfo info;
    info.sshTarget = "target";
    info.command = "command";
    info.hostName = "host";
    info.runLocally = true;
    info.keyword = "keyword";
    return info;
}

void ExpectFilled(const ConnectionInfo& info) {
    EXPECT_EQ(info.sshTarget, "target");
    EXPECT_EQ(info.command, "command");
    EXPECT_EQ(info.hostName, "host");
    EXPECT_TRUE(info.runLocally);
    EXPECT_EQ(info.keyword, "keyword");
}

TEST(ConnectionInfo, TheTextsOfANewOneAreEmpty) {
    const ConnectionInfo info;
    EXPECT_TRUE(info.sshTarget.IsEmpty());
    EXPECT_TRUE(info.command.IsEmpty());
    EXPECT_TRUE(info.hostName.IsEmpty());
    EXPECT_TRUE(info.keyword.IsEmpty());
}

TEST(ConnectionInfo, MovingCopiesAndLeavesTheSourceIntact) {
    ConnectionInfo source = Filled();
    const ConnectionInfo moved(std::move(source));
    ExpectFilled(moved);
    ExpectFilled(source);  // NOLINT(bugprone-use-after-move): that is the point
    ConnectionInfo assigned;
    assigned = std::move(source);
    ExpectFilled(assigned);
    ExpectFilled(source);  // NOLINT(bugprone-use-after-move)
}

TEST(ConnectionInfo, CopiesAreTheirOwn) {
    const ConnectionInfo source = Filled();
    ConnectionInfo copy(source);
    copy.command = "other";
    ExpectFilled(source);
    copy = source;
    ExpectFilled(copy);
    const ConnectionInfo& same = copy;
    copy = same;
    ExpectFilled(copy);
}

}  // namespace

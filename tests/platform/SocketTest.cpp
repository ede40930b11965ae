#include "platform/Socket.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>

#include "platform/FaultPoint.h"
#include "tests/platform/LocalPeer.h"
#include "tests/platform/SystemHelpers.h"

namespace {

using platform_test::LocalPeer;
using std::chrono::milliseconds;
using vapp_platform::FaultSource;
using vapp_platform::Listening;
using vapp_platform::ListenStep;
using vapp_platform::Socket;
using vapp_platform::SocketLibrary;
using vapp_platform::SystemCall;
using vapp_platform::Transfer;
using vapp_platform::WaitAnswer;

struct SocketTest : testing::Test {
    SocketTest() { EXPECT_EQ(library.Start(), 0); }
    ~SocketTest() override { vapp_platform::SetFaultSource(nullptr); }
    SocketLibrary library;
};

/// Two ends of one connection: ours, and a bare one.
struct Connection {
    Connection() : listening(vapp_platform::ListenAtLocalhost()), peer(listening.port) {
        int code = 0;
        EXPECT_EQ(listening.socket->WaitReadable(milliseconds(30000)).answer, WaitAnswer::Ready);
        socket = listening.socket->Accept(code);
        EXPECT_EQ(code, 0);
    }
    Listening listening;
    LocalPeer peer;
    std::unique_ptr<Socket> socket;
};

// How often a call is caught in its sleep.
constexpr int cnExchanges = 20;

void WaitUntilAsleep(const std::atomic<std::uint32_t>& thread) {
    while (thread == 0)
        std::this_thread::yield();
    EXPECT_TRUE(platform_test::WaitUntilAsleep(thread));
}

TEST_F(SocketTest, ListensAtLocalhostOnAPortOfTheSystemsChoice) {
    const Listening one = vapp_platform::ListenAtLocalhost();
    const Listening two = vapp_platform::ListenAtLocalhost();
    ASSERT_EQ(one.failed, ListenStep::None);
    EXPECT_EQ(one.code, 0);
    EXPECT_NE(one.port, 0);
    EXPECT_NE(one.port, two.port);
    // The port and 127.0.0.1 as the system writes them.
    EXPECT_EQ(one.address[2] * 256 + one.address[3], one.port);
    EXPECT_EQ(one.address[4], 127);
    EXPECT_EQ(one.address[7], 1);
}

TEST_F(SocketTest, TheWaitForAPeerHasALimit) {
    const Listening listening = vapp_platform::ListenAtLocalhost();
    EXPECT_EQ(listening.socket->WaitReadable(milliseconds(0)).answer, WaitAnswer::TimedOut);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(listening.socket->WaitReadable(milliseconds(50)).answer, WaitAnswer::TimedOut);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, milliseconds(45));
}

TEST_F(SocketTest, BytesGoBothWays) {
    Connection connection;
    EXPECT_EQ(connection.socket->WaitWritable(milliseconds(1000)).answer, WaitAnswer::Ready);
    EXPECT_EQ(connection.socket->Send("hello", 5).count, 5);
    EXPECT_EQ(connection.peer.Receive(5), "hello");
    connection.peer.Send("answer");
    char buffer[16];
    EXPECT_EQ(connection.socket->WaitReadable(milliseconds(30000)).answer, WaitAnswer::Ready);
    EXPECT_EQ(connection.socket->Receive(buffer, 3).count, 3);
    EXPECT_EQ(connection.socket->Receive(buffer, sizeof buffer).count, 3);
}

TEST_F(SocketTest, ThePeersEndIsNothingWithoutACode) {
    Connection connection;
    connection.peer.Close();
    char byte = 0;
    const Transfer end = connection.socket->Receive(&byte, 1);
    EXPECT_EQ(end.count, 0);
    EXPECT_EQ(end.code, 0);
}

TEST_F(SocketTest, SendingToAPeerThatHasGoneIsACodeAndNoSignal) {
    Connection connection;
    connection.peer.Close();
    Transfer sent;
    for (int round = 0; round < 100000 && !sent.Failed(); ++round)
        sent = connection.socket->Send("x", 1);
    EXPECT_TRUE(sent.Failed());
}

TEST_F(SocketTest, CloseWakesABlockedReceiveWithACode) {
    for (int round = 0; round < cnExchanges; ++round) {
        Connection connection;
        std::atomic<std::uint32_t> thread = 0;
        Transfer result;
        std::thread receiver([&] {
            char byte = 0;
            thread = platform_test::OwnThreadId();
            result = connection.socket->Receive(&byte, 1);
        });
        WaitUntilAsleep(thread);
        connection.socket->Close();
        receiver.join();
        EXPECT_EQ(result.count, 0);
        EXPECT_TRUE(result.Failed());
        EXPECT_FALSE(vapp_platform::IsWouldBlock(result.code));
        EXPECT_FALSE(connection.socket->IsOpen());
    }
}

// Close shuts down both directions, which a thread in Receive needs; the peer sees the plain end all the
// same, behind everything that was sent.
TEST_F(SocketTest, ThePeerSeesACleanEndBehindAllBytes) {
    Connection connection;
    const std::string sent(200000, 's');
    std::thread closing([&] {
        for (std::size_t done = 0; done < sent.size();) {
            const Transfer result = connection.socket->Send(sent.data() + done, sent.size() - done);
            ASSERT_FALSE(result.Failed());
            done += static_cast<std::size_t>(result.count);
        }
        connection.socket->Close();
    });
    EXPECT_EQ(connection.peer.Receive(sent.size()).size(), sent.size());
    EXPECT_TRUE(connection.peer.SeesTheEnd());
    closing.join();
}

TEST_F(SocketTest, CloseWakesABlockedSend) {
    Connection connection;
    std::atomic<std::int64_t> sent = 0;
    std::thread sender([&] {
        const std::string block(1 << 20, 'x');
        while (true) {
            const Transfer result = connection.socket->Send(block.data(), block.size());
            if (result.Failed()) return;
            sent += result.count;
        }
    });
    while (connection.socket->WaitWritable(milliseconds(0)).answer == WaitAnswer::Ready) {
        std::this_thread::yield();
    }
    connection.socket->Close();
    sender.join();
    EXPECT_TRUE(connection.socket->Send("x", 1).Failed());
}

TEST_F(SocketTest, CloseWakesAWaitForAPeer) {
    for (int round = 0; round < cnExchanges; ++round) {
        const Listening listening = vapp_platform::ListenAtLocalhost();
        std::atomic<std::uint32_t> thread = 0;
        std::thread waiter([&] {
            int code = 0;
            thread = platform_test::OwnThreadId();
            const auto wait = listening.socket->WaitReadable(milliseconds(600000));
            EXPECT_NE(wait.answer, WaitAnswer::TimedOut);
            EXPECT_EQ(listening.socket->Accept(code), nullptr);
            EXPECT_NE(code, 0);
        });
        WaitUntilAsleep(thread);
        listening.socket->Close();
        waiter.join();
    }
}

TEST_F(SocketTest, ClosingAtAnyMomentNeverHangsNorLosesAHandle) {
    // The first connection can make the system's own handles.
    { const Connection first; }
    const int before = platform_test::CountOpenHandles();
    for (int round = 0; round < 100; ++round) {
        Connection connection;
        std::thread receiver([&] {
            char byte = 0;
            EXPECT_EQ(connection.socket->Receive(&byte, 1).count, 0);
        });
        std::thread sender([&] {
            while (!connection.socket->Send("words", 5).Failed()) {
            }
        });
        connection.socket->Close();
        receiver.join();
        sender.join();
    }
    EXPECT_EQ(platform_test::CountOpenHandles(), before);
}

TEST_F(SocketTest, NoSocketFailsEveryCall) {
    Socket none;
    char byte = 0;
    int code = 0;
    EXPECT_FALSE(none.IsOpen());
    EXPECT_EQ(none.WaitReadable(milliseconds(1000)).answer, WaitAnswer::Failed);
    EXPECT_EQ(none.WaitWritable(milliseconds(1000)).answer, WaitAnswer::Failed);
    EXPECT_TRUE(none.Receive(&byte, 1).Failed());
    EXPECT_TRUE(none.Send(&byte, 1).Failed());
    EXPECT_EQ(none.Accept(code), nullptr);
    EXPECT_NE(code, 0);
    none.Close();
}

TEST_F(SocketTest, EachStepOfListeningFailsWithItsNameAndCode) {
    struct Row {
        ListenStep step;
        FaultSource fault;
    };
    const Row rows[] = {
        {ListenStep::Resolve, [](SystemCall call) { return call == SystemCall::ResolveAddress ? 77 : 0; }},
        {ListenStep::Create, [](SystemCall call) { return call == SystemCall::CreateSocket ? 77 : 0; }},
        {ListenStep::ReuseAddress, [](SystemCall call) { return call == SystemCall::ReuseAddress ? 77 : 0; }},
        {ListenStep::Bind, [](SystemCall call) { return call == SystemCall::Bind ? 77 : 0; }},
        {ListenStep::GetName, [](SystemCall call) { return call == SystemCall::GetSocketName ? 77 : 0; }},
        {ListenStep::Family, [](SystemCall call) { return call == SystemCall::AddressFamily ? 77 : 0; }},
        {ListenStep::Listen, [](SystemCall call) { return call == SystemCall::Listen ? 77 : 0; }},
    };
    { const Listening first = vapp_platform::ListenAtLocalhost(); }
    const int before = platform_test::CountOpenHandles();
    for (const Row& row : rows) {
        vapp_platform::SetFaultSource(row.fault);
        const Listening listening = vapp_platform::ListenAtLocalhost();
        EXPECT_EQ(listening.failed, row.step);
        EXPECT_EQ(listening.code, 77);
        EXPECT_EQ(listening.socket, nullptr);
    }
    EXPECT_EQ(platform_test::CountOpenHandles(), before);
}

TEST_F(SocketTest, AcceptAndWaitsFailWhereATestAsksForIt) {
    Connection connection;
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::Accept ? 5 : 0; });
    int code = 0;
    EXPECT_EQ(connection.listening.socket->Accept(code), nullptr);
    EXPECT_EQ(code, 5);
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::WaitForSocket ? 5 : 0; });
    const auto wait = connection.socket->WaitWritable(milliseconds(1000));
    EXPECT_EQ(wait.answer, WaitAnswer::Failed);
    EXPECT_EQ(wait.code, 5);
}

// Where the end of the last use of the library took the socket away, its number would be somebody else's.
TEST(SocketLibrary, ASocketKeepsTheLibraryInUse) {
    SocketLibrary first;
    ASSERT_EQ(first.Start(), 0);
    const Listening listening = vapp_platform::ListenAtLocalhost();
    first.End();
    EXPECT_EQ(listening.socket->WaitReadable(milliseconds(0)).answer, WaitAnswer::TimedOut);
    const LocalPeer peer(listening.port);
    ASSERT_TRUE(peer.IsConnected());
    EXPECT_EQ(listening.socket->WaitReadable(milliseconds(30000)).answer, WaitAnswer::Ready);
    int code = 0;
    const auto socket = listening.socket->Accept(code);
    ASSERT_NE(socket, nullptr) << code;
    EXPECT_EQ(socket->Send("hello", 5).count, 5);
    EXPECT_EQ(peer.Receive(5), "hello");
}

TEST_F(SocketTest, TheLibrarysStartCanFail) {
    vapp_platform::SetFaultSource(
        [](SystemCall call) { return call == SystemCall::StartSocketLibrary ? 9 : 0; });
    SocketLibrary other;
    EXPECT_EQ(other.Start(), 9);
    EXPECT_FALSE(other.IsStarted());
    vapp_platform::SetFaultSource(nullptr);
    EXPECT_EQ(other.Start(), 0);
    EXPECT_TRUE(other.IsStarted());
    other.End();
    other.End();
    EXPECT_FALSE(other.IsStarted());
}

}  // namespace

/// @file
/// The handshake where it goes wrong or comes twice: what a host that derives sees of it, and what becomes of
/// a connection that is up.
#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>

#include "platform/ChildEnvironment.h"
#include "platform/Socket.h"
#include "tests/connection/ConnectionTest.h"
#include "tests/connection/Door.h"
#include "tests/connection/Worker.h"
#include "tests/platform/LocalPeer.h"
#include "tests/platform/SystemHelpers.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::Door;
using connection_test::LocalWorker;
using connection_test::ReceiveAll;
using connection_test::TAfterKnock;
using connection_test::Text;
using std::chrono::milliseconds;
using vapp_platform::SystemCall;

template <typename Module>
const char* RoleOf() {
    return std::is_same_v<Module, TTCPModule> ? "tcp" : "pipe";
}

/// A host's own way to read the keyword, with Disconnect counted.
template <typename Module>
class TReading : public Module {
public:
    TReading(const ConnectionInfo& info, int count, const char* received, const char* reason)
        : Module(info), m_count(count), m_received(received), m_reason(reason) {}

    void Disconnect() override {
        ++disconnects;
        Module::Disconnect();
    }
    int disconnects = 0;

private:
    int ReadKeyword(CStringU& received, CStringU& message) override {
        received = m_received;
        if (*m_reason != '\0') message = m_reason;
        return m_count;
    }

    int m_count;
    const char* m_received;
    const char* m_reason;
};

template <typename Module>
struct AcceptTest : ConnectionTest {
    AcceptTest() {
        if (!gIsWine()) vapp_platform::SetWineAnswer(true);
    }
    static ConnectionInfo Worker(const std::vector<std::string>& words) {
        return LocalWorker(RoleOf<Module>(), words, "KEY");
    }
    std::vector<wchar_t> environment;
    CStringU message;
};

using Transports = testing::Types<TPipeModule, TTCPModule>;
TYPED_TEST_SUITE(AcceptTest, Transports);

TYPED_TEST(AcceptTest, ASecondAcceptIsTrueWithoutReading) {
    TypeParam module(this->Worker({"say:KEYrest", "echo"}));
    ASSERT_TRUE(module.InitConnection(this->environment, this->message)) << Text(this->message);
    CStringU none;
    EXPECT_TRUE(module.AcceptConnection(none));
    EXPECT_TRUE(none.IsEmpty());
    // The question has set the latch again.
    EXPECT_FALSE(module.IsWorkerFound());
}

TYPED_TEST(AcceptTest, ASecondAcceptHurtsNoThreadThatReceives) {
    TypeParam module(this->Worker({"say:KEY", "get:2", "say:still here", "live"}));
    ASSERT_TRUE(module.InitConnection(this->environment, this->message)) << Text(this->message);
    ASSERT_TRUE(module.Send("a", 1, this->message));
    std::atomic<std::uint32_t> thread = 0;
    char byte[2] = {};
    int got = 1;
    std::thread receiver([&] {
        CStringU reason;
        thread = platform_test::OwnThreadId();
        got = module.Recv(byte, 1, reason);
    });
    while (thread == 0)
        std::this_thread::yield();
    EXPECT_TRUE(platform_test::WaitUntilAsleep(thread));
    CStringU none;
    EXPECT_TRUE(module.AcceptConnection(none));
    EXPECT_TRUE(module.IsConnected());
    // Whatever the accept has made of the connection, the thread is still in it, and Disconnect ends that.
    module.Disconnect();
    receiver.join();
    EXPECT_LE(got, 0);
    this->ShortenWaits();
}

TEST(Accept, ATcpWorkerSeesNoEndInASecondAccept) {
    vapp_connection::Limits limits;
    limits.childEnd = milliseconds(20);
    vapp_connection::SetLimits(limits);
    Door door;
    TTCPModule module(LocalWorker("tcp", {"say:KEY", door.Word(), "get:1", "tell:end", "live"}, "KEY"));
    std::vector<wchar_t> environment;
    CStringU message;
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    door.WaitForKnock();
    EXPECT_TRUE(module.AcceptConnection(message));
    // The connection has no client any more, and says so.
    char buffer[2];
    EXPECT_EQ(module.Recv(buffer, 1, message), -1);
    // The worker waits for its byte: an end would end it.
    EXPECT_TRUE(door.VisitorLives());
    module.Close();
    door.WaitForTheEnd();
    vapp_connection::SetLimits({});
}

TYPED_TEST(AcceptTest, AfterATimeOutDisconnectIsCalledAndAfterAMismatchNot) {
    struct Row {
        int count;
        const char* received;
        int disconnects;
    };
    for (const Row& row : {Row{0, "", 1}, Row{-1, "", 0}, Row{3, "WRONG", 0}}) {
        TReading<TypeParam> module(this->Worker({"echo"}), row.count, row.received, "some reason");
        EXPECT_FALSE(module.InitConnection(this->environment, this->message));
        EXPECT_EQ(module.disconnects, row.disconnects) << row.count;
        EXPECT_FALSE(module.IsConnected());
        this->environment.clear();
        this->ShortenWaits();
        module.Close();
        this->LengthenWaits();
    }
}

TYPED_TEST(AcceptTest, AHostsOwnWayToReadTheKeywordIsAsked) {
    const bool tcp = std::is_same_v<TypeParam, TTCPModule>;
    TReading<TypeParam> module(this->Worker({"echo"}), 5, tcp ? "KEY  " : "  KEY", "");
    EXPECT_TRUE(module.InitConnection(this->environment, this->message)) << Text(this->message);
    EXPECT_TRUE(module.IsWorkerFound());
}

TYPED_TEST(AcceptTest, WhyTheKeywordCouldNotBeReadGivesWayToTheMismatch) {
    const bool tcp = std::is_same_v<TypeParam, TTCPModule>;
    struct Row {
        const char* received;
        const char* reason;
        const char* pipe;
    };
    const Row rows[] = {
        {"", "Pipe failed with error: 109\n", "Connection failed, no data received.\n"},
        {"Hello", "Read Keyword failed with error: 109\n",
         "Waiting keyword \"KEY\" mismatched. Received message \"Hello\"\n"},
    };
    for (const Row& row : rows) {
        TReading<TypeParam> module(this->Worker({"echo"}), -1, row.received, row.reason);
        EXPECT_FALSE(module.InitConnection(this->environment, this->message));
        EXPECT_EQ(Text(this->message), tcp ? "Waiting keyword \"KEY\" mismatched.\n" : row.pipe);
        this->environment.clear();
    }
}

struct TcpAcceptTest : AcceptTest<TTCPModule> {};

// How many waits of a connection succeed before they fail, and how many fail then.
std::atomic<int> gGoodWaits = 0;
std::atomic<int> gBadWaits = 0;

int FailSomeWaits(SystemCall call) {
    if (call != SystemCall::WaitForSocket) return 0;
    if (gGoodWaits-- > 0) return 0;
    return gBadWaits-- > 0 ? 12 : 0;
}

struct FailingWaits {
    FailingWaits(int good, int bad) {
        gGoodWaits = good;
        gBadWaits = bad;
        vapp_platform::SetFaultSource(FailSomeWaits);
    }
    ~FailingWaits() { vapp_platform::SetFaultSource(nullptr); }
};

TEST_F(TcpAcceptTest, AWaitForTheKeywordThatFailsIsMadeAgain) {
    TTCPModule module(Worker({"say:KEY", "echo"}));
    const FailingWaits failing(1, 3);
    EXPECT_TRUE(module.InitConnection(environment, message)) << Text(message);
    EXPECT_LT(gBadWaits, 0);
}

TEST_F(TcpAcceptTest, WaitsForTheKeywordThatOnlyFailEndWithTheirTimeAndReadNothing) {
    Door door;
    vapp_connection::Limits limits;
    limits.socketWait = milliseconds(100);
    limits.childEnd = milliseconds(0);
    TAfterKnock<TTCPModule> module(Worker({"say:KEY", door.Word(), "live"}), door, limits);
    // The test's own wait for the knock is the first.
    const FailingWaits failing(2, 1000000);
    EXPECT_FALSE(module.InitConnection(environment, message));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"KEY\" for accept TCP connection.\n");
}

TEST_F(TcpAcceptTest, AWaitToSendThatFailsIsMadeAgainAndNotForEver) {
    TTCPModule module(Worker({"say:KEY", "echo"}));
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    {
        const FailingWaits failing(0, 3);
        EXPECT_TRUE(module.Send("talk", 4, message));
    }
    EXPECT_EQ(ReceiveAll(module, 4), "talk");
    vapp_connection::Limits limits;
    limits.socketWait = milliseconds(100);
    vapp_connection::SetLimits(limits);
    const FailingWaits failing(0, 1000000);
    CStringU none;
    EXPECT_FALSE(module.Send("talk", 4, none));
    EXPECT_TRUE(none.IsEmpty()) << Text(none);
    EXPECT_TRUE(module.IsConnected());
}

TEST_F(TcpAcceptTest, AWorkerThatConnectsAndSaysTooLittleTimesOut) {
    Door door;
    vapp_connection::Limits limits;
    limits.socketWait = milliseconds(50);
    limits.childEnd = milliseconds(0);
    TAfterKnock<TTCPModule> module(Worker({"say:KE", door.Word(), "live"}), door, limits);
    EXPECT_FALSE(module.InitConnection(environment, message));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"KEY\" for accept TCP connection.\n");
    // It was let in: nobody listens any more, as somebody would where none had come.
    const std::wstring address(environment.begin(), environment.end());
    const auto port = std::stoi(address.substr(address.rfind(L':') + 1));
    EXPECT_FALSE(platform_test::LocalPeer(static_cast<std::uint16_t>(port)).IsConnected());
}

TEST_F(TcpAcceptTest, AWorkerThatNeverConnectsTimesOutAndCouldStillConnect) {
    ShortenWaits();
    TTCPModule module(LocalWorker("pipe", {"live"}, "KEY"));
    EXPECT_FALSE(module.InitConnection(environment, message));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"KEY\" for accept TCP connection.\n");
    EXPECT_FALSE(module.IsConnected());
    const std::wstring address(environment.begin(), environment.end());
    const auto port = std::stoi(address.substr(address.rfind(L':') + 1));
    EXPECT_TRUE(platform_test::LocalPeer(static_cast<std::uint16_t>(port)).IsConnected());
}

// The first address is the one that counts: a host that hands the same environment to a second connection
// sends its worker to the first.
TEST_F(TcpAcceptTest, AnAddressThatTheEnvironmentHasAlreadyIsTheOneThatIsUsed) {
    ShortenWaits();
    vapp_platform::SocketLibrary library;
    ASSERT_EQ(library.Start(), 0);
    const vapp_platform::Listening elsewhere = vapp_platform::ListenAtLocalhost();
    TTCPModule module(Worker({"say:KEY", "echo"}));
    environment = vapp_platform::EnvironmentSnapshot();
    const std::wstring first =
        L"TCONNECT_ADDRESS=localhost:" + std::to_wstring(elsewhere.port) + std::wstring(2, L'\0');
    environment.insert(environment.end(), first.begin(), first.end());
    EXPECT_FALSE(module.InitConnection(environment, message));
    EXPECT_EQ(Text(message), "Timed out waiting keyword \"KEY\" for accept TCP connection.\n");
    // The child lives on until Close, and comes here.
    ASSERT_EQ(elsewhere.socket->WaitReadable(platform_test::cnLong).answer, vapp_platform::WaitAnswer::Ready);
    int code = 0;
    const auto worker = elsewhere.socket->Accept(code);
    ASSERT_NE(worker, nullptr);
    std::string said(3, '\0');
    for (char& byte : said)
        ASSERT_EQ(worker->Receive(&byte, 1).count, 1);
    EXPECT_EQ(said, "KEY");
}

TEST_F(TcpAcceptTest, AnEnvironmentWithoutEntriesGetsTheAddressAlone) {
    ShortenWaits();
    for (const std::size_t nuls : {1U, 2U}) {
        environment.assign(nuls, L'\0');
        TTCPModule module(Worker({"exit:0"}));
        EXPECT_FALSE(module.InitConnection(environment, message));
        const std::wstring all(environment.begin(), environment.end());
        EXPECT_TRUE(all.starts_with(L"TCONNECT_ADDRESS=localhost:")) << nuls;
        EXPECT_EQ(all.find(L'\0'), all.size() - 2);
        EXPECT_TRUE(all.ends_with(std::wstring(2, L'\0')));
    }
}

}  // namespace

/// @file
/// The real agent, its window and its keys. Windows only: the agent of Linux has no window that is asked for.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "connection/PuttyProgram.h"
#include "platform/Agent.h"
#include "platform/ChildProcess.h"
#include "platform/World.h"
#include "tests/connection/LoopbackServer.h"
#include "vapp/connection/TPipeModule.h"

namespace {

constexpr const char* csNoAgent = "Pageant is not running.  Please start Pageant and load your private key.";

CStringU AsText(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

/// The agent with the key that the server knows; ends with this object.
class Agent {
public:
    explicit Agent(const connection_test::LoopbackServer& server) {
        vapp_platform::ChildStart start;
        start.commandLine = vapp_connection::QuotedPuttyProgram("pageant.exe") + " \"" +
                            AsText(server.KeyFile().string()) + "\"";
        m_process = vapp_platform::ChildProcess::Start(start).child;
        EXPECT_NE(m_process, nullptr);
    }
    Agent(const Agent&) = delete;
    Agent& operator=(const Agent&) = delete;
    ~Agent() {
        if (m_process == nullptr) return;
        m_process->Terminate();
        m_process->WaitFor(platform_test::cnLong);
    }

private:
    std::unique_ptr<vapp_platform::ChildProcess> m_process;
};

/// Another program's window comes and goes in its own time.
bool WaitForWindow(bool open) {
    const auto end = std::chrono::steady_clock::now() + platform_test::cnLong;
    while (vapp_platform::IsAgentWindowOpen() != open) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

class PageantScenarioTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_server.WhyNot().empty()) GTEST_SKIP() << m_server.WhyNot();
    }
    ~PageantScenarioTest() override { vapp_platform::SetWineAnswer(std::nullopt); }

    /// Empty when a pipe worker behind a target is reached, otherwise the message.
    static std::string Connect(const std::string& target) {
        ConnectionInfo info;
        info.sshTarget = AsText(target);
        info.command = "printf WORKER_KEY; exec cat";
        info.hostName = "localhost";
        info.runLocally = false;
        info.keyword = "WORKER_KEY";
        TPipeModule module(info);
        std::vector<wchar_t> environment;
        CStringU message;
        return module.InitConnection(environment, message) ? "" : std::string(message.PayloadView());
    }

    const connection_test::LoopbackServer m_server{
        std::filesystem::path(platform_test::OwnProgram()).parent_path() / "server"};
};

TEST_F(PageantScenarioTest, OnWindowsAWorkerIsReachedOnlyWhileTheAgentRuns) {
    vapp_platform::SetWineAnswer(false);
    ASSERT_TRUE(WaitForWindow(false));
    EXPECT_EQ(Connect(m_server.Target()), csNoAgent);
    {
        const Agent agent(m_server);
        ASSERT_TRUE(WaitForWindow(true));
        EXPECT_EQ(Connect(m_server.Target()), "");
    }
    ASSERT_TRUE(WaitForWindow(false));
    EXPECT_EQ(Connect(m_server.Target()), csNoAgent);
}

TEST_F(PageantScenarioTest, TheAgentsKeyOpensTheLogin) {
    vapp_platform::SetWineAnswer(false);
    const Agent agent(m_server);
    ASSERT_TRUE(WaitForWindow(true));
    EXPECT_EQ(Connect(m_server.TargetWithoutKey()), "");
}

TEST_F(PageantScenarioTest, UnderWineTheAgentIsNotAskedFor) {
    vapp_platform::SetWineAnswer(true);
    ASSERT_TRUE(WaitForWindow(false));
    EXPECT_EQ(Connect(m_server.Target()), "");
    EXPECT_NE(Connect(m_server.TargetWithoutKey()), "");
}

}  // namespace

/// @file
/// The agent check where its window is really there.
#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

#include "tests/connection/ConnectionTest.h"
#include "tests/connection/Worker.h"
#include "vapp/connection/TPipeModule.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::LocalWorker;
using connection_test::Text;

/// A window that looks like the agent's, hidden. Not there where the system shows no windows at all.
class AgentWindow {
public:
    AgentWindow() {
        WNDCLASSA kind{};
        kind.lpfnWndProc = DefWindowProcA;
        kind.hInstance = GetModuleHandleA(nullptr);
        kind.lpszClassName = "Pageant";
        RegisterClassA(&kind);
        m_window = CreateWindowExA(0, "Pageant", "Pageant", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                   kind.hInstance, nullptr);
    }
    AgentWindow(const AgentWindow&) = delete;
    AgentWindow& operator=(const AgentWindow&) = delete;
    ~AgentWindow() {
        if (m_window != nullptr) DestroyWindow(m_window);
        UnregisterClassA("Pageant", GetModuleHandleA(nullptr));
    }
    [[nodiscard]] bool IsThere() const { return m_window != nullptr; }

private:
    HWND m_window = nullptr;
};

struct AgentTest : ConnectionTest {
    AgentTest() { vapp_platform::SetWineAnswer(false); }
    std::vector<wchar_t> environment;
    CStringU message;
};

TEST_F(AgentTest, WithTheAgentsWindowThereAWorkerIsConnected) {
    const AgentWindow agent;
    if (!agent.IsThere()) GTEST_SKIP() << "no windows here: run with VAPP_WINE_DISPLAY";
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    EXPECT_TRUE(module.Send("x", 1, message));
    EXPECT_EQ(connection_test::ReceiveAll(module, 1), "x");
}

TEST_F(AgentTest, WithoutItNoneIsStarted) {
    TPipeModule module(LocalWorker("pipe", {"say:KEY", "echo"}, "KEY"));
    EXPECT_FALSE(module.InitConnection(environment, message));
    EXPECT_EQ(Text(message), "Pageant is not running.  Please start Pageant and load your private key.");
    EXPECT_EQ(module.GetChildProcessID(), 0U);
}

}  // namespace

/// @file
/// How a test learns how far a worker has come, beside the connection that it tests: the worker knocks at a
/// port of the test's own, and whoever has knocked is known to live as long as that second connection.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "connection/Limits.h"
#include "platform/Socket.h"
#include "tests/platform/ChildRoles.h"
#include "vapp/connection/ConnectionInfo.h"
#include "vapp/text/CStringU.h"

namespace connection_test {

/// Where one process knocks.
class Door {
public:
    Door() {
        EXPECT_EQ(m_library.Start(), 0);
        m_listening = vapp_platform::ListenAtLocalhost();
    }

    /// For the words "knock:PORT" and "grandchild:PORT" of a worker.
    [[nodiscard]] std::string Port() const { return std::to_string(m_listening.port); }
    [[nodiscard]] std::string Word() const { return "knock:" + Port(); }

    void WaitForKnock() {
        const auto wait = m_listening.socket->WaitReadable(platform_test::cnLong);
        ASSERT_EQ(wait.answer, vapp_platform::WaitAnswer::Ready) << "nobody has knocked";
        int code = 0;
        m_visitor = m_listening.socket->Accept(code);
        ASSERT_EQ(code, 0);
    }
    /// What the process that has knocked says first.
    [[nodiscard]] std::string Hear(std::size_t size) {
        std::string bytes;
        char byte = 0;
        while (bytes.size() < size && m_visitor->Receive(&byte, 1).count == 1)
            bytes += byte;
        return bytes;
    }
    /// Waits until the process that has knocked is gone.
    void WaitForTheEnd() {
        char byte = 0;
        while (m_visitor->Receive(&byte, 1).count > 0) {
        }
    }
    [[nodiscard]] bool VisitorLives() {
        return m_visitor->WaitReadable(std::chrono::milliseconds(0)).answer ==
               vapp_platform::WaitAnswer::TimedOut;
    }

private:
    vapp_platform::SocketLibrary m_library;
    vapp_platform::Listening m_listening;
    std::unique_ptr<vapp_platform::Socket> m_visitor;
};

/// A connection whose handshake begins when the worker has knocked, with other waits from then on.
template <typename Module>
class TAfterKnock : public Module {
public:
    TAfterKnock(const ConnectionInfo& info, Door& door,
                std::optional<vapp_connection::Limits> limits = std::nullopt)
        : Module(info), m_door(door), m_limits(limits) {}

    bool AcceptConnection(CStringU& message) override {
        m_door.WaitForKnock();
        if (m_limits) vapp_connection::SetLimits(*m_limits);
        return Module::AcceptConnection(message);
    }

private:
    Door& m_door;
    std::optional<vapp_connection::Limits> m_limits;
};

}  // namespace connection_test

/// @file
/// What the tests of both transports share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "connection/Limits.h"
#include "platform/FaultPoint.h"
#include "platform/World.h"
#include "vapp/connection/TConnectionModule.h"
#include "vapp/platform/MessageBox.h"

namespace connection_test {

/// A text as its bytes.
inline std::string Text(const CStringU& text) {
    return std::string(text.PayloadView());
}

/// Waits that suit tests, counted boxes, and everything put back in the end.
class ConnectionTest : public testing::Test {
protected:
    ConnectionTest() {
        s_boxes.clear();
        gSetMessageBox([](const char* text, const char* caption) {
            s_boxes.push_back(std::string(text) + '/' + caption);
        });
        LengthenWaits();
    }
    ~ConnectionTest() override {
        vapp_connection::SetLimits({});
        vapp_platform::SetFaultSource(nullptr);
        vapp_platform::SetWineAnswer(std::nullopt);
        gSetMessageBox(nullptr);
    }

    /// As long as ever, but the pipe is looked at often.
    static void LengthenWaits() {
        vapp_connection::Limits limits;
        limits.pipePause = std::chrono::milliseconds(1);
        limits.pipePolls = 60000;
        limits.socketWait = std::chrono::milliseconds(60000);
        vapp_connection::SetLimits(limits);
    }
    /// For a worker that is not expected to come in time.
    static void ShortenWaits() {
        vapp_connection::Limits limits;
        limits.pipePause = std::chrono::milliseconds(1);
        limits.pipePolls = 20;
        limits.socketWait = std::chrono::milliseconds(20);
        limits.childEnd = std::chrono::milliseconds(20);
        vapp_connection::SetLimits(limits);
    }

    static inline std::vector<std::string> s_boxes;
};

/// Receives until so many bytes have come or nothing comes any more.
inline std::string ReceiveAll(TConnectionModule& connection, std::size_t size) {
    std::string all;
    CStringU message;
    std::string buffer(65537, '\0');
    while (all.size() < size) {
        const int got = connection.Recv(buffer.data(), 65536, message);
        if (got <= 0) break;
        all.append(buffer, 0, static_cast<std::size_t>(got));
    }
    return all;
}

}  // namespace connection_test

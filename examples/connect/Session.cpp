/// @file
/// Three threads: one reads the input and sends, one receives, and the first one watches for the end.
///
/// The surprise: nobody can wake a thread that waits for standard input, so that the process ends with that
/// thread in it.
#include "examples/connect/Session.h"

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "examples/connect/Deploy.h"
#include "examples/connect/Explain.h"
#include "examples/connect/Progress.h"
#include "examples/connect/Streams.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"
#include "vapp/platform/MessageBox.h"

namespace {

void TellCommandLine(const CStringU& line) {
    std::fprintf(stderr, "connect: %s", line.Payload());
}

// The TCP transport leaves the command line in the message, which it has by the time that it waits.
class TTellingTCPModule : public TTCPModule {
public:
    using TTCPModule::TTCPModule;
    bool AcceptConnection(CStringU& message) override {
        TellCommandLine(message);
        return TTCPModule::AcceptConnection(message);
    }
};

std::unique_ptr<TConnectionModule> MakeModule(const TOptions& options) {
    ConnectionInfo info;
    info.sshTarget = AsText(options.m_target);
    info.command = AsText(options.m_command);
    info.hostName = "localhost";
    info.runLocally = options.m_target.empty();
    info.keyword = AsText(options.m_keyword);
    if (options.m_tcp) return std::make_unique<TTellingTCPModule>(info);
    auto module = std::make_unique<TPipeModule>(info);
    module->SetLogCallback(TellCommandLine);
    return module;
}

// The box of a failed start, which is told as any other failure here.
bool gStartFailed = false;

void TellWhyNot(const TOptions& options, const CStringU& message) {
    if (gStartFailed) {
        TellFailure(options.m_target.empty()
                        ? TExplanation{"The command could not be started.",
                                       "look for a slip in COMMAND, and whether the file may be run"}
                        : TExplanation{"PuTTY's plink could not be started.",
                                       "put it at putty/bin/plink.exe below the library's folder"});
        return;
    }
    const std::string_view login = FindQuotedLogin(message.PayloadView());
    if (!login.empty()) std::fputs("connect: in place of the keyword came:\n", stderr);
    TellLogin(login);
    TellFailure(Explain(message.PayloadView()));
}

bool Connect(TConnectionModule& module, const TOptions& options) {
    gSetMessageBox([](const char*, const char*) { gStartFailed = true; });
    const TProgress progress;
    // Empty stands for this process's own.
    std::vector<wchar_t> environment;
    CStringU message;
    if (module.InitConnection(environment, message)) return true;
    TellWhyNot(options, message);
    return false;
}

class TRelay {
public:
    explicit TRelay(TConnectionModule& module) : m_module(module) {}

    void Run() {
        std::thread([this] { SendInput(); }).detach();
        std::thread receiver([this] { ReceiveOutput(); });
        WaitForTheEnd();
        // Wakes the receiver, where it still waits.
        m_module.Disconnect();
        receiver.join();
        m_module.Close();
    }

private:
    using TClock = std::chrono::steady_clock;
    static constexpr std::chrono::seconds cnSilence{2};

    void SendInput() {
        CStringU message;
        for (std::string bytes = ReadInput(); !bytes.empty(); bytes = ReadInput()) {
            if (!m_module.Send(bytes.data(), bytes.size(), message)) break;
        }
        const std::lock_guard guard(m_mutex);
        m_inputEnded = true;
        m_lastWord = TClock::now();
        m_changed.notify_one();
    }

    void ReceiveOutput() {
        std::array<char, 65537> buffer{};
        CStringU message;
        int got = 0;
        // One byte is kept for the NUL.
        while ((got = m_module.Recv(buffer.data(), static_cast<int>(buffer.size()) - 1, message)) > 0) {
            if (!WriteOutput({buffer.data(), static_cast<std::size_t>(got)})) break;
            const std::lock_guard guard(m_mutex);
            m_lastWord = TClock::now();
        }
        const std::lock_guard guard(m_mutex);
        m_outputEnded = true;
        m_changed.notify_one();
    }

    void WaitForTheEnd() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_inputEnded || m_outputEnded; });
        while (!m_outputEnded && TClock::now() - m_lastWord < cnSilence)
            m_changed.wait_until(lock, m_lastWord + cnSilence);
        std::fputs(m_outputEnded ? "connect: the worker has ended the connection\n"
                                 : "connect: the input has ended and the worker is silent\n",
                   stderr);
    }

    TConnectionModule& m_module;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_inputEnded = false;
    bool m_outputEnded = false;
    TClock::time_point m_lastWord;
};

}  // namespace

bool RunSession(const TOptions& options) {
    if (options.m_tcp && !options.m_target.empty()) {
        std::fputs(
            "connect: note: a login doesn't hand on the environment, so a remote worker is told neither\n"
            "connect: note: address nor port; --pipe needs neither\n",
            stderr);
    }
    if (options.m_deploy && !Deploy(options.m_target)) return false;
    const std::unique_ptr<TConnectionModule> module = MakeModule(options);
    if (!Connect(*module, options)) return false;
    std::fputs("connect: the worker has said its keyword\n", stderr);
    TRelay relay(*module);
    relay.Run();
    std::_Exit(0);
}

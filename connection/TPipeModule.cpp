/// @file
/// Two pipes: the child's standard input, and its output and errors together. An end that a failed start
/// leaves open stays open until the object ends.
#include "vapp/connection/TPipeModule.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "connection/Limits.h"
#include "connection/StartWorker.h"
#include "platform/Agent.h"
#include "platform/Pipe.h"
#include "platform/World.h"

using vapp_connection::cnKeywordBuffer;
using vapp_platform::OwnedHandle;
using vapp_platform::PipeReader;
using vapp_platform::PipeWriter;
using vapp_platform::Transfer;

struct TPipeModule::TPipes {
    OwnedHandle outputRead;
    OwnedHandle outputWrite;
    OwnedHandle inputRead;
    OwnedHandle inputWrite;
    // Take over this process's two ends once the child runs.
    std::unique_ptr<PipeReader> stdOutRead = std::make_unique<PipeReader>(OwnedHandle());
    std::unique_ptr<PipeWriter> stdInWrite = std::make_unique<PipeWriter>(OwnedHandle());
};

namespace {

// By bytes, here and where the answer is drawn from it: decoded, bytes that are no text would be equal to
// others, and the reading would stop elsewhere than the comparison.
bool EndsWithKeyword(const CStringU& received, const CStringU& keyword) {
    return received.PayloadView().ends_with(keyword.PayloadView());
}

}  // namespace

TPipeModule::TPipeModule(ConnectionInfo&& info) : TPipeModule(static_cast<const ConnectionInfo&>(info)) {}

TPipeModule::TPipeModule(const ConnectionInfo& info)
    : TConnectionModule(info), m_pipes(std::make_unique<TPipes>()) {}

TPipeModule::~TPipeModule() {
    TConnectionModule::Close();
}

bool TPipeModule::CreatePipes(CStringU& message) {
    const char* failed = nullptr;
    if (CreatePipe(m_pipes->outputRead, m_pipes->outputWrite) != 0) {
        failed = "StdOutRd CreatePipe";
    } else if (KeepFromChildren(m_pipes->outputRead) != 0) {
        failed = "StdOutRd SetHandleInformation";
    } else if (CreatePipe(m_pipes->inputRead, m_pipes->inputWrite) != 0) {
        failed = "StdInRd CreatePipe";
    } else if (KeepFromChildren(m_pipes->inputWrite) != 0) {
        failed = "StdInRd SetHandleInformation";
    }
    if (failed != nullptr) message = failed;
    return failed == nullptr;
}

bool TPipeModule::CloseChildsEnds(CStringU& message) {
    // Only without this end can the reader see the end of the stream.
    if (m_pipes->outputWrite.Close() != 0) {
        message = "StdOutWr CloseHandle";
        return false;
    }
    // Under Wine this one stays open, with the consequence that to write to a worker that has gone fills the
    // pipe instead of failing. Native Linux has no need of that, although gIsWine is true there.
    if (!vapp_platform::IsWindowsUnderWine() && m_pipes->inputRead.Close() != 0) {
        message = "StdInRd CloseHandle";
        return false;
    }
    return true;
}

bool TPipeModule::InitConnection(std::vector<wchar_t>& environment, CStringU& message) {
    // Asked also for a local worker, which needs no agent.
    if (!gIsWine() && !vapp_platform::IsAgentWindowOpen()) {
        message = "Pageant is not running.  Please start Pageant and load your private key.";
        return false;
    }
    m_pipes = std::make_unique<TPipes>();
    if (!CreatePipes(message)) return false;

    vapp_platform::ChildStart start;
    start.commandLine = vapp_connection::WorkerCommandLine(m_info);
    start.environment = environment;
    start.input = m_pipes->inputRead.Get();
    start.output = m_pipes->outputWrite.Get();
    start.error = m_pipes->outputWrite.Get();
    if (m_logCallback != nullptr) {
        m_logCallback(start.commandLine + "\n");
    } else {
        message = start.commandLine + "\n";
    }

    m_childProcess = vapp_connection::StartWorker(start);
    if (m_childProcess == nullptr) return false;
    m_childProcessID = m_childProcess->GetId();
    if (!CloseChildsEnds(message)) return false;
    m_pipes->stdOutRead = std::make_unique<PipeReader>(std::move(m_pipes->outputRead));
    m_pipes->stdInWrite = std::make_unique<PipeWriter>(std::move(m_pipes->inputWrite));

    if (!AcceptConnection(message)) return false;
    m_connected = true;
    return true;
}

bool TPipeModule::AcceptConnection(CStringU& message) {
    if (!m_workerLatch.test_and_set()) return true;
    CStringU received;
    const int count = ReadKeyword(received, message);
    if (count == 0) {
        message = CStringU::Formatted("Timed out waiting keyword \"%s\" for accept Pipe connection.\n",
                                      m_info.keyword.Payload());
        Disconnect();
        return false;
    }
    if (count > 0 && EndsWithKeyword(received, m_info.keyword)) {
        m_workerLatch.clear();
        return true;
    }
    // What the login printed reaches the user whole: a question about a host key, a refused key.
    message = received.IsEmpty()
                  ? CStringU("Connection failed, no data received.\n")
                  : CStringU::Formatted("Waiting keyword \"%s\" mismatched. Received message \"%s\"\n",
                                        m_info.keyword.Payload(), received.Payload());
    return false;
}

int TPipeModule::ReadKeyword(CStringU& received, CStringU& message) {
    const std::int64_t wanted = m_info.keyword.GetByteLength();
    const vapp_connection::Limits& limits = vapp_connection::CurrentLimits();

    std::int64_t available = -1;
    for (int poll = 0; poll < limits.pipePolls && available < wanted; ++poll) {
        const Transfer seen = m_pipes->stdOutRead->Peek();
        if (seen.Failed()) {
            message = CStringU::Formatted("Pipe failed with error: %d\n", seen.code);
            return -1;
        }
        available = seen.count;
        if (available < wanted) std::this_thread::sleep_for(limits.pipePause);
    }
    if (available < wanted) return 0;
    available = std::min<std::int64_t>(available, cnKeywordBuffer);

    // Byte by byte behind the first read: what follows the keyword belongs to Recv.
    char buffer[cnKeywordBuffer + 1] = {};
    std::int64_t count = 0;
    do {
        const std::int64_t next = count == 0 ? std::min<std::int64_t>(wanted, cnKeywordBuffer) : 1;
        const Transfer got = m_pipes->stdOutRead->Read(buffer + count, static_cast<std::size_t>(next));
        if (got.Failed()) {
            message = CStringU::Formatted("Read Keyword failed with error: %d\n", got.code);
            count = -1;
            break;
        }
        count += got.count;
        buffer[count] = '\0';
        received.Assign(buffer, TextEncoding::Utf8Auto);
    } while (!EndsWithKeyword(received, m_info.keyword) && count < available);
    return static_cast<int>(count);
}

bool TPipeModule::Send(const char* data, std::uint64_t size, CStringU& message) {
    const std::lock_guard guard(m_sendMutex);
    const auto count = static_cast<std::uint32_t>(size);
    std::uint32_t done = 0;
    while (done < count) {
        const Transfer written = m_pipes->stdInWrite->Write(data + done, count - done);
        if (written.Failed()) {
            message = CStringU::Formatted("send failed with error: %d\n", written.code);
            Disconnect();
            return false;
        }
        done += static_cast<std::uint32_t>(written.count);
    }
    return true;
}

int TPipeModule::Recv(char* buffer, int capacity, CStringU& message) {
    if (!IsConnected()) return 0;
    const std::lock_guard guard(m_recvMutex);
    if (buffer == nullptr || capacity < 1) {
        message = "Recv buffer is null or recv buffer length <= 0.\n";
        return -1;
    }
    const Transfer got = m_pipes->stdOutRead->Read(buffer, static_cast<std::size_t>(capacity));
    if (got.Failed()) {
        message = CStringU::Formatted("Recv failed with error: %d\n", got.code);
        return 0;
    }
    if (got.count > 0) buffer[got.count] = '\0';
    return static_cast<int>(got.count);
}

void TPipeModule::Disconnect() {
    // The first of several threads does it.
    if (!m_connected.exchange(false)) return;
    m_pipes->stdInWrite->Close();
    m_pipes->stdOutRead->Close();
}

void TPipeModule::Close() {
    TConnectionModule::Close();
}

bool TPipeModule::IsDefunct() {
    return !m_defunctLatch.test_and_set() && !IsConnected();
}

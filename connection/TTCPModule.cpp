/// @file
/// The sockets of a connection. Where a handshake fails, what was open by then stays open until the object
/// ends: the listening socket behind a worker that never came, the client behind a wrong keyword.
///
/// A socket is closed once and never under a call of another thread: the objects count who is inside.
///
/// The surprise: an accept while the connection is up leaves it without a client. The old client is put
/// aside, open, for the thread that may still be receiving from it.
#include "vapp/connection/TTCPModule.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "connection/Limits.h"
#include "connection/StartWorker.h"
#include "platform/ChildEnvironment.h"
#include "platform/Socket.h"

using vapp_connection::cnKeywordBuffer;
using vapp_platform::ListenStep;
using vapp_platform::Socket;
using vapp_platform::SocketWait;
using vapp_platform::Transfer;
using vapp_platform::WaitAnswer;

namespace {

struct StepMessage {
    ListenStep step;
    const char* format;
};

constexpr StepMessage cnStepMessages[] = {
    {ListenStep::Resolve, "getaddrinfo failed with error: %d\n"},
    {ListenStep::Create, "socket function failed with error = %d\n"},
    {ListenStep::ReuseAddress, "setsockopt failed with error: %d\n"},
    {ListenStep::Bind, "bind function failed with error: %d\n"},
    {ListenStep::GetName, "getsockname failed with error: %d\n"},
    {ListenStep::Family, "unknown address family %d\n"},
    {ListenStep::Listen, "listen function failed with error: %d\n"},
};

CStringU MessageOf(const vapp_platform::Listening& listening) {
    const auto* const row =
        std::find_if(std::begin(cnStepMessages), std::end(cnStepMessages),
                     [&](const StepMessage& each) { return each.step == listening.failed; });
    return CStringU::Formatted(row->format, listening.code);
}

CStringU TimedOutMessage(const CStringU& keyword) {
    return CStringU::Formatted("Timed out waiting keyword \"%s\" for accept TCP connection.\n",
                               keyword.Payload());
}

// One NUL of the two at the end gives way to the entry, which brings two of its own.
void AppendAddress(std::vector<wchar_t>& environment, std::uint16_t port) {
    if (environment.empty()) {
        environment = vapp_platform::EnvironmentSnapshot();
    } else if (environment.front() == L'\0') {
        // A block without entries: behind a NUL at its front nobody would look for one.
        environment.clear();
    } else {
        environment.pop_back();
    }
    const std::wstring entry = L"TCONNECT_ADDRESS=localhost:" + std::to_wstring(port);
    environment.insert(environment.end(), entry.begin(), entry.end());
    environment.insert(environment.end(), 2, L'\0');
}

using std::chrono::milliseconds;

// Between two waits of which the first has failed.
constexpr milliseconds cnRetryPause{10};

using WaitCall = SocketWait (Socket::*)(milliseconds);

// False when the limit is over. A wait that fails says nothing about the socket, so it is made again until
// then; without a socket there is nothing to wait for, and the call that follows says why it fails.
bool WaitUntilReady(Socket& socket, WaitCall wait) {
    const milliseconds limit = vapp_connection::CurrentLimits().socketWait;
    const auto end = std::chrono::steady_clock::now() + limit;
    milliseconds left = limit;
    do {
        const WaitAnswer answer = (socket.*wait)(left).answer;
        if (answer != WaitAnswer::Failed) return answer == WaitAnswer::Ready;
        if (!socket.IsOpen()) return true;
        std::this_thread::sleep_for(std::min(left, cnRetryPause));
        left = std::chrono::ceil<milliseconds>(end - std::chrono::steady_clock::now());
    } while (left.count() > 0);
    return false;
}

}  // namespace

TTCPModule::TTCPModule(ConnectionInfo&& info) : TTCPModule(static_cast<const ConnectionInfo&>(info)) {}

TTCPModule::TTCPModule(const ConnectionInfo& info)
    : TConnectionModule(info),
      m_socketLibrary(std::make_unique<vapp_platform::SocketLibrary>()),
      m_listenSocket(std::make_unique<Socket>()) {
    m_clients.push_back(std::make_unique<Socket>());
    m_clientSocket = m_clients.front().get();
    SetTCPEnvironments();
}

TTCPModule::~TTCPModule() {
    TConnectionModule::Close();
}

// They are never taken back: every later child of the process sees them.
void TTCPModule::SetTCPEnvironments() {
    vapp_platform::SetEnvironmentValue("CONNECTION_TYPE_TCP", "");
    vapp_platform::SetEnvironmentValue("VORNEX_HOST_NAME", m_info.hostName.ToAnsi());
}

void TTCPModule::AddClient(std::unique_ptr<Socket> client) {
    const std::lock_guard guard(m_clientsMutex);
    m_clientSocket = client.get();
    m_clients.push_back(std::move(client));
}

bool TTCPModule::InitSocket(CStringU& message) {
    if (const int code = m_socketLibrary->Start(); code != 0) {
        message = CStringU::Formatted("WSAStartup failed with error: %d\n", code);
        return false;
    }
    vapp_platform::Listening listening = vapp_platform::ListenAtLocalhost();
    if (listening.failed != ListenStep::None) {
        message = MessageOf(listening);
        m_socketLibrary->End();
        return false;
    }
    m_listenSocket = std::move(listening.socket);
    m_address = listening.address;
    m_port = listening.port;
    return true;
}

bool TTCPModule::InitConnection(std::vector<wchar_t>& environment, CStringU& message) {
    if (!InitSocket(message)) return false;
    AppendAddress(environment, m_port);
    vapp_platform::ChildStart start;
    start.commandLine = vapp_connection::WorkerCommandLine(m_info);
    start.environment = environment;
    message = start.commandLine + "\n";

    m_childProcess = vapp_connection::StartWorker(start);
    if (m_childProcess == nullptr || !AcceptConnection(message)) return false;
    m_connected = true;
    return true;
}

bool TTCPModule::AcceptConnection(CStringU& message) {
    m_clientSocket = m_clients.front().get();
    if (!m_workerLatch.test_and_set()) {
        m_listenSocket->Close();
        return true;
    }
    const SocketWait wait = m_listenSocket->WaitReadable(vapp_connection::CurrentLimits().socketWait);
    if (wait.answer == WaitAnswer::TimedOut) {
        message = TimedOutMessage(m_info.keyword);
        m_socketLibrary->End();
        return false;
    }
    int code = 0;
    std::unique_ptr<Socket> client;
    if (wait.answer == WaitAnswer::Ready) client = m_listenSocket->Accept(code);
    // At once: no second worker can ever come in.
    m_listenSocket->Close();
    // Success without a client: hosts know a worker that could not be let in by its first Send or Recv.
    if (client == nullptr) return true;
    AddClient(std::move(client));

    CStringU received;
    const int count = ReadKeyword(received, message);
    // Of an empty keyword nothing is read, and nothing is what it is matched by.
    if (count == 0 && !m_info.keyword.IsEmpty()) {
        message = TimedOutMessage(m_info.keyword);
        Disconnect();
        return false;
    }
    if (count < 0 || !received.PayloadView().starts_with(m_info.keyword.PayloadView())) {
        message = CStringU::Formatted("Waiting keyword \"%s\" mismatched.\n", m_info.keyword.Payload());
        return false;
    }
    m_workerLatch.clear();
    return true;
}

int TTCPModule::ReadKeyword(CStringU& received, CStringU& message) {
    const int wanted = std::min(m_info.keyword.GetByteLength(), cnKeywordBuffer);
    char buffer[cnKeywordBuffer + 1];
    int count = 0;
    Socket& client = *m_clientSocket;
    while (count < wanted) {
        if (!WaitUntilReady(client, &Socket::WaitReadable)) return 0;
        // Never a byte beyond the keyword: the rest belongs to Recv.
        const Transfer got = client.Receive(buffer + count, static_cast<std::size_t>(wanted - count));
        if (got.Failed()) {
            message = CStringU::Formatted("Read Keyword failed with error: %d\n", got.code);
            return -1;
        }
        if (got.count == 0) return -1;
        count += static_cast<int>(got.count);
    }
    buffer[count] = '\0';
    received.Assign(buffer, TextEncoding::Utf8Auto);
    return count;
}

bool TTCPModule::Send(const char* data, std::uint64_t size, CStringU& message) {
    const std::lock_guard guard(m_sendMutex);
    const auto count = static_cast<std::int32_t>(size);
    std::int32_t done = 0;
    Socket& client = *m_clientSocket;
    while (done < count) {
        if (!WaitUntilReady(client, &Socket::WaitWritable)) return false;
        const Transfer sent = client.Send(data + done, static_cast<std::size_t>(count - done));
        if (sent.Failed()) {
            message = CStringU::Formatted("send failed with error: %d\n", sent.code);
            Disconnect();
            return false;
        }
        done += static_cast<std::int32_t>(sent.count);
    }
    return done == count;
}

int TTCPModule::Recv(char* buffer, int capacity, CStringU& message) {
    if (!IsConnected()) return 0;
    const std::lock_guard guard(m_recvMutex);
    if (buffer == nullptr || capacity < 1) {
        message = "Recv buffer is null or recv buffer length <= 0.\n";
        return -1;
    }
    Socket& client = *m_clientSocket;
    const Transfer got = client.Receive(buffer, static_cast<std::size_t>(capacity));
    if (got.Failed()) {
        if (!vapp_platform::IsWouldBlock(got.code)) {
            message = CStringU::Formatted("Recv lost failed with error: %d\n", got.code);
        }
        return -1;
    }
    if (got.count > 0) buffer[got.count] = '\0';
    return static_cast<int>(got.count);
}

void TTCPModule::Disconnect() {
    // The first of several threads does it.
    if (!m_connected.exchange(false)) return;
    m_listenSocket->Close();
    // All of them: a thread may also be in a client that was put aside, and has to come out.
    const std::lock_guard guard(m_clientsMutex);
    for (const std::unique_ptr<Socket>& client : m_clients)
        client->Close();
    m_socketLibrary->End();
}

void TTCPModule::Close() {
    TConnectionModule::Close();
}

/// @file
/// BSD sockets. Close shuts the connection down in both directions first: that wakes whoever blocks in it,
/// while the descriptor stays with its number until the last of them has left.
#include "platform/Socket.h"

#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <mutex>
#include <utility>

#include "platform/FaultPoint.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/EnvironmentLock.h"
#include "platform/posix/Poll.h"
#include "platform/posix/Retry.h"

namespace vapp_platform {

namespace {

SocketWait WaitFor(const OwnedHandle& handle, short events, std::chrono::milliseconds limit) {
    if (const int fault = FaultOf(SystemCall::WaitForSocket); fault != 0) return {WaitAnswer::Failed, fault};
    pollfd one[] = {{Descriptor(handle), events, 0}};
    const int news = PollFor(one, limit);
    if (news == 0) return {WaitAnswer::TimedOut, 0};
    if (news < 0) return {WaitAnswer::Failed, errno};
    if ((one[0].revents & POLLNVAL) != 0) return {WaitAnswer::Failed, EBADF};
    return {WaitAnswer::Ready, 0};
}

// What a call on a socket that was closed meanwhile came to.
constexpr int cnClosedHere = ECONNABORTED;

struct FreeAddresses {
    void operator()(addrinfo* addresses) const noexcept { freeaddrinfo(addresses); }
};
using Addresses = std::unique_ptr<addrinfo, FreeAddresses>;

Listening FailedAt(ListenStep step, int code) {
    Listening listening;
    listening.failed = step;
    listening.code = code;
    return listening;
}

int Resolve(Addresses& addresses) {
    if (const int fault = FaultOf(SystemCall::ResolveAddress); fault != 0) return fault;
    addrinfo hints{};
    hints.ai_flags = AI_PASSIVE;
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_protocol = IPPROTO_TCP;
    addrinfo* found = nullptr;
    // The resolver reads variables of the environment.
    const std::lock_guard guard(EnvironmentLock());
    const int result = getaddrinfo("localhost", nullptr, &hints, &found);
    addresses.reset(found);
    return result;
}

// 0, or errno of a call that gives a negative number for a failure; a fault goes before the call.
template <typename Call>
int CodeOf(SystemCall name, Call call) {
    if (const int fault = FaultOf(name); fault != 0) return fault;
    return call() >= 0 ? 0 : errno;
}

}  // namespace

int SocketLibrary::Start() {
    if (const int fault = FaultOf(SystemCall::StartSocketLibrary); fault != 0) return fault;
    m_started = true;
    return 0;
}

void SocketLibrary::Use() noexcept {
    m_started = true;
}

void SocketLibrary::End() noexcept {
    m_started = false;
}

Socket::Socket() noexcept {
    Close();
}

Socket::Socket(OwnedHandle handle) noexcept : m_handle(std::move(handle)) {
    m_library.Use();
}

SocketWait Socket::WaitReadable(std::chrono::milliseconds limit) {
    if (!m_gate.Enter()) return {WaitAnswer::Failed, cnClosedHere};
    const SocketWait wait = WaitFor(m_handle, POLLIN, limit);
    Leave();
    return wait;
}

SocketWait Socket::WaitWritable(std::chrono::milliseconds limit) {
    if (!m_gate.Enter()) return {WaitAnswer::Failed, cnClosedHere};
    const SocketWait wait = WaitFor(m_handle, POLLOUT, limit);
    Leave();
    return wait;
}

std::unique_ptr<Socket> Socket::Accept(int& code) {
    code = FaultOf(SystemCall::Accept);
    if (code != 0) return nullptr;
    code = cnClosedHere;
    if (!m_gate.Enter()) return nullptr;
    OwnedHandle peer(Retry([&] { return accept4(Descriptor(m_handle), nullptr, nullptr, SOCK_CLOEXEC); }));
    code = peer.IsOpen() ? 0 : errno;
    Leave();
    return code == 0 ? std::make_unique<Socket>(std::move(peer)) : nullptr;
}

Transfer Socket::Receive(void* buffer, std::size_t size) {
    if (!m_gate.Enter()) return {0, cnClosedHere};
    const ssize_t count = Retry([&] { return recv(Descriptor(m_handle), buffer, size, 0); });
    Transfer result{std::max<std::int64_t>(count, 0), count < 0 ? errno : 0};
    // The end of a stream that was shut down here is not the peer's word.
    if (count <= 0 && m_gate.IsClosed()) result.code = cnClosedHere;
    Leave();
    return result;
}

Transfer Socket::Send(const void* data, std::size_t size) {
    if (!m_gate.Enter()) return {0, cnClosedHere};
    const ssize_t count = Retry([&] { return send(Descriptor(m_handle), data, size, MSG_NOSIGNAL); });
    const Transfer result{std::max<std::int64_t>(count, 0), count < 0 ? errno : 0};
    Leave();
    return result;
}

void Socket::Close() noexcept {
    if (!m_gate.Close()) return;
    if (m_handle.IsOpen()) shutdown(Descriptor(m_handle), SHUT_RDWR);
    Leave();
}

void Socket::Leave() noexcept {
    if (!m_gate.Leave()) return;
    m_handle.Drop();
    m_library.End();
}

bool IsWouldBlock(int code) noexcept {
    return code == EWOULDBLOCK || code == EAGAIN;
}

Listening ListenAtLocalhost() {
    Addresses addresses;
    if (const int code = Resolve(addresses); code != 0) return FailedAt(ListenStep::Resolve, code);

    OwnedHandle handle;
    int code = CodeOf(SystemCall::CreateSocket, [&] {
        handle = OwnedHandle(
            socket(addresses->ai_family, addresses->ai_socktype | SOCK_CLOEXEC, addresses->ai_protocol));
        return handle.Get();
    });
    if (code != 0) return FailedAt(ListenStep::Create, code);

    code = CodeOf(SystemCall::ReuseAddress, [&] {
        const int yes = 1;
        return setsockopt(Descriptor(handle), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    if (code != 0) return FailedAt(ListenStep::ReuseAddress, code);

    code = CodeOf(SystemCall::Bind,
                  [&] { return bind(Descriptor(handle), addresses->ai_addr, addresses->ai_addrlen); });
    if (code != 0) return FailedAt(ListenStep::Bind, code);
    addresses.reset();

    sockaddr_in name{};
    code = CodeOf(SystemCall::GetSocketName, [&] {
        socklen_t length = sizeof name;
        return getsockname(Descriptor(handle), reinterpret_cast<sockaddr*>(&name), &length);
    });
    if (code != 0) return FailedAt(ListenStep::GetName, code);

    const int strangeFamily = FaultOf(SystemCall::AddressFamily);
    const int family = strangeFamily != 0 ? strangeFamily : name.sin_family;
    if (family != AF_INET && family != AF_INET6) return FailedAt(ListenStep::Family, family);

    code = CodeOf(SystemCall::Listen, [&] { return listen(Descriptor(handle), SOMAXCONN); });
    if (code != 0) return FailedAt(ListenStep::Listen, code);

    Listening listening;
    static_assert(sizeof name == sizeof listening.address);
    std::memcpy(listening.address.data(), &name, sizeof name);
    listening.port = ntohs(name.sin_port);
    listening.socket = std::make_unique<Socket>(std::move(handle));
    return listening;
}

}  // namespace vapp_platform

/// @file
/// Winsock. What shutdown does to a call that blocks in another thread differs between its providers, so
/// Close also cancels the call, as often as it takes, and gives the socket back when nobody is inside any
/// more. A wait with a limit is cut into short ones for the same reason.
#include "platform/Socket.h"

// Before windows.h, which would else bring the first version.
#include <winsock2.h>

#include <windows.h>
#include <ws2tcpip.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "platform/FaultPoint.h"

namespace vapp_platform {

namespace {

using std::chrono::milliseconds;

// How long a wait can go on after the socket was closed.
constexpr milliseconds cnSlice{50};
// What a call on a socket that was closed here comes to.
constexpr int cnClosedHere = WSAECONNABORTED;

SOCKET AsSocket(const OwnedHandle& handle) {
    return static_cast<SOCKET>(handle.Get());
}

// A socket is no kernel handle: OwnedHandle must not be the one to close it.
void GiveBack(OwnedHandle& handle) {
    if (handle.IsOpen()) closesocket(static_cast<SOCKET>(handle.Release()));
}

struct SocketOwner {
    OwnedHandle handle;
    ~SocketOwner() { GiveBack(handle); }
};

int AsCount(std::size_t size) {
    return static_cast<int>(std::min<std::size_t>(size, std::numeric_limits<int>::max()));
}

Transfer AsTransfer(int count) {
    return {std::max(count, 0), count < 0 ? WSAGetLastError() : 0};
}

SocketWait SelectFor(const OwnedHandle& handle, bool reading, milliseconds limit) {
    fd_set one;
    FD_ZERO(&one);
    FD_SET(AsSocket(handle), &one);
    timeval time{};
    time.tv_sec = static_cast<long>(limit.count() / 1000);
    time.tv_usec = static_cast<long>(limit.count() % 1000 * 1000);
    const int news = select(0, reading ? &one : nullptr, reading ? nullptr : &one, nullptr, &time);
    if (news == 0) return {WaitAnswer::TimedOut, 0};
    if (news < 0) return {WaitAnswer::Failed, WSAGetLastError()};
    return {WaitAnswer::Ready, 0};
}

SocketWait WaitFor(const OwnedHandle& handle, const UseGate& gate, bool reading, milliseconds limit) {
    if (const int fault = FaultOf(SystemCall::WaitForSocket); fault != 0) return {WaitAnswer::Failed, fault};
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!gate.IsClosed()) {
        const auto left = std::chrono::ceil<milliseconds>(end - std::chrono::steady_clock::now());
        const SocketWait wait = SelectFor(handle, reading, std::clamp(left, milliseconds(0), cnSlice));
        if (wait.answer != WaitAnswer::TimedOut || left <= cnSlice) return wait;
    }
    return {WaitAnswer::Failed, cnClosedHere};
}

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
    const int result = getaddrinfo("localhost", nullptr, &hints, &found);
    addresses.reset(found);
    return result;
}

// 0, or the code of a call that tells its failure by SOCKET_ERROR; a fault goes before the call.
template <typename Call>
int CodeOf(SystemCall name, Call call) {
    if (const int fault = FaultOf(name); fault != 0) return fault;
    return call() != SOCKET_ERROR ? 0 : WSAGetLastError();
}

// Sockets are inherited by children unless told otherwise.
int MakeSocket(const addrinfo& address, OwnedHandle& handle) {
    const SOCKET made = WSASocketW(address.ai_family, address.ai_socktype, address.ai_protocol, nullptr, 0,
                                   WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
    if (made == INVALID_SOCKET) return SOCKET_ERROR;
    handle = OwnedHandle(static_cast<NativeHandle>(made));
    return 0;
}

}  // namespace

int SocketLibrary::Start() {
    if (const int fault = FaultOf(SystemCall::StartSocketLibrary); fault != 0) return fault;
    WSADATA data;
    const int result = WSAStartup(MAKEWORD(2, 2), &data);
    m_started = result == 0;
    return result;
}

void SocketLibrary::Use() noexcept {
    WSADATA data;
    m_started = WSAStartup(MAKEWORD(2, 2), &data) == 0;
}

// The last end takes every open socket of the process with it, whose numbers then belong to whoever comes
// next: so each socket counts as a use of its own.
void SocketLibrary::End() noexcept {
    if (std::exchange(m_started, false)) WSACleanup();
}

Socket::Socket() noexcept {
    Close();
}

Socket::Socket(OwnedHandle handle) noexcept : m_handle(std::move(handle)) {
    m_library.Use();
}

SocketWait Socket::WaitReadable(milliseconds limit) {
    if (!m_gate.Enter()) return {WaitAnswer::Failed, cnClosedHere};
    const SocketWait wait = WaitFor(m_handle, m_gate, true, limit);
    Leave();
    return wait;
}

SocketWait Socket::WaitWritable(milliseconds limit) {
    if (!m_gate.Enter()) return {WaitAnswer::Failed, cnClosedHere};
    const SocketWait wait = WaitFor(m_handle, m_gate, false, limit);
    Leave();
    return wait;
}

std::unique_ptr<Socket> Socket::Accept(int& code) {
    code = FaultOf(SystemCall::Accept);
    if (code != 0) return nullptr;
    code = cnClosedHere;
    if (!m_gate.Enter()) return nullptr;
    const SOCKET peer = accept(AsSocket(m_handle), nullptr, nullptr);
    code = peer != INVALID_SOCKET ? 0 : WSAGetLastError();
    Leave();
    if (code != 0) return nullptr;
    SetHandleInformation(reinterpret_cast<HANDLE>(peer), HANDLE_FLAG_INHERIT, 0);
    return std::make_unique<Socket>(OwnedHandle(static_cast<NativeHandle>(peer)));
}

Transfer Socket::Receive(void* buffer, std::size_t size) {
    if (!m_gate.Enter()) return {0, cnClosedHere};
    Transfer result = AsTransfer(recv(AsSocket(m_handle), static_cast<char*>(buffer), AsCount(size), 0));
    // The end of a stream that was shut down here is not the peer's word.
    if (result.count == 0 && m_gate.IsClosed()) result.code = cnClosedHere;
    Leave();
    return result;
}

Transfer Socket::Send(const void* data, std::size_t size) {
    if (!m_gate.Enter()) return {0, cnClosedHere};
    const Transfer result =
        AsTransfer(send(AsSocket(m_handle), static_cast<const char*>(data), AsCount(size), 0));
    Leave();
    return result;
}

void Socket::Close() noexcept {
    if (!m_gate.Close()) return;
    if (m_handle.IsOpen()) shutdown(AsSocket(m_handle), SD_BOTH);
    while (m_gate.HasUsers()) {
        CancelIoEx(reinterpret_cast<HANDLE>(m_handle.Get()), nullptr);
        if (m_gate.HasUsers()) Sleep(1);
    }
    Leave();
}

void Socket::Leave() noexcept {
    if (!m_gate.Leave()) return;
    GiveBack(m_handle);
    m_library.End();
}

bool IsWouldBlock(int code) noexcept {
    return code == WSAEWOULDBLOCK;
}

Listening ListenAtLocalhost() {
    Addresses addresses;
    if (const int code = Resolve(addresses); code != 0) return FailedAt(ListenStep::Resolve, code);

    SocketOwner owner;
    int code = CodeOf(SystemCall::CreateSocket, [&] { return MakeSocket(*addresses, owner.handle); });
    if (code != 0) return FailedAt(ListenStep::Create, code);
    const SOCKET handle = AsSocket(owner.handle);

    code = CodeOf(SystemCall::ReuseAddress, [&] {
        const int yes = 1;
        return setsockopt(handle, SOL_SOCKET, SO_REUSEADDR, reinterpret_cast<const char*>(&yes), sizeof yes);
    });
    if (code != 0) return FailedAt(ListenStep::ReuseAddress, code);

    code = CodeOf(SystemCall::Bind,
                  [&] { return bind(handle, addresses->ai_addr, static_cast<int>(addresses->ai_addrlen)); });
    if (code != 0) return FailedAt(ListenStep::Bind, code);
    addresses.reset();

    sockaddr_in name{};
    code = CodeOf(SystemCall::GetSocketName, [&] {
        int length = sizeof name;
        return getsockname(handle, reinterpret_cast<sockaddr*>(&name), &length);
    });
    if (code != 0) return FailedAt(ListenStep::GetName, code);

    const int strangeFamily = FaultOf(SystemCall::AddressFamily);
    const int family = strangeFamily != 0 ? strangeFamily : name.sin_family;
    if (family != AF_INET && family != AF_INET6) return FailedAt(ListenStep::Family, family);

    code = CodeOf(SystemCall::Listen, [&] { return listen(handle, SOMAXCONN); });
    if (code != 0) return FailedAt(ListenStep::Listen, code);

    Listening listening;
    static_assert(sizeof name == sizeof listening.address);
    std::memcpy(listening.address.data(), &name, sizeof name);
    listening.port = ntohs(name.sin_port);
    listening.socket = std::make_unique<Socket>(std::move(owner.handle));
    return listening;
}

}  // namespace vapp_platform

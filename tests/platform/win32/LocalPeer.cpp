#include "tests/platform/LocalPeer.h"

#include <winsock2.h>

#include <windows.h>

#include <utility>

namespace platform_test {

namespace {

SOCKET AsSocket(vapp_platform::NativeHandle handle) {
    return static_cast<SOCKET>(handle);
}

}  // namespace

LocalPeer::LocalPeer(std::uint16_t port) {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
    const SOCKET handle = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    m_handle = static_cast<vapp_platform::NativeHandle>(handle);
    if (connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) Close();
}

LocalPeer::LocalPeer(LocalPeer&& other) noexcept
    : m_handle(std::exchange(other.m_handle, vapp_platform::cnNoHandle)) {}

bool LocalPeer::Send(std::string_view bytes) const {
    while (!bytes.empty()) {
        const int sent = send(AsSocket(m_handle), bytes.data(), static_cast<int>(bytes.size()), 0);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::string LocalPeer::Receive(std::size_t size) const {
    std::string bytes;
    while (bytes.size() < size) {
        const std::string more = ReceiveSome(size - bytes.size());
        if (more.empty()) break;
        bytes += more;
    }
    return bytes;
}

std::string LocalPeer::ReceiveSome(std::size_t size) const {
    std::string bytes(size, '\0');
    const int got = recv(AsSocket(m_handle), bytes.data(), static_cast<int>(size), 0);
    bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return bytes;
}

bool LocalPeer::SeesTheEnd() const {
    char byte = 0;
    return recv(AsSocket(m_handle), &byte, 1, 0) == 0;
}

void LocalPeer::Close() {
    if (!IsConnected()) return;
    closesocket(AsSocket(std::exchange(m_handle, vapp_platform::cnNoHandle)));
    WSACleanup();
}

std::vector<vapp_platform::NativeHandle> OwnSocketsAt(std::uint16_t port) {
    constexpr std::intptr_t cnStep = 4;
    constexpr std::intptr_t cnBehindLast = 0x4000;
    std::vector<vapp_platform::NativeHandle> sockets;
    for (std::intptr_t handle = cnStep; handle < cnBehindLast; handle += cnStep) {
        sockaddr_in name{};
        int length = sizeof name;
        if (getsockname(AsSocket(handle), reinterpret_cast<sockaddr*>(&name), &length) != 0) continue;
        if (name.sin_family == AF_INET && ntohs(name.sin_port) == port) sockets.push_back(handle);
    }
    return sockets;
}

void StopBlocking(vapp_platform::NativeHandle socket) {
    u_long yes = 1;
    ioctlsocket(AsSocket(socket), FIONBIO, &yes);
}

bool IsInheritable(vapp_platform::NativeHandle socket) {
    DWORD flags = 0;
    return GetHandleInformation(reinterpret_cast<HANDLE>(socket), &flags) == 0 ||
           (flags & HANDLE_FLAG_INHERIT) != 0;
}

}  // namespace platform_test

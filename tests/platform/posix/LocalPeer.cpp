#include "tests/platform/LocalPeer.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <utility>

namespace platform_test {

LocalPeer::LocalPeer(std::uint16_t port) {
    const int handle = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    m_handle = handle;
    if (connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) Close();
}

LocalPeer::LocalPeer(LocalPeer&& other) noexcept
    : m_handle(std::exchange(other.m_handle, vapp_platform::cnNoHandle)) {}

bool LocalPeer::Send(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t sent = send(static_cast<int>(m_handle), bytes.data(), bytes.size(), MSG_NOSIGNAL);
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
    const ssize_t got = recv(static_cast<int>(m_handle), bytes.data(), size, 0);
    bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return bytes;
}

bool LocalPeer::SeesTheEnd() const {
    char byte = 0;
    return recv(static_cast<int>(m_handle), &byte, 1, 0) == 0;
}

void LocalPeer::Close() {
    if (IsConnected()) close(static_cast<int>(std::exchange(m_handle, vapp_platform::cnNoHandle)));
}

std::vector<vapp_platform::NativeHandle> OwnSocketsAt(std::uint16_t port) {
    constexpr int cnBehindLast = 1024;
    std::vector<vapp_platform::NativeHandle> sockets;
    for (int handle = 0; handle < cnBehindLast; ++handle) {
        sockaddr_in name{};
        socklen_t length = sizeof name;
        if (getsockname(handle, reinterpret_cast<sockaddr*>(&name), &length) != 0) continue;
        if (name.sin_family == AF_INET && ntohs(name.sin_port) == port) sockets.push_back(handle);
    }
    return sockets;
}

void StopBlocking(vapp_platform::NativeHandle socket) {
    fcntl(static_cast<int>(socket), F_SETFL, O_NONBLOCK);
}

bool IsInheritable(vapp_platform::NativeHandle socket) {
    return (fcntl(static_cast<int>(socket), F_GETFD) & FD_CLOEXEC) == 0;
}

}  // namespace platform_test

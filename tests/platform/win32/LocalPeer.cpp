#include "tests/platform/LocalPeer.h"

#include <winsock2.h>

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

void LocalPeer::Close() {
    if (!IsConnected()) return;
    closesocket(AsSocket(std::exchange(m_handle, vapp_platform::cnNoHandle)));
    WSACleanup();
}

}  // namespace platform_test

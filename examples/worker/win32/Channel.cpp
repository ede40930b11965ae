/// @file
/// Winsock for one kind, handles for the other: its sockets are not the C runtime's descriptors.
#include "examples/worker/Channel.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t cnBlock = 65536;

class TStreams : public TChannel {
public:
    bool Send(std::string_view bytes) override {
        while (!bytes.empty()) {
            DWORD done = 0;
            const auto size = static_cast<DWORD>(std::min(bytes.size(), cnBlock));
            if (WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), bytes.data(), size, &done, nullptr) == 0)
                return false;
            bytes.remove_prefix(done);
        }
        return true;
    }

    std::string Receive() override {
        std::array<char, cnBlock> buffer{};
        DWORD got = 0;
        if (ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), cnBlock, &got, nullptr) == 0) got = 0;
        return {buffer.data(), got};
    }
};

class TSocket : public TChannel {
public:
    explicit TSocket(SOCKET handle) : m_handle(handle) {}
    ~TSocket() override {
        closesocket(m_handle);
        WSACleanup();
    }

    bool Send(std::string_view bytes) override {
        while (!bytes.empty()) {
            const auto size = static_cast<int>(std::min(bytes.size(), cnBlock));
            const int done = send(m_handle, bytes.data(), size, 0);
            if (done <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(done));
        }
        return true;
    }

    std::string Receive() override {
        std::array<char, cnBlock> buffer{};
        const int got = recv(m_handle, buffer.data(), static_cast<int>(buffer.size()), 0);
        return {buffer.data(), got > 0 ? static_cast<std::size_t>(got) : 0};
    }

private:
    SOCKET m_handle;
};

SOCKET ConnectSocket(const addrinfo& address) {
    const SOCKET handle = socket(address.ai_family, address.ai_socktype, address.ai_protocol);
    if (handle == INVALID_SOCKET) return handle;
    if (connect(handle, address.ai_addr, static_cast<int>(address.ai_addrlen)) == 0) return handle;
    closesocket(handle);
    return INVALID_SOCKET;
}

}  // namespace

std::unique_ptr<TChannel> OpenStandardStreams() {
    return std::make_unique<TStreams>();
}

std::unique_ptr<TChannel> ConnectTo(const std::string& host, const std::string& port) {
    WSADATA data{};
    if (WSAStartup(MAKEWORD(2, 2), &data) != 0) return nullptr;
    addrinfo wanted{};
    // The host listens on this family alone.
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), port.c_str(), &wanted, &found) != 0) return nullptr;
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> addresses(found, freeaddrinfo);
    const SOCKET handle = ConnectSocket(*addresses);
    if (handle == INVALID_SOCKET) return nullptr;
    return std::make_unique<TSocket>(handle);
}

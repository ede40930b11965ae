/// @file
/// Descriptors. A host that has gone is an error of the call and not a signal.
#include "examples/worker/Channel.h"

#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace {

class TDescriptors : public TChannel {
public:
    TDescriptors(int input, int output) : m_input(input), m_output(output) { std::signal(SIGPIPE, SIG_IGN); }
    ~TDescriptors() override {
        close(m_input);
        if (m_output != m_input) close(m_output);
    }

    bool Send(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t done = write(m_output, bytes.data(), bytes.size());
            if (done < 0 && errno == EINTR) continue;
            if (done <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(done));
        }
        return true;
    }

    std::string Receive() override {
        std::array<char, 65536> buffer{};
        ssize_t got = 0;
        do {
            got = read(m_input, buffer.data(), buffer.size());
        } while (got < 0 && errno == EINTR);
        return {buffer.data(), got > 0 ? static_cast<std::size_t>(got) : 0};
    }

private:
    int m_input;
    int m_output;
};

int ConnectSocket(const addrinfo& address) {
    const int handle = socket(address.ai_family, address.ai_socktype | SOCK_CLOEXEC, address.ai_protocol);
    if (handle < 0 || connect(handle, address.ai_addr, address.ai_addrlen) == 0) return handle;
    close(handle);
    return -1;
}

}  // namespace

std::unique_ptr<TChannel> OpenStandardStreams() {
    return std::make_unique<TDescriptors>(STDIN_FILENO, STDOUT_FILENO);
}

std::unique_ptr<TChannel> ConnectTo(const std::string& host, const std::string& port) {
    addrinfo wanted{};
    // The host listens on this family alone.
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), port.c_str(), &wanted, &found) != 0) return nullptr;
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> addresses(found, freeaddrinfo);
    const int handle = ConnectSocket(*addresses);
    if (handle < 0) return nullptr;
    return std::make_unique<TDescriptors>(handle, handle);
}

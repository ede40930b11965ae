/// @file
/// The worker of bench_connection: the smallest that is one, so that a start measures starts and not its own
/// libraries. Not for anything else: it ends where something fails.
///
///     connection_worker                    says the keyword, and ends with its input
///     connection_worker PORT               the same, and serves orders on a second, bare socket too
///     connection_worker IN OUT             the same, over two named pipes
///
/// An order is three numbers of 64 bits: what, size, count. 'e': reads so many bytes and sends them back, so
/// many times. 's': reads size times count bytes and says one. 'f': sends size times count bytes.
#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

struct TWire {
    int in;
    int out;
};

struct TOrder {
    std::uint64_t what;
    std::uint64_t size;
    std::uint64_t count;
};

void WriteAll(int out, const char* bytes, std::uint64_t size) {
    while (size > 0) {
        const ssize_t done = write(out, bytes, size);
        if (done <= 0) _exit(2);
        bytes += done;
        size -= static_cast<std::uint64_t>(done);
    }
}

bool ReadAll(int in, void* buffer, std::uint64_t size) {
    for (char* place = static_cast<char*>(buffer); size > 0;) {
        const ssize_t got = read(in, place, size);
        if (got <= 0) return false;
        place += got;
        size -= static_cast<std::uint64_t>(got);
    }
    return true;
}

int ConnectTo(int port) {
    const int wire = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    if (connect(wire, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) _exit(3);
    return wire;
}

TWire OwnWire() {
    const char* const address = getenv("TCONNECT_ADDRESS");
    if (address == nullptr) return {0, 1};
    const int wire = ConnectTo(atoi(strchr(address, ':') + 1));
    return {wire, wire};
}

void Sink(int in, std::uint64_t size) {
    static std::vector<char> buffer(1U << 20U);
    while (size > 0) {
        const ssize_t got = read(in, buffer.data(), std::min<std::uint64_t>(size, buffer.size()));
        if (got <= 0) _exit(4);
        size -= static_cast<std::uint64_t>(got);
    }
}

bool Serve(const TWire& wire) {
    TOrder order{};
    if (!ReadAll(wire.in, &order, sizeof order)) return false;
    static std::vector<char> bytes;
    if (order.what != 's') bytes.resize(std::max<std::size_t>(bytes.size(), order.size), 'w');
    for (std::uint64_t turn = 0; turn < order.count; ++turn) {
        if (order.what == 's') {
            Sink(wire.in, order.size);
        } else {
            if (order.what == 'e' && !ReadAll(wire.in, bytes.data(), order.size)) return false;
            WriteAll(wire.out, bytes.data(), order.size);
        }
    }
    if (order.what == 's') WriteAll(wire.out, "s", 1);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const TWire own = OwnWire();
    WriteAll(own.out, "KEY", 3);
    TWire bare{-1, -1};
    if (argc == 2) {
        bare.in = bare.out = ConnectTo(atoi(argv[1]));
    } else if (argc == 3) {
        // In the order in which the host opens them: each waits for the other side.
        bare.in = open(argv[1], O_RDONLY | O_CLOEXEC);
        bare.out = open(argv[2], O_WRONLY | O_CLOEXEC);
    }
    while (true) {
        pollfd both[] = {{own.in, POLLIN, 0}, {bare.in, POLLIN, 0}};
        if (poll(both, 2, -1) < 0) return 5;
        if (both[0].revents != 0 && !Serve(own)) return 0;
        if (both[1].revents != 0 && !Serve(bare)) return 0;
    }
}

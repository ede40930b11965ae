/// @file
/// What bench_connection measures connections against: the same system calls with nothing around them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace connection_bench {

/// A descriptor to read from and one to write to, the same for a socket. Blocking.
class BareWire {
public:
    BareWire(int in, int out) : m_in(in), m_out(out) {}
    BareWire(const BareWire&) = delete;
    BareWire& operator=(const BareWire&) = delete;
    ~BareWire();

    void Send(const char* data, std::size_t size) const;
    [[nodiscard]] std::size_t Receive(char* buffer, std::size_t capacity) const;

private:
    int m_in;
    int m_out;
};

/// A listening socket of this machine.
class BareListener {
public:
    BareListener();
    BareListener(const BareListener&) = delete;
    BareListener& operator=(const BareListener&) = delete;
    ~BareListener();

    [[nodiscard]] int Port() const { return m_port; }
    /// The next peer's socket.
    [[nodiscard]] int Accept() const;

private:
    int m_listener;
    int m_port = 0;
};

/// Two named pipes in a folder of their own.
class NamedPipes {
public:
    NamedPipes();
    NamedPipes(const NamedPipes&) = delete;
    NamedPipes& operator=(const NamedPipes&) = delete;
    ~NamedPipes();

    [[nodiscard]] std::string ToWorker() const { return m_folder + "/to"; }
    [[nodiscard]] std::string FromWorker() const { return m_folder + "/from"; }

private:
    std::string m_folder;
};

/// Starts a worker by posix_spawn, over a socket or over two pipes, waits for its keyword, and gives the
/// seconds that this took. The worker is ended and collected outside of them.
double SecondsOfBareStart(const std::string& program, bool overSocket);

/// Ends the program where a call of the bench's own has failed.
void Require(bool holds, const char* what);

}  // namespace connection_bench

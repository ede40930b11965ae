/// @file
/// TCP sockets of this machine: one that listens at a port that the system picks, and the connection that it
/// accepts.
///
/// Sockets stay in blocking mode; each wait with a limit is a wait of its own. A call that blocks is woken
/// when another thread closes the socket, and comes back with a code; the descriptor is given back by whoever
/// leaves last. Every code is the system's own number.
///
/// Not here: names and ports of other machines.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/OwnedHandle.h"
#include "platform/Transfer.h"
#include "platform/UseGate.h"

namespace vapp_platform {

/// The process's use of the socket library, which Windows counts. Elsewhere it counts nothing, and can still
/// be told to fail.
class SocketLibrary {
public:
    SocketLibrary() noexcept = default;
    SocketLibrary(const SocketLibrary&) = delete;
    SocketLibrary& operator=(const SocketLibrary&) = delete;
    ~SocketLibrary() { End(); }

    /// 0, or the system's code.
    [[nodiscard]] int Start();
    /// Starts it once more for something that lives by it, which can't fail as long as it is started.
    void Use() noexcept;
    /// Ends what Start began; nothing without it, nothing the second time.
    void End() noexcept;
    [[nodiscard]] bool IsStarted() const noexcept { return m_started; }

private:
    bool m_started = false;
};

/// What a wait came to.
enum class WaitAnswer {
    Ready,
    TimedOut,
    Failed,
};

struct SocketWait {
    WaitAnswer answer = WaitAnswer::Failed;
    /// The system's code of a failure.
    int code = 0;
};

/// One socket, which keeps the library in use as long as it is open. One thread at a time may receive and one
/// may send; any thread may close. A default one is no socket, and each call on it fails.
class Socket {
public:
    Socket() noexcept;
    explicit Socket(OwnedHandle handle) noexcept;
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    /// Closes. No thread may be inside any more.
    ~Socket() { Close(); }

    [[nodiscard]] bool IsOpen() const noexcept { return !m_gate.IsClosed(); }

    /// Waits until there is something to receive or to accept, or the peer has gone.
    [[nodiscard]] SocketWait WaitReadable(std::chrono::milliseconds limit);
    /// Waits until something can be sent, or the peer has gone.
    [[nodiscard]] SocketWait WaitWritable(std::chrono::milliseconds limit);
    /// Takes the next peer in; null and the code where that fails.
    [[nodiscard]] std::unique_ptr<Socket> Accept(int& code);
    /// Waits for bytes and takes at most `size` of them. 0 without a code: the peer has ended its stream.
    [[nodiscard]] Transfer Receive(void* buffer, std::size_t size);
    /// Hands bytes to the system, fewer than `size` where it takes no more; waits while it takes none.
    [[nodiscard]] Transfer Send(const void* data, std::size_t size);
    /// Tells the peer the end of the stream, wakes who blocks in this socket, gives the socket back.
    void Close() noexcept;

private:
    void Leave() noexcept;

    OwnedHandle m_handle;
    UseGate m_gate;
    SocketLibrary m_library;
};

/// The code of "a receive would block".
[[nodiscard]] bool IsWouldBlock(int code) noexcept;

/// The steps to a listening socket, in their order.
enum class ListenStep {
    None,
    Resolve,
    Create,
    ReuseAddress,
    Bind,
    GetName,
    Family,
    Listen,
};

/// A listening socket, or the step that failed with its code.
struct Listening {
    std::unique_ptr<Socket> socket;
    /// What the system says about the socket's own address: a `sockaddr`.
    std::array<unsigned char, 16> address{};
    /// In the order of this machine.
    std::uint16_t port = 0;
    ListenStep failed = ListenStep::None;
    int code = 0;
};

/// Listens at "localhost", on a port that the system picks. The socket is never inherited by a child.
[[nodiscard]] Listening ListenAtLocalhost();

}  // namespace vapp_platform

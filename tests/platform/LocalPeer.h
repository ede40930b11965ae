/// @file
/// The other side of a connection, made of bare calls: it shares no code with what is tested.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OwnedHandle.h"

namespace platform_test {

/// A blocking TCP connection to a port of this machine.
class LocalPeer {
public:
    explicit LocalPeer(std::uint16_t port);
    LocalPeer(LocalPeer&& other) noexcept;
    LocalPeer(const LocalPeer&) = delete;
    LocalPeer& operator=(const LocalPeer&) = delete;
    ~LocalPeer() { Close(); }

    [[nodiscard]] bool IsConnected() const noexcept { return m_handle != vapp_platform::cnNoHandle; }
    [[nodiscard]] vapp_platform::NativeHandle Handle() const noexcept { return m_handle; }
    /// Sends all; false where the other side has gone.
    bool Send(std::string_view bytes) const;
    /// Exactly so many bytes, fewer at the end of the stream.
    [[nodiscard]] std::string Receive(std::size_t size) const;
    /// One to `size` bytes; none at the end of the stream.
    [[nodiscard]] std::string ReceiveSome(std::size_t size) const;
    /// Waits; true for the plain end of the stream, false for bytes or for a connection that was torn down.
    [[nodiscard]] bool SeesTheEnd() const;
    void Close();

private:
    vapp_platform::NativeHandle m_handle = vapp_platform::cnNoHandle;
};

/// The sockets of this process that are bound to a port of this machine.
[[nodiscard]] std::vector<vapp_platform::NativeHandle> OwnSocketsAt(std::uint16_t port);
/// Makes a socket answer "would block" instead of waiting.
void StopBlocking(vapp_platform::NativeHandle socket);
/// Whether a child would get the socket that is started without a list of what it may have.
[[nodiscard]] bool IsInheritable(vapp_platform::NativeHandle socket);

}  // namespace platform_test

/// @file
/// TTCPModule: a worker that connects back by TCP. This process listens, on a port that the system picks, and
/// the worker finds the address in its environment.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "vapp/Export.h"
#include "vapp/connection/TConnectionModule.h"

namespace vapp_platform {
class Socket;
class SocketLibrary;
}  // namespace vapp_platform

/// The TCP transport. What comes first must begin with the keyword, byte by byte; an empty keyword is matched
/// by anything, also by nothing.
///
/// The constructors set CONNECTION_TYPE_TCP (to nothing) and VORNEX_HOST_NAME in the environment of this
/// process, for its children from then on. On Linux that moves what `getenv` has found: construct one while
/// no other thread of the host is reading the environment by itself.
class VAPP_EXPORT TTCPModule : public TConnectionModule {
public:
    TTCPModule(ConnectionInfo&& info);
    TTCPModule(const ConnectionInfo& info);
    /// Closes.
    ~TTCPModule() override;

    /// Adds TCONNECT_ADDRESS=localhost:<port> as the last entry of `environment`, which stays so; an empty
    /// one is filled with this process's environment first. A given one must end with two NULs. On success
    /// `message` is the command line with a line feed.
    bool InitConnection(std::vector<wchar_t>& environment, CStringU& message) override;
    /// Waits for one worker for 30 seconds, then for its keyword, 30 seconds for each piece.
    bool AcceptConnection(CStringU& message) override;
    /// `size` counts as a signed number of 32 bits. False without a message where for 30 seconds there is no
    /// room for a first byte; then all is handed to the system at once, which waits without a limit where the
    /// worker takes only a part: send large data in pieces if that matters. Another failure also disconnects.
    bool Send(const char* data, std::uint64_t size, CStringU& message) override;
    int Recv(char* buffer, int capacity, CStringU& message) override;
    void Disconnect() override;
    void Close() override;

private:
    int ReadKeyword(CStringU& received, CStringU& message) override;
    bool InitSocket(CStringU& message);
    void SetTCPEnvironments();
    void AddClient(std::unique_ptr<vapp_platform::Socket> client);

    std::unique_ptr<vapp_platform::SocketLibrary> m_socketLibrary;
    std::unique_ptr<vapp_platform::Socket> m_listenSocket;
    /// The one that Send and Recv use; among m_clients.
    std::atomic<vapp_platform::Socket*> m_clientSocket = nullptr;
    /// No socket, and every client that there was: another thread may still be in it.
    std::vector<std::unique_ptr<vapp_platform::Socket>> m_clients;
    std::mutex m_clientsMutex;
    /// The listening socket's own address as the system writes it.
    std::array<unsigned char, 16> m_address{};
    std::uint16_t m_port = 0;
};

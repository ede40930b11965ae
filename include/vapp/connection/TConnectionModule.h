/// @file
/// TConnectionModule: a worker program, started from here or on a remote machine, and the channel to it.
///
/// It owns the child process, the state flags and the two locks, and fixes the order of calls and the keyword
/// handshake; TTCPModule and TPipeModule carry them out. Behind the keyword the channel passes bytes through
/// as they are: there is no framing here.
///
/// The surprises: IsDefunct and IsWorkerFound are questions that are answered with yes once, and the message
/// argument of an operation also carries good news. To know whether something failed, test the result.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "vapp/Export.h"
#include "vapp/connection/ConnectionInfo.h"
#include "vapp/text/CStringU.h"

namespace vapp_platform {
class ChildProcess;
}  // namespace vapp_platform

/// The order of calls: construct, InitConnection, any number of Send and Recv from any thread, Close (or
/// destroy). InitConnection, AcceptConnection and Close belong to one thread at a time, the one that owns the
/// connection's lifetime; so does the end of the object, when no other thread is inside any more.
/// Disconnect from another thread ends nothing before the connection is up: an InitConnection that waits for
/// its worker can't be cut short. Failures come as results, not as exceptions; what comes through is a lack
/// of memory, a lock that the system refuses, and whatever the host's own log callback throws. `message` is
/// assigned only where there is something to say.
class VAPP_EXPORT TConnectionModule {
public:
    TConnectionModule(ConnectionInfo&& info);
    TConnectionModule(const ConnectionInfo& info);
    TConnectionModule(const TConnectionModule&) = delete;
    TConnectionModule& operator=(const TConnectionModule&) = delete;
    virtual ~TConnectionModule();

    /// Starts the worker and waits for its keyword. `environment` is the worker's: entries NAME=value, each
    /// ended by a NUL and the last by two, or empty for this process's own. On false `message` says why. Not
    /// to be called twice on one object.
    virtual bool InitConnection(std::vector<wchar_t>& environment, CStringU& message) = 0;
    /// The handshake alone; InitConnection calls it. True at once where a worker is known already.
    virtual bool AcceptConnection(CStringU& message) = 0;
    /// Sends all the bytes. Sends of several threads go out one behind the other.
    virtual bool Send(const char* data, std::uint64_t size, CStringU& message) = 0;
    /// Needs room for `capacity` + 1 bytes: behind what was received, up to `capacity` bytes, it writes a
    /// NUL. Waits for the first byte. The result is the number of bytes; 0 where the connection is down or
    /// the worker has ended it, -1 for a failure.
    virtual int Recv(char* buffer, int capacity, CStringU& message) = 0;
    /// Ends the channel and leaves the child alone; a thread that waits in Send or Recv comes back with a
    /// failure. Nothing happens on a connection that is not up. Any thread.
    virtual void Disconnect() = 0;
    /// Disconnects, waits for the child for 2 seconds, ends it by force if it runs on.
    virtual void Close();
    /// True once after SetDefunct or Close, then false until the next of them.
    virtual bool IsDefunct();
    /// True between a successful InitConnection and Disconnect or Close.
    virtual bool IsConnected();

    /// The system's number of the child, where the transport tells it; 0 otherwise.
    [[nodiscard]] std::uint32_t GetChildProcessID() const;
    /// True once after a handshake has succeeded or SetWorkerHasFound was called.
    bool IsWorkerFound();
    /// Sets who is told the command line, where the transport does so; null for nobody.
    void SetLogCallback(void (*callback)(const CStringU&));

protected:
    void SetConnected(bool connected);
    void SetDefunct();
    void SetWorkerHasFound();

    // Both latches are found clear exactly once after each event: the question sets them again.
    std::atomic_flag m_defunctLatch;
    std::atomic_flag m_workerLatch;
    std::atomic<bool> m_connected = false;
    std::unique_ptr<vapp_platform::ChildProcess> m_childProcess;
    std::uint32_t m_childProcessID = 0;
    std::mutex m_sendMutex;
    std::mutex m_recvMutex;
    ConnectionInfo m_info;
    void (*m_logCallback)(const CStringU&) = nullptr;

private:
    /// Takes the keyword's bytes from the channel: their number, 0 when the time is over, -1 for a failure or
    /// the end.
    virtual int ReadKeyword(CStringU& received, CStringU& message) = 0;
};

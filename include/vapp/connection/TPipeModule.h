/// @file
/// TPipeModule: a worker that talks over its standard streams, normally a remote one behind a login program.
///
/// The surprise: what the login prints comes on the same stream as the worker's first word, and so do the
/// child's errors; the handshake looks at the end of what has come.
#pragma once

#include "vapp/Export.h"
#include "vapp/connection/TConnectionModule.h"

/// The pipe transport. What has come by the time that enough bytes for the keyword are there must end with
/// it. An empty keyword is never found.
class VAPP_EXPORT TPipeModule : public TConnectionModule {
public:
    TPipeModule(ConnectionInfo&& info);
    TPipeModule(const ConnectionInfo& info);
    /// Closes.
    ~TPipeModule() override;

    /// Starts the worker with `environment` unchanged. The command line with a line feed goes to the log
    /// callback if there is one, to `message` otherwise. On Windows, not under Wine, the agent that keeps the
    /// keys must be running.
    bool InitConnection(std::vector<wchar_t>& environment, CStringU& message) override;
    /// Looks for the keyword every 250 ms for 30 seconds, in which it blocks its thread. Where something else
    /// has come, `message` quotes it.
    bool AcceptConnection(CStringU& message) override;
    /// `size` counts as an unsigned number of 32 bits. Waits as long as the pipe is full. A failure
    /// disconnects.
    bool Send(const char* data, std::uint64_t size, CStringU& message) override;
    /// Needs room for `capacity` + 1 bytes. Here a failure, the worker's end among them, gives 0 and a
    /// message.
    int Recv(char* buffer, int capacity, CStringU& message) override;
    void Disconnect() override;
    void Close() override;
    /// True once after SetDefunct or Close, if the connection is down then; asked while it is up, the event
    /// is lost.
    bool IsDefunct() override;

private:
    struct TPipes;

    int ReadKeyword(CStringU& received, CStringU& message) override;
    bool CreatePipes(CStringU& message);
    bool CloseChildsEnds(CStringU& message);

    std::unique_ptr<TPipes> m_pipes;
};

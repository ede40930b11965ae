/// @file
/// The way to the host, with sockets or standard streams behind it; written once for each system.
///
/// The surprise: bytes pass as they are on both systems, also through Windows' standard streams, which would
/// otherwise turn line ends and end at a Ctrl-Z.
#pragma once

#include <memory>
#include <string>
#include <string_view>

/// A stream of bytes each way. For one thread.
class TChannel {
public:
    TChannel() = default;
    TChannel(const TChannel&) = delete;
    TChannel& operator=(const TChannel&) = delete;
    virtual ~TChannel() = default;

    /// Sends all the bytes; false where the host is gone.
    virtual bool Send(std::string_view bytes) = 0;
    /// What has come, as soon as there is something; empty at the end.
    virtual std::string Receive() = 0;
};

/// The channel of standard input and output.
[[nodiscard]] std::unique_ptr<TChannel> OpenStandardStreams();

/// Connects to the host by TCP; null where nobody listens there.
[[nodiscard]] std::unique_ptr<TChannel> ConnectTo(const std::string& host, const std::string& port);

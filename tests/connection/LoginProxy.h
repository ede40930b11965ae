/// @file
/// A program between a PuTTY program and the server, which the PuTTY program starts itself: it sees the
/// environment that a worker's start gave to its child, and hands on every byte.
#pragma once

#include <filesystem>
#include <string>

namespace connection_test {

/// Lets this program play the proxy when it is started as one.
void AddLoginProxyRole();

/// The option that makes a PuTTY program go through the proxy to a port of this machine. Before the first
/// byte the proxy writes the port that a TCP worker has to connect to into `portFile`.
[[nodiscard]] std::string LoginProxyOption(const std::string& serverPort,
                                           const std::filesystem::path& portFile);

}  // namespace connection_test

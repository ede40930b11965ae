/// @file
/// A real remote machine on this one: an SSH server of the test's own, with a port, keys and a home folder of
/// its own, and the real PuTTY programs to reach it. Linux only.
///
/// Nothing of the account is read or touched but what a login touches: every login, shell and SFTP alike,
/// starts in the server's home folder, and PuTTY's programs keep their settings there.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/ChildProcess.h"
#include "platform/Pipe.h"

namespace connection_test {

/// Runs a command line to its end; what it says, errors too.
std::string OutputOf(const std::string& commandLine);

class LoopbackServer {
public:
    /// Makes keys and starts the server, all in this folder, which is emptied first. A banner is shown to
    /// everybody before the login.
    explicit LoopbackServer(const std::filesystem::path& folder, std::string banner = {});
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    /// Ends the server; logins that are up go on until their clients end.
    ~LoopbackServer();

    /// Empty when the server runs; otherwise why it can't, for a test to be skipped with.
    [[nodiscard]] const std::string& WhyNot() const { return m_whyNot; }

    /// What names the server to PuTTY's programs, with the right key and host key.
    [[nodiscard]] std::string Target() const;
    /// The same with a key that the server doesn't know, with another host key, and without one.
    [[nodiscard]] std::string TargetWithStrangeKey() const;
    [[nodiscard]] std::string TargetWithWrongHostKey() const;
    [[nodiscard]] std::string TargetWithoutHostKey() const;

    /// Where logins start.
    [[nodiscard]] std::filesystem::path Home() const { return m_folder / "home"; }

private:
    void MakeKey(const std::string& name) const;
    std::string MissingPiece() const;
    void UseOwnPuttySettings() const;
    [[nodiscard]] std::string WhyNoLogin() const;
    void WriteSettings() const;
    void Start();
    [[nodiscard]] std::string TargetWith(const std::string& key, const std::string& hostKey) const;

    std::filesystem::path m_folder;
    std::string m_banner;
    std::string m_whyNot;
    std::string m_hostKey;
    std::string m_strangeHostKey;
    std::uint16_t m_port = 0;
    std::unique_ptr<vapp_platform::ChildProcess> m_server;
    /// Held, so that the server can go on logging.
    std::unique_ptr<vapp_platform::PipeReader> m_log;
};

}  // namespace connection_test

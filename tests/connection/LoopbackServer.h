/// @file
/// A real remote machine on this one: an SSH server of the test's own, with ports, keys and home folders of
/// its own, and the real PuTTY programs to reach it.
///
/// The script `loopback-server` makes it. Where this program can't start it, under Wine, one runs already and
/// serves every test; VAPP_TEST_SERVER names its folder. The servers' names of folders are those of Unix.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "tests/platform/ChildRoles.h"

namespace connection_test {

class LoopbackServer {
public:
    /// Starts a server in this folder, which is emptied first, unless one runs already.
    explicit LoopbackServer(const std::filesystem::path& folder);
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    /// Ends the server that was started; logins that are up go on until their clients end.
    ~LoopbackServer();

    /// Empty when the server runs; otherwise why it can't, for a test to be skipped with.
    [[nodiscard]] const std::string& WhyNot() const { return m_whyNot; }

    /// What names the server to PuTTY's programs, with the right key and host key.
    [[nodiscard]] std::string Target() const;
    /// The same with a key that the server doesn't know, with another host key, without a host key, and
    /// without a key.
    [[nodiscard]] std::string TargetWithStrangeKey() const;
    [[nodiscard]] std::string TargetWithWrongHostKey() const;
    [[nodiscard]] std::string TargetWithoutHostKey() const;
    [[nodiscard]] std::string TargetWithoutKey() const;
    /// The same as Target at a port where a banner is shown to everybody before the login.
    [[nodiscard]] std::string TargetWithBanner() const;
    /// The same as Target by a name that no machine has: for a login that goes through a proxy.
    [[nodiscard]] std::string TargetWithoutAddress() const;
    [[nodiscard]] std::string Port() const { return Fact("port"); }
    /// The private key that the server knows, as PuTTY keeps it.
    [[nodiscard]] std::filesystem::path KeyFile() const { return m_folder / "client.ppk"; }

    /// Where logins start: a new folder for each of these objects.
    [[nodiscard]] std::filesystem::path Home() const { return m_folder / "home" / m_homeName; }
    /// The same by the server's name for it.
    [[nodiscard]] std::string HomeThere() const { return Fact("home") + "/" + m_homeName; }
    /// What a command says that a login runs, errors too.
    [[nodiscard]] std::string OutputThere(const std::string& command) const;

private:
    void Start();
    void ReadFacts();
    void MakeHome();
    [[nodiscard]] std::string Fact(const std::string& name) const;
    [[nodiscard]] std::string OptionsWith(const std::string& port, const std::string& key,
                                          const std::string& hostKey) const;
    [[nodiscard]] std::string TargetWith(const std::string& port, const std::string& key,
                                         const std::string& hostKey) const;

    std::filesystem::path m_folder;
    std::string m_homeName;
    std::string m_whyNot;
    std::map<std::string, std::string> m_facts;
    /// The script; the end of its input ends it.
    platform_test::PipedChild m_script;
};

}  // namespace connection_test

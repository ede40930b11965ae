/// @file
/// Debian's openssh-server, unprivileged where the test is; the server must be named by its whole path, for
/// it starts itself anew for each login.
#include "tests/connection/LoopbackServer.h"

#include <pwd.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <utility>

#include "platform/ChildEnvironment.h"
#include "platform/Socket.h"
#include "tests/platform/ChildRoles.h"

namespace connection_test {

namespace {

namespace fs = std::filesystem;

constexpr const char* csServer = "/usr/sbin/sshd";
constexpr const char* csFileServer = "/usr/lib/openssh/sftp-server";
constexpr const char* csPrograms[] = {
    csServer, csFileServer, "/usr/bin/ssh-keygen", "/usr/bin/puttygen", "/usr/bin/plink", "/usr/bin/psftp"};
// A server that runs as root insists on it.
constexpr const char* csServerFolder = "/run/sshd";

CStringU AsText(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

std::string Quoted(const fs::path& path) {
    return '"' + path.string() + '"';
}

std::string UserName() {
    const passwd* const entry = getpwuid(geteuid());
    return entry != nullptr ? entry->pw_name : "";
}

// Free at this moment.
std::uint16_t FreePort() {
    return vapp_platform::ListenAtLocalhost().port;
}

// The second word of "256 SHA256:... comment (ED25519)".
std::string Fingerprint(const fs::path& publicKey) {
    std::istringstream words(OutputOf("ssh-keygen -lf " + Quoted(publicKey)));
    std::string bits, fingerprint;
    words >> bits >> fingerprint;
    return fingerprint;
}

}  // namespace

std::string OutputOf(const std::string& commandLine) {
    vapp_platform::ChildStart start;
    start.commandLine = AsText(commandLine);
    const platform_test::PipedChild piped = platform_test::StartPiped(start);
    if (piped.child == nullptr) return "not started: " + commandLine;
    piped.input->Close();
    std::string said = platform_test::ReadAll(*piped.output);
    piped.child->WaitFor(platform_test::cnLong);
    return said;
}

LoopbackServer::LoopbackServer(const fs::path& folder, std::string banner)
    : m_folder(fs::weakly_canonical(folder)), m_banner(std::move(banner)), m_whyNot(MissingPiece()) {
    if (!m_whyNot.empty()) return;
    fs::remove_all(m_folder);
    fs::create_directories(Home());
    UseOwnPuttySettings();
    for (const char* key : {"client", "strange", "host"})
        MakeKey(key);
    m_hostKey = Fingerprint(m_folder / "host.pub");
    m_strangeHostKey = Fingerprint(m_folder / "strange.pub");
    // Another process can take the free port before the server does.
    for (int attempt = 0; attempt < 5 && m_server == nullptr; ++attempt)
        Start();
    if (m_whyNot.empty()) m_whyNot = WhyNoLogin();
}

LoopbackServer::~LoopbackServer() {
    if (m_server == nullptr) return;
    m_server->Terminate();
    m_server->WaitFor(platform_test::cnLong);
}

std::string LoopbackServer::MissingPiece() const {
    for (const char* program : csPrograms) {
        if (!fs::exists(program)) {
            return std::string(program) +
                   " is missing: install the packages openssh-server, openssh-client and putty-tools";
        }
    }
    std::error_code failed;
    if (geteuid() == 0) fs::create_directories(csServerFolder, failed);
    return failed ? std::string(csServerFolder) + " can't be made" : std::string();
}

// Neither the account's saved sessions and known hosts nor the keys of its agent.
void LoopbackServer::UseOwnPuttySettings() const {
    vapp_platform::SetEnvironmentValue("PUTTYDIR", (m_folder / "putty").c_str());
    vapp_platform::UnsetEnvironmentValue("SSH_AUTH_SOCK");
}

// A locked account, or one whose shell runs no commands.
std::string LoopbackServer::WhyNoLogin() const {
    const std::string said = OutputOf("plink -batch -X -T " + Target() + " echo ready for tests");
    return said.find("ready for tests") != std::string::npos
               ? std::string()
               : "this account can't log in at a server of its own: " + said;
}

void LoopbackServer::MakeKey(const std::string& name) const {
    const fs::path path = m_folder / name;
    OutputOf("ssh-keygen -q -t ed25519 -N \"\" -f " + Quoted(path));
    OutputOf("puttygen " + Quoted(path) + " -O private -o " + Quoted(path.string() + ".ppk"));
}

void LoopbackServer::WriteSettings() const {
    std::ofstream settings(m_folder / "settings");
    settings << "Port " << m_port << "\nListenAddress 127.0.0.1\nHostKey " << Quoted(m_folder / "host")
             << "\nAuthorizedKeysFile " << Quoted(m_folder / "client.pub")
             << "\nPidFile none\nStrictModes no\nUsePAM no\nPasswordAuthentication no\n"
                "KbdInteractiveAuthentication no\nPermitRootLogin prohibit-password\nPrintMotd no\n"
                "PrintLastLog no\nPermitUserRC no\nMaxStartups 100\n";
    // What the account's own shell reads at its start lies in the home folder.
    settings << "SetEnv " << Quoted("HOME=" + Home().string()) << "\nSubsystem sftp " << csFileServer
             << "\nForceCommand cd " << Quoted(Home()) << " && exec /bin/sh -c \"$SSH_ORIGINAL_COMMAND\"\n";
    if (m_banner.empty()) return;
    std::ofstream(m_folder / "banner") << m_banner;
    settings << "Banner " << Quoted(m_folder / "banner") << "\n";
}

void LoopbackServer::Start() {
    m_port = FreePort();
    WriteSettings();
    vapp_platform::ChildStart start;
    start.commandLine = AsText(std::string(csServer) + " -D -e -f " + Quoted(m_folder / "settings"));
    platform_test::PipedChild server = platform_test::StartPiped(start);
    if (server.child == nullptr) {
        m_whyNot = std::string(csServer) + " can't be started";
        return;
    }
    std::string said;
    char buffer[4096];
    while (said.find("Server listening") == std::string::npos) {
        const auto got = server.output->Read(buffer, sizeof buffer);
        if (got.Failed()) {
            m_whyNot = "the SSH server said: " + said;
            return;
        }
        said.append(buffer, static_cast<std::size_t>(got.count));
    }
    m_whyNot.clear();
    m_server = std::move(server.child);
    m_log = std::move(server.output);
}

std::string LoopbackServer::TargetWith(const std::string& key, const std::string& hostKey) const {
    return "-P " + std::to_string(m_port) + " -i " + Quoted(m_folder / (key + ".ppk")) + " " +
           (hostKey.empty() ? "" : "-hostkey " + hostKey + " ") + UserName() + "@127.0.0.1";
}

std::string LoopbackServer::Target() const {
    return TargetWith("client", m_hostKey);
}

std::string LoopbackServer::TargetWithStrangeKey() const {
    return TargetWith("strange", m_hostKey);
}

std::string LoopbackServer::TargetWithWrongHostKey() const {
    return TargetWith("client", m_strangeHostKey);
}

std::string LoopbackServer::TargetWithoutHostKey() const {
    return TargetWith("client", "");
}

}  // namespace connection_test

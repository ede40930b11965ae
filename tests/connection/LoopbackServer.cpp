/// @file
/// The script says all that is to be known in a file, also to a test that did not start it.
#include "tests/connection/LoopbackServer.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <utility>

#include "connection/PuttyProgram.h"
#include "platform/ChildEnvironment.h"

namespace connection_test {

namespace {

namespace fs = std::filesystem;

// Empty where this program can't start it.
constexpr const char* csScript = VAPP_LOOPBACK_SERVER;

CStringU AsText(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

std::string Quoted(const fs::path& path) {
    return '"' + path.string() + '"';
}

std::string OutputOf(const CStringU& commandLine) {
    vapp_platform::ChildStart start;
    start.commandLine = commandLine;
    const platform_test::PipedChild piped = platform_test::StartPiped(start);
    if (piped.child == nullptr) return "not started: " + std::string(commandLine.PayloadView());
    piped.input->Close();
    std::string said = platform_test::ReadAll(*piped.output);
    piped.child->WaitFor(platform_test::cnLong);
    return said;
}

}  // namespace

LoopbackServer::LoopbackServer(const fs::path& folder) {
    const char* const running = std::getenv("VAPP_TEST_SERVER");
    m_folder = running != nullptr ? fs::path(running).make_preferred() : fs::weakly_canonical(folder);
    // Neither the account's saved sessions and known hosts nor the keys of its agent.
    vapp_platform::SetEnvironmentValue("PUTTYDIR", (m_folder / "putty").string().c_str());
    vapp_platform::UnsetEnvironmentValue("SSH_AUTH_SOCK");
    if (running == nullptr) Start();
    if (m_whyNot.empty()) ReadFacts();
    if (m_whyNot.empty()) MakeHome();
}

LoopbackServer::~LoopbackServer() {
    if (m_script.child == nullptr) return;
    m_script.input->Close();
    if (!m_script.child->WaitFor(platform_test::cnLong)) m_script.child->Terminate();
}

void LoopbackServer::Start() {
    if (*csScript == '\0') {
        m_whyNot = "no SSH server runs: CTest starts one before this program";
        return;
    }
    vapp_platform::ChildStart start;
    start.commandLine = AsText(Quoted(csScript) + " " + Quoted(m_folder));
    m_script = platform_test::StartPiped(start);
    if (m_script.child == nullptr) {
        m_whyNot = std::string(csScript) + " can't be started";
        return;
    }
    std::string said;
    char buffer[4096];
    while (said.find("ready") == std::string::npos) {
        const auto got = m_script.output->Read(buffer, sizeof buffer);
        if (got.Failed()) {
            m_whyNot = std::string(csScript) + " said: " + said;
            return;
        }
        said.append(buffer, static_cast<std::size_t>(got.count));
    }
}

void LoopbackServer::ReadFacts() {
    std::ifstream file(m_folder / "facts", std::ios::binary);
    for (std::string name, value; file >> name && std::getline(file >> std::ws, value);)
        m_facts[name] = value;
    m_whyNot = m_facts.empty() ? "the SSH server has told nothing" : Fact("whynot");
}

void LoopbackServer::MakeHome() {
    static std::atomic<int> gCount = 0;
    m_homeName = "home-" + std::to_string(++gCount);
    fs::create_directories(Home());
    std::ofstream(m_folder / "current", std::ios::binary) << HomeThere();
}

std::string LoopbackServer::Fact(const std::string& name) const {
    const auto fact = m_facts.find(name);
    return fact != m_facts.end() ? fact->second : std::string();
}

std::string LoopbackServer::OutputThere(const std::string& command) const {
    return OutputOf(vapp_connection::QuotedPuttyProgram("plink.exe") + " -batch -X -T " +
                    AsText(Target() + " " + command));
}

std::string LoopbackServer::OptionsWith(const std::string& port, const std::string& key,
                                        const std::string& hostKey) const {
    return "-P " + port + (key.empty() ? "" : " -i " + Quoted(m_folder / (key + ".ppk"))) +
           (hostKey.empty() ? "" : " -hostkey " + hostKey) + " " + Fact("user");
}

std::string LoopbackServer::TargetWith(const std::string& port, const std::string& key,
                                       const std::string& hostKey) const {
    return OptionsWith(port, key, hostKey) + "@127.0.0.1";
}

std::string LoopbackServer::Target() const {
    return TargetWith(Port(), "client", Fact("hostkey"));
}

std::string LoopbackServer::TargetWithStrangeKey() const {
    return TargetWith(Port(), "strange", Fact("hostkey"));
}

std::string LoopbackServer::TargetWithWrongHostKey() const {
    return TargetWith(Port(), "client", Fact("strangehostkey"));
}

std::string LoopbackServer::TargetWithoutHostKey() const {
    return TargetWith(Port(), "client", "");
}

std::string LoopbackServer::TargetWithoutKey() const {
    return TargetWith(Port(), "", Fact("hostkey"));
}

std::string LoopbackServer::TargetWithBanner() const {
    return TargetWith(Fact("bannerport"), "client", Fact("hostkey"));
}

// PuTTY's programs pass by their proxy on the way to this machine's own address.
std::string LoopbackServer::TargetWithoutAddress() const {
    return OptionsWith(Port(), "client", Fact("hostkey")) + "@server.invalid";
}

}  // namespace connection_test

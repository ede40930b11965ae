/// @file
/// Deployment and both transports over a real login.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/connection/LoginProxy.h"
#include "tests/connection/LoopbackServer.h"
#include "tests/platform/ChildRoles.h"
#include "vapp/connection/RemoteDeployment.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"

namespace {

namespace fs = std::filesystem;
using connection_test::LoginProxyOption;
using connection_test::LoopbackServer;

constexpr const char* csFolder = ".vornex/v2019_2_0_b13862";
constexpr const char* csFiles[] = {"evi_worker", "connection.py", "trion_worker", "argparse.py",
                                   "esi_worker.py"};

std::string Text(const CStringU& text) {
    return std::string(text.PayloadView());
}

CStringU AsText(const std::string& text) {
    return {text.c_str(), TextEncoding::Utf8Auto};
}

std::string ContentOf(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

void Lay(const fs::path& file, const std::string& content = {}) {
    std::ofstream(file, std::ios::binary) << content;
}

fs::path OwnFolder() {
    return fs::path(platform_test::OwnProgram()).parent_path();
}

class RemoteScenarioTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_server.WhyNot().empty()) GTEST_SKIP() << m_server.WhyNot();
        const fs::path files = OwnFolder() / "LinuxUtils";
        fs::create_directories(files);
        for (const char* name : csFiles) {
            // Other runs read them at the same moment.
            if (!fs::exists(files / name)) Lay(files / name, "the file " + std::string(name) + "\n");
        }
    }

    [[nodiscard]] fs::path Deployed() const { return m_server.Home() / csFolder; }

    /// The access of an uploaded file, as the server tells it: this side may know nothing of it.
    [[nodiscard]] std::string ModeOf(const std::string& name) const {
        return m_server.OutputThere("stat -c %a " + std::string(csFolder) + "/" + name);
    }
    /// Uploads to a target; what the client said, without the carriage returns that it writes on Windows.
    static std::string Upload(const std::string& target) {
        std::string heard;
        EXPECT_TRUE(uploadWorkerScripts(
            AsText(target), [&](const CStringU& piece) { heard += Text(piece); }, false));
        std::erase(heard, '\r');
        return heard;
    }
    [[nodiscard]] bool IsThere(const std::string& path) const {
        return gRemoteFileExists(AsText(m_server.Target()), AsText(path));
    }
    /// Why a pipe worker behind a target can't be reached.
    static std::string FailureOf(const std::string& target, const std::string& command) {
        TPipeModule module(Remote(target, command));
        std::vector<wchar_t> environment;
        CStringU message;
        EXPECT_FALSE(module.InitConnection(environment, message));
        return Text(message);
    }
    static ConnectionInfo Remote(const std::string& target, const std::string& command) {
        ConnectionInfo info;
        info.sshTarget = AsText(target);
        info.command = AsText(command);
        info.hostName = "localhost";
        info.runLocally = false;
        info.keyword = "WORKER_KEY";
        return info;
    }
    static void ExpectEcho(TConnectionModule& module) {
        CStringU message;
        ASSERT_TRUE(module.Send("hello\n", 6, message)) << Text(message);
        std::string said;
        char buffer[65];
        while (said.size() < 6) {
            const int got = module.Recv(buffer, 64, message);
            ASSERT_GT(got, 0) << Text(message);
            said.append(buffer, static_cast<std::size_t>(got));
        }
        EXPECT_EQ(said, "hello\n");
    }

    /// A folder for a server of this test's own.
    static fs::path ServerFolder() {
        const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
        return OwnFolder() / ("run-" + std::string(test->name()));
    }

    const LoopbackServer m_server{ServerFolder()};
};

TEST_F(RemoteScenarioTest, AnUploadArrivesWithItsContentsAndModes) {
    const std::string heard = Upload(m_server.Target());
    for (const char* name : csFiles) {
        EXPECT_EQ(ContentOf(Deployed() / name), "the file " + std::string(name) + "\n") << heard;
        EXPECT_NE(heard.find(" " + std::string(name) + "\n"), std::string::npos) << heard;
    }
    for (const char* name : {"evi_worker", "trion_worker", "esi_worker.py"})
        EXPECT_EQ(ModeOf(name), "700\n") << name;
    for (const char* name : {"connection.py", "argparse.py"})
        EXPECT_EQ(ModeOf(name), "600\n") << name;
}

TEST_F(RemoteScenarioTest, ASecondUploadReplacesWhatIsThere) {
    Upload(m_server.Target());
    Lay(Deployed() / "connection.py", "spoilt");
    fs::remove(Deployed() / "argparse.py");
    Upload(m_server.Target());
    EXPECT_EQ(ContentOf(Deployed() / "connection.py"), "the file connection.py\n");
    EXPECT_EQ(ContentOf(Deployed() / "argparse.py"), "the file argparse.py\n");
}

TEST_F(RemoteScenarioTest, AFileIsThereUnderItsWholeNameOnly) {
    fs::create_directories(m_server.Home() / "place");
    Lay(m_server.Home() / "place" / "evi_worker2");
    Lay(m_server.Home() / "place" / "my_evi_worker");
    EXPECT_FALSE(IsThere("place/evi_worker"));
    Lay(m_server.Home() / "place" / "evi_worker");
    EXPECT_TRUE(IsThere("place/evi_worker"));
    EXPECT_TRUE(IsThere(m_server.HomeThere() + "/place/evi_worker"));
    EXPECT_FALSE(IsThere("place/EVI_WORKER"));
    EXPECT_FALSE(IsThere("evi_worker"));
    EXPECT_TRUE(IsThere("place"));
    EXPECT_FALSE(IsThere("nowhere/evi_worker"));
}

TEST_F(RemoteScenarioTest, BlanksInNamesAreNoHindranceAndInFoldersTheyAre) {
    fs::create_directories(m_server.Home() / "a folder");
    Lay(m_server.Home() / "my evi_worker");
    Lay(m_server.Home() / "a folder" / "inside");
    EXPECT_TRUE(IsThere("my evi_worker"));
    // What stands behind a blank looks like a whole name.
    EXPECT_TRUE(IsThere("evi_worker"));
    EXPECT_FALSE(IsThere("a folder/inside"));
}

TEST_F(RemoteScenarioTest, AnUploadIsFoundAfterwards) {
    EXPECT_FALSE(IsThere(std::string(csFolder) + "/evi_worker"));
    Upload(m_server.Target());
    for (const char* name : csFiles)
        EXPECT_TRUE(IsThere(std::string(csFolder) + "/" + name)) << name;
}

TEST_F(RemoteScenarioTest, AComplaintOfTheLoginIsTextAndNoFailure) {
    const struct {
        std::string target;
        const char* complaint;
    } rows[] = {
        {m_server.TargetWithStrangeKey(), "Server refused our key"},
        {m_server.TargetWithWrongHostKey(), "Host key not in manually configured list"},
        {m_server.TargetWithoutHostKey(), "The host key is not cached for this server"},
        {"-P 1 nobody@127.0.0.1", "Connection refused"},
    };
    for (const auto& row : rows) {
        EXPECT_NE(Upload(row.target).find(row.complaint), std::string::npos) << row.complaint;
        EXPECT_FALSE(gRemoteFileExists(AsText(row.target), "evi_worker"));
        EXPECT_NE(FailureOf(row.target, "echo never").find(row.complaint), std::string::npos);
    }
    EXPECT_FALSE(fs::exists(m_server.Home() / ".vornex"));
}

TEST_F(RemoteScenarioTest, AVerboseRunTellsOfTheLogin) {
    std::string heard;
    EXPECT_TRUE(runFtp(
        AsText(m_server.Target()), "pwd\n", [&](const CStringU& piece) { heard += Text(piece); }, true));
    EXPECT_NE(heard.find("Remote directory is " + m_server.HomeThere()), std::string::npos) << heard;
    EXPECT_NE(heard.find("Host key fingerprint is:"), std::string::npos) << heard;
}

TEST_F(RemoteScenarioTest, APipeWorkerTalksThroughTheLogin) {
    // Noise that is shorter than the keyword does no harm, whenever it comes.
    TPipeModule module(Remote(m_server.Target(), "printf noise; printf WORKER_KEY; exec cat"));
    std::vector<wchar_t> environment;
    CStringU message;
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    ExpectEcho(module);
}

TEST_F(RemoteScenarioTest, TheBannerOfAServerStaysOutOfTheStream) {
    TPipeModule module(Remote(m_server.TargetWithBanner(), "printf WORKER_KEY; exec cat"));
    std::vector<wchar_t> environment;
    CStringU message;
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    ExpectEcho(module);
}

TEST_F(RemoteScenarioTest, ALoginThatTellsMoreThanTheKeywordIsLongIsQuoted) {
    const std::string failure = FailureOf("-v " + m_server.Target(), "read never; printf WORKER_KEY");
    EXPECT_NE(failure.find("mismatched. Received message \"Looking up host"), std::string::npos) << failure;
}

TEST_F(RemoteScenarioTest, NoiseOfAShellInPlaceOfTheKeywordIsQuoted) {
    EXPECT_EQ(FailureOf(m_server.Target(), "echo the noise of a shell"),
              "Waiting keyword \"WORKER_KEY\" mismatched. Received message \"the noise of a shell\n\"\n");
}

TEST_F(RemoteScenarioTest, ATcpWorkerConnectsBackFromTheLogin) {
    // The environment stays on this side of a login, where the proxy reads it.
    const std::string target =
        LoginProxyOption(m_server.Port(), m_server.Home() / "port") + m_server.TargetWithoutAddress();
    TTCPModule module(Remote(
        target, "exec bash -c 'exec 3<>/dev/tcp/127.0.0.1/$(cat port); printf WORKER_KEY >&3; cat <&3 >&3'"));
    std::vector<wchar_t> environment;
    CStringU message;
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    ExpectEcho(module);
}

TEST_F(RemoteScenarioTest, ALoginThatDiesInTheMiddleEndsTheStream) {
    TPipeModule module(Remote(m_server.Target(), "printf WORKER_KEY; read line; kill -9 $PPID; sleep 60"));
    std::vector<wchar_t> environment;
    CStringU message;
    ASSERT_TRUE(module.InitConnection(environment, message)) << Text(message);
    ASSERT_TRUE(module.Send("go\n", 3, message));
    char buffer[4097];
    std::string last;
    int got = 0;
    while ((got = module.Recv(buffer, 4096, message)) > 0)
        last.append(buffer, static_cast<std::size_t>(got));
    EXPECT_EQ(got, 0);
    EXPECT_NE(Text(message).find("Recv failed with error: "), std::string::npos);
    EXPECT_TRUE(module.IsConnected());
    // The client's last words are on the stream, too.
    EXPECT_NE(last.find("closed"), std::string::npos) << last;
}

}  // namespace

/// @file
/// `connect` through a real login: its session, and each step of its check. Linux only.
///
/// It runs with a copy of the library's folder, which it finds by the system's search path for libraries:
/// PuTTY's programs and the worker's files lie below that folder.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/ChildEnvironment.h"
#include "tests/connection/LoopbackServer.h"
#include "tests/examples/ConnectRun.h"
#include "tests/platform/ChildRoles.h"

namespace {

namespace fs = std::filesystem;
using connection_test::LoopbackServer;
using example_test::Connect;
using example_test::TRun;

constexpr const char* csFolder = ".vornex/v2019_2_0_b13862";
constexpr const char* csWorker = ".vornex/v2019_2_0_b13862/evi_worker";
constexpr const char* csSteps[] = {"client program found", "host key",   "login",
                                   "remote directory",     "file there", "worker answers"};

class ConnectRemoteTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_server.WhyNot().empty()) GTEST_SKIP() << m_server.WhyNot();
        const fs::path library = VAPP_TEST_LIBRARY;
        const fs::path place = m_library / "putty" / "bin";
        fs::create_directories(place);
        fs::create_directories(m_library / "LinuxUtils");
        fs::create_symlink(library, m_library / library.filename());
        for (const char* name : {"plink", "psftp"})
            fs::create_symlink(fs::path("/usr/bin") / name, place / (std::string(name) + ".exe"));
        for (const char* name : {"connection.py", "trion_worker", "argparse.py", "esi_worker.py"})
            std::ofstream(m_library / "LinuxUtils" / name) << "# " << name << "\n";
        fs::copy_file(example_test::WorkerProgram(), m_library / "LinuxUtils" / "evi_worker");
        vapp_platform::SetEnvironmentValue("LD_LIBRARY_PATH", m_library.c_str());
    }
    void TearDown() override { vapp_platform::UnsetEnvironmentValue("LD_LIBRARY_PATH"); }

    /// A worker of the remote side, as a script.
    void MakeRemoteWorker(const std::string& script, bool program = true) const {
        const fs::path file = m_server.Home() / csWorker;
        fs::create_directories(file.parent_path());
        std::ofstream(file) << "#!/bin/sh\n" << script << "\n";
        if (program) fs::permissions(file, fs::perms::owner_all);
    }
    /// All steps up to this one are in order, which fails, and none is taken behind it.
    static void ExpectFailedStep(const TRun& run, std::size_t failed, const std::string& finding) {
        EXPECT_EQ(run.m_result, 1);
        for (std::size_t step = 0; step < std::size(csSteps); ++step) {
            const std::string name = std::string(csSteps[step]) + ": ";
            EXPECT_EQ(run.Has("ok      " + name), step < failed) << name << run.m_said;
            EXPECT_EQ(run.Has("FAILED  " + name), step == failed) << name << run.m_said;
        }
        EXPECT_TRUE(run.Has(finding)) << run.m_said;
        EXPECT_TRUE(run.Has("try this: ")) << run.m_said;
    }

    const fs::path m_folder =
        fs::path(platform_test::OwnProgram()).parent_path() /
        ("connect-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    // The server empties the folder first.
    const LoopbackServer m_server{m_folder};
    const fs::path m_library = m_folder / "library";
};

TEST_F(ConnectRemoteTest, AWorkerIsDeployedAndTalkedTo) {
    const TRun run =
        Connect({"--pipe", "--remote", m_server.Target(), "--deploy", "--", csWorker}, "hello\nquit\n");
    EXPECT_EQ(run.m_result, 0);
    EXPECT_TRUE(run.Has("putting the worker's files into " + std::string(csFolder))) << run.m_said;
    EXPECT_TRUE(run.Has("plink.exe\" -batch -X -T ")) << run.m_said;
    EXPECT_TRUE(run.Has("heard hello\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, AnUploadThatMissesFilesHereIsTold) {
    fs::remove(m_library / "LinuxUtils" / "evi_worker");
    const TRun run = Connect({"--pipe", "--remote", m_server.Target(), "--deploy", "--", csWorker});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: Files of the worker are missing on this side.\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, AnUploadThatIsRefusedIsTold) {
    const TRun run =
        Connect({"--pipe", "--remote", m_server.TargetWithStrangeKey(), "--deploy", "--", csWorker});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: The server refused the login.\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, AComplaintOfTheLoginIsShownAndExplained) {
    const TRun run = Connect({"--pipe", "--remote", m_server.TargetWithWrongHostKey(), "--", "true"});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("  | FATAL ERROR: Host key not in manually configured list")) << run.m_said;
    EXPECT_TRUE(run.Has("connect: The server's host key is another one than expected.\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, ACommandThatIsNotThereIsShownAndExplained) {
    const TRun run = Connect({"--pipe", "--remote", m_server.Target(), "--", "vapp-no-such-program"});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: The command is not there on the other side.\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, ASlowWorkerIsWaitedForWithSignsOfLife) {
    const TRun run = Connect({"--pipe", "--remote", m_server.Target(), "--", "sleep 2; printf WORKER_READY"});
    EXPECT_EQ(run.m_result, 0);
    EXPECT_TRUE(run.Has("connect: waiting for the worker, 1 s\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, ATcpWorkerBehindALoginIsWarnedOf) {
    fs::remove(m_library / "putty" / "bin" / "plink.exe");
    const TRun run = Connect({"--tcp", "--remote", m_server.Target(), "--", "true"});
    EXPECT_EQ(run.m_result, 1);
    EXPECT_TRUE(run.Has("connect: note: a login doesn't hand on the environment")) << run.m_said;
    EXPECT_TRUE(run.Has("connect: PuTTY's plink could not be started.\n")) << run.m_said;
}

TEST_F(ConnectRemoteTest, ACheckFindsEveryStepInOrder) {
    MakeRemoteWorker("printf WORKER_READY; exec cat");
    const TRun run = Connect({"--check", m_server.Target()});
    EXPECT_EQ(run.m_result, 0) << run.m_said;
    for (const char* step : csSteps)
        EXPECT_TRUE(run.Has("ok      " + std::string(step) + ": ")) << run.m_said;
}

TEST_F(ConnectRemoteTest, ACheckAsksTheWorkerThatIsNamed) {
    MakeRemoteWorker("exit 1");
    const TRun run =
        Connect({"--check", m_server.Target(), "--keyword", "HERE", "--", "printf HERE; exec cat"});
    EXPECT_EQ(run.m_result, 0) << run.m_said;
}

TEST_F(ConnectRemoteTest, ACheckWithoutPuttysProgramsFailsAtTheFirstStep) {
    for (const char* name : {"psftp.exe", "plink.exe"}) {
        const fs::path program = m_library / "putty" / "bin" / name;
        fs::rename(program, m_library / name);
        ExpectFailedStep(Connect({"--check", m_server.Target()}), 0, std::string(name) + "\" is missing.");
        fs::rename(m_library / name, program);
    }
}

TEST_F(ConnectRemoteTest, ACheckWithoutTheFolderOfFilesFailsAtTheFirstStep) {
    fs::remove_all(m_library / "LinuxUtils");
    ExpectFailedStep(Connect({"--check", m_server.Target()}), 0, "psftp could not be started.");
}

TEST_F(ConnectRemoteTest, ACheckOfAServerThatIsNotThereFailsAtItsHostKey) {
    ExpectFailedStep(Connect({"--check", "-P 1 nobody@127.0.0.1"}), 1, "The server was not reached.");
}

TEST_F(ConnectRemoteTest, ACheckWithAWrongHostKeyOrNoneFailsThere) {
    ExpectFailedStep(Connect({"--check", m_server.TargetWithWrongHostKey()}), 1,
                     "The server's host key is another one than expected.");
    ExpectFailedStep(Connect({"--check", m_server.TargetWithoutHostKey()}), 1,
                     "The server's host key is not known here yet.");
}

TEST_F(ConnectRemoteTest, ACheckWithARefusedKeyFailsAtTheLogin) {
    ExpectFailedStep(Connect({"--check", m_server.TargetWithStrangeKey()}), 2,
                     "The server refused the login.");
}

TEST_F(ConnectRemoteTest, ACheckBeforeADeploymentFailsAtTheRemoteDirectory) {
    ExpectFailedStep(Connect({"--check", m_server.Target()}), 3, std::string(csFolder) + " is not there.");
}

TEST_F(ConnectRemoteTest, ACheckWithoutTheWorkersFileFailsThere) {
    fs::create_directories(m_server.Home() / csFolder);
    ExpectFailedStep(Connect({"--check", m_server.Target()}), 4, std::string(csWorker) + " is not there.");
}

TEST_F(ConnectRemoteTest, ACheckOfAWorkerThatDoesNotAnswerFailsAtTheLastStep) {
    const struct {
        const char* script;
        bool program;
        const char* finding;
    } rows[] = {
        {"echo something else", true, "Something else came where the worker's keyword was expected."},
        {"exit 3", true, "The worker ended without a word."},
        {"", false, "The command may not be run on the other side."},
    };
    for (const auto& row : rows) {
        fs::remove_all(m_server.Home() / ".vornex");
        MakeRemoteWorker(row.script, row.program);
        ExpectFailedStep(Connect({"--check", m_server.Target()}), 5, row.finding);
    }
}

}  // namespace

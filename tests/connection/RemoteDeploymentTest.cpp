#include "vapp/connection/RemoteDeployment.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "platform/FaultPoint.h"
#include "platform/KnownFolders.h"
#include "tests/connection/FtpProgram.h"
#include "tests/platform/ChildRoles.h"
#include "tests/platform/SystemHelpers.h"

namespace {

namespace fs = std::filesystem;
using vapp_platform::SystemCall;

std::string Text(const CStringU& text) {
    return std::string(text.PayloadView());
}

std::string Hex(const std::string& bytes) {
    std::string digits;
    for (const char byte : bytes) {
        for (const int half : {static_cast<unsigned char>(byte) >> 4, byte & 15})
            digits += "0123456789abcdef"[half];
    }
    return digits;
}

std::string CommandLine(const std::string& rest) {
    return "\"" + Text(gGetModuleFolder()) + "\\putty\\bin\\psftp.exe\" -batch " + rest + "\n";
}

// A client that still runs keeps a handle until a later start finds that it has ended; each try is a start.
bool AreNoMoreThan(int handles) {
    const auto end = std::chrono::steady_clock::now() + platform_test::cnLong;
    do {
        vapp_platform::ChildStart nothing;
        nothing.commandLine = "vapp-no-such-program";
        EXPECT_EQ(vapp_platform::ChildProcess::Start(nothing).child, nullptr);
        if (platform_test::CountOpenHandles() <= handles) return true;
        std::this_thread::yield();
    } while (std::chrono::steady_clock::now() < end);
    return false;
}

// After a first child, for which the system may make handles that stay.
int HandlesAtRest() {
    {
        const platform_test::PipedChild first = platform_test::StartRole("exit", {"0"});
        EXPECT_TRUE(first.child != nullptr && first.child->WaitFor(platform_test::cnLong));
    }
    return platform_test::CountOpenHandles();
}

// A file that another process makes.
bool Appears(const fs::path& file) {
    const auto end = std::chrono::steady_clock::now() + platform_test::cnLong;
    while (!fs::exists(file)) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::yield();
    }
    return true;
}

struct RemoteDeploymentTest : testing::Test {
    RemoteDeploymentTest() {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
        fs::create_directories(m_folder);
    }
    ~RemoteDeploymentTest() override {
        vapp_platform::SetFaultSource(nullptr);
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }

    /// All pieces that the callback hears.
    std::vector<std::string> Hear(const std::string& target, const CStringU& script = "",
                                  bool verbose = false) {
        std::vector<std::string> pieces;
        EXPECT_TRUE(runFtp(
            {target.c_str(), TextEncoding::Utf8Auto}, script,
            [&](const CStringU& piece) { pieces.push_back(Text(piece)); }, verbose));
        return pieces;
    }
    /// What the client says behind the command line.
    std::string Answer(const std::string& target, const CStringU& script = "", bool verbose = false) {
        const std::vector<std::string> pieces = Hear(target, script, verbose);
        std::string all;
        for (std::size_t at = 1; at < pieces.size(); ++at)
            all += pieces[at];
        return all;
    }
    /// A file of this test's own.
    std::string File(const std::string& name) const { return (m_folder / name).string(); }
    /// A word for the client that ends in a file of this test's own.
    std::string WithFile(const std::string& word, const std::string& name) const {
        return "\"" + word + ":" + File(name) + "\"";
    }

    fs::path m_folder = fs::path(platform_test::OwnProgram()).parent_path() /
                        ("ftp-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
};

TEST_F(RemoteDeploymentTest, TheCommandLineIsHeardFirstAndWhole) {
    EXPECT_EQ(Hear("exit:0").front(), CommandLine("exit:0"));
}

TEST_F(RemoteDeploymentTest, TheTargetStandsOnTheLineAsItIs) {
    EXPECT_EQ(Hear("-P 22 say:a exit:0").front(), CommandLine("-P 22 say:a exit:0"));
    EXPECT_EQ(Answer("-P arguments"), "-batch -P ");
}

TEST_F(RemoteDeploymentTest, TheClientAsksNobody) {
    EXPECT_EQ(Answer("arguments"), "-batch ");
}

TEST_F(RemoteDeploymentTest, VerboseAddsASwitchAndTheLogIsHeardWithEverythingElse) {
    EXPECT_EQ(Hear("exit:0", "", true).front(), CommandLine("-v exit:0"));
    EXPECT_EQ(Answer("arguments error:log", "", true), "-batch -v log");
}

TEST_F(RemoteDeploymentTest, TheScriptComesWholeAndThenItsEnd) {
    EXPECT_EQ(Answer("script", "ls x\nexit\n"), "ls x\nexit\n");
    EXPECT_EQ(Answer("script", ""), "");
}

TEST_F(RemoteDeploymentTest, TheScriptIsSentInUtf8WithoutItsMarker) {
    EXPECT_EQ(Answer(WithFile("save", "script"), CStringU(u"ls \u00E4\u20AC\n")), "");
    std::ostringstream sent;
    sent << std::ifstream(File("script"), std::ios::binary).rdbuf();
    EXPECT_EQ(sent.str(), "ls \xC3\xA4\xE2\x82\xAC\n");
}

TEST_F(RemoteDeploymentTest, TheClientWorksInTheFolderOfTheWorkersFiles) {
    EXPECT_EQ(Answer("folder"), "LinuxUtils");
}

TEST_F(RemoteDeploymentTest, TextComesInPiecesOfUpToEightBytes) {
    const std::vector<std::string> pieces = Hear("say:abcdefghijklmnopqrstuvwxyz");
    std::string all;
    for (std::size_t at = 1; at < pieces.size(); ++at) {
        EXPECT_LE(pieces[at].size(), 8U);
        EXPECT_FALSE(pieces[at].empty());
        all += pieces[at];
    }
    EXPECT_EQ(all, "abcdefghijklmnopqrstuvwxyz");
    EXPECT_GE(pieces.size(), 5U);
}

TEST_F(RemoteDeploymentTest, ALongAnswerComesWhole) {
    std::string script;
    while (script.size() < 30000)
        script += "put some_file_of_the_worker\n";
    EXPECT_EQ(Answer("script", script.c_str()), script);
}

TEST_F(RemoteDeploymentTest, APieceEndsAtItsFirstNul) {
    EXPECT_EQ(Answer("bytes:" + Hex(std::string("ab\0cd\n", 6))), "ab");
}

TEST_F(RemoteDeploymentTest, HighBytesAreReadInTheActiveCodePage) {
    const char bytes[] = "\xC3\xA4";
    EXPECT_EQ(Answer("bytes:" + Hex(bytes)), Text(CStringU(bytes)));
}

TEST_F(RemoteDeploymentTest, ErrorsAreHeardToo) {
    EXPECT_EQ(Answer("error:denied"), "denied");
}

TEST_F(RemoteDeploymentTest, TheExitStatusIsNobodysBusiness) {
    EXPECT_EQ(Answer("say:sorry exit:3"), "sorry");
}

TEST_F(RemoteDeploymentTest, NobodyWaitsForAClientThatHasClosedItsOutput) {
    EXPECT_EQ(Answer("say:bye mute " + WithFile("until", "go") + " " + WithFile("save", "ended")), "bye");
    // It still runs: only now can it end.
    EXPECT_FALSE(fs::exists(File("ended")));
    std::ofstream(File("go")) << "";
    EXPECT_TRUE(Appears(File("ended")));
}

TEST_F(RemoteDeploymentTest, WithoutACallbackAClientThatSaysNothingSucceeds) {
    EXPECT_TRUE(runFtp("exit:0", "", nullptr, false));
}

TEST_F(RemoteDeploymentTest, WithoutACallbackTheFirstWordIsABadCall) {
    EXPECT_THROW(runFtp("say:x", "", nullptr, false), std::bad_function_call);
    EXPECT_THROW(uploadWorkerScripts("say:x", nullptr, false), std::bad_function_call);
}

TEST_F(RemoteDeploymentTest, WhatTheCallbackThrowsComesOutAndNoHandleStays) {
    const auto refuse = [](const CStringU& piece) {
        if (piece == "stop") throw std::length_error("enough");
    };
    const int before = HandlesAtRest();
    EXPECT_THROW(runFtp("say:stop", "", refuse, false), std::length_error);
    EXPECT_TRUE(AreNoMoreThan(before));
}

// --- Failures
// ------------------------------------------------------------------------------------------------

SystemCall gFailing = SystemCall::CreatePipe;
int gAt = 0;

struct FailureRow {
    SystemCall call;
    int at;
    const char* text;
};

constexpr FailureRow cnFailures[] = {
    {SystemCall::CreatePipe, 1, "StdOutRd CreatePipe"},
    {SystemCall::KeepFromChildren, 1, "StdOutRd SetHandleInformation"},
    {SystemCall::CreatePipe, 2, "StdInRd CreatePipe"},
    {SystemCall::KeepFromChildren, 2, "StdInRd SetHandleInformation"},
    {SystemCall::StartProcess, 1, "CreateProcess failed"},
    {SystemCall::CloseHandle, 1, "StdOutWr CloseHandle"},
    {SystemCall::CloseHandle, 2, "StdInRd CloseHandle"},
};

std::string FailureOf(const FailureRow& row) {
    gFailing = row.call;
    gAt = row.at;
    vapp_platform::SetFaultSource([](SystemCall call) { return call == gFailing && --gAt == 0 ? 5 : 0; });
    std::string text = "none";
    try {
        runFtp(
            "exit:0", "", [](const CStringU&) {}, false);
    } catch (const std::runtime_error& failure) {
        text = failure.what();
    }
    vapp_platform::SetFaultSource(nullptr);
    return text;
}

TEST_F(RemoteDeploymentTest, EveryStepThatFailsIsNamedByItsException) {
    for (const FailureRow& row : cnFailures)
        EXPECT_EQ(FailureOf(row), row.text);
}

TEST_F(RemoteDeploymentTest, NoHandleStaysOpenAfterAFailure) {
    const int before = HandlesAtRest();
    for (const FailureRow& row : cnFailures) {
        static_cast<void>(FailureOf(row));
        EXPECT_TRUE(AreNoMoreThan(before)) << row.text;
    }
}

std::string gClosed;

TEST_F(RemoteDeploymentTest, AClientThatIsDeafToItsScriptIsAFailure) {
    gClosed = File("closed");
    gAt = 0;
    // This process's copy of the child's input is closed second; the child has closed its own before.
    vapp_platform::SetFaultSource([](SystemCall call) {
        if (call == SystemCall::CloseHandle && ++gAt == 2) {
            EXPECT_TRUE(Appears(gClosed));
        }
        return 0;
    });
    try {
        runFtp(
            WithFile("deaf", "closed").c_str(), "ls\n", [](const CStringU&) {}, false);
        FAIL() << "no exception";
    } catch (const std::runtime_error& failure) {
        EXPECT_STREQ(failure.what(), "WriteFile failed");
    }
}

/// A program that lies in a folder of its own runs a client from there.
std::string RunFrom(const fs::path& folder) {
    const fs::path program = folder / "program.exe";
    if (!fs::exists(program)) {
        std::error_code failed;
        fs::create_hard_link(platform_test::OwnProgram(), program, failed);
        if (failed) fs::copy_file(platform_test::OwnProgram(), program);
    }
    vapp_platform::ChildStart start;
    start.commandLine = CStringU("\"") + CStringU(program.string().c_str()) + "\" --child=ftp";
    const platform_test::PipedChild child = platform_test::StartPiped(start);
    if (child.child == nullptr) return "no program";
    std::string said = platform_test::ReadAll(*child.output);
    // A program that still runs could not be removed.
    child.child->WaitFor(platform_test::cnLong);
    return said;
}

TEST_F(RemoteDeploymentTest, AMissingClientIsAFailedStart) {
    fs::create_directories(m_folder / "LinuxUtils");
    EXPECT_EQ(RunFrom(m_folder), "CreateProcess failed");
}

TEST_F(RemoteDeploymentTest, AMissingFolderOfFilesIsAFailedStart) {
    connection_test::LayFtpProgram(platform_test::OwnProgram(), m_folder.string());
    fs::remove(m_folder / "LinuxUtils");
    EXPECT_EQ(RunFrom(m_folder), "CreateProcess failed");
    fs::create_directories(m_folder / "LinuxUtils");
    EXPECT_EQ(RunFrom(m_folder), "done");
}

// --- The worker's files
// --------------------------------------------------------------------------------------

TEST_F(RemoteDeploymentTest, TheUploadMakesTheBuildsFolderPutsFiveFilesAndListsThem) {
    std::string heard;
    EXPECT_TRUE(uploadWorkerScripts(
        "script", [&](const CStringU& piece) { heard += Text(piece); }, false));
    EXPECT_EQ(heard, CommandLine("script") +
                         "mkdir .vornex\n"
                         "cd .vornex\n"
                         "mkdir v2019_2_0_b13862\n"
                         "cd v2019_2_0_b13862\n"
                         "put evi_worker\n"
                         "chmod 700 evi_worker\n"
                         "put connection.py\n"
                         "put trion_worker\n"
                         "chmod 700 trion_worker\n"
                         "put argparse.py\n"
                         "put esi_worker.py\n"
                         "chmod 700 esi_worker.py\n"
                         "dir\n"
                         "exit\n");
}

TEST_F(RemoteDeploymentTest, AVerboseUploadIsAVerboseRun) {
    std::string heard;
    EXPECT_TRUE(uploadWorkerScripts(
        "exit:0", [&](const CStringU& piece) { heard += Text(piece); }, true));
    EXPECT_EQ(heard, CommandLine("-v exit:0"));
}

// --- Is it there?
// --------------------------------------------------------------------------------------------

struct ListingRow {
    const char* listing;
    const char* path;
    bool there;
};

constexpr ListingRow cnListings[] = {
    {"-rwx------ 1 me me 12 Jan 1 10:00 evi_worker\r\n", ".vornex/evi_worker", true},
    {"-rwx------ 1 me me 12 Jan 1 10:00 evi_worker\n", ".vornex/evi_worker", true},
    {"drwx 1 a\r\n-rw 1 evi_worker\r\n-rw 1 z\r\n", "evi_worker", true},
    // Only the front, the end or the middle of another name.
    {"-rw 1 evi_worker2\r\n", "evi_worker", false},
    {"-rw 1 my_evi_worker\r\n", "evi_worker", false},
    {"-rw 1 my_evi_worker2\n", "evi_worker", false},
    {"-rw 1 evi_worker.bak\n", "evi_worker", false},
    // Not at the end of its line.
    {"-rw 1 evi_worker -> there\r\n", "evi_worker", false},
    {"-rw 1 evi_worker", "evi_worker", false},
    {"evi_worker\r\n", "evi_worker", false},
    // A name may have blanks; what stands behind one looks like a whole name.
    {"-rw 1 my evi_worker\r\n", "my evi_worker", true},
    {"-rw 1 my evi_worker\r\n", "evi_worker", true},
    // By bytes.
    {"-rw 1 EVI_WORKER\r\n", "evi_worker", false},
    // No entry at all.
    {"", "evi_worker", false},
    {"Unable to open /no/where: no such file or directory\n", "/no/where/evi_worker", false},
    {"FATAL ERROR: Network error: Connection refused\n", "evi_worker", false},
    // What a complaint ends in is taken for an entry.
    {"Unable to open /no/where: no such file or directory\n", "/no/where/directory", true},
};

TEST_F(RemoteDeploymentTest, AFileIsThereIfALineOfTheListingEndsInABlankAndItsName) {
    for (const ListingRow& row : cnListings) {
        EXPECT_EQ(gRemoteFileExists(("bytes:" + Hex(row.listing)).c_str(), row.path), row.there)
            << row.listing << " / " << row.path;
    }
}

TEST_F(RemoteDeploymentTest, TheCommandLineIsNoEntry) {
    EXPECT_FALSE(gRemoteFileExists("exit:0", "exit:0"));
    EXPECT_FALSE(gRemoteFileExists("say:a exit:0", "exit:0"));
}

struct LsRow {
    const char* path;
    const char* script;
};

constexpr LsRow cnLists[] = {
    {".vornex/v1/evi_worker", "ls .vornex/v1\n"},
    {"/opt/tools/x", "ls /opt/tools\n"},
    // No folder part, and the root's, which has no name of its own: the login folder.
    {"evi_worker", "ls \n"},
    {"/x", "ls \n"},
};

TEST_F(RemoteDeploymentTest, TheListingIsAskedForThePathsFolderWithoutAnExit) {
    for (const LsRow& row : cnLists) {
        static_cast<void>(gRemoteFileExists(WithFile("save", "script").c_str(), row.path));
        std::ostringstream sent;
        sent << std::ifstream(File("script"), std::ios::binary).rdbuf();
        EXPECT_EQ(sent.str(), row.script);
    }
}

TEST_F(RemoteDeploymentTest, AClientThatCanNotBeStartedIsAnExceptionOfTheQuestionToo) {
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::StartProcess ? 5 : 0; });
    EXPECT_THROW(static_cast<void>(gRemoteFileExists("x", "y")), std::runtime_error);
    EXPECT_THROW(uploadWorkerScripts("x", nullptr, false), std::runtime_error);
}

}  // namespace

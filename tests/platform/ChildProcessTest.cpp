#include "platform/ChildProcess.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <thread>
#include <utility>

#include "platform/FaultPoint.h"
#include "tests/platform/ChildRoles.h"
#include "tests/platform/SystemHelpers.h"

namespace {

using platform_test::cnLong;
using platform_test::PipedChild;
using platform_test::ReadAll;
using platform_test::RoleCommand;
using platform_test::StartRole;
using std::chrono::milliseconds;
using vapp_platform::ChildProcess;
using vapp_platform::ChildStart;
using vapp_platform::ExitKind;
using vapp_platform::OwnedHandle;
using vapp_platform::StartResult;
using vapp_platform::StartStep;
using vapp_platform::SystemCall;

StartResult StartLine(const CStringU& line) {
    ChildStart start;
    start.commandLine = line;
    return ChildProcess::Start(start);
}

void End(ChildProcess& child) {
    ASSERT_TRUE(child.Terminate());
    ASSERT_TRUE(child.WaitFor(cnLong));
}

TEST(ChildProcess, TellsTheExitStatus) {
    for (const int code : {0, 1, 3, 77, 255}) {
        const StartResult started = StartLine(RoleCommand("exit", {std::to_string(code)}));
        ASSERT_NE(started.child, nullptr);
        EXPECT_NE(started.child->GetId(), 0U);
        ASSERT_TRUE(started.child->WaitFor(cnLong));
        EXPECT_EQ(started.child->GetExitStatus().kind, ExitKind::Exited);
        EXPECT_EQ(started.child->GetExitStatus().code, code);
    }
}

TEST(ChildProcess, AChildThatExitsLikeStillActiveHasExited) {
    const StartResult started = StartLine(RoleCommand("exit", {"259"}));
    ASSERT_NE(started.child, nullptr);
    ASSERT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_EQ(started.child->GetExitStatus().kind, ExitKind::Exited);
}

TEST(ChildProcess, TheWaitHasALimit) {
    const PipedChild piped = StartRole("hang");
    ASSERT_NE(piped.child, nullptr);
    EXPECT_FALSE(piped.child->WaitFor(milliseconds(0)));
    EXPECT_FALSE(piped.child->WaitFor(milliseconds(30)));
    EXPECT_EQ(piped.child->GetExitStatus().kind, ExitKind::Running);
    End(*piped.child);
}

TEST(ChildProcess, AForcedEndTellsThatItWasForced) {
    const PipedChild piped = StartRole("hang");
    ASSERT_NE(piped.child, nullptr);
    End(*piped.child);
    EXPECT_EQ(piped.child->GetExitStatus().kind, ExitKind::Forced);
    EXPECT_EQ(piped.child->GetExitStatus().code, 1);
    EXPECT_TRUE(piped.child->Terminate());
    EXPECT_FALSE(platform_test::IsRunning(piped.child->GetId()));
}

TEST(ChildProcess, AnEndedChildIsNotForced) {
    const StartResult started = StartLine(RoleCommand("exit", {"5"}));
    ASSERT_NE(started.child, nullptr);
    ASSERT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_TRUE(started.child->Terminate());
    EXPECT_EQ(started.child->GetExitStatus().kind, ExitKind::Exited);
    EXPECT_EQ(started.child->GetExitStatus().code, 5);
}

TEST(ChildProcess, OneThatIgnoresPoliteRequestsIsEndedAllTheSame) {
    const PipedChild piped = StartRole("deaf");
    ASSERT_NE(piped.child, nullptr);
    char here[4];
    ASSERT_FALSE(piped.output->Read(here, sizeof here).Failed());
    End(*piped.child);
    EXPECT_EQ(piped.child->GetExitStatus().kind, ExitKind::Forced);
}

TEST(ChildProcess, ArgumentsArriveByTheQuotingRules) {
    const std::vector<std::string> arguments = {"plain",      "",      "two words", "tab\there",
                                                "quo\"te",    "end\\", "a\\\"b",    "back\\slash",
                                                "dir with\\", "$HOME", "*.cpp",     "'"};
    const PipedChild piped = StartRole("arguments", arguments);
    ASSERT_NE(piped.child, nullptr);
    std::string expected;
    for (const std::string& argument : arguments)
        expected += argument + '\0';
    EXPECT_EQ(ReadAll(*piped.output), expected);
}

TEST(ChildProcess, OutputAndErrorCanShareOnePipe) {
    const PipedChild piped = StartRole("both-streams");
    ASSERT_NE(piped.child, nullptr);
    EXPECT_EQ(ReadAll(*piped.output), "out error");
}

TEST(ChildProcess, WithoutStreamsAChildFindsNothingToReadAndStillRuns) {
    const StartResult started = StartLine(RoleCommand("echo"));
    ASSERT_NE(started.child, nullptr);
    ASSERT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_EQ(started.child->GetExitStatus().code, 0);
}

TEST(ChildProcess, TheEnvironmentIsTheOneGivenOrTheProcessesOwn) {
    // Enough of the own one that a program can be loaded at all, and one entry more.
    ChildStart start;
    start.commandLine = RoleCommand("variable", {"VAPP_TEST_WORD"});
    std::wstring block;
    for (const char* name : {"SystemRoot", "PATH", "LD_LIBRARY_PATH", "WINEPREFIX"}) {
        const char* const value = std::getenv(name);
        if (value == nullptr) continue;
        const std::string entry = std::string(name) + '=' + value;
        block.append(entry.begin(), entry.end());
        block += L'\0';
    }
    block += L"VAPP_TEST_WORD=word";
    block.append(2, L'\0');
    start.environment = block;
    const PipedChild given = platform_test::StartPiped(start);
    ASSERT_NE(given.child, nullptr);
    EXPECT_EQ(ReadAll(*given.output), "=word");

    start.environment = {};
    const PipedChild own = platform_test::StartPiped(start);
    ASSERT_NE(own.child, nullptr);
    EXPECT_EQ(ReadAll(*own.output), "unset");
}

TEST(ChildProcess, AnEnvironmentEndsWhereItIsSaidToWhateverStandsBehindIt) {
    for (const std::size_t nuls : {0U, 1U, 2U}) {
        std::wstring memory;
        for (const char* name : {"SystemRoot", "PATH", "LD_LIBRARY_PATH", "WINEPREFIX"}) {
            const char* const value = std::getenv(name);
            if (value == nullptr) continue;
            const std::string entry = std::string(name) + '=' + value;
            memory.append(entry.begin(), entry.end());
            memory += L'\0';
        }
        memory += L"VAPP_TEST_WORD=word";
        memory.append(nuls, L'\0');
        const std::size_t size = memory.size();
        memory += L"and more";
        memory.append(2, L'\0');
        ChildStart start;
        start.commandLine = RoleCommand("variable", {"VAPP_TEST_WORD"});
        start.environment = std::span(memory).first(size);
        const PipedChild given = platform_test::StartPiped(start);
        ASSERT_NE(given.child, nullptr);
        EXPECT_EQ(ReadAll(*given.output), "=word") << nuls;
    }
}

TEST(ChildProcess, TheWorkingFolderIsEnteredAndTheProgramIsLookedForFromHere) {
    const auto folder = std::filesystem::temp_directory_path() / "vapp child folder";
    std::filesystem::create_directory(folder);
    ChildStart start;
    start.commandLine = RoleCommand("folder");
    start.workingFolder = {folder.string().c_str(), TextEncoding::Utf8Auto};
    const PipedChild piped = platform_test::StartPiped(start);
    ASSERT_NE(piped.child, nullptr);
    EXPECT_EQ(ReadAll(*piped.output), "vapp child folder");
    ASSERT_TRUE(piped.child->WaitFor(cnLong));
    std::filesystem::remove(folder);
}

TEST(ChildProcess, AStartThatFailsHasAReasonAndLeavesNoChild) {
    const auto folder = std::filesystem::temp_directory_path() / "vapp-not-executable";
    std::ofstream(folder) << "plain text";
    const CStringU lines[] = {
        CStringU(),
        CStringU("  "),
        CStringU("vapp-no-such-program-anywhere with arguments"),
        CStringU("\"/no/such folder/program\" x"),
        CStringU(("\"" + std::filesystem::temp_directory_path().string() + "\"").c_str()),
        CStringU(("\"" + folder.string() + "\"").c_str()),
    };
    const int before = platform_test::CountOpenHandles();
    for (const CStringU& line : lines) {
        const StartResult started = StartLine(line);
        EXPECT_EQ(started.child, nullptr) << line.Payload();
        EXPECT_EQ(started.failed, StartStep::Program) << line.Payload();
        EXPECT_NE(started.code, 0) << line.Payload();
    }
    // Fewer where a child of an earlier test is collected meanwhile.
    EXPECT_LE(platform_test::CountOpenHandles(), before);
    std::filesystem::remove(folder);
}

TEST(ChildProcess, WithoutItsStreamsInPlaceNoChildIsStarted) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    ChildStart start;
    start.commandLine = RoleCommand("exit", {"0"});
    start.output = writeEnd.Get();
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::PlaceStreams ? 8 : 0; });
    const StartResult started = ChildProcess::Start(start);
    vapp_platform::SetFaultSource(nullptr);
    EXPECT_EQ(started.child, nullptr);
    EXPECT_EQ(started.failed, StartStep::Streams);
    EXPECT_EQ(started.code, 8);
}

TEST(ChildProcess, AChildHoldsNoOtherPipeOfTheHost) {
    OwnedHandle readEnd, writeEnd;
    // As a host that thinks of children of its own: on Windows both ends can be inherited.
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    const PipedChild piped = StartRole("hang");
    ASSERT_NE(piped.child, nullptr);
    char here[4];
    ASSERT_FALSE(piped.output->Read(here, sizeof here).Failed());
    writeEnd.Drop();
    vapp_platform::PipeReader reader(std::move(readEnd));
    EXPECT_TRUE(reader.Peek().Failed()) << "the child holds the other end";
    End(*piped.child);
}

TEST(ChildProcess, AChildThatClosesItsStreamsLivesOn) {
    const PipedChild piped = StartRole("close-streams");
    ASSERT_NE(piped.child, nullptr);
    EXPECT_EQ(ReadAll(*piped.output), "");
    EXPECT_FALSE(piped.child->WaitFor(milliseconds(0)));
    End(*piped.child);
}

TEST(ChildProcess, AChildThatIsLetGoRunsOn) {
    PipedChild piped = StartRole("echo");
    ASSERT_NE(piped.child, nullptr);
    piped.child.reset();
    ASSERT_TRUE(platform_test::WriteAll(*piped.input, "still here"));
    piped.input->Close();
    EXPECT_EQ(ReadAll(*piped.output), "still here");
}

TEST(ChildProcess, ManyStartsAtOnceKeepTheirStreamsApart) {
    constexpr int cnThreads = 8;
    constexpr int cnStarts = 25;
    const int before = platform_test::CountOpenHandles();
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < cnThreads; ++thread) {
        threads.emplace_back([thread, &right] {
            for (int start = 0; start < cnStarts; ++start) {
                const PipedChild piped = StartRole("echo");
                if (piped.child == nullptr) continue;
                const std::string words = std::to_string(thread) + '/' + std::to_string(start);
                platform_test::WriteAll(*piped.input, words);
                // A second holder of this end, in another thread's child, would keep the echo from ending.
                piped.input->Close();
                const bool same = ReadAll(*piped.output) == words;
                if (same && piped.child->WaitFor(cnLong) && piped.child->GetExitStatus().code == 0) ++right;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(right, cnThreads * cnStarts);
    // Fewer where a child of an earlier test is collected meanwhile.
    EXPECT_LE(platform_test::CountOpenHandles(), before);
}

}  // namespace

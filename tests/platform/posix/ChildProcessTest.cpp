/// @file
/// What Linux adds to a start: descriptors, signals, zombies, and a host with habits of its own.
#include "platform/ChildProcess.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "tests/platform/ChildRoles.h"
#include "tests/platform/SystemHelpers.h"

namespace {

using platform_test::cnLong;
using platform_test::PipedChild;
using platform_test::ReadAll;
using platform_test::RoleCommand;
using platform_test::StartRole;
using vapp_platform::ChildProcess;
using vapp_platform::ChildStart;
using vapp_platform::ExitKind;
using vapp_platform::StartResult;
using vapp_platform::StartStep;

StartResult StartPlain(const std::string& line) {
    ChildStart start;
    start.commandLine = {line.c_str(), TextEncoding::Utf8Auto};
    return ChildProcess::Start(start);
}

TEST(PosixChildProcess, TheChildHasItsThreeStreamsAndNothingElse) {
    // Left open on purpose by a careless host: not close-on-exec, one of them beyond the small numbers.
    const int careless = open("/dev/null", O_RDONLY);
    const int high = fcntl(careless, F_DUPFD, 500);
    const PipedChild piped = StartRole("about-self", {"descriptors"});
    ASSERT_NE(piped.child, nullptr);
    EXPECT_EQ(ReadAll(*piped.output), "0 1 2 ");
    close(careless);
    close(high);
}

// The kernel of this thread and of its children doesn't know close_range.
void ForgetCloseRange() {
    const sock_filter lines[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_close_range, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {std::size(lines), const_cast<sock_filter*>(lines)};
    ASSERT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
    ASSERT_EQ(syscall(SYS_close_range, ~0U, ~0U, 0), -1);
}

TEST(PosixChildProcess, OnAKernelThatClosesNoRangesTheChildHasNoMoreThanElsewhere) {
    const int careless = open("/dev/null", O_RDONLY);
    const int high = fcntl(careless, F_DUPFD, 1000);
    std::vector<int> many;
    for (int number = 0; number < 300; ++number)
        many.push_back(dup(careless));
    // What is open stays open above a limit that is lowered behind it.
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    rlimit lowered = before;
    lowered.rlim_cur = 900;
    setrlimit(RLIMIT_NOFILE, &lowered);
    std::string descriptors;
    std::thread old([&] {
        ForgetCloseRange();
        const PipedChild piped = StartRole("about-self", {"descriptors"});
        if (piped.child != nullptr) descriptors = ReadAll(*piped.output);
    });
    old.join();
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(descriptors, "0 1 2 ");
    for (const int number : many)
        close(number);
    close(careless);
    close(high);
}

TEST(PosixChildProcess, StreamsArePlacedRightWhereverTheyComeFrom) {
    // The pipes' own numbers among the standard ones, crosswise.
    const int saved[] = {dup(0), dup(1), dup(2)};
    int in[2];
    int out[2];
    ASSERT_EQ(pipe2(in, O_CLOEXEC), 0);
    ASSERT_EQ(pipe2(out, O_CLOEXEC), 0);
    ASSERT_EQ(dup3(in[0], 1, O_CLOEXEC), 1);
    ASSERT_EQ(dup3(out[1], 0, O_CLOEXEC), 0);
    ChildStart start;
    start.commandLine = RoleCommand("echo");
    start.input = 1;
    start.output = 0;
    start.error = 0;
    const StartResult started = ChildProcess::Start(start);
    for (int number = 0; number < 3; ++number) {
        dup2(saved[number], number);
        close(saved[number]);
    }
    close(in[0]);
    close(out[1]);
    ASSERT_NE(started.child, nullptr);
    EXPECT_EQ(write(in[1], "crossed", 7), 7);
    close(in[1]);
    char answer[16] = {};
    EXPECT_EQ(read(out[0], answer, sizeof answer), 7);
    EXPECT_STREQ(answer, "crossed");
    close(out[0]);
    EXPECT_TRUE(started.child->WaitFor(cnLong));
}

TEST(PosixChildProcess, SignalsAndMaskAreAtTheirDefaults) {
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto ignored = signal(SIGHUP, SIG_IGN);
    const auto pipeBefore = signal(SIGPIPE, SIG_IGN);
    const PipedChild mask = StartRole("about-self", {"SigBlk"});
    const PipedChild ignoring = StartRole("about-self", {"SigIgn"});
    signal(SIGHUP, ignored);
    signal(SIGPIPE, pipeBefore);
    sigset_t behind;
    pthread_sigmask(SIG_SETMASK, &before, &behind);
    ASSERT_NE(mask.child, nullptr);
    ASSERT_NE(ignoring.child, nullptr);
    EXPECT_EQ(ReadAll(*mask.output), "SigBlk:\t0000000000000000");
    EXPECT_EQ(ReadAll(*ignoring.output), "SigIgn:\t0000000000000000");
    // The start itself has given the thread its mask back.
    EXPECT_EQ(sigismember(&behind, SIGUSR1), 1);
    EXPECT_EQ(sigismember(&behind, SIGINT), 0);
}

TEST(PosixChildProcess, FailuresNameTheSystemsReason) {
    const auto folder = std::filesystem::temp_directory_path() / "vapp-failures";
    std::filesystem::create_directory(folder);
    const std::string plain = folder / "plain";
    std::ofstream(plain) << "text";
    const std::string noProgram = folder / "no-program";
    std::ofstream(noProgram) << "text";
    chmod(noProgram.c_str(), 0700);

    EXPECT_EQ(StartPlain("vapp-no-such-program").code, ENOENT);
    EXPECT_EQ(StartPlain(folder / "absent").code, ENOENT);
    EXPECT_EQ(StartPlain(plain).code, EACCES);
    EXPECT_EQ(StartPlain(folder).code, EACCES);
    EXPECT_EQ(StartPlain(plain + "/below").code, ENOENT);  // "not a folder" counts as not found
    EXPECT_EQ(StartPlain(noProgram).code, ENOEXEC);

    ChildStart start;
    start.commandLine = RoleCommand("exit", {"0"});
    start.workingFolder = "/no/such/folder";
    const StartResult noFolder = ChildProcess::Start(start);
    EXPECT_EQ(noFolder.failed, StartStep::Folder);
    EXPECT_EQ(noFolder.code, ENOENT);
    std::filesystem::remove_all(folder);
}

TEST(PosixChildProcess, AFailedStartLeavesNoZombie) {
    for (int round = 0; round < 20; ++round)
        EXPECT_EQ(StartPlain("/no/such/program").child, nullptr);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(PosixChildProcess, ChildrenThatAreLetGoAreCollectedAtALaterStart) {
    for (int round = 0; round < 20; ++round) {
        PipedChild piped = StartRole("exit", {"0"});
        ASSERT_NE(piped.child, nullptr);
        piped.child.reset();
        // The end of the stream comes with the end of the child.
        EXPECT_EQ(ReadAll(*piped.output), "");
    }
    // Each start collects; the last ones may still be on their way out.
    siginfo_t info{};
    while (waitid(P_ALL, 0, &info, WEXITED | WNOWAIT) == 0) {
        const StartResult next = StartPlain("/no/such/program");
        EXPECT_EQ(next.child, nullptr);
    }
    EXPECT_EQ(errno, ECHILD);
}

TEST(PosixChildProcess, TheProgramMayBeWrittenWithBackslashes) {
    const StartResult started = StartPlain("\"\\bin\\true\"");
    ASSERT_NE(started.child, nullptr);
    ASSERT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_EQ(started.child->GetExitStatus().code, 0);
}

TEST(PosixChildProcess, AProgramWithoutAFolderIsFoundByPath) {
    const StartResult started = StartPlain("sh -c \"exit 7\"");
    ASSERT_NE(started.child, nullptr);
    ASSERT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_EQ(started.child->GetExitStatus().code, 7);
}

TEST(PosixChildProcess, AChildKilledByOthersTellsTheSignal) {
    const PipedChild piped = StartRole("hang");
    ASSERT_NE(piped.child, nullptr);
    char here[4];
    ASSERT_FALSE(piped.output->Read(here, sizeof here).Failed());
    kill(static_cast<pid_t>(piped.child->GetId()), SIGTERM);
    ASSERT_TRUE(piped.child->WaitFor(cnLong));
    EXPECT_EQ(piped.child->GetExitStatus().kind, ExitKind::Killed);
    EXPECT_EQ(piped.child->GetExitStatus().code, SIGTERM);
}

TEST(PosixChildProcess, AHostThatIgnoresItsChildrenLosesOnlyTheStatus) {
    const auto before = signal(SIGCHLD, SIG_IGN);
    for (int round = 0; round < 20; ++round) {
        const StartResult started = StartPlain(RoleCommand("exit", {"3"}).Payload());
        ASSERT_NE(started.child, nullptr);
        EXPECT_TRUE(started.child->WaitFor(cnLong));
        EXPECT_NE(started.child->GetExitStatus().kind, ExitKind::Running);
        EXPECT_TRUE(started.child->Terminate());
        EXPECT_EQ(StartPlain("/no/such/program").code, ENOENT);
    }
    signal(SIGCHLD, before);
}

TEST(PosixChildProcess, AHostThatCollectsEveryChildLosesOnlyTheStatus) {
    const StartResult started = StartPlain(RoleCommand("exit", {"3"}).Payload());
    ASSERT_NE(started.child, nullptr);
    EXPECT_EQ(waitpid(-1, nullptr, 0), static_cast<pid_t>(started.child->GetId()));
    EXPECT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_EQ(started.child->GetExitStatus().kind, ExitKind::Unknown);
    EXPECT_TRUE(started.child->Terminate());
}

TEST(PosixChildProcess, TheHostsOwnChildrenAreLeftAlone) {
    const pid_t own = fork();
    if (own == 0) _exit(42);
    siginfo_t info{};
    ASSERT_EQ(waitid(P_PID, static_cast<id_t>(own), &info, WEXITED | WNOWAIT), 0);
    {
        const StartResult started = StartPlain(RoleCommand("exit", {"0"}).Payload());
        ASSERT_NE(started.child, nullptr);
        EXPECT_TRUE(started.child->WaitFor(cnLong));
    }
    EXPECT_EQ(StartPlain("/no/such/program").child, nullptr);
    int status = 0;
    EXPECT_EQ(waitpid(own, &status, 0), own);
    EXPECT_EQ(WEXITSTATUS(status), 42);
}

TEST(PosixChildProcess, TheWaitKeepsItsLimitUnderSignals) {
    struct sigaction quiet {};
    quiet.sa_handler = [](int) {};
    struct sigaction before {};
    sigaction(SIGUSR2, &quiet, &before);
    const PipedChild piped = StartRole("hang");
    ASSERT_NE(piped.child, nullptr);
    std::atomic<bool> over = false;
    const pthread_t waiter = pthread_self();
    std::thread storm([&over, waiter] {
        while (!over) {
            pthread_kill(waiter, SIGUSR2);
            std::this_thread::yield();
        }
    });
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(piped.child->WaitFor(std::chrono::milliseconds(100)));
    const auto took = std::chrono::steady_clock::now() - begin;
    const PipedChild started = StartRole("exit", {"9"});
    over = true;
    storm.join();
    sigaction(SIGUSR2, &before, nullptr);
    EXPECT_GE(took, std::chrono::milliseconds(100));
    EXPECT_LT(took, std::chrono::seconds(20));
    ASSERT_NE(started.child, nullptr);
    EXPECT_TRUE(started.child->WaitFor(cnLong));
    EXPECT_EQ(started.child->GetExitStatus().code, 9);
    EXPECT_TRUE(piped.child->Terminate());
    EXPECT_TRUE(piped.child->WaitFor(cnLong));
}

}  // namespace

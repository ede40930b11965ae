/// @file
/// Pipes beside the host's signals.
#include "platform/Pipe.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/resource.h>

#include <atomic>
#include <cerrno>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include "tests/platform/ChildRoles.h"
#include "tests/platform/SystemHelpers.h"

namespace {

using vapp_platform::OwnedHandle;
using vapp_platform::PipeReader;
using vapp_platform::PipeWriter;

std::atomic<int> gPipeSignals = 0;

struct BrokenPipe {
    BrokenPipe() {
        OwnedHandle readEnd, writeEnd;
        EXPECT_EQ(CreatePipe(readEnd, writeEnd), 0);
        readEnd.Drop();
        writer = std::make_unique<PipeWriter>(std::move(writeEnd));
    }
    std::unique_ptr<PipeWriter> writer;
};

bool IsPipeSignalPending() {
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
}

TEST(PosixPipe, TheHostsHandlerForBrokenPipesNeverRuns) {
    gPipeSignals = 0;
    struct sigaction counting {};
    counting.sa_handler = [](int) { ++gPipeSignals; };
    struct sigaction before {};
    sigaction(SIGPIPE, &counting, &before);
    const BrokenPipe broken;
    EXPECT_EQ(broken.writer->Write("x", 1).code, EPIPE);
    EXPECT_EQ(gPipeSignals, 0);
    EXPECT_FALSE(IsPipeSignalPending());
    // The host's own one still comes.
    raise(SIGPIPE);
    EXPECT_EQ(gPipeSignals, 1);
    sigaction(SIGPIPE, &before, nullptr);
}

TEST(PosixPipe, ASignalThatWasPendingBeforeStaysPending) {
    sigset_t pipe;
    sigset_t before;
    sigemptyset(&pipe);
    sigaddset(&pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe, &before);
    const BrokenPipe broken;
    EXPECT_EQ(broken.writer->Write("x", 1).code, EPIPE);
    EXPECT_FALSE(IsPipeSignalPending());
    pthread_kill(pthread_self(), SIGPIPE);
    EXPECT_EQ(broken.writer->Write("x", 1).code, EPIPE);
    EXPECT_TRUE(IsPipeSignalPending());
    int number = 0;
    sigwait(&pipe, &number);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST(PosixPipe, BothEndsAreClosedOnExecFromTheirBirth) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    EXPECT_EQ(fcntl(static_cast<int>(readEnd.Get()), F_GETFD), FD_CLOEXEC);
    EXPECT_EQ(fcntl(static_cast<int>(writeEnd.Get()), F_GETFD), FD_CLOEXEC);
}

// The limit on descriptors lets nothing more be opened as long as this lives.
class NoDescriptorLeft {
public:
    NoDescriptorLeft() {
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit none = m_before;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoDescriptorLeft() { setrlimit(RLIMIT_NOFILE, &m_before); }

private:
    rlimit m_before{};
};

TEST(PosixPipe, CloseEndsABlockedCallAlsoWhereNothingWasLeftToWakeItWith) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    OwnedHandle otherRead, otherWrite;
    ASSERT_EQ(CreatePipe(otherRead, otherWrite), 0);
    std::unique_ptr<PipeReader> reader;
    std::unique_ptr<PipeWriter> writer;
    {
        const NoDescriptorLeft none;
        reader = std::make_unique<PipeReader>(std::move(readEnd));
        writer = std::make_unique<PipeWriter>(std::move(otherWrite));
    }
    std::atomic<std::uint32_t> readingThread = 0;
    std::atomic<std::uint32_t> writingThread = 0;
    std::thread reading([&] {
        char byte = 0;
        readingThread = platform_test::OwnThreadId();
        EXPECT_EQ(reader->Read(&byte, 1).code, ECANCELED);
    });
    std::thread writing([&] {
        const std::string much(1 << 20, 'x');
        writingThread = platform_test::OwnThreadId();
        EXPECT_FALSE(platform_test::WriteAll(*writer, much));
    });
    for (const auto* thread : {&readingThread, &writingThread}) {
        while (*thread == 0)
            std::this_thread::yield();
        EXPECT_TRUE(platform_test::WaitUntilAsleep(*thread));
    }
    reader->Close();
    writer->Close();
    reading.join();
    writing.join();
}

TEST(PosixPipe, AWriterWidensItsPipeSoThatItWaitsLessOften) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    const int before = fcntl(static_cast<int>(readEnd.Get()), F_GETPIPE_SZ);
    const PipeWriter writer(std::move(writeEnd));
    const int wide = fcntl(static_cast<int>(readEnd.Get()), F_GETPIPE_SZ);
    // A user without privileges who has very many pipes keeps the narrow one.
    if (wide == before) GTEST_SKIP() << "the system refuses wider pipes";
    EXPECT_EQ(wide, 256 * 1024);
}

TEST(PosixPipe, ABlockThatFillsThePipeIsOneWrite) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    PipeReader reader(std::move(readEnd));
    PipeWriter writer(std::move(writeEnd));
    const std::string block(3 << 20, 'b');
    std::string all;
    std::thread drain([&] {
        std::string buffer(65536, '\0');
        while (all.size() < block.size()) {
            const auto got = reader.Read(buffer.data(), buffer.size());
            if (got.Failed()) break;
            all.append(buffer, 0, static_cast<std::size_t>(got.count));
        }
    });
    EXPECT_EQ(writer.Write(block.data(), block.size()).count, 3 << 20);
    drain.join();
    EXPECT_EQ(all, block);
}

TEST(PosixPipe, AReaderWhoGoesInTheMiddleOfABlockLeavesAPartAndThenACode) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    auto reader = std::make_unique<PipeReader>(std::move(readEnd));
    PipeWriter writer(std::move(writeEnd));
    const std::string block(3 << 20, 'b');
    std::thread leave([&] {
        char byte = ' ';
        EXPECT_EQ(reader->Read(&byte, 1).count, 1);
        reader.reset();
    });
    const auto part = writer.Write(block.data(), block.size());
    leave.join();
    EXPECT_GT(part.count, 0);
    EXPECT_LT(part.count, 3 << 20);
    EXPECT_EQ(part.code, 0);
    EXPECT_EQ(writer.Write("x", 1).code, EPIPE);
    EXPECT_FALSE(IsPipeSignalPending());
}

TEST(PosixPipe, AStormOfSignalsCostsNoByte) {
    struct sigaction quiet {};
    quiet.sa_handler = [](int) {};
    struct sigaction before {};
    sigaction(SIGUSR2, &quiet, &before);
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    PipeReader reader(std::move(readEnd));
    PipeWriter writer(std::move(writeEnd));
    const std::string sent(2000000, 'z');
    std::atomic<bool> over = false;
    std::string got;
    std::thread reading([&] { got = platform_test::ReadAll(reader); });
    std::thread writing([&] {
        EXPECT_TRUE(platform_test::WriteAll(writer, sent));
        writer.Close();
    });
    const pthread_t targets[] = {reading.native_handle(), writing.native_handle()};
    std::thread storm([&] {
        while (!over) {
            for (const pthread_t target : targets)
                pthread_kill(target, SIGUSR2);
        }
    });
    // Nobody is joined while the storm still aims at it.
    while (writer.Write("", 0).code == 0 && !over) {
        const auto left = reader.Peek();
        if (left.Failed()) over = true;
        std::this_thread::yield();
    }
    over = true;
    storm.join();
    writing.join();
    reading.join();
    sigaction(SIGUSR2, &before, nullptr);
    EXPECT_EQ(got.size(), sent.size());
}

}  // namespace

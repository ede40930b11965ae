#include "platform/Pipe.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <random>
#include <string>
#include <thread>
#include <utility>

#include "platform/FaultPoint.h"
#include "tests/platform/ChildRoles.h"
#include "tests/platform/SystemHelpers.h"

namespace {

using platform_test::PipedChild;
using platform_test::ReadAll;
using platform_test::StartRole;
using platform_test::WriteAll;
using vapp_platform::OwnedHandle;
using vapp_platform::PipeReader;
using vapp_platform::PipeWriter;
using vapp_platform::SystemCall;
using vapp_platform::Transfer;

// How often a call is caught in its sleep.
constexpr int cnRounds = 20;

/// Both ends in this process.
struct OwnPipe {
    OwnPipe() {
        OwnedHandle readEnd, writeEnd;
        EXPECT_EQ(CreatePipe(readEnd, writeEnd), 0);
        reader = std::make_unique<PipeReader>(std::move(readEnd));
        writer = std::make_unique<PipeWriter>(std::move(writeEnd));
    }
    std::unique_ptr<PipeReader> reader;
    std::unique_ptr<PipeWriter> writer;
};

TEST(Pipe, PeekCountsWhatAReadGivesAtOnce) {
    const OwnPipe pipe;
    EXPECT_EQ(pipe.reader->Peek().count, 0);
    EXPECT_FALSE(pipe.reader->Peek().Failed());
    ASSERT_TRUE(WriteAll(*pipe.writer, "hello"));
    EXPECT_EQ(pipe.reader->Peek().count, 5);
    char buffer[3];
    EXPECT_EQ(pipe.reader->Read(buffer, sizeof buffer).count, 3);
    EXPECT_EQ(pipe.reader->Peek().count, 2);
}

TEST(Pipe, ABrokenPipeStillGivesWhatIsInIt) {
    const OwnPipe pipe;
    ASSERT_TRUE(WriteAll(*pipe.writer, "rest"));
    pipe.writer->Close();
    EXPECT_EQ(pipe.reader->Peek().count, 4);
    EXPECT_FALSE(pipe.reader->Peek().Failed());
    EXPECT_EQ(ReadAll(*pipe.reader), "rest");
    EXPECT_TRUE(pipe.reader->Peek().Failed());
    char byte = 0;
    const Transfer end = pipe.reader->Read(&byte, 1);
    EXPECT_TRUE(end.Failed());
    EXPECT_EQ(end.count, 0);
    EXPECT_EQ(end.code, pipe.reader->Peek().code);
}

TEST(Pipe, NothingWantedIsNothingDone) {
    const OwnPipe pipe;
    char byte = 0;
    EXPECT_FALSE(pipe.reader->Read(&byte, 0).Failed());
    EXPECT_FALSE(pipe.writer->Write(&byte, 0).Failed());
    EXPECT_EQ(pipe.reader->Peek().count, 0);
}

TEST(Pipe, WritingToNobodyIsACodeAndNoSignal) {
    const OwnPipe pipe;
    pipe.reader->Close();
    for (int round = 0; round < 3; ++round) {
        const Transfer written = pipe.writer->Write("x", 1);
        EXPECT_TRUE(written.Failed());
        EXPECT_EQ(written.count, 0);
    }
}

TEST(Pipe, AMebibyteGoesThroughWhole) {
    const PipedChild piped = StartRole("echo");
    ASSERT_NE(piped.child, nullptr);
    std::mt19937 random(5);
    std::string sent(1024 * 1024, '\0');
    for (char& byte : sent)
        byte = static_cast<char>(random());
    std::thread writing([&] {
        EXPECT_TRUE(WriteAll(*piped.input, sent));
        piped.input->Close();
    });
    const bool same = ReadAll(*piped.output) == sent;
    writing.join();
    EXPECT_TRUE(same);
}

/// A thread that makes one blocking call, and sleeps in it.
class Blocked {
public:
    explicit Blocked(std::function<Transfer()> call)
        : m_thread([this, call = std::move(call)] {
              m_id = platform_test::OwnThreadId();
              m_result = call();
          }) {
        while (m_id == 0)
            std::this_thread::yield();
        EXPECT_TRUE(platform_test::WaitUntilAsleep(m_id));
    }
    Transfer Result() {
        m_thread.join();
        return m_result;
    }

private:
    std::atomic<std::uint32_t> m_id = 0;
    Transfer m_result;
    std::thread m_thread;
};

TEST(Pipe, CloseWakesABlockedRead) {
    for (int round = 0; round < cnRounds; ++round) {
        const OwnPipe pipe;
        char byte = 0;
        Blocked reader([&] { return pipe.reader->Read(&byte, 1); });
        pipe.reader->Close();
        EXPECT_TRUE(reader.Result().Failed());
        EXPECT_TRUE(pipe.reader->Read(&byte, 1).Failed());
        EXPECT_TRUE(pipe.reader->Peek().Failed());
    }
}

TEST(Pipe, CloseWakesABlockedWrite) {
    for (int round = 0; round < cnRounds; ++round) {
        const OwnPipe pipe;
        Blocked writer([&] {
            // Small enough for any pipe: on Windows a write comes back once all of it fits.
            const std::string block(512, 'x');
            while (true) {
                const Transfer result = pipe.writer->Write(block.data(), block.size());
                if (result.Failed()) return result;
            }
        });
        pipe.writer->Close();
        EXPECT_TRUE(writer.Result().Failed());
        EXPECT_TRUE(pipe.writer->Write("x", 1).Failed());
    }
}

namespace {

void CloseBetweenReadsAndWrites() {
    for (int round = 0; round < 300; ++round) {
        const OwnPipe pipe;
        std::thread reader([&] {
            char buffer[64];
            while (!pipe.reader->Read(buffer, sizeof buffer).Failed()) {
            }
        });
        std::thread writer([&] {
            while (!pipe.writer->Write("some words", 10).Failed()) {
            }
        });
        if (round % 2 == 0) {
            pipe.reader->Close();
            pipe.writer->Close();
        } else {
            pipe.writer->Close();
            pipe.reader->Close();
        }
        reader.join();
        writer.join();
    }
}

}  // namespace

TEST(Pipe, ClosingBetweenReadsAndWritesNeverHangsNorLosesAHandle) {
    // On Windows a lock that threads of the process meet at for the first time keeps a handle, and no more
    // after that.
    CloseBetweenReadsAndWrites();
    const int before = platform_test::CountOpenHandles();
    CloseBetweenReadsAndWrites();
    EXPECT_EQ(platform_test::CountOpenHandles(), before);
}

TEST(Pipe, ASlowReaderGetsEveryByte) {
    const OwnPipe pipe;
    const std::string sent(300000, 'y');
    std::thread writing([&] {
        EXPECT_TRUE(WriteAll(*pipe.writer, sent));
        pipe.writer->Close();
    });
    std::size_t got = 0;
    char buffer[7];
    while (true) {
        const Transfer read = pipe.reader->Read(buffer, sizeof buffer);
        if (read.Failed()) break;
        got += static_cast<std::size_t>(read.count);
    }
    writing.join();
    EXPECT_EQ(got, sent.size());
}

TEST(Pipe, OneShotCallsReadAndWritePlainEnds) {
    OwnedHandle readEnd, writeEnd;
    ASSERT_EQ(CreatePipe(readEnd, writeEnd), 0);
    EXPECT_EQ(WriteOnce(writeEnd, "abcdef", 6).count, 6);
    char buffer[4];
    EXPECT_EQ(ReadOnce(readEnd, buffer, 4).count, 4);
    EXPECT_EQ(writeEnd.Close(), 0);
    EXPECT_EQ(ReadOnce(readEnd, buffer, 4).count, 2);
    EXPECT_TRUE(ReadOnce(readEnd, buffer, 4).Failed());
    OwnedHandle otherRead, otherWrite;
    ASSERT_EQ(CreatePipe(otherRead, otherWrite), 0);
    otherRead.Drop();
    EXPECT_TRUE(WriteOnce(otherWrite, "x", 1).Failed());
}

TEST(Pipe, FaultsComeWhereATestAsksForThem) {
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::CreatePipe ? 24 : 0; });
    OwnedHandle readEnd, writeEnd;
    EXPECT_EQ(CreatePipe(readEnd, writeEnd), 24);
    EXPECT_FALSE(readEnd.IsOpen());
    vapp_platform::SetFaultSource(
        [](SystemCall call) { return call == SystemCall::KeepFromChildren ? 6 : 0; });
    EXPECT_EQ(CreatePipe(readEnd, writeEnd), 0);
    EXPECT_EQ(KeepFromChildren(readEnd), 6);
    vapp_platform::SetFaultSource([](SystemCall call) { return call == SystemCall::CloseHandle ? 6 : 0; });
    EXPECT_EQ(readEnd.Close(), 6);
    vapp_platform::SetFaultSource(nullptr);
    EXPECT_EQ(readEnd.Close(), 0);
    EXPECT_EQ(readEnd.Close(), 0);
}

}  // namespace

/// @file
/// The instants lie between a worker's birth and some talk behind its handshake: the spread is measured
/// first.
#include <chrono>
#include <thread>

#include "tests/soak/Parts.h"

namespace soak_test {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::microseconds;

// Less than any pipe holds: where it stays, it must not block the host, who would wait for a dead worker
// then.
constexpr std::size_t cnTalk = 512;
// Between two looks for somebody to kill.
constexpr std::chrono::milliseconds cnPause{1};

void TalkUntilItEnds(TConnectionModule& connection) {
    const std::string text(cnTalk, 't');
    std::string buffer(cnTalk + 1, '\0');
    CStringU message;
    while (connection.Send(text.data(), text.size(), message)) {
        // All of it: what stays behind would fill the channel, and nobody is there to empty it.
        for (std::size_t left = cnTalk; left > 0;) {
            const int got = connection.Recv(buffer.data(), static_cast<int>(left), message);
            if (got <= 0) return;
            left -= static_cast<std::size_t>(got);
        }
    }
}

microseconds TimeOfStart(const std::string& transport, Tally& tally) {
    const auto connection = MakeConnection(transport, {"say:KEY", "echo"}, "KEY");
    std::vector<wchar_t> environment;
    CStringU message;
    const Clock::time_point begin = Clock::now();
    tally.Expect(connection->InitConnection(environment, message), transport + ": not connected");
    return std::chrono::duration_cast<microseconds>(Clock::now() - begin);
}

// True where the worker came to its handshake before it was killed, which is open.
bool RunKill(const std::string& transport, microseconds delay, Tally& tally) {
    const auto connection = MakeConnection(transport, {"say:KEY", "echo"}, "KEY");
    std::vector<wchar_t> environment;
    CStringU message;
    const Clock::time_point due = Clock::now() + delay;
    std::jthread killer([due](const std::stop_token& stop) {
        std::this_thread::sleep_until(due);
        while (KillChildren() == 0 && !stop.stop_requested())
            std::this_thread::sleep_for(cnPause);
    });
    const bool connected = connection->InitConnection(environment, message);
    std::jthread talker;
    if (connected) {
        talker = std::jthread([&] { TalkUntilItEnds(*connection); });
    } else {
        tally.Expect(!message.IsEmpty(), transport + ": failed without a word");
        killer.request_stop();
    }
    killer.join();
    // Into a talk that has ended or not. The server of Wine of this time holds the socket of a process that
    // is killed while it reads: there the talk ends by this alone.
    tally.Close(*connection, transport);
    tally.Expect(!connection->IsConnected(), transport + ": connected behind Close");
    return connected;
}

}  // namespace

void SoakKills(int rounds, std::mt19937& random, Tally& tally) {
    vapp_connection::SetLimits(PatientLimits());
    tally.Begin("kills");
    microseconds start = TimeOfStart("pipe", tally);
    start = std::max(start, TimeOfStart("tcp", tally));
    // A worker that is killed before it comes in is waited for; one that comes late is another way to fail.
    vapp_connection::Limits limits = PatientLimits();
    limits.socketWait = std::chrono::ceil<std::chrono::milliseconds>(start * 4);
    vapp_connection::SetLimits(limits);
    int connected = 0;
    for (int round = 0; round < rounds; ++round) {
        if (round == rounds / 50) tally.Settle();
        // Every third as soon as it can be found at all.
        const microseconds delay(
            random() % 3 == 0 ? 0 : random() % static_cast<std::uint32_t>(2 * start.count()));
        if (RunKill(TransportOf(round), delay, tally)) ++connected;
    }
    tally.End(rounds, ", " + std::to_string(connected) + " behind the handshake");
}

}  // namespace soak_test

/// @file
/// The life of a connection as it should be, many times over.
#include <algorithm>

#include "tests/connection/Worker.h"
#include "tests/soak/Parts.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"

namespace soak_test {

namespace {

constexpr std::size_t cnMostBytes = 20000;

std::string SomeText(std::mt19937& random) {
    std::string text(1 + random() % cnMostBytes, ' ');
    for (char& byte : text)
        byte = static_cast<char>(random());
    return text;
}

std::string ReceiveSoMuch(TConnectionModule& connection, std::size_t size) {
    std::string all;
    std::string buffer(cnMostBytes + 1, '\0');
    CStringU message;
    while (all.size() < size) {
        const int got = connection.Recv(buffer.data(), static_cast<int>(cnMostBytes), message);
        if (got <= 0) break;
        all.append(buffer, 0, static_cast<std::size_t>(got));
    }
    return all;
}

void RunCycle(int round, std::mt19937& random, Tally& tally) {
    const std::string transport = TransportOf(round);
    const auto connection = MakeConnection(transport, {"say:KEY", "echo"}, "KEY");
    std::vector<wchar_t> environment;
    CStringU message;
    const bool connected = connection->InitConnection(environment, message);
    tally.Expect(connected, transport + ": not connected: " + std::string(message.PayloadView()));
    if (connected) {
        const std::string text = SomeText(random);
        tally.Expect(connection->Send(text.data(), text.size(), message), transport + ": not sent");
        tally.Expect(ReceiveSoMuch(*connection, text.size()) == text, transport + ": another echo");
    }
    tally.Close(*connection, transport);
}

}  // namespace

const char* TransportOf(int round) {
    return round % 2 == 0 ? "pipe" : "tcp";
}

std::unique_ptr<TConnectionModule> MakeConnection(const std::string& transport,
                                                  const std::vector<std::string>& words,
                                                  const std::string& keyword) {
    const ConnectionInfo info = connection_test::LocalWorker(transport, words, keyword);
    if (transport == "pipe") return std::make_unique<TPipeModule>(info);
    return std::make_unique<TTCPModule>(info);
}

vapp_connection::Limits PatientLimits() {
    vapp_connection::Limits limits;
    limits.pipePause = std::chrono::milliseconds(1);
    limits.pipePolls = 60000;
    limits.socketWait = std::chrono::milliseconds(60000);
    return limits;
}

void SoakCycles(int rounds, std::mt19937& random, Tally& tally) {
    vapp_connection::SetLimits(PatientLimits());
    // The first of each kind fill the system's own caches; a share of all those of the allocator.
    const int warmUp = std::max(2, rounds / 50);
    tally.Begin("cycles");
    for (int round = 0; round < rounds; ++round) {
        if (round == warmUp) tally.Settle();
        RunCycle(round, random, tally);
    }
    tally.End(rounds);
}

}  // namespace soak_test

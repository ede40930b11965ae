/// @file
/// One worker a handshake. What the host is told must be one of its texts, and what came behind an accepted
/// keyword must still be there.
#include "tests/connection/Worker.h"
#include "tests/soak/BadHandshake.h"
#include "tests/soak/Parts.h"

namespace soak_test {

namespace {

using connection_test::Channel;
using std::chrono::milliseconds;

// "SEED/ROUND".
void SayBadHandshake(Channel& channel, const std::string& value) {
    const std::size_t slash = value.find('/');
    const BadHandshake handshake =
        MakeBadHandshake(static_cast<std::uint32_t>(std::stoul(value)), std::stoi(value.substr(slash + 1)));
    channel.Say(handshake.bytes);
    if (handshake.stays) static_cast<void>(channel.Get(1));
}

bool IsKnownFailure(std::string_view text) {
    return text.starts_with("Waiting keyword \"") || text.starts_with("Timed out waiting keyword \"") ||
           text == "Connection failed, no data received.\n";
}

// A pipe that has given too little is asked until the time is over; others are waited for as long as it
// takes.
vapp_connection::Limits LimitsOf(const BadHandshake& handshake) {
    vapp_connection::Limits limits = PatientLimits();
    const bool tooLittle = handshake.bytes.size() < handshake.keyword.size();
    if (tooLittle) limits.pipePolls = 15;
    if (tooLittle && handshake.stays) limits.socketWait = milliseconds(15);
    limits.childEnd = milliseconds(20);
    return limits;
}

std::string ReceivedToTheEnd(TConnectionModule& connection) {
    std::string all;
    char buffer[4097];
    CStringU message;
    for (int got = connection.Recv(buffer, 4096, message); got > 0;
         got = connection.Recv(buffer, 4096, message)) {
        all.append(buffer, static_cast<std::size_t>(got));
    }
    return all;
}

// True where it was accepted.
bool RunHandshake(const std::string& transport, std::uint32_t seed, int round, Tally& tally) {
    const BadHandshake handshake = MakeBadHandshake(seed, round);
    vapp_connection::SetLimits(LimitsOf(handshake));
    const std::string what = transport + " handshake of round " + std::to_string(round);
    const std::string word = "handshake:" + std::to_string(seed) + '/' + std::to_string(round);
    const auto connection = MakeConnection(transport, {word}, handshake.keyword);
    std::vector<wchar_t> environment;
    CStringU message;
    const bool connected = connection->InitConnection(environment, message);
    tally.Expect(connected == IsAccepted(handshake, transport),
                 what + (connected ? ": accepted" : ": not accepted"));
    tally.Expect(connected || IsKnownFailure(message.PayloadView()), what + ": an unknown text");
    if (connected && !handshake.stays) {
        const std::size_t behind = handshake.bytes.find(handshake.keyword) + handshake.keyword.size();
        tally.Expect(ReceivedToTheEnd(*connection) == handshake.bytes.substr(behind),
                     what + ": other bytes behind the keyword");
    }
    tally.Close(*connection, what);
    return connected;
}

}  // namespace

void AddHandshakeWord() {
    connection_test::AddWorkerWord("handshake", SayBadHandshake);
}

void SoakHandshakes(int rounds, std::uint32_t seed, Tally& tally) {
    tally.Begin("handshakes");
    int accepted = 0;
    for (int round = 0; round < rounds; ++round) {
        if (round == rounds / 50) tally.Settle();
        if (RunHandshake(TransportOf(round), seed, round, tally)) ++accepted;
    }
    tally.End(rounds, ", " + std::to_string(accepted) + " accepted");
}

}  // namespace soak_test

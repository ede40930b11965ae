/// @file
/// Connections beside bare sockets and pipes between the same two processes: the time of a round trip, the
/// throughput of blocks, and the time of a start beside posix_spawn, from a small parent and from one of 2
/// GB.
///
/// Time on the clock, as all of it is waiting for another process. Ours and the bare way take short turns,
/// and a ratio is the median of the turns' own, so that a slow spell of the machine meets both. Run it on an
/// idle machine.
///
///     bench_connection [--turns=31] [--gigabytes=2]
#include <fcntl.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/BareWire.h"
#include "connection/Limits.h"
#include "vapp/connection/TPipeModule.h"
#include "vapp/connection/TTCPModule.h"

namespace {

using Clock = std::chrono::steady_clock;
using connection_bench::BareListener;
using connection_bench::BareWire;
using connection_bench::NamedPipes;
using connection_bench::Require;

constexpr std::size_t cnMegabyte = 1U << 20U;

struct TOrder {
    std::uint64_t what;
    std::uint64_t size;
    std::uint64_t count;
};

/// Either way to the worker.
struct TWay {
    std::function<void(const char*, std::size_t)> send;
    std::function<std::size_t(char*, std::size_t)> receive;
};

double Seconds(const std::function<void()>& function) {
    const Clock::time_point begin = Clock::now();
    function();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

TWay OverBare(const BareWire& wire) {
    return {[&wire](const char* data, std::size_t size) { wire.Send(data, size); },
            [&wire](char* buffer, std::size_t capacity) { return wire.Receive(buffer, capacity); }};
}

TWay OverConnection(TConnectionModule& connection) {
    return {[&connection](const char* data, std::size_t size) {
                CStringU message;
                Require(connection.Send(data, size, message), "Send");
            },
            [&connection](char* buffer, std::size_t capacity) {
                CStringU message;
                const int got = connection.Recv(buffer, static_cast<int>(capacity), message);
                Require(got > 0, "Recv");
                return static_cast<std::size_t>(got);
            }};
}

void Give(const TWay& way, const TOrder& order) {
    way.send(reinterpret_cast<const char*>(&order), sizeof order);
}

void Take(const TWay& way, std::vector<char>& buffer, std::size_t size) {
    // One place behind what is wanted is for a connection's NUL.
    while (size > 0)
        size -= way.receive(buffer.data(), std::min(size, buffer.size() - 1));
}

double RoundTrips(const TWay& way, std::size_t size, std::size_t count) {
    std::vector<char> buffer(size + 1);
    Give(way, {'e', size, count});
    return Seconds([&] {
        for (std::size_t turn = 0; turn < count; ++turn) {
            way.send(buffer.data(), size);
            Take(way, buffer, size);
        }
    });
}

double SendBlocks(const TWay& way, const std::vector<char>& block, std::size_t count) {
    std::vector<char> answer(2);
    Give(way, {'s', block.size(), count});
    return Seconds([&] {
        for (std::size_t turn = 0; turn < count; ++turn)
            way.send(block.data(), block.size());
        Take(way, answer, 1);
    });
}

double ReceiveBlocks(const TWay& way, std::size_t size, std::size_t count) {
    std::vector<char> buffer(cnMegabyte + 1);
    return Seconds([&] {
        Give(way, {'f', size, count});
        Take(way, buffer, size * count);
    });
}

/// Medians of both, and of the quotients of each turn.
struct TPair {
    double ours;
    double bare;
    double ratio;
};

TPair Compare(int turns, const std::function<double()>& ours, const std::function<double()>& bare) {
    std::vector<double> ourTimes, bareTimes, ratios;
    // The first warms up.
    for (int turn = 0; turn <= turns; ++turn) {
        const double bareTime = bare();
        const double ourTime = ours();
        if (turn == 0) continue;
        bareTimes.push_back(bareTime);
        ourTimes.push_back(ourTime);
        ratios.push_back(ourTime / bareTime);
    }
    return {Median(ourTimes), Median(bareTimes), Median(ratios)};
}

void TellTime(const char* name, const TPair& pair, double count, const char* target) {
    std::printf("  %-36s %9.1f us  bare %9.1f us  ratio %.2f%s\n", name, pair.ours / count * 1e6,
                pair.bare / count * 1e6, pair.ratio, target);
}

void TellThroughput(const char* name, const TPair& pair, double megabytes) {
    std::printf("  %-36s %9.0f MB/s bare %9.0f MB/s ratio %.2f  (at least 0.9)\n", name,
                megabytes / pair.ours, megabytes / pair.bare, 1 / pair.ratio);
}

void CompareWays(const char* transport, const TWay& ours, const TWay& bare, int turns) {
    constexpr std::size_t cnTrips = 500;
    std::printf("%s\n", transport);
    TellTime("round trip of 100 bytes",
             Compare(
                 turns, [&] { return RoundTrips(ours, 100, cnTrips); },
                 [&] { return RoundTrips(bare, 100, cnTrips); }),
             cnTrips, "  (at most 1.2)");
    for (const std::size_t size : {cnMegabyte, 64 * cnMegabyte}) {
        const std::size_t megabytes = std::max<std::size_t>(size / cnMegabyte, 16);
        const std::size_t count = megabytes * cnMegabyte / size;
        const std::string name = std::to_string(size / cnMegabyte) + " MB blocks ";
        const std::vector<char> block(size, 'b');
        TellThroughput((name + "sent").c_str(),
                       Compare(
                           turns, [&] { return SendBlocks(ours, block, count); },
                           [&] { return SendBlocks(bare, block, count); }),
                       static_cast<double>(megabytes));
        TellThroughput((name + "received").c_str(),
                       Compare(
                           turns, [&] { return ReceiveBlocks(ours, size, count); },
                           [&] { return ReceiveBlocks(bare, size, count); }),
                       static_cast<double>(megabytes));
    }
}

ConnectionInfo Worker(const std::string& commandLine) {
    ConnectionInfo info;
    info.runLocally = true;
    info.keyword = "KEY";
    info.command = commandLine.c_str();
    return info;
}

void Connect(TConnectionModule& connection) {
    std::vector<wchar_t> environment;
    CStringU message;
    Require(connection.InitConnection(environment, message), "InitConnection");
}

void CompareSockets(const std::string& program, int turns) {
    const BareListener listener;
    TTCPModule connection(Worker(program + ' ' + std::to_string(listener.Port())));
    Connect(connection);
    const int bare = listener.Accept();
    const BareWire wire(bare, bare);
    CompareWays("TTCPModule, beside a bare socket", OverConnection(connection), OverBare(wire), turns);
}

void ComparePipes(const std::string& program, int turns) {
    const NamedPipes names;
    TPipeModule connection(Worker(program + ' ' + names.ToWorker() + ' ' + names.FromWorker()));
    Connect(connection);
    const int out = open(names.ToWorker().c_str(), O_WRONLY | O_CLOEXEC);
    const int in = open(names.FromWorker().c_str(), O_RDONLY | O_CLOEXEC);
    const BareWire wire(in, out);
    CompareWays("TPipeModule, beside bare pipes", OverConnection(connection), OverBare(wire), turns);
}

template <typename Module>
double SecondsOfStart(const std::string& program) {
    Module connection(Worker(program));
    return Seconds([&] { Connect(connection); });
}

void CompareStarts(const char* parent, const std::string& program, int turns) {
    std::printf("from InitConnection to connected, %s\n", parent);
    TellTime("TTCPModule",
             Compare(
                 turns, [&] { return SecondsOfStart<TTCPModule>(program); },
                 [&] { return connection_bench::SecondsOfBareStart(program, true); }),
             1, "  (at most 1.3)");
    vapp_connection::Limits limits;
    limits.pipePause = std::chrono::milliseconds(0);
    limits.pipePolls = 1 << 30;
    vapp_connection::SetLimits(limits);
    // Spins beside its worker, as a host never does: what a start costs without the interval, at most.
    TellTime("TPipeModule, polling without a pause",
             Compare(
                 turns, [&] { return SecondsOfStart<TPipeModule>(program); },
                 [&] { return connection_bench::SecondsOfBareStart(program, false); }),
             1, "");
    vapp_connection::SetLimits({});
    TellTime("TPipeModule, as it polls for hosts",
             Compare(
                 3, [&] { return SecondsOfStart<TPipeModule>(program); },
                 [&] { return connection_bench::SecondsOfBareStart(program, false); }),
             1, "  (its interval)");
}

int NumberOf(int argc, char** argv, const std::string& front, int number) {
    for (int at = 1; at < argc; ++at) {
        if (std::string(argv[at]).starts_with(front)) number = std::atoi(argv[at] + front.size());
    }
    return number;
}

}  // namespace

int main(int argc, char** argv) {
    const int turns = std::max(1, NumberOf(argc, argv, "--turns=", 31));
    const int gigabytes = NumberOf(argc, argv, "--gigabytes=", 2);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const std::string program =
        (std::filesystem::canonical("/proc/self/exe").parent_path() / "connection_worker").string();
    CompareSockets(program, turns);
    ComparePipes(program, turns);
    CompareStarts("small parent", program, turns * 4);
    const std::vector<char> memory(static_cast<std::size_t>(gigabytes) << 30U, 'm');
    CompareStarts((std::to_string(gigabytes) + " GB parent").c_str(), program, turns * 4);
    return memory.empty() ? 1 : 0;
}

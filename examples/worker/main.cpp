/// @file
/// worker: a small worker for both transports, to start one's own from.
///
/// What makes a program a worker stands in FindChannel and in the first Send of main: it takes the address
/// from the environment if there is one, its standard streams otherwise, and says the keyword before anything
/// else. All behind that is between it and its host; here the host sends lines and gets each one answered.
///
/// The surprise: not a word may go to standard output or errors by the way. They are the channel, or nobody
/// reads them.
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "examples/worker/Channel.h"

namespace {

struct TOptions {
    std::string m_keyword = "WORKER_READY";
    /// Said in front of the keyword, as a chatty login would.
    std::string m_noise;
};

// Nothing where an argument means nothing.
std::optional<TOptions> ReadOptions(int count, char** arguments) {
    TOptions options;
    for (int at = 1; at < count; at += 2) {
        const std::string_view name = arguments[at];
        if (at + 1 == count) return {};
        if (name == "--keyword") {
            options.m_keyword = arguments[at + 1];
        } else if (name == "--noise") {
            options.m_noise = arguments[at + 1];
        } else {
            return {};
        }
    }
    return options;
}

std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::unique_ptr<TChannel> FindChannel() {
    // Only both together are a call to connect: the first, which is empty, a host leaves to all its later
    // children.
    const std::string address = Variable("TCONNECT_ADDRESS");
    const std::size_t colon = address.rfind(':');
    if (std::getenv("CONNECTION_TYPE_TCP") == nullptr || colon == std::string::npos)
        return OpenStandardStreams();
    return ConnectTo(address.substr(0, colon), address.substr(colon + 1));
}

std::string Answer(const std::string& line) {
    if (line == "host") return Variable("VORNEX_HOST_NAME");
    if (line == "transport") return Variable("TCONNECT_ADDRESS").empty() ? "pipe" : "tcp";
    return "heard " + line;
}

// Lines come in any pieces.
void Serve(TChannel& channel) {
    std::string pending;
    for (std::string piece = channel.Receive(); !piece.empty(); piece = channel.Receive()) {
        pending += piece;
        std::size_t end = 0;
        while ((end = pending.find('\n')) != std::string::npos) {
            std::string line = pending.substr(0, end);
            pending.erase(0, end + 1);
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (line == "quit") return;
            if (!channel.Send(Answer(line) + "\n")) return;
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    const std::optional<TOptions> options = ReadOptions(count, arguments);
    if (!options) return 2;
    const std::unique_ptr<TChannel> channel = FindChannel();
    if (channel == nullptr) return 1;
    if (!channel->Send(options->m_noise + options->m_keyword)) return 1;
    Serve(*channel);
    return 0;
}

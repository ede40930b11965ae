/// @file
/// Connections under faults, counted: many lives of many workers, most of them bad, and nothing may be lost
/// or wait too long. The program is also the worker.
///
///     soak [--short] [--cycles N] [--kills N] [--ends N] [--handshakes N] [--seed N]
///
/// Each option is a number of rounds; `ends` counts rounds of every kind of end. --short is what a normal run
/// of the tests has time for. The seed is printed; with it the same bytes and delays come again.
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <string>

#include "platform/World.h"
#include "tests/connection/Worker.h"
#include "tests/platform/ChildRoles.h"
#include "tests/soak/Parts.h"
#include "vapp/platform/MessageBox.h"

namespace {

using Options = std::map<std::string, unsigned long>;

const Options& LongForm() {
    static const Options options = {{"cycles", 10000}, {"kills", 2000}, {"ends", 20}, {"handshakes", 20000}};
    return options;
}

const Options& ShortForm() {
    static const Options options = {{"cycles", 12}, {"kills", 12}, {"ends", 1}, {"handshakes", 36}};
    return options;
}

int TellUsage() {
    std::cerr << "usage: soak [--short] [--cycles N] [--kills N] [--ends N] [--handshakes N] [--seed N]\n";
    return 2;
}

bool ReadOptions(int count, char** arguments, Options& options) {
    options.emplace("seed", std::random_device()());
    for (int at = 1; at < count; ++at) {
        const std::string word = arguments[at];
        if (word == "--short") {
            for (const auto& [name, rounds] : ShortForm())
                options[name] = rounds;
            continue;
        }
        if (!word.starts_with("--") || options.count(word.substr(2)) == 0 || at + 1 == count) return false;
        char* end = nullptr;
        options[word.substr(2)] = std::strtoul(arguments[++at], &end, 10);
        if (*arguments[at] == '\0' || *end != '\0') return false;
    }
    return true;
}

soak_test::Tally& TheTally() {
    static soak_test::Tally tally;
    return tally;
}

int Soak(const Options& options) {
    const auto seed = static_cast<std::uint32_t>(options.at("seed"));
    const auto rounds = [&options](const char* name) { return static_cast<int>(options.at(name)); };
    std::cout << "seed " << seed << std::endl;
    std::mt19937 random(seed);
    soak_test::Tally& tally = TheTally();
    if (rounds("cycles") > 0) soak_test::SoakCycles(rounds("cycles"), random, tally);
    if (rounds("kills") > 0) soak_test::SoakKills(rounds("kills"), random, tally);
    if (rounds("ends") > 0) soak_test::SoakEnds(rounds("ends"), random, tally);
    if (rounds("handshakes") > 0) soak_test::SoakHandshakes(rounds("handshakes"), seed, tally);
    return tally.IsClean() ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
    soak_test::SayIAmBorn();
    connection_test::AddWorkerRoles();
    soak_test::AddEndWords();
    soak_test::AddHandshakeWord();
    platform_test::PlayChildRole(count, arguments);

    Options options = LongForm();
    if (!ReadOptions(count, arguments, options)) return TellUsage();
    // Where Windows is the system a pipe asks for the agent of the login program, which local workers need
    // not.
    vapp_platform::SetWineAnswer(true);
    gSetMessageBox([](const char* /*text*/, const char* /*caption*/) { TheTally().NoteFailedStart(); });
    return Soak(options);
}

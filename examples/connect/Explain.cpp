/// @file
/// Two tables of texts and what they mean; the first row that is found in a text explains it. The complaints
/// of a login come first: a message of the library that quotes one says less.
#include "examples/connect/Explain.h"

#include <cstdio>
#include <iterator>

namespace {

struct TRow {
    std::string_view m_pattern;
    TExplanation m_explanation;
};

constexpr TExplanation cnHostKeyChanged = {
    "The server's host key is another one than expected.",
    "compare it with what `ssh-keygen -lf` says on the server, then name the right one by -hostkey"};
constexpr TExplanation cnLoginRefused = {
    "The server refused the login.",
    "put the public key into .ssh/authorized_keys there, and give the private one by -i or to Pageant"};
constexpr TExplanation cnNoKeyFile = {"The file of the private key could not be used.",
                                      "give a file that puttygen wrote (.ppk) by -i"};
constexpr TExplanation cnNoHost = {"The name of the server is not known.",
                                   "look for a slip in TARGET, or give the address as a number"};
constexpr TExplanation cnNotReached = {"The server was not reached.",
                                       "look whether it runs, and whether port and firewall let you through"};
constexpr TExplanation cnNoCommand = {"The command is not there on the other side.",
                                      "put the worker there by --deploy, and look at its path by --check"};

constexpr TRow cnLogin[] = {
    {"not in manually configured list", cnHostKeyChanged},
    {"does not match the one PuTTY has cached", cnHostKeyChanged},
    {"host key is not cached",
     {"The server's host key is not known here yet.",
      "log in once by hand with plink and accept it, or name it by -hostkey"}},
    {"Unable to use key file", cnNoKeyFile},
    {"Unable to load", cnNoKeyFile},
    {"refused our key", cnLoginRefused},
    {"No supported authentication methods", cnLoginRefused},
    {"Access denied", cnLoginRefused},
    {"Host does not exist", cnNoHost},
    {"Name or service not known", cnNoHost},
    {"name resolution", cnNoHost},
    {"Connection refused", cnNotReached},
    {"Connection timed out", cnNotReached},
    {"No route to host", cnNotReached},
    {"Network is unreachable", cnNotReached},
    {"unexpectedly closed network connection",
     {"The server ended the login by itself.", "ask its log why; a session may be limited there"}},
    {"not found", cnNoCommand},
    {"No such file", cnNoCommand},
    {"Permission denied",
     {"The command may not be run on the other side.", "give it `chmod 700` there, or put it there anew"}},
};

constexpr TRow cnLibrary[] = {
    {"Pageant is not running",
     {"The agent that keeps your keys is not running.", "start Pageant and load your private key into it"}},
    {"Timed out waiting keyword",
     {"The worker did not say its keyword in time.",
      "run the command by hand and see whether it starts, and what it says first"}},
    {"Connection failed, no data received",
     {"The worker ended without a word.", "run the command by hand and look at its exit status"}},
    {"mismatched",
     {"Something else came where the worker's keyword was expected.",
      "give the right one by --keyword, and let the start files of the shell there print nothing"}},
    {"CreateProcess failed",
     {"PuTTY's psftp could not be started.",
      "put it at putty/bin/psftp.exe below the library's folder, with LinuxUtils beside putty"}},
    {"failed with error", {"The system refused a step of the connection.", "look up the error's number"}},
};

template <std::size_t Count>
TExplanation Find(const TRow (&rows)[Count], std::string_view text) {
    for (const TRow& row : rows) {
        if (text.find(row.m_pattern) != std::string_view::npos) return row.m_explanation;
    }
    return {};
}

}  // namespace

TExplanation ExplainLogin(std::string_view text) {
    return Find(cnLogin, text);
}

TExplanation Explain(std::string_view text) {
    const TExplanation login = ExplainLogin(text);
    if (!login.m_reason.empty()) return login;
    const TExplanation library = Find(cnLibrary, text);
    if (!library.m_reason.empty()) return library;
    return {"The connection could not be made.", "go through its steps by --check"};
}

std::string_view FindQuotedLogin(std::string_view message) {
    constexpr std::string_view csBefore = "Received message \"";
    const std::size_t before = message.find(csBefore);
    const std::size_t end = message.rfind('"');
    if (before == std::string_view::npos || end < before + csBefore.size()) return {};
    return message.substr(before + csBefore.size(), end - before - csBefore.size());
}

void TellFailure(const TExplanation& explanation) {
    std::fprintf(stderr, "connect: %.*s\n", static_cast<int>(explanation.m_reason.size()),
                 explanation.m_reason.data());
    std::fprintf(stderr, "connect: try this: %.*s.\n", static_cast<int>(explanation.m_advice.size()),
                 explanation.m_advice.data());
}

void TellLogin(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r')) line.remove_suffix(1);
        std::fprintf(stderr, "  | %.*s\n", static_cast<int>(line.size()), line.data());
    }
}

/// @file
/// A local command is written as Windows programs quote it, on both systems: so the library splits it. A
/// remote one is joined by blanks, for a shell splits it there.
#include "examples/connect/Options.h"

#include <string_view>
#include <vector>

const char csHelp[] =
    "Usage: connect --tcp|--pipe [--remote TARGET] [--keyword K] [--deploy] -- COMMAND...\n"
    "       connect --check TARGET [--keyword K] [-- COMMAND...]\n"
    "Starts a worker, waits for its keyword, then passes standard input to it and its words to standard\n"
    "output, until the worker ends. When the input ends, it waits until the worker has been silent for two\n"
    "seconds. All else that it has to say goes to standard error.\n"
    "\n"
    "  --tcp             the worker connects back by TCP\n"
    "  --pipe            the worker talks over its standard streams\n"
    "  --remote TARGET   start it there, by plink: [USER@]HOST or a saved session, in quotes with switches "
    "of\n"
    "                    plink in front where they are needed\n"
    "  --keyword K       what the worker says first (WORKER_READY if not given)\n"
    "  --deploy          put the files of LinuxUtils on the remote side first, by psftp\n"
    "  --check TARGET    go through the steps of a remote connection one by one and say which one fails\n"
    "  --help            show this help\n"
    "\n"
    "Ends with 0, with 1 if there was no connection, with 2 if an argument was not understood.\n";

namespace {

// Backslashes count only in front of a quote.
std::string Quoted(std::string_view word) {
    if (!word.empty() && word.find_first_of(" \t\"") == std::string_view::npos) return std::string(word);
    std::string quoted = "\"";
    std::size_t backslashes = 0;
    for (const char sign : word) {
        if (sign == '"') quoted.append(backslashes + 1, '\\');
        backslashes = sign == '\\' ? backslashes + 1 : 0;
        quoted += sign;
    }
    return quoted.append(backslashes, '\\') + '"';
}

std::string Join(const std::vector<std::string_view>& words, bool quote) {
    std::string line;
    for (const std::string_view word : words) {
        if (!line.empty()) line += ' ';
        line += quote ? Quoted(word) : std::string(word);
    }
    return line;
}

std::string FindContradiction(const TOptions& options, bool pipe) {
    if (options.m_check) {
        if (options.m_tcp || pipe || options.m_deploy) return "--check goes with --keyword and COMMAND only";
        return {};
    }
    if (options.m_tcp == pipe) return "say one of --tcp and --pipe";
    if (options.m_command.empty()) return "no COMMAND behind --";
    if (options.m_deploy && options.m_target.empty()) return "--deploy needs --remote";
    return {};
}

}  // namespace

TOptions ReadOptions(int count, const char* const* arguments) {
    TOptions options;
    bool pipe = false;
    bool remote = false;
    std::vector<std::string_view> command;
    for (int at = 0; at < count; ++at) {
        const std::string_view name = arguments[at];
        const bool hasValue = at + 1 < count;
        if (name == "--help") {
            options.m_help = true;
        } else if (name == "--tcp") {
            options.m_tcp = true;
        } else if (name == "--pipe") {
            pipe = true;
        } else if (name == "--deploy") {
            options.m_deploy = true;
        } else if (name == "--keyword" && hasValue) {
            options.m_keyword = arguments[++at];
        } else if ((name == "--remote" || name == "--check") && hasValue) {
            options.m_check = options.m_check || name == "--check";
            remote = true;
            options.m_target = arguments[++at];
        } else if (name == "--") {
            command.assign(arguments + at + 1, arguments + count);
            break;
        } else {
            options.m_complaint = "\"" + std::string(name) + "\" is no option, or has no value";
            return options;
        }
    }
    options.m_command = Join(command, !remote);
    if (remote && options.m_target.empty()) {
        options.m_complaint = "an empty TARGET";
    } else if (!options.m_help) {
        options.m_complaint = FindContradiction(options, pipe);
    }
    return options;
}

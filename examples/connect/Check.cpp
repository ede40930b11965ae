/// @file
/// One talkative login by psftp tells of the first steps, a second asks for the file, a third runs the
/// worker.
#include "examples/connect/Check.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "examples/connect/Deploy.h"
#include "examples/connect/Explain.h"
#include "examples/connect/Progress.h"
#include "vapp/connection/RemoteDeployment.h"
#include "vapp/connection/TPipeModule.h"

namespace {

struct TResult {
    bool m_good = false;
    /// What was found, or why not.
    std::string m_finding;
    std::string_view m_advice;
    /// What the login printed.
    std::string m_login;
};

TResult Good(std::string finding) {
    return {true, std::move(finding), {}, {}};
}

TResult Bad(const TExplanation& explanation, std::string login = {}) {
    return {false, std::string(explanation.m_reason), explanation.m_advice, std::move(login)};
}

bool Tell(const char* step, const TResult& result) {
    std::printf("%-7s %s: %s\n", result.m_good ? "ok" : "FAILED", step, result.m_finding.c_str());
    std::fflush(stdout);
    if (result.m_good) return true;
    TellLogin(result.m_login);
    std::printf("        try this: %s.\n", std::string(result.m_advice).c_str());
    return false;
}

// The library writes `\` on either system.
bool IsThere(std::string path) {
    if (std::filesystem::exists(path)) return true;
    std::replace(path.begin(), path.end(), '\\', '/');
    return std::filesystem::exists(path);
}

// From the command line that names psftp first, in quotes.
TResult CheckPrograms(const std::string& commandLine) {
    const std::size_t end = commandLine.find('"', 1);
    const std::string psftp = commandLine.substr(1, end - 1);
    const std::string folder = psftp.substr(0, psftp.rfind('\\') + 1);
    for (const std::string& program : {folder + "plink.exe", psftp}) {
        if (!IsThere(program)) {
            return Bad({"\"" + program + "\" is missing.",
                        "put PuTTY's program there; on Linux a link to the system's own will do"});
        }
    }
    return Good(folder + "plink.exe, psftp.exe");
}

struct TLogin {
    TResult m_programs;
    std::string m_said;
    bool m_started = false;
};

TLogin LogIn(const std::string& target) {
    TLogin login;
    bool first = true;
    const auto listen = [&](const CStringU& piece) {
        if (first) {
            login.m_programs = CheckPrograms(AsBytes(piece));
        } else {
            login.m_said += AsBytes(piece);
        }
        first = false;
    };
    const TProgress progress;
    try {
        login.m_started =
            runFtp(AsText(target), AsText("ls " + std::string(csRemoteFolder) + "\n"), listen, true);
    } catch (const std::runtime_error& failure) {
        if (login.m_programs.m_good) login.m_programs = Bad(Explain(failure.what()));
    }
    return login;
}

bool Has(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

// A login that gets past this step tells of its own complaints in the next one.
TResult CheckHostKey(const std::string& said) {
    const std::size_t at = said.find("SHA256:");
    const TExplanation complaint = ExplainLogin(said);
    const bool doubted = Has(said, "not in manually configured list") ||
                         Has(said, "host key is not cached") || Has(said, "does not match the one");
    if (doubted || at == std::string::npos) return Bad(doubted ? complaint : Explain(said), said);
    return Good(said.substr(at, said.find_first_of("\r\n", at) - at));
}

TResult CheckLogin(const std::string& said) {
    if (Has(said, "Remote working directory is ")) return Good("let in");
    if (Has(said, "Access granted")) {
        return Bad({"The server let you in, but it gave no SFTP.", "switch on its sftp subsystem"}, said);
    }
    return Bad(Explain(said), said);
}

TResult CheckFolder(const std::string& said) {
    // psftp announces the listing before it finds no folder to list.
    if (Has(said, "Listing directory ") && !Has(said, "Unable to open ")) return Good(csRemoteFolder);
    return Bad({std::string(csRemoteFolder) + " is not there.", "put the worker's files there by --deploy"});
}

TResult CheckFile(const std::string& target) {
    try {
        if (gRemoteFileExists(AsText(target), csRemoteWorker)) return Good(csRemoteWorker);
    } catch (const std::runtime_error& failure) {
        return Bad(Explain(failure.what()));
    }
    return Bad({std::string(csRemoteWorker) + " is not there.", "put the worker's files there by --deploy"});
}

TResult CheckWorker(const TOptions& options) {
    ConnectionInfo info;
    info.sshTarget = AsText(options.m_target);
    info.command = options.m_command.empty() ? csRemoteWorker : AsText(options.m_command);
    info.runLocally = false;
    info.keyword = AsText(options.m_keyword);
    TPipeModule module(info);
    std::vector<wchar_t> environment;
    CStringU message;
    const TProgress progress;
    if (module.InitConnection(environment, message)) return Good("it has said " + options.m_keyword);
    return Bad(Explain(message.PayloadView()), std::string(FindQuotedLogin(message.PayloadView())));
}

}  // namespace

bool CheckSteps(const TOptions& options) {
    const TLogin login = LogIn(options.m_target);
    return Tell("client program found", login.m_programs) && Tell("host key", CheckHostKey(login.m_said)) &&
           Tell("login", CheckLogin(login.m_said)) && Tell("remote directory", CheckFolder(login.m_said)) &&
           Tell("file there", CheckFile(options.m_target)) && Tell("worker answers", CheckWorker(options));
}

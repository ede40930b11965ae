/// @file
/// One child, two pipes, a script. The child's exit status is nobody's business, so nobody waits for it.
///
/// Not for long scripts: the whole script is written before the first word of the client is read.
#include "vapp/connection/RemoteDeployment.h"

#include <array>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "connection/PuttyProgram.h"
#include "platform/ChildProcess.h"
#include "platform/KnownFolders.h"
#include "platform/Paths.h"
#include "platform/Pipe.h"

using vapp_platform::ChildProcess;
using vapp_platform::OwnedHandle;
using vapp_platform::Transfer;

namespace {

// The remote folder of this build: fixed together with the worker's files, not computed.
constexpr const char* csBuildTag = "v2019_2_0_b13862";

// A reader sees the client's progress as it comes.
constexpr std::size_t cnChunk = 8;

void Require(bool done, const char* step) {
    if (!done) throw std::runtime_error(step);
}

struct FtpPipes {
    OwnedHandle outputRead;
    OwnedHandle outputWrite;
    OwnedHandle inputRead;
    OwnedHandle inputWrite;
};

FtpPipes MakePipes() {
    FtpPipes pipes;
    Require(CreatePipe(pipes.outputRead, pipes.outputWrite) == 0, "StdOutRd CreatePipe");
    Require(KeepFromChildren(pipes.outputRead) == 0, "StdOutRd SetHandleInformation");
    Require(CreatePipe(pipes.inputRead, pipes.inputWrite) == 0, "StdInRd CreatePipe");
    Require(KeepFromChildren(pipes.inputWrite) == 0, "StdInRd SetHandleInformation");
    return pipes;
}

std::unique_ptr<ChildProcess> StartClient(const CStringU& commandLine, FtpPipes& pipes) {
    vapp_platform::ChildStart start;
    start.commandLine = commandLine;
    start.workingFolder = gGetModuleFolder() + "\\LinuxUtils";
    start.input = pipes.inputRead.Get();
    start.output = pipes.outputWrite.Get();
    start.error = pipes.outputWrite.Get();
    std::unique_ptr<ChildProcess> child = ChildProcess::Start(start).child;
    Require(child != nullptr, "CreateProcess failed");
    // The client's own ends: only without them do both sides see the other's end. Unlike a worker's, both go
    // on every system.
    Require(pipes.outputWrite.Close() == 0, "StdOutWr CloseHandle");
    Require(pipes.inputRead.Close() == 0, "StdInRd CloseHandle");
    return child;
}

void PassOn(const OwnedHandle& outputRead, const std::function<void(const CStringU&)>& output) {
    std::array<char, cnChunk + 1> chunk{};
    while (true) {
        const Transfer got = ReadOnce(outputRead, chunk.data(), cnChunk);
        if (got.Failed() || got.count == 0) return;
        chunk[static_cast<std::size_t>(got.count)] = '\0';
        output(CStringU(chunk.data()));
    }
}

// The line ends that clients write: with a carriage return on Windows, a bare line feed on Linux.
bool HasListed(std::string_view listing, std::string_view name) {
    const std::string entry = " " + std::string(name);
    return listing.find(entry + '\r') != std::string_view::npos ||
           listing.find(entry + '\n') != std::string_view::npos;
}

}  // namespace

// By value in the interface, which is a fixed one.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool runFtp(const CStringU& target, const CStringU& script, std::function<void(const CStringU&)> output,
            bool verbose) {
    FtpPipes pipes = MakePipes();
    const CStringU commandLine =
        vapp_connection::QuotedPuttyProgram("psftp.exe") + (verbose ? " -batch -v " : " -batch ") + target;
    if (output) output(commandLine + "\n");

    const std::unique_ptr<ChildProcess> child = StartClient(commandLine, pipes);
    const std::string_view bytes = script.PayloadView();
    Require(!WriteOnce(pipes.inputWrite, bytes.data(), bytes.size()).Failed(), "WriteFile failed");
    // The end of the commands.
    pipes.inputWrite.Drop();
    PassOn(pipes.outputRead, output);
    return true;
}

bool uploadWorkerScripts(const CStringU& target, std::function<void(const CStringU&)> output, bool verbose) {
    const CStringU tag = csBuildTag;
    const CStringU script = CStringU("mkdir .vornex\ncd .vornex\nmkdir ") + tag + "\ncd " + tag +
                            "\nput evi_worker\nchmod 700 evi_worker\nput connection.py\nput trion_worker\n"
                            "chmod 700 trion_worker\nput argparse.py\nput esi_worker.py\n"
                            "chmod 700 esi_worker.py\ndir\nexit\n";
    return runFtp(target, script, std::move(output), verbose);
}

bool gRemoteFileExists(const CStringU& target, const CStringU& remotePath) {
    CStringU text;
    std::size_t echo = 0;
    const auto collect = [&](const CStringU& piece) {
        text += piece;
        // The command line comes first. It ends in a blank, the target and a line feed, as an entry does.
        if (echo == 0) echo = piece.PayloadView().size();
    };
    runFtp(target, CStringU("ls ") + gGetDirectory(remotePath) + "\n", collect, false);
    return HasListed(text.PayloadView().substr(echo), gGetFileName(remotePath).PayloadView());
}

/// @file
/// An upload doesn't know whether it worked, so the worker is asked for afterwards.
#include "examples/connect/Deploy.h"

#include <cstdio>
#include <stdexcept>

#include "examples/connect/Explain.h"
#include "examples/connect/Options.h"
#include "vapp/connection/RemoteDeployment.h"

bool Deploy(const std::string& target) {
    std::string heard;
    // Pieces split lines: what is shown as it comes is shown as it is.
    const auto show = [&heard](const CStringU& piece) {
        heard += AsBytes(piece);
        std::fputs(piece.Payload(), stderr);
    };
    std::fprintf(stderr, "connect: putting the worker's files into %s\n", csRemoteFolder);
    try {
        uploadWorkerScripts(AsText(target), show, false);
        if (gRemoteFileExists(AsText(target), csRemoteWorker)) return true;
    } catch (const std::runtime_error& failure) {
        TellFailure(Explain(failure.what()));
        return false;
    }
    // A file that is missing here is no missing command there.
    constexpr std::string_view csMissingHere = "local: unable to open";
    if (heard.find(csMissingHere) != std::string::npos) {
        TellFailure({"Files of the worker are missing on this side.",
                     "put them into LinuxUtils below the library's folder"});
    } else {
        TellFailure(Explain(heard));
    }
    return false;
}

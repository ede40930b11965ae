/// @file
/// What both transports start, and what the user sees when that fails.
#pragma once

#include <memory>

#include "platform/ChildProcess.h"
#include "vapp/connection/ConnectionInfo.h"
#include "vapp/text/CStringU.h"

namespace vapp_connection {

/// The command line of a worker: the local command as it is, or the login program of the module's folder with
/// target and command, of which nothing is quoted but the program.
[[nodiscard]] CStringU WorkerCommandLine(const ConnectionInfo& info);

/// Starts a worker. Where that fails the user is told by a box, and there is no child.
[[nodiscard]] std::unique_ptr<vapp_platform::ChildProcess> StartWorker(
    const vapp_platform::ChildStart& start);

}  // namespace vapp_connection

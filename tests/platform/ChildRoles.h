/// @file
/// The test program as its own child: started under a private switch it plays a role instead of running
/// tests.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/ChildProcess.h"
#include "platform/Pipe.h"

namespace platform_test {

/// What a child does; the result is its exit status.
using Role = std::function<int(const std::vector<std::string>&)>;

/// Adds a role of the test program's own. To be called before PlayChildRole.
void AddRole(const std::string& name, Role role);

/// Plays the role of "--child=ROLE" in the arguments and ends the process with its status; comes back where
/// the arguments have none. To be called first in main.
void PlayChildRole(int count, char** arguments);

/// The path of this program; known once PlayChildRole was called.
[[nodiscard]] const std::string& OwnProgram();

/// Lets copies of this program in other folders find the libraries that lie beside this one; for children
/// started from then on.
void ShareLibraries();

/// A command line that starts this program in a role.
[[nodiscard]] CStringU RoleCommand(const std::string& role, const std::vector<std::string>& arguments = {});

/// A child with this process at the other ends of its standard input, and of its output and error together.
struct PipedChild {
    std::unique_ptr<vapp_platform::ChildProcess> child;
    std::unique_ptr<vapp_platform::PipeWriter> input;
    std::unique_ptr<vapp_platform::PipeReader> output;
};

/// Starts a command line with pipes; no child where that fails.
[[nodiscard]] PipedChild StartPiped(vapp_platform::ChildStart start);
/// Starts this program in a role with pipes.
[[nodiscard]] PipedChild StartRole(const std::string& role, const std::vector<std::string>& arguments = {});

/// Reads to the end of the stream.
[[nodiscard]] std::string ReadAll(vapp_platform::PipeReader& reader);
/// Writes everything; false where that fails.
bool WriteAll(vapp_platform::PipeWriter& writer, const std::string& bytes);

/// Longer than anything that is expected to happen takes, also under sanitizers on a busy machine.
inline constexpr std::chrono::milliseconds cnLong{60000};

}  // namespace platform_test

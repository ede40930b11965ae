/// @file
/// The test program as a worker: what it says and does on its channel is a row of words on its command line.
///
///     say:TEXT     sends the text
///     bytes:HEX    sends bytes, two digits each
///     dots:TEXT    sends the text byte by byte, each with a moment behind it
///     blocks:N     sends N blocks of 64 KB
///     get:N        waits for N bytes and forgets them; ends the process where fewer come
///     echo         sends back what comes, until the end
///     slow-echo:N  reads one byte at a time, N of them, then echoes
///     end          closes its side of the channel
///     live         does nothing, for longer than any test takes
///     deaf         the same, and ignores polite requests to end
///     knock:PORT   connects to a port of the test (Door.h) and holds that connection
///     tell:TEXT    says something there
///     stay         does nothing until that connection is ended
///     grandchild:PORT  starts a child that holds the worker's channel, knocks, and stays;
///                  without a port it lives
///     exit:N       ends the process
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/OwnedHandle.h"
#include "vapp/connection/ConnectionInfo.h"

namespace connection_test {

/// The worker's side of a connection.
class Channel {
public:
    Channel() = default;
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;
    virtual ~Channel() = default;
    /// False where nobody hears any more.
    virtual bool Say(std::string_view bytes) = 0;
    /// One to `size` bytes; none at the end.
    virtual std::string Get(std::size_t size) = 0;
    virtual void End() = 0;
    /// What a child of the worker holds the channel by.
    [[nodiscard]] virtual vapp_platform::NativeHandle Handle() const = 0;
};

/// Adds a word that workers obey: it is told what stands behind the colon.
void AddWorkerWord(const std::string& name, std::function<void(Channel&, const std::string&)> obey);

/// Adds the roles of workers, "tcp" and "pipe", and that of the login program, which plays the worker that
/// its command names. To be called before PlayChildRole.
void AddWorkerRoles();

/// True where the program was started under the name of the login program; its role is to be played then.
[[nodiscard]] bool IsLoginProgram(const char* ownName);

/// Plays the login program: anything but the right switches and a target is an error that it prints.
[[nodiscard]] int PlayLoginProgram(const std::vector<std::string>& arguments);

/// Lays a login program below the folder of this program, where connections look for it.
void LayLoginProgram();

/// What starts a local worker with these words, in the role "tcp" or "pipe", that is to say this keyword.
[[nodiscard]] ConnectionInfo LocalWorker(const std::string& transport, const std::vector<std::string>& words,
                                         const std::string& keyword);

}  // namespace connection_test

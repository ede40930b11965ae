/// @file
/// Writing to a pipe without a signal in the host when nobody can read any more.
#pragma once

#include <signal.h>
#include <sys/types.h>

#include <cstddef>

namespace vapp_platform {

/// For as long as it lives SIGPIPE is kept from its thread, and taken back where one of its writes has raised
/// it. The host's handler and what was pending before stay as they are.
class QuietWriter {
public:
    QuietWriter() noexcept;
    QuietWriter(const QuietWriter&) = delete;
    QuietWriter& operator=(const QuietWriter&) = delete;
    ~QuietWriter();

    /// The system's write, again where a signal interrupts it.
    ssize_t Write(int descriptor, const void* data, std::size_t size) noexcept;

private:
    sigset_t m_pipe{};
    sigset_t m_before{};
    bool m_wasPending = false;
};

}  // namespace vapp_platform

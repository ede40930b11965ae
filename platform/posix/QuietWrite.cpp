/// @file
/// SIGPIPE is raised for the very thread that writes: blocked around the write it stays pending there, and is
/// collected without a handler having run.
#include "platform/posix/QuietWrite.h"

#include <pthread.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "platform/posix/Retry.h"

namespace vapp_platform {

QuietWriter::QuietWriter() noexcept {
    sigemptyset(&m_pipe);
    sigaddset(&m_pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    // Only a thread that has it blocked already can have one pending.
    if (sigismember(&m_before, SIGPIPE) == 1) {
        sigset_t pending;
        sigemptyset(&pending);
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
    }
}

QuietWriter::~QuietWriter() {
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

ssize_t QuietWriter::Write(int descriptor, const void* data, std::size_t size) noexcept {
    const ssize_t written = Retry([&] { return write(descriptor, data, size); });
    const int code = errno;
    if (written < 0 && code == EPIPE && !m_wasPending) {
        const timespec atOnce{};
        Retry([&] { return sigtimedwait(&m_pipe, nullptr, &atOnce); });
    }
    errno = code;
    return written;
}

}  // namespace vapp_platform

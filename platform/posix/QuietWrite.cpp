/// @file
/// SIGPIPE is raised for the very thread that writes: blocked around the write it stays pending there, and is
/// collected without a handler having run.
#include "platform/posix/QuietWrite.h"

#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "platform/posix/Retry.h"

namespace vapp_platform {

namespace {

class PipeSignalBlock {
public:
    PipeSignalBlock() noexcept {
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
    PipeSignalBlock(const PipeSignalBlock&) = delete;
    PipeSignalBlock& operator=(const PipeSignalBlock&) = delete;
    ~PipeSignalBlock() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

    void TakeBack() noexcept {
        if (m_wasPending) return;
        const timespec atOnce{};
        Retry([&] { return sigtimedwait(&m_pipe, nullptr, &atOnce); });
    }

private:
    sigset_t m_pipe{};
    sigset_t m_before{};
    bool m_wasPending = false;
};

}  // namespace

ssize_t QuietWrite(int descriptor, const void* data, std::size_t size) {
    PipeSignalBlock block;
    const ssize_t written = write(descriptor, data, size);
    const int code = errno;
    if (written < 0 && code == EPIPE) block.TakeBack();
    errno = code;
    return written;
}

}  // namespace vapp_platform

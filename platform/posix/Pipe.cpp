/// @file
/// The end that stays here never blocks in the system: a call tries, and where it would wait it polls the
/// pipe beside an eventfd that Close sets. The child's end is a description of its own and blocks as always.
///
/// Trying first makes the common case one call: bytes are there, or there is room.
#include "platform/Pipe.h"

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <optional>
#include <utility>

#include "platform/FaultPoint.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/Poll.h"
#include "platform/posix/QuietWrite.h"
#include "platform/posix/Retry.h"

namespace vapp_platform {

namespace {

OwnedHandle MakeWake(const OwnedHandle& end) {
    return OwnedHandle(end.IsOpen() ? eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK) : -1);
}

void Wake(const OwnedHandle& wake) {
    const std::uint64_t one = 1;
    Retry([&] { return write(Descriptor(wake), &one, sizeof one); });
}

// Can't fail for the end of a pipe.
void StopBlocking(const OwnedHandle& end) {
    const int flags = fcntl(Descriptor(end), F_GETFL);
    if (flags >= 0) fcntl(Descriptor(end), F_SETFL, flags | O_NONBLOCK);
}

// Four times the system's size. Waiting for room takes two calls here where a blocking write takes none: a
// fourth of the waits makes up for it. Where the system refuses, the pipe stays as it is.
void Widen(const OwnedHandle& end) {
    constexpr int cnBytes = 256 * 1024;
    if (fcntl(Descriptor(end), F_GETPIPE_SZ) < cnBytes) fcntl(Descriptor(end), F_SETPIPE_SZ, cnBytes);
}

// How long a wait can go on after a Close that could not wake it.
constexpr std::chrono::milliseconds cnSlice{50};

// Without a wake (the process had no descriptor left for one) poll skips its number, which is negative, and
// the caller looks now and then whether the end was closed.
void WaitFor(const OwnedHandle& end, short events, const OwnedHandle& wake) {
    pollfd both[] = {{Descriptor(end), events, 0}, {Descriptor(wake), POLLIN, 0}};
    PollFor(both, wake.IsOpen() ? std::nullopt : std::optional(cnSlice));
}

Transfer Done(ssize_t count) {
    return {static_cast<std::int64_t>(count), 0};
}

bool WouldBlock() {
    return errno == EAGAIN || errno == EWOULDBLOCK;
}

}  // namespace

int CreatePipe(OwnedHandle& readEnd, OwnedHandle& writeEnd) {
    if (const int fault = FaultOf(SystemCall::CreatePipe); fault != 0) return fault;
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) return errno;
    readEnd = OwnedHandle(ends[0]);
    writeEnd = OwnedHandle(ends[1]);
    return 0;
}

int KeepFromChildren(const OwnedHandle& end) {
    if (const int fault = FaultOf(SystemCall::KeepFromChildren); fault != 0) return fault;
    return fcntl(Descriptor(end), F_SETFD, FD_CLOEXEC) == 0 ? 0 : errno;
}

Transfer WriteOnce(const OwnedHandle& end, const void* data, std::size_t size) {
    QuietWriter quiet;
    std::size_t done = 0;
    while (done < size) {
        const ssize_t written =
            quiet.Write(Descriptor(end), static_cast<const char*>(data) + done, size - done);
        if (written < 0) return done > 0 ? Done(static_cast<ssize_t>(done)) : Transfer{0, errno};
        done += static_cast<std::size_t>(written);
    }
    return Done(static_cast<ssize_t>(done));
}

Transfer ReadOnce(const OwnedHandle& end, void* buffer, std::size_t size) {
    if (size == 0) return {};
    const ssize_t count = Retry([&] { return read(Descriptor(end), buffer, size); });
    if (count > 0) return Done(count);
    return {0, count == 0 ? EPIPE : errno};
}

PipeReader::PipeReader(OwnedHandle end) : m_end(std::move(end)), m_wake(MakeWake(m_end)) {
    StopBlocking(m_end);
}

Transfer PipeReader::Peek() {
    if (!m_gate.Enter()) return {0, ECANCELED};
    Transfer result;
    int available = 0;
    if (ioctl(Descriptor(m_end), FIONREAD, &available) != 0) {
        result.code = errno;
    } else if (available > 0) {
        result.count = available;
    } else {
        pollfd one[] = {{Descriptor(m_end), POLLIN, 0}};
        PollFor(one, std::chrono::milliseconds(0));
        // Bytes and the end can have come between the two questions: then the next peek counts them.
        if ((one[0].revents & (POLLHUP | POLLIN)) == POLLHUP) result.code = EPIPE;
    }
    Leave();
    return result;
}

Transfer PipeReader::Read(void* buffer, std::size_t size) {
    if (size == 0) return {};
    Transfer result{0, ECANCELED};
    if (!m_gate.Enter()) return result;
    while (!m_gate.IsClosed()) {
        const ssize_t count = Retry([&] { return read(Descriptor(m_end), buffer, size); });
        if (count < 0 && WouldBlock()) {
            WaitFor(m_end, POLLIN, m_wake);
            continue;
        }
        result = count > 0 ? Done(count) : Transfer{0, count == 0 ? EPIPE : errno};
        break;
    }
    Leave();
    return result;
}

void PipeReader::Close() noexcept {
    if (!m_gate.Close()) return;
    Wake(m_wake);
    Leave();
}

void PipeReader::Leave() noexcept {
    if (!m_gate.Leave()) return;
    m_end.Drop();
    m_wake.Drop();
}

PipeWriter::PipeWriter(OwnedHandle end) : m_end(std::move(end)), m_wake(MakeWake(m_end)) {
    StopBlocking(m_end);
    Widen(m_end);
}

// As much as goes in before a close or a failure, so that a large block costs one visit; the next call tells
// the reason.
Transfer PipeWriter::Write(const void* data, std::size_t size) {
    if (size == 0) return {};
    if (!m_gate.Enter()) return {0, ECANCELED};
    QuietWriter quiet;
    std::size_t done = 0;
    int code = ECANCELED;
    while (!m_gate.IsClosed()) {
        const ssize_t count =
            quiet.Write(Descriptor(m_end), static_cast<const char*>(data) + done, size - done);
        if (count < 0 && !WouldBlock()) {
            code = errno;
            break;
        }
        done += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        if (done == size) break;
        // The pipe is full, also where a part went in.
        WaitFor(m_end, POLLOUT, m_wake);
    }
    Leave();
    return done > 0 ? Done(static_cast<ssize_t>(done)) : Transfer{0, code};
}

void PipeWriter::Close() noexcept {
    if (!m_gate.Close()) return;
    Wake(m_wake);
    Leave();
}

void PipeWriter::Leave() noexcept {
    if (!m_gate.Leave()) return;
    m_end.Drop();
    m_wake.Drop();
}

}  // namespace vapp_platform

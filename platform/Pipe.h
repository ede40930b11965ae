/// @file
/// Anonymous pipes: made as plain handles of which one goes to a child, the other kept here behind a reader
/// or a writer.
///
/// A call that blocks in Read or Write is woken when another thread closes the object, and comes back with a
/// code; no handle is closed under it. A writer whose reader is gone gets a code: nothing is raised in the
/// process, whatever it has decided about its signals.
///
/// The surprise: the end of the stream is a failure here, a broken pipe, as it is on Windows.
#pragma once

#include <cstddef>

#include "platform/OwnedHandle.h"
#include "platform/Transfer.h"
#include "platform/UseGate.h"

namespace vapp_platform {

/// Makes a pipe of the system's default size. 0, or the system's code. Both ends can be handed to a child at
/// its start; on Linux no other child ever gets them, on Windows one can that the host itself starts with
/// "inherit all" before KeepFromChildren, or before the start that an end goes to is over.
[[nodiscard]] int CreatePipe(OwnedHandle& readEnd, OwnedHandle& writeEnd);
/// Says that an end is for this process alone. 0, or the system's code.
[[nodiscard]] int KeepFromChildren(const OwnedHandle& end);
/// Writes bytes in one call to an end that no other thread uses; less than all where the pipe is full and the
/// reader goes away.
[[nodiscard]] Transfer WriteOnce(const OwnedHandle& end, const void* data, std::size_t size);
/// Reads what is there, at most `size` bytes, waiting for the first of them; the end of the stream is a
/// failure. For an end that no other thread uses.
[[nodiscard]] Transfer ReadOnce(const OwnedHandle& end, void* buffer, std::size_t size);

/// The reading end that stays here. One thread at a time may read; any thread may close.
class PipeReader {
public:
    explicit PipeReader(OwnedHandle end);
    PipeReader(const PipeReader&) = delete;
    PipeReader& operator=(const PipeReader&) = delete;
    /// Closes. No thread may be inside any more.
    ~PipeReader() { Close(); }

    /// How many bytes a read gives at once. A broken pipe with bytes left in it still counts them.
    [[nodiscard]] Transfer Peek();
    /// Waits for bytes and takes at most `size` of them; 0 bytes wanted give 0 at once. The code says the end
    /// of the stream (a broken pipe), or that the reader was closed.
    [[nodiscard]] Transfer Read(void* buffer, std::size_t size);
    /// Ends all reading; wakes a blocked Read.
    void Close() noexcept;

private:
    void Leave() noexcept;

    OwnedHandle m_end;
    OwnedHandle m_wake;
    UseGate m_gate;
};

/// The writing end that stays here. One thread at a time may write; any thread may close.
class PipeWriter {
public:
    explicit PipeWriter(OwnedHandle end);
    PipeWriter(const PipeWriter&) = delete;
    PipeWriter& operator=(const PipeWriter&) = delete;
    /// Closes. No thread may be inside any more.
    ~PipeWriter() { Close(); }

    /// Writes at least one byte of `size`, waiting as long as the pipe is full. The code says that nobody can
    /// read any more, or that the writer was closed.
    [[nodiscard]] Transfer Write(const void* data, std::size_t size);
    /// Ends all writing, so that the reader sees the end; wakes a blocked Write.
    void Close() noexcept;

private:
    void Leave() noexcept;

    OwnedHandle m_end;
    OwnedHandle m_wake;
    UseGate m_gate;
};

}  // namespace vapp_platform

/// @file
/// Plain ReadFile and WriteFile. Closing a handle does not wake who blocks in it, and can itself block behind
/// him: Close cancels the call, as often as it takes, and closes when nobody is inside any more.
///
/// As often as it takes: a call that is past its check of the gate and not yet in the system is missed by one
/// cancellation, and found by the next.
#include "platform/Pipe.h"

#include <windows.h>

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/FaultPoint.h"

namespace vapp_platform {

namespace {

HANDLE AsHandle(const OwnedHandle& handle) {
    return reinterpret_cast<HANDLE>(handle.Get());
}

DWORD AsCount(std::size_t size) {
    return static_cast<DWORD>(std::min<std::size_t>(size, std::numeric_limits<DWORD>::max()));
}

int LastCode() {
    return static_cast<int>(GetLastError());
}

Transfer ReadFrom(const OwnedHandle& end, void* buffer, std::size_t size) {
    DWORD count = 0;
    if (ReadFile(AsHandle(end), buffer, AsCount(size), &count, nullptr) == FALSE) return {0, LastCode()};
    return {count, 0};
}

Transfer WriteTo(const OwnedHandle& end, const void* data, std::size_t size) {
    DWORD count = 0;
    if (WriteFile(AsHandle(end), data, AsCount(size), &count, nullptr) == FALSE) return {0, LastCode()};
    return {count, 0};
}

void CancelUntilAlone(const OwnedHandle& end, const UseGate& gate) {
    while (gate.HasUsers()) {
        CancelIoEx(AsHandle(end), nullptr);
        if (gate.HasUsers()) Sleep(1);
    }
}

}  // namespace

int CreatePipe(OwnedHandle& readEnd, OwnedHandle& writeEnd) {
    if (const int fault = FaultOf(SystemCall::CreatePipe); fault != 0) return fault;
    SECURITY_ATTRIBUTES inheritable{};
    inheritable.nLength = sizeof inheritable;
    inheritable.bInheritHandle = TRUE;
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    if (::CreatePipe(&reading, &writing, &inheritable, 0) == FALSE) return LastCode();
    readEnd = OwnedHandle(reinterpret_cast<NativeHandle>(reading));
    writeEnd = OwnedHandle(reinterpret_cast<NativeHandle>(writing));
    return 0;
}

int KeepFromChildren(const OwnedHandle& end) {
    if (const int fault = FaultOf(SystemCall::KeepFromChildren); fault != 0) return fault;
    return SetHandleInformation(AsHandle(end), HANDLE_FLAG_INHERIT, 0) != FALSE ? 0 : LastCode();
}

Transfer WriteOnce(const OwnedHandle& end, const void* data, std::size_t size) {
    return WriteTo(end, data, size);
}

Transfer ReadOnce(const OwnedHandle& end, void* buffer, std::size_t size) {
    if (size == 0) return {};
    const Transfer result = ReadFrom(end, buffer, size);
    // Somebody has written nothing, which a pipe passes on; a console or a file has come to its end.
    return result.count == 0 && !result.Failed() ? Transfer{0, ERROR_BROKEN_PIPE} : result;
}

PipeReader::PipeReader(OwnedHandle end) : m_end(std::move(end)) {}

Transfer PipeReader::Peek() {
    if (!m_gate.Enter()) return {0, ERROR_OPERATION_ABORTED};
    DWORD available = 0;
    Transfer result;
    if (PeekNamedPipe(AsHandle(m_end), nullptr, 0, nullptr, &available, nullptr) != FALSE) {
        result.count = available;
    } else {
        result.code = LastCode();
    }
    Leave();
    return result;
}

Transfer PipeReader::Read(void* buffer, std::size_t size) {
    // To the system a read of nothing would wait for the next write.
    if (size == 0) return {};
    Transfer result{0, ERROR_OPERATION_ABORTED};
    if (!m_gate.Enter()) return result;
    if (!m_gate.IsClosed()) result = ReadFrom(m_end, buffer, size);
    Leave();
    return result;
}

void PipeReader::Close() noexcept {
    if (!m_gate.Close()) return;
    CancelUntilAlone(m_end, m_gate);
    Leave();
}

void PipeReader::Leave() noexcept {
    if (m_gate.Leave()) m_end.Drop();
}

PipeWriter::PipeWriter(OwnedHandle end) : m_end(std::move(end)) {}

Transfer PipeWriter::Write(const void* data, std::size_t size) {
    if (size == 0) return {};
    Transfer result{0, ERROR_OPERATION_ABORTED};
    if (!m_gate.Enter()) return result;
    if (!m_gate.IsClosed()) result = WriteTo(m_end, data, size);
    Leave();
    return result;
}

void PipeWriter::Close() noexcept {
    if (!m_gate.Close()) return;
    CancelUntilAlone(m_end, m_gate);
    Leave();
}

void PipeWriter::Leave() noexcept {
    if (m_gate.Leave()) m_end.Drop();
}

}  // namespace vapp_platform

/// @file
/// CreateProcessW. Streams are handles that can be inherited, and so would be every other such handle of the
/// host: the start hands the system a list of those that may be. Without streams nothing is inherited at all.
#include "platform/ChildProcess.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/FaultPoint.h"

namespace vapp_platform {

namespace {

HANDLE AsHandle(NativeHandle handle) {
    return handle != cnNoHandle ? reinterpret_cast<HANDLE>(handle) : nullptr;
}

std::wstring AsWide(const CStringU& text) {
    const std::u16string units = text.ToWide();
    return {units.begin(), units.end()};
}

/// The streams of a start. As long as this object lives they can be inherited, and the attribute of the start
/// says that nothing else may be; each is named there once. Behind the start they are for nobody: whatever
/// the host starts by itself, "inherit all" among it, would else hold them too.
class InheritedHandles {
public:
    explicit InheritedHandles(const ChildStart& start) {
        for (const NativeHandle stream : {start.input, start.output, start.error}) {
            const HANDLE handle = AsHandle(stream);
            const bool known = std::find(m_handles.begin(), m_handles.end(), handle) != m_handles.end();
            if (handle != nullptr && !known) m_handles.push_back(handle);
        }
    }
    InheritedHandles(const InheritedHandles&) = delete;
    InheritedHandles& operator=(const InheritedHandles&) = delete;
    ~InheritedHandles() {
        if (m_initialized) DeleteProcThreadAttributeList(Get());
        for (const HANDLE handle : m_handles)
            SetHandleInformation(handle, HANDLE_FLAG_INHERIT, 0);
    }

    /// 0, or the system's code. Without the attribute a start must not be made: the child would get
    /// everything.
    [[nodiscard]] int Prepare() {
        if (const int fault = FaultOf(SystemCall::PlaceStreams); fault != 0) return fault;
        if (IsEmpty()) return 0;
        const auto lend = [](HANDLE handle) {
            return SetHandleInformation(handle, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT) != FALSE;
        };
        const bool done = std::all_of(m_handles.begin(), m_handles.end(), lend) && Name();
        return done ? 0 : static_cast<int>(GetLastError());
    }
    [[nodiscard]] bool IsEmpty() const { return m_handles.empty(); }
    [[nodiscard]] LPPROC_THREAD_ATTRIBUTE_LIST Get() {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(m_memory.data());
    }

private:
    bool Name() {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        m_memory.resize(size);
        m_initialized = InitializeProcThreadAttributeList(Get(), 1, 0, &size) != FALSE;
        return m_initialized &&
               UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, m_handles.data(),
                                         m_handles.size() * sizeof(HANDLE), nullptr, nullptr) != FALSE;
    }

    std::vector<HANDLE> m_handles;
    std::vector<std::byte> m_memory;
    bool m_initialized = false;
};

// The system reads up to an empty entry: one stands behind the last, whether or not it is there already. None
// at all for the process's own environment.
std::vector<wchar_t> EnvironmentBlock(std::span<const wchar_t> given) {
    std::vector<wchar_t> block(given.begin(), given.end());
    if (!block.empty()) block.insert(block.end(), 2, L'\0');
    return block;
}

StartResult Failed(StartStep step, int code) {
    StartResult result;
    result.failed = step;
    result.code = code;
    return result;
}

}  // namespace

StartResult ChildProcess::Start(const ChildStart& start) {
    if (const int fault = FaultOf(SystemCall::StartProcess); fault != 0) {
        return Failed(StartStep::Process, fault);
    }
    InheritedHandles inherited(start);
    if (const int code = inherited.Prepare(); code != 0) return Failed(StartStep::Streams, code);
    STARTUPINFOEXW startup{};
    startup.StartupInfo.cb = inherited.IsEmpty() ? sizeof startup.StartupInfo : sizeof startup;
    startup.StartupInfo.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
    startup.StartupInfo.wShowWindow = SW_HIDE;
    startup.StartupInfo.hStdInput = AsHandle(start.input);
    startup.StartupInfo.hStdOutput = AsHandle(start.output);
    startup.StartupInfo.hStdError = AsHandle(start.error);
    if (!inherited.IsEmpty()) startup.lpAttributeList = inherited.Get();

    // The system writes into the line while it looks for the program.
    std::wstring line = AsWide(start.commandLine);
    const std::wstring folder = AsWide(start.workingFolder);
    const DWORD flags =
        CREATE_UNICODE_ENVIRONMENT | (inherited.IsEmpty() ? 0U : EXTENDED_STARTUPINFO_PRESENT);
    std::vector<wchar_t> block = EnvironmentBlock(start.environment);
    void* const environment = block.empty() ? nullptr : block.data();
    PROCESS_INFORMATION made{};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, inherited.IsEmpty() ? FALSE : TRUE, flags,
                       environment, folder.empty() ? nullptr : folder.c_str(), &startup.StartupInfo,
                       &made) == FALSE) {
        const DWORD code = GetLastError();
        return Failed(code == ERROR_DIRECTORY ? StartStep::Folder : StartStep::Program,
                      static_cast<int>(code));
    }
    CloseHandle(made.hThread);
    StartResult result;
    result.child.reset(
        new ChildProcess(OwnedHandle(reinterpret_cast<NativeHandle>(made.hProcess)), made.dwProcessId));
    return result;
}

ChildProcess::ChildProcess(OwnedHandle process, std::uint32_t id) noexcept
    : m_process(std::move(process)), m_id(id) {}

ChildProcess::~ChildProcess() = default;

bool ChildProcess::WaitFor(std::chrono::milliseconds limit) {
    return WaitForSingleObject(AsHandle(m_process.Get()), static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

ExitStatus ChildProcess::GetExitStatus() {
    if (m_status.kind != ExitKind::Running) return m_status;
    DWORD code = 0;
    if (GetExitCodeProcess(AsHandle(m_process.Get()), &code) == FALSE) return m_status;
    // A child may well exit with the number of "still active"; only the wait tells.
    if (code == STILL_ACTIVE && !WaitFor(std::chrono::milliseconds(0))) return m_status;
    const bool forced = m_terminated && code == 1;
    m_status = {forced ? ExitKind::Forced : ExitKind::Exited, static_cast<int>(code)};
    return m_status;
}

bool ChildProcess::Terminate() {
    if (GetExitStatus().kind != ExitKind::Running) return true;
    m_terminated = TerminateProcess(AsHandle(m_process.Get()), 1) != FALSE;
    return m_terminated || WaitFor(std::chrono::milliseconds(0));
}

}  // namespace vapp_platform

/// @file
/// The same from Windows. A process's number is nobody else's as long as it is held open.
///
/// A child that runs says so by an event of its name, and only then is killed: one that is killed while it is
/// being made takes the server of Wine of this time down with it.
#include "tests/soak/OwnUse.h"

#include <windows.h>

// Behind windows.h, whose types they need.
#include <psapi.h>
#include <tlhelp32.h>

#include <cstdlib>
#include <string>

#include "platform/OwnedHandle.h"
#include "tests/platform/SystemHelpers.h"

namespace soak_test {

namespace {

using vapp_platform::NativeHandle;
using vapp_platform::OwnedHandle;

HANDLE AsHandle(const OwnedHandle& handle) {
    return reinterpret_cast<HANDLE>(handle.Get());
}

std::vector<DWORD> Children() {
    std::vector<DWORD> children;
    const OwnedHandle all(reinterpret_cast<NativeHandle>(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0)));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(AsHandle(all), &entry); more != FALSE;
         more = Process32NextW(AsHandle(all), &entry)) {
        if (entry.th32ParentProcessID == GetCurrentProcessId() &&
            platform_test::IsRunning(entry.th32ProcessID)) {
            children.push_back(entry.th32ProcessID);
        }
    }
    return children;
}

std::wstring NameOfBirth(DWORD process) {
    return L"vapp-soak-" + std::to_wstring(process);
}

bool IsBorn(DWORD process) {
    HANDLE const event = OpenEventW(SYNCHRONIZE, FALSE, NameOfBirth(process).c_str());
    return event != nullptr && CloseHandle(event) != FALSE;
}

}  // namespace

// Those of threads that are about to end, and of the socket library.
const int cnHandleSlack = 4;

// The event goes with the process.
void SayIAmBorn() {
    static_cast<void>(CreateEventW(nullptr, TRUE, TRUE, NameOfBirth(GetCurrentProcessId()).c_str()));
}

OwnUse MeasureOwnUse() {
    PROCESS_MEMORY_COUNTERS memory{};
    memory.cb = sizeof memory;
    // The private bytes; Wine of this time leaves the field of that name empty.
    K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return {platform_test::CountOpenHandles(), Children().size(), memory.PagefileUsage};
}

std::size_t KillChildren() {
    std::size_t killed = 0;
    for (const DWORD child : Children()) {
        if (!IsBorn(child)) continue;
        HANDLE const opened = OpenProcess(PROCESS_TERMINATE, FALSE, child);
        if (opened == nullptr) continue;
        const OwnedHandle process(reinterpret_cast<NativeHandle>(opened));
        if (TerminateProcess(AsHandle(process), 9) != FALSE) ++killed;
    }
    return killed;
}

// A real violation would start a debugger, under Wine for seconds.
void Crash() {
    TerminateProcess(GetCurrentProcess(), STATUS_ACCESS_VIOLATION);
    std::abort();
}

}  // namespace soak_test

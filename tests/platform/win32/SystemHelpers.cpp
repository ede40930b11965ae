/// @file
/// The same questions put to Windows.
#include "tests/platform/SystemHelpers.h"

#include <windows.h>

namespace platform_test {

vapp_platform::NativeHandle StandardStream(int number) {
    const DWORD names[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    return reinterpret_cast<vapp_platform::NativeHandle>(GetStdHandle(names[number]));
}

// Wine of this time answers GetProcessHandleCount with 0 for every process, so each handle is tried.
int CountOpenHandles() {
    constexpr std::uintptr_t cnStep = 4;
    constexpr std::uintptr_t cnBehindLast = 0x4000;
    int count = 0;
    for (std::uintptr_t value = cnStep; value < cnBehindLast; value += cnStep) {
        DWORD flags = 0;
        if (GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != 0) ++count;
    }
    return count;
}

bool IsRunning(std::uint32_t id) {
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
    if (process == nullptr) return false;
    const bool running = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return running;
}

std::uint32_t OwnThreadId() {
    return GetCurrentThreadId();
}

bool WaitUntilAsleep(std::uint32_t /*thread*/) {
    constexpr int cnTurns = 2000;
    for (int turn = 0; turn < cnTurns; ++turn)
        SwitchToThread();
    return true;
}

bool TellsSleep() {
    return false;
}

std::optional<std::int64_t> CountReadCalls() {
    return std::nullopt;
}

void IgnoreRequestsToEnd() {
    SetConsoleCtrlHandler(nullptr, TRUE);
}

std::string AnswerAboutSelf(const std::string& /*question*/) {
    return {};
}

}  // namespace platform_test

/// @file
/// The same questions put to Windows.
#include "tests/platform/SystemHelpers.h"

#include <windows.h>

namespace platform_test {

vapp_platform::NativeHandle StandardStream(int number) {
    const DWORD names[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};
    return reinterpret_cast<vapp_platform::NativeHandle>(GetStdHandle(names[number]));
}

int CountOpenHandles() {
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return static_cast<int>(count);
}

bool IsRunning(std::uint32_t id) {
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
    if (process == nullptr) return false;
    const bool running = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return running;
}

void IgnoreRequestsToEnd() {
    SetConsoleCtrlHandler(nullptr, TRUE);
}

std::string AnswerAboutSelf(const std::string& /*question*/) {
    return {};
}

}  // namespace platform_test

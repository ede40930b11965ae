/// @file
/// The answer is asked of the system once; tests put one of their own over it.
#include "platform/World.h"

#include <atomic>

#include "text/PlatformScreen.h"

namespace {

// -1: as the system says.
std::atomic<int> gAnswer = -1;

}  // namespace

bool gIsWine() noexcept {
    const int answer = gAnswer.load(std::memory_order_relaxed);
    if (answer >= 0) return answer != 0;
    static const bool isWine = vapp_platform::IsWineSystem();
    return isWine;
}

namespace vapp_platform {

bool IsWindowsUnderWine() noexcept {
    const bool told = gAnswer.load(std::memory_order_relaxed) >= 0;
    return gIsWine() && (told || IsWindowsBuild());
}

bool MovedWindowsKeepOldPixels() noexcept {
    return gIsWine();
}

World CurrentWorld() noexcept {
    return gIsWine() ? World::Wine : World::Windows;
}

void SetWineAnswer(std::optional<bool> answer) noexcept {
    gAnswer.store(answer ? static_cast<int>(*answer) : -1, std::memory_order_relaxed);
}

}  // namespace vapp_platform

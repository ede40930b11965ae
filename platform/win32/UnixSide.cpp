/// @file
/// The KERNEL32 that the process runs on: Windows' own, which has no Unix side, or Wine's.
#include "platform/UnixSide.h"

#include <windows.h>

#include "platform/WineEntryPoints.h"
#include "platform/win32/EntryPoint.h"

namespace vapp_platform {

namespace {

class TKernelFinder final : public TEntryPointFinder {
public:
    [[nodiscard]] TFunction Find(const char* name) const noexcept override {
        return KernelEntryPoint<TFunction>(name);
    }
    void Release(void* memory) const noexcept override { HeapFree(GetProcessHeap(), 0, memory); }
};

}  // namespace

const TUnixSide& SystemUnixSide() noexcept {
    static const TKernelFinder finder;
    static const TWineEntryPoints side(finder);
    return side;
}

}  // namespace vapp_platform

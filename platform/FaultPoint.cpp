/// @file
/// The source is one pointer for the whole process.
#include "platform/FaultPoint.h"

#include <atomic>

namespace vapp_platform {

namespace {

std::atomic<FaultSource> gSource = nullptr;

}  // namespace

void SetFaultSource(FaultSource source) noexcept {
    gSource.store(source);
}

int FaultOf(SystemCall call) {
    const FaultSource source = gSource.load(std::memory_order_relaxed);
    return source != nullptr ? source(call) : 0;
}

}  // namespace vapp_platform

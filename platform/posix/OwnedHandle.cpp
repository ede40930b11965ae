/// @file
/// A descriptor is given back by close, once: Linux has freed the number even where it reports an
/// interruption.
#include "platform/OwnedHandle.h"

#include <unistd.h>

#include <cerrno>

#include "platform/FaultPoint.h"

namespace vapp_platform {

int OwnedHandle::Close() {
    if (!IsOpen()) return 0;
    if (const int fault = FaultOf(SystemCall::CloseHandle); fault != 0) return fault;
    const int result = close(static_cast<int>(Release()));
    return result == 0 || errno == EINTR ? 0 : errno;
}

void OwnedHandle::Drop() noexcept {
    if (IsOpen()) close(static_cast<int>(Release()));
}

}  // namespace vapp_platform

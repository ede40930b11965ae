/// @file
/// Kernel handles; sockets are given back by their own twin.
#include "platform/OwnedHandle.h"

#include <windows.h>

#include "platform/FaultPoint.h"

namespace vapp_platform {

int OwnedHandle::Close() {
    if (!IsOpen()) return 0;
    if (const int fault = FaultOf(SystemCall::CloseHandle); fault != 0) return fault;
    return CloseHandle(reinterpret_cast<HANDLE>(Release())) != FALSE ? 0 : static_cast<int>(GetLastError());
}

void OwnedHandle::Drop() noexcept {
    if (IsOpen()) CloseHandle(reinterpret_cast<HANDLE>(Release()));
}

}  // namespace vapp_platform

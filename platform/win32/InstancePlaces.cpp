/// @file
/// A place is a named event that exists: the kernel ends it with the last handle to it, that is, at the end
/// of the process. A mutex, whose owner the system also forgets, would belong to a thread and not to the
/// process. The turn at the board is a mutex: only who has it opens the events of others, so that nobody
/// takes such a passing handle for a process that runs.
///
/// The names hold the user's identifier: users of one machine share the names of such objects. An object that
/// may not be opened all the same isn't this user's, and isn't counted; nor is, therefore, a process of the
/// same user that runs with an administrator's rights.
#include "platform/InstancePlaces.h"

#include <windows.h>
// Needs the types of the one above.
#include <sddl.h>

#include <utility>
#include <vector>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

namespace {

HANDLE HandleOf(const OwnedHandle& owned) {
    return reinterpret_cast<HANDLE>(owned.Get());  // NOLINT(performance-no-int-to-ptr): it was one
}

OwnedHandle Owned(HANDLE handle) {
    return handle != nullptr ? OwnedHandle(reinterpret_cast<NativeHandle>(handle)) : OwnedHandle();
}

// The user's identifier as a text; empty where the system doesn't tell it.
std::string UserIdentifier() {
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) return {};
    const OwnedHandle owner = Owned(token);
    std::vector<std::byte> buffer(sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE);
    DWORD size = 0;
    if (GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()), &size) == 0)
        return {};
    const auto* user = reinterpret_cast<const TOKEN_USER*>(buffer.data());
    char* text = nullptr;
    if (ConvertSidToStringSidA(user->User.Sid, &text) == 0) return {};
    std::string identifier = text;
    LocalFree(text);
    return identifier;
}

// The key is ASCII, and so is an identifier.
std::string ObjectName(const std::string& name, const std::string& end) {
    return "Global\\" + name + '-' + end;
}

}  // namespace

InstanceBoard::InstanceBoard(const std::string& key) : m_name("vapp-" + UserIdentifier() + '-' + key) {
    constexpr DWORD cnMostWait = 2000;
    m_handle = Owned(CreateMutexA(nullptr, FALSE, ObjectName(m_name, "turn").c_str()));
    if (!m_handle.IsOpen()) return;
    const DWORD answer = WaitForSingleObject(HandleOf(m_handle), cnMostWait);
    m_isMyTurn = answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
}

InstanceBoard::~InstanceBoard() {
    if (m_isMyTurn) ReleaseMutex(HandleOf(m_handle));
}

bool InstanceBoard::IsOpen() const noexcept {
    return m_handle.IsOpen();
}

InstanceBoard::TPlace InstanceBoard::Look(std::uint32_t place) const {
    const OwnedHandle event =
        Owned(OpenEventA(SYNCHRONIZE, FALSE, ObjectName(m_name, std::to_string(place)).c_str()));
    if (event.IsOpen()) return TPlace::Taken;
    return GetLastError() == ERROR_FILE_NOT_FOUND ? TPlace::Free : TPlace::Foreign;
}

OwnedHandle InstanceBoard::Take(std::uint32_t place) {
    OwnedHandle event =
        Owned(CreateEventA(nullptr, TRUE, FALSE, ObjectName(m_name, std::to_string(place)).c_str()));
    if (GetLastError() == ERROR_ALREADY_EXISTS) return {};
    return event;
}

}  // namespace vapp_platform

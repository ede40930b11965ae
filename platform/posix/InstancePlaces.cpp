/// @file
/// A place is a lock on one byte of a file: the kernel drops it with the descriptor, that is, at the end of
/// the process. The lock belongs to the open file and not to the process, so that no other opening and
/// closing of the file in this process can lose it. Byte 0 is the turn at the board.
///
/// The file lies in the user's runtime folder, or, without one, in the folder of the suite's own data; there
/// its name has the machine's, since that folder may be shared by several. Only folders into which nobody
/// else can write are used: anyone could lay something else in the file's place there. The file stays;
/// removing it would tear those who have it open from those who come.
#include "platform/InstancePlaces.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

#include "platform/Folders.h"
#include "platform/KnownFolders.h"
#include "platform/posix/NativePath.h"
#include "platform/posix/PathVariable.h"
#include "platform/posix/Retry.h"

namespace vapp_platform {

namespace {

constexpr off_t cnTurn = 0;

off_t ByteOf(std::uint32_t place) {
    return static_cast<off_t>(place) + 1;
}

struct flock OneByte(off_t byte, short type) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return lock;
}

bool SetLock(int file, off_t byte, short type) {
    struct flock lock = OneByte(byte, type);
    return Retry([&] { return fcntl(file, F_OFD_SETLK, &lock); }) == 0;
}

// A process that is stopped in its turn must not hold up all others: the wait has an end.
bool WaitForTurn(int file) {
    constexpr int cnTries = 2000;
    for (int i = 0; i < cnTries; ++i) {
        if (SetLock(file, cnTurn, F_WRLCK)) return true;
        if (errno != EAGAIN && errno != EACCES) return false;
        poll(nullptr, 0, 1);
    }
    return false;
}

bool IsOwnAlone(const struct stat& facts) {
    return facts.st_uid == geteuid() && (facts.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

OwnedHandle OpenIn(const std::string& folder, const std::string& file) {
    struct stat facts {};
    if (folder.empty() || stat(folder.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode) || !IsOwnAlone(facts))
        return {};
    const std::string path = folder + '/' + file;
    constexpr int cnFlags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    OwnedHandle opened(Retry([&] { return open(path.c_str(), cnFlags, S_IRUSR | S_IWUSR); }));
    if (!opened.IsOpen() || fstat(static_cast<int>(opened.Get()), &facts) != 0) return {};
    return S_ISREG(facts.st_mode) && IsOwnAlone(facts) ? std::move(opened) : OwnedHandle();
}

std::string MachineName() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

OwnedHandle OpenInDataFolder(const std::string& file) {
    const CStringU folder = gGetUserDataFolder();
    if (folder.IsEmpty() || !gCreateDirectories(folder)) return {};
    return OpenIn(ToNativePath(folder), MachineName() + '-' + file);
}

}  // namespace

InstanceBoard::InstanceBoard(const std::string& key)
    : m_name("vapp-" + key + ".instances"), m_handle(OpenIn(PathVariable("XDG_RUNTIME_DIR"), m_name)) {
    if (!m_handle.IsOpen()) m_handle = OpenInDataFolder(m_name);
    if (IsOpen()) m_isMyTurn = WaitForTurn(static_cast<int>(m_handle.Get()));
}

InstanceBoard::~InstanceBoard() = default;

bool InstanceBoard::IsOpen() const noexcept {
    return m_handle.IsOpen();
}

InstanceBoard::TPlace InstanceBoard::Look(std::uint32_t place) const {
    struct flock lock = OneByte(ByteOf(place), F_WRLCK);
    // A file system without locks keeps every place from us.
    if (Retry([&] { return fcntl(static_cast<int>(m_handle.Get()), F_OFD_GETLK, &lock); }) != 0)
        return TPlace::Foreign;
    return lock.l_type == F_UNLCK ? TPlace::Free : TPlace::Taken;
}

OwnedHandle InstanceBoard::Take(std::uint32_t place) {
    const auto file = static_cast<int>(m_handle.Get());
    if (!SetLock(file, ByteOf(place), F_WRLCK)) return {};
    if (m_isMyTurn) static_cast<void>(SetLock(file, cnTurn, F_UNLCK));
    return std::move(m_handle);
}

}  // namespace vapp_platform

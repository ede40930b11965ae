/// @file
/// By descriptor, so that what was looked at is what is read.
#include "platform/posix/SmallFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace vapp_platform {

namespace {

class TDescriptor {
public:
    explicit TDescriptor(int number) : m_number(number) {}
    ~TDescriptor() {
        if (m_number >= 0) close(m_number);
    }
    TDescriptor(const TDescriptor&) = delete;
    TDescriptor& operator=(const TDescriptor&) = delete;
    [[nodiscard]] int Number() const noexcept { return m_number; }

private:
    int m_number;
};

// The size of a regular file; nothing for anything else.
std::optional<std::size_t> SizeOf(int descriptor) {
    struct stat found {};
    if (fstat(descriptor, &found) != 0 || !S_ISREG(found.st_mode)) return std::nullopt;
    return static_cast<std::size_t>(found.st_size);
}

}  // namespace

std::optional<std::string> ReadSmallFile(const std::string& path, std::size_t limit) {
    const TDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    const auto size = file.Number() >= 0 ? SizeOf(file.Number()) : std::nullopt;
    if (!size) return std::nullopt;
    std::string bytes(std::min(*size, limit), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = read(file.Number(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace vapp_platform

/// @file
/// By descriptor, so that what was looked at is what is read.
#include "platform/posix/SmallFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

bool IsRegularFile(int descriptor) {
    struct stat found {};
    return fstat(descriptor, &found) == 0 && S_ISREG(found.st_mode);
}

}  // namespace

std::optional<std::string> ReadSmallFile(const std::string& path, std::size_t limit) {
    const TDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.Number() < 0 || !IsRegularFile(file.Number())) return std::nullopt;
    std::string bytes(limit, '\0');
    std::size_t filled = 0;
    while (filled < limit) {
        const ssize_t count = read(file.Number(), bytes.data() + filled, limit - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace vapp_platform

/// @file
/// The kernel keeps the words as they were given, each ended by a NUL; a word may be empty.
#include "platform/ProgramArguments.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <string>

#include "platform/OwnedHandle.h"
#include "platform/posix/NativeText.h"
#include "platform/posix/Retry.h"

namespace vapp_platform {

namespace {

std::string AllBytes(const char* path) {
    const OwnedHandle file(Retry([&] { return open(path, O_RDONLY | O_CLOEXEC); }));
    std::string all;
    std::array<char, 4096> block{};
    while (file.IsOpen()) {
        const ssize_t got =
            Retry([&] { return read(static_cast<int>(file.Get()), block.data(), block.size()); });
        if (got <= 0) break;
        all.append(block.data(), static_cast<std::size_t>(got));
    }
    return all;
}

}  // namespace

std::vector<CStringU> ProgramArguments() {
    const std::string all = AllBytes("/proc/self/cmdline");
    std::vector<CStringU> words;
    std::size_t begin = all.find('\0');
    while (begin != std::string::npos && begin + 1 < all.size()) {
        const std::size_t end = all.find('\0', begin + 1);
        words.push_back(TextFromNative(std::string_view(all).substr(begin + 1, end - begin - 1)));
        begin = end;
    }
    return words;
}

}  // namespace vapp_platform

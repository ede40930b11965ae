// Shortcuts of any bytes. What holds for every input: a text that was read was somewhere in the file, so that
// none is longer than the file's bytes can make it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/ShellLinkFile.h"

namespace {

// A byte of a narrow text can become three bytes, and a path is put together from two texts and a separator.
void RequireFromFile(const CStringU& text, std::size_t size) {
    if (static_cast<std::size_t>(text.GetByteLength()) > 6 * size + 1) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto link = vapp_platform::ReadShellLink(bytes);
    if (!link) return 0;
    RequireFromFile(link->localPath, size);
    RequireFromFile(link->networkPath, size);
    RequireFromFile(link->relativePath, size);
    return 0;
}

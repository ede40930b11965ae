/// @file
/// Where shortcuts lead, asked of the shell's own link object. The calling thread needs COM.
#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

#include <array>
#include <memory>

#include "platform/FileSystem.h"

namespace vapp_platform {

namespace {

struct TRelease {
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <typename Interface>
using TReference = std::unique_ptr<Interface, TRelease>;

TReference<IShellLinkW> MakeShellLink() {
    void* made = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &made)))
        return {};
    return TReference<IShellLinkW>(static_cast<IShellLinkW*>(made));
}

TReference<IPersistFile> FileOf(IShellLinkW& link) {
    void* file = nullptr;
    if (FAILED(link.QueryInterface(IID_IPersistFile, &file))) return {};
    return TReference<IPersistFile>(static_cast<IPersistFile*>(file));
}

}  // namespace

CStringU ShortcutTarget(const CStringU& path) {
    const TReference<IShellLinkW> link = MakeShellLink();
    const TReference<IPersistFile> file = link != nullptr ? FileOf(*link) : nullptr;
    if (file == nullptr || FAILED(file->Load(path.ToStdWstring().c_str(), STGM_READ))) return {};
    std::array<wchar_t, MAX_PATH> target{};
    if (FAILED(link->GetPath(target.data(), static_cast<int>(target.size()), nullptr, SLGP_UNCPRIORITY)))
        return {};
    return CStringU(target.data());
}

}  // namespace vapp_platform

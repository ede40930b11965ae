/// @file
/// The program and the library by their module handles, the user's folders by the shell.
#include "platform/SystemFolders.h"

#include <shlobj.h>
#include <windows.h>

#include <array>

namespace vapp_platform {

namespace {

// Something in this file, for the system to find its module by.
constexpr char cnInThisModule = 0;

// A longer path is cut off.
constexpr std::size_t cnPathUnits = 2096;

CStringU PathOfModule(HMODULE module) {
    std::array<wchar_t, cnPathUnits> path{};
    const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    return length != 0 ? CStringU(path.data(), static_cast<int>(length)) : CStringU();
}

CStringU ShellFolder(int number) {
    std::array<wchar_t, MAX_PATH> path{};
    const HRESULT result =
        SHGetFolderPathW(nullptr, number | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return result == S_OK ? CStringU(path.data()) : CStringU();
}

}  // namespace

CStringU ProgramPath() {
    return PathOfModule(nullptr);
}

CStringU ModulePath() {
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    // With FROM_ADDRESS the name is any address in the module.
    if (GetModuleHandleExW(flags, reinterpret_cast<const wchar_t*>(&cnInThisModule), &module) == 0) return {};
    return PathOfModule(module);
}

CStringU DocumentsFolder() {
    return ShellFolder(CSIDL_PERSONAL);
}

CStringU ApplicationDataFolder() {
    return ShellFolder(CSIDL_APPDATA);
}

}  // namespace vapp_platform

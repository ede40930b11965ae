/// @file
/// The program by the kernel's link to it, the library by the dynamic linker, the user's folders by the rules
/// for desktops (XDG).
///
/// Documents lie where user-dirs.dirs says, in the home folder where it says nothing: no folder is made that
/// nobody asked for. Data of applications lies in XDG_DATA_HOME.
#include "platform/SystemFolders.h"

#include <dlfcn.h>
#include <link.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/Folders.h"
#include "platform/posix/MappedFile.h"
#include "platform/posix/NativePath.h"
#include "platform/posix/PathVariable.h"
#include "platform/posix/SmallFile.h"
#include "platform/posix/UserDirs.h"

namespace vapp_platform {

namespace {

// Something in this file, for the dynamic linker to find its module by.
constexpr char cnInThisModule = 0;

constexpr std::size_t cnMostSettings = 65536;

std::string ReadLink(const char* path) {
    std::string target(256, '\0');
    for (;;) {
        const ssize_t length = readlink(path, target.data(), target.size());
        if (length < 0) return {};
        if (static_cast<std::size_t>(length) < target.size()) {
            target.resize(static_cast<std::size_t>(length));
            return target;
        }
        target.resize(target.size() * 2);
    }
}

std::string HomeOfAccount() {
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> buffer(16384);
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return found->pw_dir != nullptr ? found->pw_dir : std::string();
}

std::string Home() {
    const std::string home = PathVariable("HOME");
    return home.empty() ? HomeOfAccount() : home;
}

// The folder of a variable, otherwise one below the home folder; empty without either.
std::string BaseFolder(const char* variable, const char* belowHome) {
    const std::string folder = PathVariable(variable);
    const std::string home = Home();
    return !folder.empty() || home.empty() ? folder : home + belowHome;
}

// Two slashes at the start would make a share of it; a home folder of "/" leads to them.
std::string WithOneSlashInFront(std::string path) {
    const std::size_t name = std::min(path.find_first_not_of('/'), path.size());
    if (name > 1) path.erase(0, name - 1);
    return path;
}

// For this user alone, as the rules want it; folders above as the umask has them. Empty if it can't be made.
CStringU Made(const std::string& wanted) {
    if (wanted.empty()) return {};
    const std::string folder = WithOneSlashInFront(wanted);
    CStringU path = FromNativePath(folder);
    if (gDirectoryExists(path)) return path;
    const std::size_t slash = folder.find_last_of('/');
    if (slash != 0) gCreateDirectories(FromNativePath(folder.substr(0, slash)));
    constexpr mode_t cnThisUserAlone = 0700;
    return mkdir(folder.c_str(), cnThisUserAlone) == 0 || gDirectoryExists(path) ? path : CStringU();
}

}  // namespace

CStringU ProgramPath() {
    return FromNativePath(ReadLink("/proc/self/exe"));
}

CStringU ModulePath() {
    Dl_info info{};
    void* extra = nullptr;
    if (dladdr1(&cnInThisModule, &info, &extra, RTLD_DL_LINKMAP) == 0 || extra == nullptr)
        return ProgramPath();
    const char* name = static_cast<const link_map*>(extra)->l_name;
    if (name == nullptr || *name == '\0') return ProgramPath();
    // A name that the library was loaded by may be relative, to a folder that need not be the current one
    // still.
    return FromNativePath(*name == '/' ? std::string(name) : MappedFile(&cnInThisModule));
}

CStringU DocumentsFolder() {
    const std::string home = Home();
    const std::string settings = BaseFolder("XDG_CONFIG_HOME", "/.config") + "/user-dirs.dirs";
    const std::string file = ReadSmallFile(settings, cnMostSettings).value_or(std::string());
    return Made(FindUserDir(file, "XDG_DOCUMENTS_DIR", home).value_or(home));
}

CStringU ApplicationDataFolder() {
    return Made(BaseFolder("XDG_DATA_HOME", "/.local/share"));
}

}  // namespace vapp_platform

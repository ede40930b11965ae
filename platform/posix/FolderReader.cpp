/// @file
/// A folder by readdir. The system gives "." and ".." anywhere among the others; here they come first, as on
/// Windows, so that the rules can count on it.
#include "platform/FolderReader.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/NativePath.h"

namespace vapp_platform {

namespace {

constexpr std::string_view cnAllEntries = "*.*";

std::string FolderOfPattern(const CStringU& pattern) {
    std::string folder = ToNativePath(pattern);
    if (folder.ends_with(cnAllEntries)) folder.resize(folder.size() - cnAllEntries.size());
    return folder.empty() ? "." : folder;
}

struct TCloser {
    void operator()(DIR* folder) const noexcept { closedir(folder); }
};

}  // namespace

struct TFolderReader::TState {
    std::unique_ptr<DIR, TCloser> folder;
    int dotsGiven = 0;

    void Classify(const dirent& found, TFolderEntry& entry) const;
};

void TFolderReader::TState::Classify(const dirent& found, TFolderEntry& entry) const {
    entry.leadsNowhere = false;
    switch (found.d_type) {
        case DT_DIR:
            entry.attributes = cnDirectoryAttribute;
            return;
        case DT_REG:
            entry.attributes = 0;
            return;
        case DT_LNK:
        case DT_UNKNOWN:
            break;
        default:
            entry.attributes = cnDeviceAttribute;
            return;
    }
    struct stat target {};
    entry.leadsNowhere = fstatat(dirfd(folder.get()), found.d_name, &target, 0) != 0;
    entry.attributes = entry.leadsNowhere ? 0 : AttributesOf(target.st_mode);
}

TFolderReader::TFolderReader(const CStringU& pattern, Names /*oneWayOnly*/)
    : m_state(std::make_unique<TState>()) {
    m_state->folder.reset(opendir(FolderOfPattern(pattern).c_str()));
}

TFolderReader::~TFolderReader() = default;

bool TFolderReader::IsOpen() const noexcept {
    return m_state->folder != nullptr;
}

bool TFolderReader::Next(TFolderEntry& entry) {
    if (!IsOpen()) return false;
    if (m_state->dotsGiven < 2) {
        entry = {m_state->dotsGiven++ == 0 ? "." : "..", cnDirectoryAttribute, false};
        return true;
    }
    const dirent* found = readdir(m_state->folder.get());
    while (found != nullptr && IsDots(found->d_name)) {
        found = readdir(m_state->folder.get());
    }
    if (found == nullptr) return false;
    entry.name = FromNativePath(found->d_name);
    m_state->Classify(*found, entry);
    return true;
}

bool IsFolderByEntries(const CStringU& pattern) {
    struct stat found {};
    return stat(FolderOfPattern(pattern).c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

std::optional<TFolderIdentity> TFolderReader::Identity() const {
    struct stat found {};
    if (!IsOpen() || fstat(dirfd(m_state->folder.get()), &found) != 0) return std::nullopt;
    return TFolderIdentity{found.st_dev, found.st_ino};
}

}  // namespace vapp_platform

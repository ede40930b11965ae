/// @file
/// TFolderReader: the entries of one folder, one after the other. Implemented once for each system.
///
/// The first two entries are "." and ".." wherever the system has them (on Linux always, on Windows not in
/// the root of a drive); the others come in the order of the system. The entry's kind comes from the folder
/// itself: on Linux only links, and file systems that don't tell, cost a call for each.
#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

struct TFolderEntry {
    CStringU name;
    /// As in FileSystem.h. On Linux those of what a link leads to.
    unsigned attributes = 0;
    /// On Linux: a link to nothing, so that there is a name and nothing behind it.
    bool leadsNowhere = false;
};

/// True for the names of a folder's entries for itself and for the one above.
[[nodiscard]] inline bool IsDots(std::string_view name) noexcept {
    return name == "." || name == "..";
}

/// Tells one folder from all others of the machine, whatever the path that led to it.
struct TFolderIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    auto operator<=>(const TFolderIdentity&) const = default;
};

class TFolderReader {
public:
    /// How names come from the system: as it keeps them, or through the ANSI code page, where one that the
    /// page can't express comes with "?" in it. On Linux there is one way.
    enum class Names { Kept, Ansi };

    /// Opens the folder that `pattern` names: the path of the folder, then "*.*" (all entries).
    explicit TFolderReader(const CStringU& pattern, Names names = Names::Kept);
    ~TFolderReader();
    TFolderReader(const TFolderReader&) = delete;
    TFolderReader& operator=(const TFolderReader&) = delete;

    /// False where there is no such folder, or it may not be read.
    [[nodiscard]] bool IsOpen() const noexcept;
    /// The next entry; false behind the last one, and from the first failure on.
    [[nodiscard]] bool Next(TFolderEntry& entry);
    /// Which folder this is; nothing where the system can't tell.
    [[nodiscard]] std::optional<TFolderIdentity> Identity() const;

private:
    struct TState;
    std::unique_ptr<TState> m_state;
};

/// Whether a folder is there that is asked for by its entries, since a root has no name to be looked up by:
/// `pattern` is as for TFolderReader. On Windows one that may not be listed is not there. On Linux it is, for
/// its name tells as much as its entries: a `/home` that users may pass through but not read is a usual one.
[[nodiscard]] bool IsFolderByEntries(const CStringU& pattern);

}  // namespace vapp_platform

#pragma once
/// What a cell view's file tells about its cell, read when it is first asked for and kept until the file
/// changes. Reading alone: what a reference in the file means is the business of the store.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/Symbol.h"

namespace navigator {

/// The marks by which a file is known to be the same as last time.
struct FileStamp {
    bool exists = false;
    std::filesystem::file_time_type modified{};
    std::uintmax_t size = 0;
    std::filesystem::perms permissions = std::filesystem::perms::none;

    bool operator==(const FileStamp&) const = default;
};

/// How a schematic's references stand.
enum class LinkState : unsigned char { Normal, Unresolved, Cycle };

struct FileFacts {
    FileStamp stamp;
    std::optional<bool> isLocked;  ///< The file cannot be written by this user; none until asked.
    bool isHeadRead = false;
    std::string type;       ///< Property `type`.
    bool isHidden = false;  ///< Property `hidden`.
    bool isLinksRead = false;
    bool isUnreadable = false;
    std::vector<std::string> references;  ///< Each once.
    LinkState links = LinkState::Normal;
    unsigned linkGeneration = 0;  ///< The store's count at which `links` was found; 0 never.
};

/// The marks now. A file that is not there, or a folder, has none (`exists` false).
FileStamp gStampOf(const std::filesystem::path& file);

/// True if the file has no write permission at all or the system refuses to open it for writing.
bool gIsLocked(const std::filesystem::path& file, const FileStamp& stamp);

/// The bytes of a regular file, at most `limit` of them; none if it cannot be read. A pipe or device is not
/// opened.
std::optional<std::string> gReadFile(const std::filesystem::path& file, std::size_t limit);

/// Files above this size are not design data that a person drew, and are treated as unreadable.
inline constexpr std::size_t cnLargestFile = std::size_t{64} << 20;

/// Fills `type` and `isHidden` from the property blocks at the head of the file.
void gReadHead(const std::filesystem::path& file, FileFacts& facts);

/// Fills `references` from a parsed file; null means that it could not be read.
void gTakeLinks(const Symbol* symbol, FileFacts& facts);

}  // namespace navigator

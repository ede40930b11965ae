/// Reading with a limit, and the notes.

#include "host/FileText.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "host/CellFacts.h"
#include "host/DisplayName.h"

namespace navigator {

namespace fs = std::filesystem;

namespace {

FileText NamesIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entries(folder, error); !error && entries != fs::directory_iterator();
         entries.increment(error))
        names.push_back(gDisplayName(entries->path().filename().native()));
    if (error) return {"", "The folder can't be read: " + error.message() + "."};
    std::sort(names.begin(), names.end());
    FileText result{"", "The view is a folder; these are the names in it."};
    for (const std::string& name : names)
        result.text += name + '\n';
    return result;
}

/// The bytes as text in which every byte can be seen.
std::string Readable(const std::string& bytes) {
    const std::string valid = gSanitisedUtf8(bytes);
    std::string text;
    text.reserve(valid.size());
    for (const char byte : valid) {
        if (byte == '\0') {
            text += "\xE2\x90\x80";
        } else {
            text += byte;
        }
    }
    return text;
}

}  // namespace

FileText gReadFileText(const fs::path& path, std::size_t limit) {
    std::error_code error;
    if (fs::is_directory(path, error)) return NamesIn(path);
    // One byte more tells whether there is more.
    std::optional<std::string> bytes = gReadFile(path, limit + 1);
    if (!bytes) return {"", "The file can't be read."};
    FileText result;
    if (bytes->size() > limit) {
        bytes->resize(limit);
        result.note = "Only the first " + std::to_string(limit) + " bytes are shown.";
    }
    result.text = Readable(*bytes);
    if (result.note.empty() && result.text != *bytes) result.note = "The file is no plain text.";
    return result;
}

}  // namespace navigator

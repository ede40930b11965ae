/// The reading of single files. The head of a symbol is in its first kilobytes, so that a list of a library's
/// cells opens each symbol once and reads one block of it.

#include "host/CellFacts.h"

#include <fstream>
#include <set>

#include "host/PropertyText.h"

namespace navigator {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t cnHeadSize = 8192;

}  // namespace

FileStamp gStampOf(const fs::path& file) {
    FileStamp stamp;
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (error || !fs::is_regular_file(status)) return stamp;
    stamp.permissions = status.permissions();
    stamp.size = fs::file_size(file, error);
    if (error) return {};
    stamp.modified = fs::last_write_time(file, error);
    if (error) return {};
    stamp.exists = true;
    return stamp;
}

bool gIsLocked(const fs::path& file, const FileStamp& stamp) {
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (!stamp.exists) return false;
    // A file that was made read-only is meant so, also where the user is mighty enough to write it all the
    // same.
    if ((stamp.permissions & anyWrite) == fs::perms::none) return true;
    return !std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).is_open();
}

std::optional<std::string> gReadFile(const fs::path& file, std::size_t limit) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) return std::nullopt;
    const std::uintmax_t size = fs::file_size(file, error);
    std::ifstream stream(file, std::ios::binary);
    if (error || !stream) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(std::min<std::uintmax_t>(size, limit)), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

void gReadHead(const fs::path& file, FileFacts& facts) {
    facts.isHeadRead = true;
    std::optional<std::string> bytes = gReadFile(file, cnHeadSize);
    if (!bytes) return;
    bool isComplete = false;
    Symbol symbol = gParseSymbolHead(*bytes, isComplete);
    if (!isComplete && bytes->size() == cnHeadSize) {
        bytes = gReadFile(file, cnLargestFile);
        if (bytes) symbol = gParseSymbolHead(*bytes, isComplete);
    }
    facts.type = symbol.Property("type");
    facts.isHidden =
        gFlagProperty(symbol.symbolProperties, "hidden") || gFlagProperty(symbol.globalProperties, "hidden");
}

void gTakeLinks(const Symbol* symbol, FileFacts& facts) {
    facts.isLinksRead = true;
    facts.isUnreadable = symbol == nullptr;
    facts.references.clear();
    if (symbol == nullptr) return;
    std::set<std::string> references;
    for (const SymbolInstance& instance : symbol->instances) {
        // An embedded symbol is at hand whatever the libraries have.
        if (instance.embedded == nullptr) references.insert(instance.reference);
    }
    facts.references.assign(references.begin(), references.end());
}

}  // namespace navigator

/// The walk over a library's folder. The directory's own entry types are used where the system gives them, so
/// that a folder of a hundred thousand files costs one reading of the folder and no look at each file.

#include "host/LibraryScan.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <set>
#include <tuple>

namespace navigator {

namespace fs = std::filesystem;

namespace {

constexpr std::array<ViewExtension, 11> csViewExtensions{{
    {".sym", "symbol", ViewFormat::Symbol},
    {".sch", "schematic", ViewFormat::Schematic},
    {".v", "verilog", ViewFormat::Text},
    {".sv", "systemverilog", ViewFormat::Text},
    {".va", "veriloga", ViewFormat::Text},
    {".vhd", "vhdl", ViewFormat::Text},
    {".vhdl", "vhdl", ViewFormat::Text},
    {".spice", "spice", ViewFormat::Text},
    {".sp", "spice", ViewFormat::Text},
    {".cir", "circuit", ViewFormat::Text},
    {".cdl", "cdl", ViewFormat::Text},
}};

constexpr unsigned char cnFolderRank = 255;

std::string LowerAscii(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return text;
}

const ViewExtension* FindExtension(const fs::path& file) {
    const std::string extension = LowerAscii(gDisplayName(file.extension().native()));
    const auto* const found =
        std::find_if(csViewExtensions.begin(), csViewExtensions.end(),
                     [&](const ViewExtension& row) { return row.extension == extension; });
    return found == csViewExtensions.end() ? nullptr : found;
}

/// Calls `visit` with each entry of a folder that has no hidden name; false if the folder cannot be read.
template <typename TVisit>
bool VisitFolder(const fs::path& folder, TVisit visit) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    if (error) return false;
    for (; entries != fs::directory_iterator(); entries.increment(error)) {
        if (error) break;
        if (!gIsHiddenName(entries->path().filename().native())) visit(*entries);
    }
    return !error;
}

bool IsFolder(const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error);
}

bool IsFile(const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_regular_file(error);
}

ViewFormat FormatOfViewFolder(std::string_view view) {
    const auto* const found = std::find_if(csViewExtensions.begin(), csViewExtensions.end(),
                                           [&](const ViewExtension& row) { return row.view == view; });
    return found == csViewExtensions.end() ? ViewFormat::Unknown : found->format;
}

/// Collects the views of one library.
class LibraryScan {
public:
    LibraryScan(Library& library, FolderCells folderCells) : m_library(library), m_folderCells(folderCells) {}

    void Run() {
        m_library.isReadable = Visit(m_library.folder, [this](const fs::directory_entry& entry) {
            if (IsFolder(entry)) {
                if (m_folderCells == FolderCells::Yes) AddFolderCell(entry.path());
            } else if (const ViewExtension* extension = FindExtension(entry.path());
                       extension != nullptr && IsFile(entry)) {
                AddFile(entry.path(), *extension);
            }
        });
        SeparateEscapedNames();
        SortAndShadow();
    }

private:
    template <typename TVisit>
    bool Visit(const fs::path& folder, TVisit visit) {
        if (VisitFolder(folder, visit)) return true;
        m_library.unreadable.push_back(folder);
        return false;
    }

    void AddFile(const fs::path& path, const ViewExtension& extension) {
        ViewFile file;
        file.cell = CellName(path.stem().native(), m_library.files.size());
        file.view = extension.view;
        file.file = path.filename().native();
        file.format = extension.format;
        file.rank = static_cast<unsigned char>(&extension - csViewExtensions.data());
        m_library.files.push_back(std::move(file));
    }

    void AddFolderCell(const fs::path& folder) {
        m_library.cellFolders.push_back(folder.filename().native());
        Visit(folder, [&](const fs::directory_entry& entry) {
            if (!IsFolder(entry)) return;
            ViewFile file;
            file.cell = CellName(folder.filename().native(), m_library.files.size());
            file.view = gDisplayName(entry.path().filename().native());
            file.file = (folder.filename() / entry.path().filename()).native();
            file.format = FormatOfViewFolder(file.view);
            file.isFolder = true;
            file.rank = cnFolderRank;
            m_library.files.push_back(std::move(file));
        });
    }

    /// The shown name; remembers which rows show a name that had to be escaped.
    std::string CellName(const NativeName& native, std::size_t row) {
        std::string name = gDisplayName(native);
        if (fs::path(native) != fs::path(std::u8string(name.begin(), name.end())))
            m_escaped[native].push_back(row);
        return name;
    }

    /// An escaped name may read like another file's real one: they are two cells and must not become one.
    void SeparateEscapedNames() {
        if (m_escaped.empty()) return;
        std::set<std::size_t> escapedRows;
        for (const auto& [native, rows] : m_escaped)
            escapedRows.insert(rows.begin(), rows.end());
        std::set<std::string> taken;
        for (std::size_t row = 0; row < m_library.files.size(); ++row) {
            if (!escapedRows.contains(row)) taken.insert(m_library.files[row].cell);
        }
        for (const auto& [native, rows] : m_escaped) {
            const std::string name =
                gMakeUnique(m_library.files[rows.front()].cell,
                            [&](const std::string& candidate) { return taken.contains(candidate); });
            taken.insert(name);
            for (const std::size_t row : rows)
                m_library.files[row].cell = name;
        }
    }

    void SortAndShadow() {
        std::vector<ViewFile>& files = m_library.files;
        std::sort(files.begin(), files.end(), [](const ViewFile& left, const ViewFile& right) {
            return std::tie(left.cell, left.view, left.rank, left.file) <
                   std::tie(right.cell, right.view, right.rank, right.file);
        });
        std::size_t kept = 0;
        for (std::size_t row = 0; row < files.size(); ++row) {
            const bool isFirst = kept == 0 || files[kept - 1].cell != files[row].cell ||
                                 files[kept - 1].view != files[row].view;
            if (!isFirst) {
                m_library.shadowed.push_back(std::move(files[row]));
            } else {
                if (kept != row) files[kept] = std::move(files[row]);
                ++kept;
            }
        }
        files.erase(files.begin() + static_cast<std::ptrdiff_t>(kept), files.end());
    }

    Library& m_library;
    FolderCells m_folderCells;
    std::map<NativeName, std::vector<std::size_t>> m_escaped;
};

}  // namespace

bool gIsHiddenName(const NativeName& name) {
    return name.empty() || name[0] == NativeName::value_type('.');
}

bool gMayBeView(const NativeName& name) {
    return !gIsHiddenName(name) && FindExtension(name) != nullptr;
}

std::span<const ViewExtension> gViewExtensions() {
    return csViewExtensions;
}

std::span<const ViewFile> Library::Cell(std::string_view cell) const {
    const auto first = std::lower_bound(
        files.begin(), files.end(), cell,
        [](const ViewFile& file, std::string_view wanted) { return std::string_view(file.cell) < wanted; });
    auto last = first;
    while (last != files.end() && last->cell == cell)
        ++last;
    return {first, last};
}

const ViewFile* Library::Find(std::string_view cell, std::string_view view) const {
    for (const ViewFile& file : Cell(cell)) {
        if (file.view == view) return &file;
    }
    return nullptr;
}

Library gScanLibrary(std::string name, const fs::path& folder, FolderCells folderCells) {
    Library library;
    library.name = std::move(name);
    library.folder = folder;
    LibraryScan(library, folderCells).Run();
    return library;
}

}  // namespace navigator

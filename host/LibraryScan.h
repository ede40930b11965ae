#pragma once
/// One folder of cells, read from disk: which views of which cells it has, and in which files. Names only: no
/// file is opened here, and no folder is entered deeper than `library/cell/view`, so that a loop of symbolic
/// links ends where the layout ends.
///
/// A file `inv.sym` is the view "symbol" of the cell "inv"; see gViewExtensions. A folder `inv/layout/` is
/// the view "layout" of the same cell. Names that begin with a dot, and files with another extension, are not
/// design data. If several files claim the same view, the first one in the order of the extension table opens
/// (a folder comes last); the others are kept as shadowed.

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/CellFacts.h"
#include "host/DisplayName.h"

namespace navigator {

/// True for a name that begins with a dot: what bears it is no design data.
bool gIsHiddenName(const NativeName& name);
/// True if a file of this name would be a view, whatever is in it.
bool gMayBeView(const NativeName& name);

/// What a view's file holds.
enum class ViewFormat : unsigned char { Symbol, Schematic, Text, Unknown };

/// An extension of view files and the view that it stands for.
struct ViewExtension {
    std::string_view extension;  ///< With its dot, in lower case; files may use any case.
    std::string_view view;
    ViewFormat format;
};

/// All extensions that make a file a view.
std::span<const ViewExtension> gViewExtensions();

/// One view of one cell.
struct ViewFile {
    std::string cell;  ///< Valid UTF-8.
    std::string view;  ///< Valid UTF-8.
    NativeName file;   ///< Below the library's folder: "inv.sym", or "inv/layout" for the folder form.
    ViewFormat format = ViewFormat::Unknown;
    bool isFolder = false;
    unsigned char rank = 0;  ///< Lower wins among files for the same view.
    /// What has been learnt from the file so far; empty until somebody asks.
    mutable std::unique_ptr<FileFacts> facts;
};

/// One library: a folder of cells.
struct Library {
    std::string name;  ///< Valid UTF-8, unique in its design.
    std::filesystem::path folder;
    bool isReadable = true;
    /// What of the library's folders could not be read: its own, or that of a cell.
    std::vector<std::filesystem::path> unreadable;
    std::vector<ViewFile> files;     ///< In byte order of cell, then view; each pair once.
    std::vector<ViewFile> shadowed;  ///< Further files for pairs that `files` has.
    /// The folders in the library's folder, also those without a view so far.
    std::vector<NativeName> cellFolders;

    /// The views of a cell, an empty range if there is none.
    [[nodiscard]] std::span<const ViewFile> Cell(std::string_view cell) const;
    /// One view; null if there is none.
    [[nodiscard]] const ViewFile* Find(std::string_view cell, std::string_view view) const;
};

/// Whether the folders in a folder are cells. They are not in a design's own folder: there they are
/// libraries.
enum class FolderCells { Yes, No };

/// Reads the folder. One that cannot be read gives a library without cells and with isReadable false.
Library gScanLibrary(std::string name, const std::filesystem::path& folder, FolderCells folderCells);

}  // namespace navigator

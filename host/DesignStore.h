#pragma once
/// The host's design data: the folders that were opened, their libraries, cells and views, and what is known
/// of each view. The navigator asks about a view's state whenever it paints a row, so that every answer here
/// is cheap once it was given. The store does not draw, speaks no Tcl and watches no folder: Rescan is called
/// by who does.
///
/// State comes from the files and from marks that a script sets, a mark outweighing the file:
///
/// | key                          | from the files |
/// |------------------------------|--------------------------------------------------------------------------|
/// | is_fab ... is_vcell          | property `type` of the cell's symbol: fab, stdvia, customvia, guardring,
/// vcell | | is_hiddeninlists             | property `hidden=true` of the cell's symbol | | is_lockedbyuser
/// | the view's file cannot be written                                        | | is_modified, is_reserved |
/// marks alone                                                              | | cache | Cycle: the drawing
/// contains itself; Unresolved: it refers to a symbol that the design does not have, or its file cannot be
/// read; else Normal |
///
/// Properties are read from block K or G of the cell's symbol, and of the view's own file if the cell has no
/// symbol.

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/LibraryScan.h"
#include "host/Symbol.h"

namespace navigator {

/// One opened folder.
struct Design {
    std::string name;  ///< Valid UTF-8, unique in the store.
    std::filesystem::path folder;
    std::vector<Library> libraries;  ///< In byte order of their names.

    [[nodiscard]] const Library* FindLibrary(std::string_view name) const;
};

/// A view that the store has. Valid until the next OpenFolder or Rescan.
struct CellViewRef {
    const Design* design = nullptr;
    const Library* library = nullptr;
    const ViewFile* file = nullptr;

    explicit operator bool() const { return file != nullptr; }
};

/// The states that can be asked of a view.
enum class CellKey {
    IsFab,
    IsStdViaDef,
    IsCustomViaDef,
    IsGuardRing,
    IsVCell,
    IsLockedByUser,
    IsModified,
    IsReserved,
    IsHiddenInLists,
    Cache
};
inline constexpr std::size_t cnCellKeys = 10;

/// Names a view for marks. An empty design means any.
struct CellViewName {
    std::string design;
    std::string library;
    std::string cell;
    std::string view;

    bool operator==(const CellViewName&) const = default;
};

class DesignStore {
public:
    /// Opens a folder as one more design. Gives nothing on success, or else a sentence that says what failed.
    [[nodiscard]] std::optional<std::string> OpenFolder(const std::filesystem::path& folder);

    /// Reads all folders again. True if anything that was shown or answered before may now be different.
    bool Rescan();

    /// A sentence for each folder below the designs that could not be read at the last time.
    [[nodiscard]] std::vector<std::string> Troubles() const;

    const std::vector<Design>& Designs() const { return m_designs; }
    const Design* FindDesign(std::string_view name) const;
    /// An empty reference if the store has no such view (any more).
    CellViewRef Find(std::string_view design, std::string_view library, std::string_view cell,
                     std::string_view view) const;
    /// All files of a view, the one that opens first.
    std::vector<std::filesystem::path> Paths(const CellViewRef& view) const;
    /// The library at the top: named like the design, or else "top"; empty if there is neither.
    static std::string TopLibrary(const Design& design);

    /// The symbol that an instance refers to: `cell`, `cell.sym`, `library/cell` or a longer path, whose last
    /// folder is the library. Without a library, the library of the drawing comes first, then all others in
    /// their order.
    CellViewRef Resolve(const Design& design, const Library& library, std::string_view reference) const;

    /// The drawing in a view's file; null if it cannot be read or holds none. Read again when the file has
    /// changed.
    std::shared_ptr<const Symbol> Load(const CellViewRef& view);

    /// A flag (any key but Cache).
    bool Flag(const CellViewRef& view, CellKey key) const;
    /// "Normal", "Unresolved" or "Cycle", or what a mark says.
    std::string CacheWord(const CellViewRef& view);

    /// Property `type` of the cell's symbol; empty if it has none.
    std::string TypeOf(const CellViewRef& view) const;
    /// The marks of the view's file at the last scan, of a folder those of the drawing in it.
    FileStamp Stamp(const CellViewRef& view) const;

    /// Sets a mark; an empty value takes it away.
    void SetMark(const CellViewName& name, CellKey key, const std::string& value);

    /// Grows when the list of views, or what is hidden in it, may have changed.
    unsigned MembershipChanges() const { return m_membershipChanges; }
    /// Grows when any other state of a view may have changed.
    unsigned StateChanges() const { return m_stateChanges; }

private:
    using Marks = std::array<std::string, cnCellKeys>;
    struct LoadedFile {
        FileStamp stamp;
        std::shared_ptr<const Symbol> symbol;
    };

    FileFacts& FactsOf(const Library& library, const ViewFile& file) const;
    bool IsLocked(const Library& library, const ViewFile& file) const;
    const FileFacts& HeadOf(const CellViewRef& view) const;
    const std::string* FindMark(const CellViewRef& view, CellKey key) const;
    void SettleLinks(const CellViewRef& view);
    void Changed();

    std::vector<Design> m_designs;
    std::unordered_map<std::string, Marks> m_marks;
    std::unordered_map<NativeName, LoadedFile> m_loaded;
    unsigned m_linkGeneration = 1;
    unsigned m_membershipChanges = 0;
    unsigned m_stateChanges = 0;
};

}  // namespace navigator

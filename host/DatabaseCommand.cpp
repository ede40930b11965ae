/// The sub-commands of `database`. Names come in as whole Tcl words, quoted by the host's own hook. Unknown
/// names are not an error in a question about a view: the list may still show a view whose file has just
/// gone, and is told that it is unresolved.

#include "host/DatabaseCommand.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <vector>

#include "host/CellsQuery.h"
#include "host/PathText.h"
#include "host/ViewText.h"

namespace navigator {

namespace {

/// In the order of CellKey.
constexpr std::array<const char*, cnCellKeys + 1> csCellKeys{
    "is_fab",      "is_stdviadef", "is_customviadef",  "is_guardring", "is_vcell", "is_lockedbyuser",
    "is_modified", "is_reserved",  "is_hiddeninlists", "cache",        nullptr};

enum LibraryKey { EditAllowedKey, UnresolvedKey, IconSpaceKey };
constexpr std::array<const char*, 4> csLibraryKeys{"is_edit_allowed", "is_unresolved", "allow_space_for_icon",
                                                   nullptr};

int SetFlag(Tcl_Interp* interp, bool flag) {
    Tcl_SetObjResult(interp, Tcl_NewIntObj(flag ? 1 : 0));
    return TCL_OK;
}

bool IsWritableFolder(const std::filesystem::path& folder) {
    std::error_code error;
    const auto permissions = std::filesystem::status(folder, error).permissions();
    constexpr auto anyWrite = std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                              std::filesystem::perms::others_write;
    if (error || (permissions & anyWrite) == std::filesystem::perms::none) return false;
    const std::string name = gDisplayName(folder.native());
    // A name that is no UTF-8 cannot be put into a QString; the permissions alone must do for it.
    const bool hasPlainName = gPathOf(name) == folder;
    return !hasPlainName || QFileInfo(QString::fromStdString(name)).isWritable();
}

/// What the user sees as the library's path: whole, though the program was started with "." or "../chip".
std::string WholePathOf(const Library& library) {
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(library.folder, error);
    return gDisplayName(error ? library.folder.native() : whole.native());
}

bool IsUnresolved(const Library& library) {
    std::error_code error;
    return !library.isReadable || !std::filesystem::is_directory(library.folder, error);
}

}  // namespace

const SubCommandRow<DatabaseCommand> DatabaseCommand::csSubCommands[] = {
    {{"all_libs", "database all_libs",
      "List of designs; each is its name and then pairs of library name and folder."},
     0,
     0,
     &DatabaseCommand::AllLibs},
    {{"cells",
      "database cells -lcv -library DESIGN ?-count? ?-filter TEXT? ?-showhiddencells? ?-showvias? "
      "?-libraries NAMES? ?-views NAMES? ?-tab N? ?-showexcluded?",
      "List of {library cell view}; with -count their number, whatever the filter type. TEXT is one of All, "
      "Symbols, Schematics, Layouts, HDL, Netlists, Modified, Reserved, Locked, Unresolved, and needs no "
      "quotes. Views that the user leaves out by name are in the answer with -showexcluded alone."},
     0,
     -1,
     &DatabaseCommand::Cells},
    {{"cellviewinfo", "database cellviewinfo KEY DESIGN LIBRARY CELL VIEW",
      "State of a view. KEY: is_fab, is_stdviadef, is_customviadef, is_guardring, is_vcell (property type of "
      "the cell's symbol), is_hiddeninlists (property hidden), is_lockedbyuser (file not writable), "
      "is_modified, "
      "is_reserved (set by script) give 0 or 1; cache gives Normal, Unresolved or Cycle."},
     5,
     5,
     &DatabaseCommand::CellViewInfo},
    {{"filter", "database filter ?TEXT?",
      "1 if what has changed since the last list of cells may change that list under the filter type TEXT, "
      "else "
      "0."},
     0,
     -1,
     &DatabaseCommand::Filter},
    {{"help", "database help", "This text."}, 0, 0, &DatabaseCommand::PrintHelp},
    {{"libraryinfo", "database libraryinfo KEY LIBRARY",
      "0 or 1. KEY: is_edit_allowed (the folder can be written), is_unresolved (it cannot be read), "
      "allow_space_for_icon (always 1)."},
     2,
     2,
     &DatabaseCommand::LibraryInfo},
    {{"open", "database open FOLDER",
      "Opens a folder of libraries as one more design and gives the design's name."},
     1,
     1,
     &DatabaseCommand::Open},
    {{"rescan", "database rescan", "Reads the folders again; 1 if something has changed, else 0."},
     0,
     0,
     &DatabaseCommand::Rescan},
    {{"select", "database select ?LIBRARY CELL VIEW?",
      "Makes a view the selected master; without arguments there is none."},
     0,
     3,
     &DatabaseCommand::Select},
    {{"selected_master", "database selected_master",
      "The selected master as {library cell view}, or nothing."},
     0,
     0,
     &DatabaseCommand::SelectedMasterList},
    {{"set", "database set KEY ?DESIGN? LIBRARY CELL VIEW VALUE",
      "Marks a view: KEY as in cellviewinfo, VALUE 0 or 1 (for cache any word), or empty to take the mark "
      "away. "
      "Without DESIGN the mark holds in every design."},
     5,
     6,
     &DatabaseCommand::SetMark},
    {{"top_level", "database top_level DESIGN",
      "The design's top library: the one named like the design, or else \"top\"; empty if there is neither."},
     1,
     1,
     &DatabaseCommand::TopLevel},
    {{"viewtext", "database viewtext KEY DESIGN LIBRARY CELL VIEW",
      "A text about a view, good for a column. KEY: bytes (size of the file), changed (when it was written), "
      "path, state (words such as Modified, Reserved, Locked, Unresolved; empty if there is nothing to "
      "tell), type (property of the cell's symbol)."},
     5,
     5,
     &DatabaseCommand::ViewText},
    {{nullptr, nullptr, nullptr}, 0, 0, nullptr}};

DatabaseCommand::DatabaseCommand(Tcl_Interp* interp, DesignStore& store)
    : m_store(store), m_command(interp, "database", [this](Tcl_Interp* caller, TclWords words) {
          return gDispatch(*this, csSubCommands, caller, words);
      }) {}

std::span<const CommandHelp> DatabaseCommand::Help() {
    static const std::vector<CommandHelp> help = gHelpOf(csSubCommands);
    return help;
}

void DatabaseCommand::Notify(DatabaseChange change) const {
    if (m_changed) m_changed(change);
}

int DatabaseCommand::AllLibs(Tcl_Interp* interp, TclWords) {
    Tcl_Obj* const designs = Tcl_NewListObj(0, nullptr);
    for (const Design& design : m_store.Designs()) {
        Tcl_Obj* const entry = Tcl_NewListObj(0, nullptr);
        Tcl_ListObjAppendElement(nullptr, entry, gTclText(design.name));
        for (const Library& library : design.libraries) {
            Tcl_Obj* const pair[2] = {gTclText(library.name), gTclText(WholePathOf(library))};
            Tcl_ListObjAppendElement(nullptr, entry, Tcl_NewListObj(2, pair));
        }
        Tcl_ListObjAppendElement(nullptr, designs, entry);
    }
    Tcl_SetObjResult(interp, designs);
    return TCL_OK;
}

int DatabaseCommand::Cells(Tcl_Interp* interp, TclWords words) {
    CellsQuery query;
    int code = gParseCellsQuery(interp, words, query);
    if (code != TCL_OK) return code;
    if (m_excludedViews) query.excludedViews = gReadExcludedViews(m_excludedViews());
    code = gAnswerCellsQuery(interp, m_store, query);
    if (code == TCL_OK && !query.isCount) {
        m_listedMembership = m_store.MembershipChanges();
        m_listedState = m_store.StateChanges();
    }
    return code;
}

int DatabaseCommand::CellViewInfo(Tcl_Interp* interp, TclWords words) {
    int index = 0;
    const int code = Tcl_GetIndexFromObj(interp, words[0], csCellKeys.data(), "key", TCL_EXACT, &index);
    if (code != TCL_OK) return code;
    const CellViewRef view =
        m_store.Find(gTextOf(words[1]), gTextOf(words[2]), gTextOf(words[3]), gTextOf(words[4]));
    const auto key = static_cast<CellKey>(index);
    if (key != CellKey::Cache) return SetFlag(interp, m_store.Flag(view, key));
    Tcl_SetObjResult(interp, gTclText(m_store.CacheWord(view)));
    return TCL_OK;
}

int DatabaseCommand::Filter(Tcl_Interp* interp, TclWords words) {
    std::string text;
    for (Tcl_Obj* const word : words) {
        if (!text.empty()) text += ' ';
        text += gTextOf(word);
    }
    const bool isMembershipNew = m_store.MembershipChanges() != m_listedMembership;
    const bool isStateNew = m_store.StateChanges() != m_listedState;
    return SetFlag(interp, isMembershipNew || (isStateNew && gFindFilterType(text).dependsOnState));
}

int DatabaseCommand::LibraryInfo(Tcl_Interp* interp, TclWords words) {
    int index = 0;
    const int code = Tcl_GetIndexFromObj(interp, words[0], csLibraryKeys.data(), "key", TCL_EXACT, &index);
    if (code != TCL_OK) return code;
    if (index == IconSpaceKey) return SetFlag(interp, true);
    const Library* library = nullptr;
    for (const Design& design : m_store.Designs()) {
        if (library == nullptr) library = design.FindLibrary(gTextOf(words[1]));
    }
    const bool isUnresolved = library == nullptr || IsUnresolved(*library);
    if (index == UnresolvedKey) return SetFlag(interp, isUnresolved);
    return SetFlag(interp, !isUnresolved && IsWritableFolder(library->folder));
}

int DatabaseCommand::Open(Tcl_Interp* interp, TclWords words) {
    if (const std::optional<std::string> failure = m_store.OpenFolder(gPathOf(gTextOf(words[0]))))
        return gTclFailure(interp, *failure);
    Tcl_SetObjResult(interp, gTclText(m_store.Designs().back().name));
    Notify(DatabaseChange::Libraries);
    return TCL_OK;
}

int DatabaseCommand::PrintHelp(Tcl_Interp* interp, TclWords) {
    Tcl_SetObjResult(interp, gTclText(gDescribe(Help())));
    return TCL_OK;
}

int DatabaseCommand::Rescan(Tcl_Interp* interp, TclWords) {
    const bool isChanged = m_store.Rescan();
    SetFlag(interp, isChanged);
    if (isChanged) Notify(DatabaseChange::Libraries);
    return TCL_OK;
}

int DatabaseCommand::Select(Tcl_Interp* interp, TclWords words) {
    if (words.empty()) {
        m_selectedMaster.reset();
    } else if (words.size() == 3) {
        m_selectedMaster = CellViewName{"", std::string(gTextOf(words[0])), std::string(gTextOf(words[1])),
                                        std::string(gTextOf(words[2]))};
    } else {
        return gTclFailure(interp, "wrong # args: should be \"database select ?LIBRARY CELL VIEW?\"");
    }
    Notify(DatabaseChange::SelectedMaster);
    return TCL_OK;
}

int DatabaseCommand::SelectedMasterList(Tcl_Interp* interp, TclWords) {
    if (!m_selectedMaster) return TCL_OK;
    Tcl_Obj* const triple[3] = {gTclText(m_selectedMaster->library), gTclText(m_selectedMaster->cell),
                                gTclText(m_selectedMaster->view)};
    Tcl_SetObjResult(interp, Tcl_NewListObj(3, triple));
    return TCL_OK;
}

int DatabaseCommand::SetMark(Tcl_Interp* interp, TclWords words) {
    int index = 0;
    const int code = Tcl_GetIndexFromObj(interp, words[0], csCellKeys.data(), "key", TCL_EXACT, &index);
    if (code != TCL_OK) return code;
    const auto key = static_cast<CellKey>(index);
    std::string value(gTextOf(words.back()));
    if (key != CellKey::Cache && !value.empty()) {
        int flag = 0;
        if (Tcl_GetBooleanFromObj(interp, words.back(), &flag) != TCL_OK) return TCL_ERROR;
        value = flag != 0 ? "1" : "0";
    }
    const bool hasDesign = words.size() == 6;
    const TclWords names = words.subspan(hasDesign ? 2 : 1, 3);
    m_store.SetMark(
        {hasDesign ? std::string(gTextOf(words[1])) : std::string(), std::string(gTextOf(names[0])),
         std::string(gTextOf(names[1])), std::string(gTextOf(names[2]))},
        key, value);
    Notify(DatabaseChange::CellState);
    return TCL_OK;
}

int DatabaseCommand::TopLevel(Tcl_Interp* interp, TclWords words) {
    const Design* const design = m_store.FindDesign(gTextOf(words[0]));
    if (design != nullptr) Tcl_SetObjResult(interp, gTclText(DesignStore::TopLibrary(*design)));
    return TCL_OK;
}

int DatabaseCommand::ViewText(Tcl_Interp* interp, TclWords words) {
    const std::optional<ViewTextKey> key = gFindViewTextKey(gTextOf(words[0]));
    if (!key)
        return gTclFailure(interp, "bad key \"" + std::string(gTextOf(words[0])) +
                                       "\": must be bytes, changed, path, state, or type");
    const CellViewRef view =
        m_store.Find(gTextOf(words[1]), gTextOf(words[2]), gTextOf(words[3]), gTextOf(words[4]));
    Tcl_SetObjResult(interp, gTclText(gViewText(m_store, view, *key)));
    return TCL_OK;
}

}  // namespace navigator

/// The sub-commands of `cell`. While a question is open, the store may be read again: views are held by their
/// names beyond it.

#include "host/CellCommand.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

#include "host/Hierarchy.h"
#include "host/LibraryText.h"
#include "host/Reservation.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/toolkit/Clipboard.h"

namespace navigator {

using vapp_library_browser::TLibCellView;

namespace {

TLibCellView KeyOf(const std::string& library, const std::string& cell, const std::string& view) {
    return {gLibraryText(library), gLibraryText(cell), gLibraryText(view)};
}

std::string Joined(const CellViewName& name) {
    return name.library + " / " + name.cell + " / " + name.view;
}

/// "1 view", "2 views".
std::string Counted(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " view" : " views");
}

constexpr std::array<prefs::TAskReserveOption, 3> cnOptions{prefs::AskAlways, prefs::AskNever,
                                                            prefs::AskManagedCellsOnly};

}  // namespace

const SubCommandRow<CellCommand> CellCommand::csSubCommands[] = {
    {{"askreserve", "cell askreserve ?OPTION?",
      "When the user is asked before cells are reserved: Always, Never, or {Managed Cells Only}, those of "
      "libraries under the control of versions. Gives the option."},
     0,
     1,
     &CellCommand::AskReserve},
    {{"copyfiles", "cell copyfiles DESIGN ?-lcvs? VIEWS",
      "Copies the paths of the views' files to the clipboard, one a line. VIEWS is a list of {LIBRARY CELL "
      "VIEW}, here and below."},
     2,
     3,
     &CellCommand::CopyFiles},
    {{"hide", "cell hide DESIGN ?-lcvs? VIEWS",
      "Marks views as hidden in lists, in this run and the next ones. They show with \"Show Hidden Cells\"."},
     2,
     3,
     &CellCommand::Hide},
    {{"open", "cell open DESIGN LIBRARY CELL VIEW",
      "Shows the file of a view as text, which can't be changed."},
     1,
     4,
     &CellCommand::Open},
    {{"release", "cell release DESIGN ?-lcvs? VIEWS", "Gives reserved views back."},
     2,
     3,
     &CellCommand::Release},
    {{"reserve", "cell reserve DESIGN ?-lcvs? VIEWS",
      "Reserves views, in this run and the next ones, if the user doesn't say no; see askreserve."},
     2,
     3,
     &CellCommand::Reserve},
    {{"selecthierarchy", "cell selecthierarchy DESIGN LIBRARY CELL VIEW",
      "Selects in the list, beside what is selected already, all that the view's schematic instantiates, and "
      "what stands below that. Gives how many views are below."},
     1,
     4,
     &CellCommand::SelectHierarchy},
    {{"unhide", "cell unhide DESIGN ?-lcvs? VIEWS",
      "Takes views out of hiding, also those that their files hide."},
     2,
     3,
     &CellCommand::Unhide},
    {{"unhideall", "cell unhideall DESIGN ?-libraries LIBRARIES?",
      "Takes all views out of hiding that were marked by hide, or those of some libraries. Gives their "
      "number."},
     1,
     3,
     &CellCommand::UnhideAll},
    {{nullptr, nullptr, nullptr}, 0, 0, nullptr}};

CellCommand::CellCommand(Tcl_Interp* interp, const TParts& parts, std::function<void(DatabaseChange)> changed)
    : m_parts(parts),
      m_changed(std::move(changed)),
      m_marks(parts.app, parts.store),
      m_command(interp, "cell", [this](Tcl_Interp* caller, TclWords words) {
          return gDispatch(*this, csSubCommands, caller, words);
      }) {}

std::span<const CommandHelp> CellCommand::Help() {
    static const std::vector<CommandHelp> help = gHelpOf(csSubCommands);
    return help;
}

void CellCommand::RestoreMarks() {
    for (const Design& design : m_parts.store.Designs()) {
        if (!m_restored.insert(design.name).second) continue;
        m_marks.Restore(design);
        ShowReserved(m_marks.Marked(design, CellKey::IsReserved), true);
    }
}

void CellCommand::TellReserved() {
    for (const Design& design : m_parts.store.Designs())
        ShowReserved(m_marks.Marked(design, CellKey::IsReserved), true);
}

// A command of the menu comes without a cell where none has the focus.
int CellCommand::FindView(Tcl_Interp* interp, TclWords words, CellViewRef& view) const {
    if (words.size() != 4) return gTclFailure(interp, "no cell has the focus");
    view = m_parts.store.Find(gTextOf(words[0]), gTextOf(words[1]), gTextOf(words[2]), gTextOf(words[3]));
    if (view) return TCL_OK;
    return gTclFailure(interp, "there is no view " +
                                   Joined({"", std::string(gTextOf(words[1])), std::string(gTextOf(words[2])),
                                           std::string(gTextOf(words[3]))}));
}

int CellCommand::ReadViews(Tcl_Interp* interp, TclWords words, std::vector<CellViewName>& views) const {
    if (words.size() == 3 && gTextOf(words[1]) != "-lcvs")
        return gTclFailure(interp, "the only option is -lcvs");
    const std::string design(gTextOf(words[0]));
    int count = 0;
    Tcl_Obj** elements = nullptr;
    const int code = Tcl_ListObjGetElements(interp, words.back(), &count, &elements);
    if (code != TCL_OK) return code;
    for (Tcl_Obj* const element : std::span(elements, static_cast<std::size_t>(count))) {
        int length = 0;
        Tcl_Obj** names = nullptr;
        if (Tcl_ListObjGetElements(nullptr, element, &length, &names) != TCL_OK || length != 3)
            return gTclFailure(interp, "not a view: \"" + std::string(gTextOf(element)) + "\"");
        views.push_back({design, std::string(gTextOf(names[0])), std::string(gTextOf(names[1])),
                         std::string(gTextOf(names[2]))});
        const CellViewName& view = views.back();
        if (!m_parts.store.Find(design, view.library, view.cell, view.view))
            return gTclFailure(interp, "there is no view " + Joined(view));
    }
    return TCL_OK;
}

int CellCommand::AskReserve(Tcl_Interp* interp, TclWords words) {
    if (!words.empty()) {
        const auto* const option =
            std::find_if(cnOptions.begin(), cnOptions.end(), [&](prefs::TAskReserveOption known) {
                return gTextOf(words[0]) == std::string_view(gAskReserveText(known).Payload());
            });
        if (option == cnOptions.end())
            return gTclFailure(interp, "the options are Always, Never and {Managed Cells Only}");
        gSetAskReserveOption(m_parts.app, *option);
    }
    Tcl_SetObjResult(interp, gTclText(gAskReserveText(gAskReserveOption(m_parts.app)).Payload()));
    return TCL_OK;
}

int CellCommand::CopyFiles(Tcl_Interp* interp, TclWords words) {
    std::vector<CellViewName> views;
    if (ReadViews(interp, words, views) != TCL_OK) return TCL_ERROR;
    std::string text;
    for (const CellViewName& name : views) {
        const CellViewRef view = m_parts.store.Find(name.design, name.library, name.cell, name.view);
        for (const std::filesystem::path& path : m_parts.store.Paths(view))
            text += gDisplayName(path.native()) + '\n';
    }
    if (!text.empty() && !SetClipboardText(gLibraryText(text)))
        return gTclFailure(interp, "the clipboard can't be written");
    return TCL_OK;
}

int CellCommand::Open(Tcl_Interp* interp, TclWords words) {
    CellViewRef view;
    if (FindView(interp, words, view) != TCL_OK) return TCL_ERROR;
    if (!m_open) return gTclFailure(interp, "there is no window to show it");
    const CellViewName name{view.design->name, view.library->name, view.file->cell, view.file->view};
    m_open(name, m_parts.store.Paths(view).front());
    return TCL_OK;
}

int CellCommand::SetHidden(Tcl_Interp* interp, TclWords words, bool isHidden) {
    std::vector<CellViewName> views;
    if (ReadViews(interp, words, views) != TCL_OK) return TCL_ERROR;
    Mark(views, CellKey::IsHiddenInLists, isHidden);
    return TCL_OK;
}

int CellCommand::UnhideAll(Tcl_Interp* interp, TclWords words) {
    const Design* const design = m_parts.store.FindDesign(gTextOf(words[0]));
    if (design == nullptr) return gTclFailure(interp, "no such design is open");
    std::optional<std::set<std::string>> libraries;
    if (words.size() > 1) {
        int count = 0;
        Tcl_Obj** names = nullptr;
        if (words.size() != 3 || gTextOf(words[1]) != "-libraries")
            return gTclFailure(interp, "the only option is -libraries LIBRARIES");
        if (Tcl_ListObjGetElements(interp, words[2], &count, &names) != TCL_OK) return TCL_ERROR;
        libraries.emplace();
        for (Tcl_Obj* const name : std::span(names, static_cast<std::size_t>(count)))
            libraries->insert(std::string(gTextOf(name)));
    }
    std::vector<CellViewName> views = m_marks.Marked(*design, CellKey::IsHiddenInLists);
    std::erase_if(views,
                  [&](const CellViewName& view) { return libraries && !libraries->contains(view.library); });
    Mark(views, CellKey::IsHiddenInLists, false);
    Tcl_SetObjResult(interp, Tcl_NewWideIntObj(static_cast<Tcl_WideInt>(views.size())));
    return TCL_OK;
}

int CellCommand::Reserve(Tcl_Interp* interp, TclWords words) {
    std::vector<CellViewName> views;
    if (ReadViews(interp, words, views) != TCL_OK) return TCL_ERROR;
    if (views.empty()) return TCL_OK;
    std::set<const Library*> libraries;
    for (const CellViewName& name : views)
        libraries.insert(m_parts.store.Find(name.design, name.library, name.cell, name.view).library);
    const bool isManaged = std::any_of(libraries.begin(), libraries.end(), [](const Library* library) {
        return gIsManagedFolder(library->folder);
    });
    if (!gMayReserve(isManaged, gAskReserveOption(m_parts.app))) {
        Tell("Not reserved.");
        return TCL_OK;
    }
    Mark(views, CellKey::IsReserved, true);
    ShowReserved(views, true);
    Tell("Reserved: " + (views.size() == 1 ? Joined(views.front()) : Counted(views.size())) + ".");
    return TCL_OK;
}

int CellCommand::Release(Tcl_Interp* interp, TclWords words) {
    std::vector<CellViewName> views;
    if (ReadViews(interp, words, views) != TCL_OK) return TCL_ERROR;
    Mark(views, CellKey::IsReserved, false);
    ShowReserved(views, false);
    return TCL_OK;
}

void CellCommand::Mark(const std::vector<CellViewName>& views, CellKey key, bool isWanted) {
    if (!m_marks.Set(views, key, isWanted))
        Tell("The next run will know " + std::to_string(KeptMarks::cnMostKept) +
             " of these marks, not more.");
    if (m_changed) m_changed(DatabaseChange::CellState);
}

void CellCommand::ShowReserved(const std::vector<CellViewName>& views, bool isReserved) {
    for (const CellViewName& view : views)
        m_parts.browser.SetOaViewReserved(KeyOf(view.library, view.cell, view.view), isReserved);
}

int CellCommand::SelectHierarchy(Tcl_Interp* interp, TclWords words) {
    CellViewRef start;
    if (FindView(interp, words, start) != TCL_OK) return TCL_ERROR;
    const std::string cell = start.file->cell;
    const Hierarchy below = gHierarchyBelow(m_parts.store, start);
    std::set<TLibCellView> wanted;
    for (const CellViewRef& view : below.views)
        wanted.insert(KeyOf(view.library->name, view.file->cell, view.file->view));
    m_parts.browser.AddToCellListSelections(wanted);
    const std::vector<TLibCellView> selected = m_parts.browser.GetSelectedCells();
    const auto shown = std::count_if(selected.begin(), selected.end(),
                                     [&](const TLibCellView& view) { return wanted.contains(view); });
    std::string sentence = "Below " + cell + ": " + Counted(wanted.size()) + ", " + std::to_string(shown) +
                           " of them in the list";
    if (below.missing > 0) {
        sentence += "; " + std::to_string(below.missing) +
                    (below.missing == 1 ? " reference leads nowhere" : " references lead nowhere");
    }
    Tell(sentence + ".");
    Tcl_SetObjResult(interp, Tcl_NewWideIntObj(static_cast<Tcl_WideInt>(wanted.size())));
    return TCL_OK;
}

}  // namespace navigator

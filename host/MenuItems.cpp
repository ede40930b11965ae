/// Words, grouping, and the calls of the library.

#include "host/MenuItems.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/LibraryText.h"
#include "host/TclList.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"

namespace navigator {

using namespace vapp_library_browser;

namespace {

constexpr std::array<std::pair<std::string_view, TMenuPlace>, 3> csPlaces{
    {{"cells", TMenuPlace::Cells}, {"libraries", TMenuPlace::Libraries}, {"tabs", TMenuPlace::Tabs}}};

constexpr std::array<MenuStyle, 8> csStyles{{
    {"command", StyleCommandOnly, true, true},
    {"focused", StyleFocusedLcv, true, false},
    {"selected", StyleSelectedLcvs, true, false},
    {"master", StyleMasterCell, true, false},
    {"cellview", StyleCellLibraryView, true, false},
    {"cell", StyleLibraryCell, true, false},
    {"builtin", StyleBuiltIn, false, true},
    {"libraries", StyleSelectedLibraries, false, true},
}};

CString CaptionOf(const std::string& utf8) {
    return gLibraryText(utf8).ToAnsi();
}

/// The operations of one list's menu.
struct MenuSink {
    void (TLibraryBrowser::*add)(const CString&, const CStringU&, TLibraryBrowserTclInterfaceStyle, bool,
                                 bool, bool);
    void (TLibraryBrowser::*separate)();  ///< null: the menu has no separators
    void (TLibraryBrowser::*begin)(const CString&);
    void (TLibraryBrowser::*end)();
};

constexpr MenuSink cnCellSink{&TLibraryBrowser::AddCellListMenuCommand,
                              &TLibraryBrowser::AddCellListMenuSeparator,
                              &TLibraryBrowser::BeginCellListSubmenu, &TLibraryBrowser::EndCellListSubmenu};
constexpr MenuSink cnLibrarySink{&TLibraryBrowser::AddLibraryListMenuCommand, nullptr,
                                 &TLibraryBrowser::BeginLibraryListSubmenu,
                                 &TLibraryBrowser::EndLibraryListSubmenu};

void Add(TLibraryBrowser& browser, const MenuSink& sink, const MenuItem& item) {
    if (!item.isSeparator) {
        (browser.*sink.add)(CaptionOf(item.text), gLibraryText(item.command), item.style, item.isDisabled,
                            item.isChecked, item.isDefault);
    } else if (sink.separate != nullptr) {
        (browser.*sink.separate)();
    }
}

void AddAll(TLibraryBrowser& browser, const MenuSink& sink, std::span<const MenuItem> items) {
    std::vector<std::string_view> done;
    for (const MenuItem& first : items) {
        if (first.subMenu.empty()) {
            Add(browser, sink, first);
            continue;
        }
        if (std::find(done.begin(), done.end(), first.subMenu) != done.end()) continue;
        done.emplace_back(first.subMenu);
        (browser.*sink.begin)(CaptionOf(first.subMenu));
        for (const MenuItem& item : items)
            if (item.subMenu == first.subMenu) Add(browser, sink, item);
        (browser.*sink.end)();
    }
}

/// Whether the name, in quotes within braces, is one element of a list and nothing else.
bool IsSafeInQuotes(const CStringU& name) {
    return std::string_view(name.Payload()).find_first_of("{}\"\\") == std::string_view::npos;
}

/// Of more selected views than these the rest is not looked at: a menu should come at once.
constexpr int cnMostChecked = 10'000;

/// The only word of a list, if it has one and no more.
std::optional<std::string> OnlyWord(const std::string& list) {
    const std::vector<std::string> words = gWordsOfList(list);
    return words.size() == 1 ? std::optional(words.front()) : std::nullopt;
}

/// Whether a command that reads the list of the selected views as lists finds the three names of this one:
/// they stand in quotes within braces, each as the hook has made it a word.
bool ArrivesInList(const TLibCellView& view) {
    const std::array<const CStringU*, 3> names{&view.library, &view.cell, &view.view};
    if (std::all_of(names.begin(), names.end(), [](const CStringU* name) { return IsSafeInQuotes(*name); }))
        return true;
    std::string words;
    std::vector<std::string> wanted;
    for (const CStringU* name : names) {
        words.append(words.empty() ? "" : " ").append(SanitizeTclInput(*name).Payload());
        wanted.emplace_back(name->Payload());
    }
    const std::optional<std::string> list = OnlyWord("{ \"" + words + "\" }");
    const std::optional<std::string> element = list ? OnlyWord(*list) : std::nullopt;
    return element && gWordsOfList(*element) == wanted;
}

bool DoSelectedArrive(const TLibraryBrowser& browser) {
    const TCellListView* const pane = browser.GetCellListView();
    if (pane == nullptr) return true;
    int checked = 0;
    for (const TLibCellView& view : pane->GetSelectedCells()) {
        if (!ArrivesInList(view)) return false;
        if (++checked == cnMostChecked) break;
    }
    return true;
}

/// The items, those of a style greyed unless the names that they would tell arrive.
std::vector<MenuItem> GreyedUnless(bool doArrive, std::span<const MenuItem> items,
                                   TLibraryBrowserTclInterfaceStyle style) {
    std::vector<MenuItem> shown(items.begin(), items.end());
    for (MenuItem& item : shown)
        if (item.style == style && !doArrive) item.isDisabled = true;
    return shown;
}

}  // namespace

std::optional<TMenuPlace> gMenuPlaceOf(std::string_view word) {
    for (const auto& [known, place] : csPlaces)
        if (known == word) return place;
    return std::nullopt;
}

std::span<const MenuStyle> gMenuStyles() {
    return csStyles;
}

const MenuStyle* gFindMenuStyle(TMenuPlace place, std::string_view word) {
    for (const MenuStyle& style : csStyles) {
        const bool isHere = (place == TMenuPlace::Cells && style.isForCells) ||
                            (place == TMenuPlace::Libraries && style.isForLibraries);
        if (isHere && style.word == word) return &style;
    }
    return nullptr;
}

void gAddCellItems(TLibraryBrowser& browser, std::span<const MenuItem> items) {
    AddAll(browser, cnCellSink, GreyedUnless(DoSelectedArrive(browser), items, StyleSelectedLcvs));
}

void gAddLibraryItems(TLibraryBrowser& browser, std::span<const MenuItem> items) {
    const std::set<CStringIU> selected = browser.GetSelectedLibrariesSet();
    const bool isSafe = std::all_of(selected.begin(), selected.end(), IsSafeInQuotes);
    AddAll(browser, cnLibrarySink, GreyedUnless(isSafe, items, StyleSelectedLibraries));
}

std::vector<std::string> gAddTabItems(TLibraryBrowser& browser, std::span<const MenuItem> items) {
    std::vector<std::string> commands;
    for (const MenuItem& item : items) {
        if (item.isSeparator) {
            browser.AddCellTabsMenuSeparator();
        } else {
            browser.AddCellTabsMenuItem(CaptionOf(item.text), item.isChecked);
        }
        commands.push_back(item.isSeparator ? std::string() : item.command);
    }
    return commands;
}

}  // namespace navigator

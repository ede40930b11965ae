/// Words, grouping, and the calls of the library.

#include "host/MenuItems.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/LibraryText.h"
#include "vapp/browser/TLibraryBrowser.h"

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
    AddAll(browser, cnCellSink, items);
}

void gAddLibraryItems(TLibraryBrowser& browser, std::span<const MenuItem> items) {
    const std::set<CStringIU> selected = browser.GetSelectedLibrariesSet();
    const bool isSafe = std::all_of(selected.begin(), selected.end(), IsSafeInQuotes);
    std::vector<MenuItem> shown(items.begin(), items.end());
    for (MenuItem& item : shown)
        if (item.style == StyleSelectedLibraries && !isSafe) item.isDisabled = true;
    AddAll(browser, cnLibrarySink, shown);
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

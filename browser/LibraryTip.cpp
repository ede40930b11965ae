/// @file
/// The tip of the library list: the path of the library under the pointer, also shown as the host's status
/// text until the pointer has left the rows.
///
/// The surprise: a path is made canonical before its "/" become "\", so ".." between "/" stays.
#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "text/PlatformPaths.h"
#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryListCtrl.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/toolkit/Peer.h"

namespace vapp_library_browser {

namespace {

// As the system's own operation takes them, its closing NUL included.
constexpr int cnMaxPath = 260;
// Longer tips are cut; a reader of the old form has no more room.
constexpr std::size_t cnMaxTipUnits = 2047;

std::vector<std::string> PartsOf(std::string_view path) {
    std::vector<std::string> parts;
    std::size_t at = 0;
    for (std::size_t end = path.find('\\'); end != std::string_view::npos; end = path.find('\\', at)) {
        parts.emplace_back(path.substr(at, end - at));
        at = end + 1;
    }
    parts.emplace_back(path.substr(at));
    return parts;
}

bool IsDrive(std::string_view part) {
    return part.size() == 2 && part.back() == ':';
}

// Without "." and ".." between "\"; above a root there is nothing.
CStringU CanonicalPath(const CStringU& path) {
    const std::string_view text = path.PayloadView();
    // NATIVE: the system's operation counts bytes of the active code page.
    if (text.empty() || path.ToAnsi().GetLength() >= cnMaxPath) return path;
    std::vector<std::string> kept;
    for (std::string& part : PartsOf(text)) {
        const bool rooted = !kept.empty() && (kept.front().empty() || IsDrive(kept.front()));
        if (part == ".." && kept.size() > (rooted ? 1U : 0U)) {
            kept.pop_back();
        } else if (part != "." && part != "..") {
            kept.push_back(std::move(part));
        }
    }
    std::string joined;
    for (const std::string& part : kept)
        joined.append(joined.empty() && &part == kept.data() ? "" : "\\").append(part);
    if (joined.empty() || IsDrive(joined)) joined += '\\';
    return {joined.c_str(), TextEncoding::Utf8Auto};
}

CStringU Cut(const CStringU& text) {
    const std::u16string units = text.ToWide();
    if (units.size() <= cnMaxTipUnits) return text;
    // Half of a character would be shown as a broken one.
    const bool splits = (units[cnMaxTipUnits - 1] & 0xFC00U) == 0xD800U;
    return CStringU(std::u16string_view(units).substr(0, cnMaxTipUnits - (splits ? 1 : 0)));
}

void ShowStatus(const CStringU* text) {
    AskMainWindow(WM_LN_HOSTNOTIFY, cnNotifyStatusText, reinterpret_cast<LPARAM>(text));
}

}  // namespace

int TLibraryListCtrl::RowUnderCursor() const {
    const PeerFactory* factory = PeerFactory::Installed();
    return factory != nullptr && IsWindow() ? HitTest(ScreenToClient(factory->CursorPosition())) : -1;
}

std::optional<CStringU> TLibraryListCtrl::OnToolTipNotify() {
    auto* view = dynamic_cast<TLibraryView*>(GetParent());
    const int row = RowUnderCursor();
    if (view == nullptr || row < 0) return std::nullopt;
    const HostCallScope scope;
    const CStringU path = view->GetAbsoluteLibraryPath(GetItemText(row));
    // A host may not know where a library is, and an empty tip would tell nothing.
    if (path.IsEmpty()) {
        ClearStatus();
        return std::nullopt;
    }
    const CStringU tip = vapp_platform::PathForPeople(CanonicalPath(path));
    m_tipTimerRuns = true;
    ShowStatus(&tip);
    return Cut(tip);
}

void TLibraryListCtrl::ClearStatus() {
    if (!std::exchange(m_tipTimerRuns, false)) return;
    const HostCallScope scope;
    ShowStatus(nullptr);
}

// The host would show the path for ever: nobody looks at the pointer any more.
void TLibraryListCtrl::OnDestroy() {
    ClearStatus();
    CListCtrl::OnDestroy();
}

void TLibraryListCtrl::OnTipTimer() {
    if (RowUnderCursor() < 0) ClearStatus();
}

}  // namespace vapp_library_browser

/// Settings, folders, and the call that asks.

#include "host/Reservation.h"

#include <algorithm>
#include <array>

#include "vapp/app/TAllowAskReserveGuard.h"
#include "vapp/app/TPreferenceMgr.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

namespace fs = std::filesystem;

namespace {

constexpr char csPreferencesSection[] = "Preferences";
constexpr char csAskReserve[] = "AskReserve";
/// What systems that control versions put into a folder.
constexpr std::array<const char*, 5> csMetadata{".git", ".svn", ".hg", ".bzr", "CVS"};

}  // namespace

prefs::TAskReserveOption gAskReserveOption(const CWinAppEx& app) {
    const CString kept = app.GetProfileString(csPreferencesSection, csAskReserve);
    return kept.IsEmpty() ? prefs::AskManagedCellsOnly
                          : prefs::gConvertStringToEnum({kept.GetString(), TextEncoding::Utf8Auto});
}

void gSetAskReserveOption(CWinAppEx& app, prefs::TAskReserveOption option) {
    app.WriteProfileString(csPreferencesSection, csAskReserve, gAskReserveText(option).Payload());
}

const CStringU& gAskReserveText(prefs::TAskReserveOption option) {
    switch (option) {
        case prefs::AskAlways:
            return prefs::csAlways;
        case prefs::AskManagedCellsOnly:
            return prefs::csManagedCellsOnly;
        default:
            return prefs::csNever;
    }
}

bool gIsManagedFolder(const fs::path& folder) {
    std::error_code error;
    fs::path at = fs::weakly_canonical(folder, error);
    if (error || at.empty()) return false;
    for (;;) {
        for (const char* name : csMetadata)
            if (fs::exists(at / name, error)) return true;
        if (!at.has_relative_path()) return false;
        at = at.parent_path();
    }
}

bool gMayReserve(bool isManaged, prefs::TAskReserveOption option) {
    const prefs::TAllowAskReserveGuard isAllowed;
    return prefs::TPreferenceMgr::GetInstance().AskReserve(isManaged, option) != prefs::Declined;
}

}  // namespace navigator

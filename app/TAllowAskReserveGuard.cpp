/// @file
/// The permission is one flag of the process.
#include "vapp/app/TAllowAskReserveGuard.h"

#include "vapp/app/TPreferenceMgr.h"

namespace prefs {

TAllowAskReserveGuard::TAllowAskReserveGuard() {
    TPreferenceMgr::GetInstance().AllowAskReserve(true);
}

TAllowAskReserveGuard::~TAllowAskReserveGuard() {
    TPreferenceMgr::GetInstance().AllowAskReserve(false);
}

}  // namespace prefs

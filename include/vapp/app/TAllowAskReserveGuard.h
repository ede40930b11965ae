/// @file
/// A scope in which the question of TPreferenceMgr may be asked.
#pragma once

#include "vapp/Export.h"

namespace prefs {

/// Allows the question while it lives. Guards don't nest: the end of any of them takes the permission away,
/// also that of one inside another.
class VAPP_EXPORT TAllowAskReserveGuard {
public:
    TAllowAskReserveGuard();
    ~TAllowAskReserveGuard();
    TAllowAskReserveGuard(const TAllowAskReserveGuard&) = delete;
    TAllowAskReserveGuard& operator=(const TAllowAskReserveGuard&) = delete;
};

}  // namespace prefs

/// @file
/// The question whether to reserve a cell view before it is edited, and its last answer.
///
/// Window thread only. The surprise: whether the question is allowed at all counts for the option AskAlways
/// alone. A managed cell is always asked about where only managed cells are: for it the reservation is what
/// protects others' work, wherever the edit began.
#pragma once

#include "vapp/Export.h"
#include "vapp/app/AskReserve.h"

namespace prefs {

class VAPP_EXPORT TPreferenceMgr {
public:
    /// The one of the process, made when it is first wanted.
    [[nodiscard]] static TPreferenceMgr& GetInstance();

    TPreferenceMgr(const TPreferenceMgr&) = delete;
    TPreferenceMgr& operator=(const TPreferenceMgr&) = delete;

    /// Asks the user, if the option and the cell want it, and waits for the answer. NotAsked without a
    /// question. Where no toolkit can show the question, it counts as declined.
    TAskReserveStatus AskReserve(bool isManaged, TAskReserveOption option);
    /// The result of the last AskReserve, so that one answer can serve several views.
    [[nodiscard]] TAskReserveStatus GetAskReserveStatus() const { return m_status; }
    /// Forgets it: NotAsked.
    void ResetAskReserveStatus() { m_status = NotAsked; }

private:
    friend class TAllowAskReserveGuard;

    TPreferenceMgr() = default;
    void AllowAskReserve(bool allow) { m_allowAskReserve = allow; }

    bool m_allowAskReserve = false;
    TAskReserveStatus m_status = NotAsked;
};

}  // namespace prefs

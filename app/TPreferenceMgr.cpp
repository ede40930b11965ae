/// @file
/// When the question is asked, and its words.
#include "vapp/app/TPreferenceMgr.h"

#include "text/TranslatedText.h"
#include "vapp/toolkit/TMessageBox.h"

using vapp_text::TranslatedText;

namespace prefs {

namespace {

bool IsAgreed() {
    TMessageBox box(nullptr, TranslatedText("__$$Translatable$$_Reserve"),
                    TranslatedText("__$$Translatable$$_Do you want to reserve the cellview?"),
                    MB_OKCANCEL | MB_ICONQUESTION);
    box.SetButtonTexts({TranslatedText("__$$Translatable$$_&Yes"), TranslatedText("__$$Translatable$$_&No")});
    return box.DoModal() == IDOK;
}

}  // namespace

TPreferenceMgr& TPreferenceMgr::GetInstance() {
    static TPreferenceMgr instance;
    return instance;
}

TAskReserveStatus TPreferenceMgr::AskReserve(bool isManaged, TAskReserveOption option) {
    m_status = NotAsked;
    // Only AskAlways asks for permission: the asymmetry is wanted.
    const bool isWanted =
        (m_allowAskReserve && option == AskAlways) || (option == AskManagedCellsOnly && isManaged);
    if (isWanted) m_status = IsAgreed() ? Agreed : Declined;
    return m_status;
}

}  // namespace prefs

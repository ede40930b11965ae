/// Answers to the navigator's messages. What is not answered counts as "no".

#include "host/NavigatorFrame.h"

#include "vapp/browser/Messages.h"

namespace navigator {

LRESULT NavigatorFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_handler) {
        if (const std::optional<LRESULT> answer = m_handler(message, wParam, lParam)) return *answer;
    }
    if (message == vapp_library_browser::WM_LN_ISDARKTHEME) return m_dark ? 1 : 0;
    return CFrameWnd::WindowProc(message, wParam, lParam);
}

bool NavigatorFrame::OnKey(CWnd& from, TKey key, TModifiers modifiers) {
    if (&from == this) {
        for (CWnd* const child : GetChildren()) {
            if (child->KeyByPeer(key, modifiers)) return true;
        }
    }
    return CFrameWnd::OnKey(from, key, modifiers);
}

}  // namespace navigator

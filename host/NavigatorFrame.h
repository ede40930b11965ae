#pragma once
/// The main window of the host: a frame that answers what the navigator asks of it.

#include <functional>
#include <optional>
#include <utility>

#include "vapp/toolkit/CFrameWnd.h"

namespace navigator {

class NavigatorFrame : public CFrameWnd {
public:
    ~NavigatorFrame() override { DestroyWindow(); }

    /// The theme takes effect with the next population and painting.
    void SetDark(bool dark) { m_dark = dark; }
    [[nodiscard]] bool IsDark() const { return m_dark; }
    /// Asked first for each message; its answer is the frame's.
    using TMessageHandler = std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)>;
    void SetMessageHandler(TMessageHandler handler) { m_handler = std::move(handler); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    /// What is pressed in no pane (a drop-down that closes gives the keyboard to the frame) is for the
    /// navigator.
    bool OnKey(CWnd& from, TKey key, TModifiers modifiers) override;

private:
    TMessageHandler m_handler;
    bool m_dark = false;
};

}  // namespace navigator

#pragma once
/// The main window of the host: a frame that answers what the navigator asks of it.

#include "vapp/toolkit/CFrameWnd.h"

namespace navigator {

class NavigatorFrame : public CFrameWnd {
public:
    ~NavigatorFrame() override { DestroyWindow(); }

    /// The theme takes effect with the next population and painting.
    void SetDark(bool dark) { m_dark = dark; }
    [[nodiscard]] bool IsDark() const { return m_dark; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool m_dark = false;
};

}  // namespace navigator

/// @file
/// A host's own window class, over a base whose functions cross the border of the shared library.
#pragma once

#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/CWnd.h"

namespace embedding_test {

/// Answers a message by the sum of what came with it.
class MessageWindow : public CWnd {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return static_cast<LRESULT>(message + wParam) + lParam;
    }
};

/// Sends, names and reads back by the calls whose names the system's header has, too: "5 title 7 text" if all
/// is well.
inline CString UseSharedNames() {
    MessageWindow window;
    if (!window.Create(nullptr, 1)) return "not created";
    window.SetWindowText("title");
    CWinAppEx app("embedding");
    app.WriteProfileString("section", "text", "text");
    app.WriteProfileInt("section", "number", 7);
    CString out;
    out.Format("%d %s %d %s", static_cast<int>(window.SendMessage(1, 2, 2)),
               window.GetWindowText().GetString(), app.GetProfileInt("section", "number", 0),
               app.GetProfileString("section", "text").GetString());
    return out;
}

}  // namespace embedding_test

/// @file
/// A main window that keeps what it is told, and lets a test act while it is being asked.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/CWnd.h"

/// The application's main window while it lives.
class ListeningWindow : public CWnd {
public:
    explicit ListeningWindow(CWinAppEx& app) : m_app(app), m_former(app.GetMainWnd()) {
        Create(nullptr, 0);
        m_app.SetMainWnd(this);
    }
    ListeningWindow(const ListeningWindow&) = delete;
    ListeningWindow& operator=(const ListeningWindow&) = delete;
    ~ListeningWindow() override {
        m_app.SetMainWnd(m_former);
        DestroyWindow();
    }

    std::vector<std::pair<UINT, WPARAM>> m_messages;
    std::function<void()> m_whenAsked;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM /*lParam*/) override {
        m_messages.emplace_back(message, wParam);
        if (m_whenAsked) m_whenAsked();
        return 0;
    }

private:
    CWinAppEx& m_app;
    CWnd* m_former;
};

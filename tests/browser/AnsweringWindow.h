/// @file
/// A main window that answers as a test tells it to, with all that a message brings.
#pragma once

#include <functional>

#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/CWnd.h"

/// The application's main window while it lives.
class AnsweringWindow : public CWnd {
public:
    explicit AnsweringWindow(CWinAppEx& app) : m_app(app), m_former(app.GetMainWnd()) {
        Create(nullptr, 0);
        m_app.SetMainWnd(this);
    }
    AnsweringWindow(const AnsweringWindow&) = delete;
    AnsweringWindow& operator=(const AnsweringWindow&) = delete;
    ~AnsweringWindow() override {
        m_app.SetMainWnd(m_former);
        DestroyWindow();
    }

    std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)> answer;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return answer ? answer(message, wParam, lParam) : 0;
    }

private:
    CWinAppEx& m_app;
    CWnd* m_former;
};

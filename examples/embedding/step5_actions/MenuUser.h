// A user of menus where there is no screen. What shows controls is a PeerFactory; this one makes no widgets,
// and answers each menu by a pick from it. Tools test their menus by such a thing.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <utility>

#include "vapp/toolkit/CMenu.h"
#include "vapp/toolkit/Peer.h"

class MenuUser final : public PeerFactory {
public:
    explicit MenuUser(std::string wanted) : m_wanted(std::move(wanted)) { Install(this); }
    ~MenuUser() override { Install(nullptr); }

    // Says the texts of a menu, up to the first line between its items, and picks the wanted one.
    UINT TrackMenu(const CMenu& menu, CWnd&, CPoint, TMenuAlign) override {
        UINT picked = 0;
        std::printf("  the menu begins with:");
        for (int at = 0; menu.GetItem(at)->kind != CMenu::TItem::TKind::Separator; ++at) {
            const CMenu::TItem& item = *menu.GetItem(at);
            std::printf(" \"%s\"%s", item.text.Payload(), item.isEnabled ? "" : " (not now)");
            if (item.text == m_wanted.c_str()) picked = item.id;
        }
        std::puts("");
        return picked;
    }

    std::unique_ptr<Peer> CreateFrame(CFrameWnd&) override { return nullptr; }
    std::unique_ptr<Peer> CreateSplitter(CSplitterWnd&) override { return nullptr; }
    std::unique_ptr<Peer> CreateForm(CView&) override { return nullptr; }
    std::unique_ptr<Peer> CreateStatic(CStatic&) override { return nullptr; }
    std::unique_ptr<Peer> CreateEdit(CEdit&) override { return nullptr; }
    std::unique_ptr<Peer> CreateButton(CButton&) override { return nullptr; }
    std::unique_ptr<Peer> CreateTab(CTabCtrl&) override { return nullptr; }
    std::unique_ptr<Peer> CreateCombo(CComboBox&) override { return nullptr; }
    std::unique_ptr<Peer> CreateList(CListCtrl&) override { return nullptr; }
    std::unique_ptr<Peer> CreateReport(CXTPReportControl&) override { return nullptr; }
    [[nodiscard]] CPoint CursorPosition() const override { return {}; }

private:
    std::string m_wanted;
};

/// @file
/// A strip of tabs.
#pragma once

#include <vector>

#include "vapp/toolkit/CWnd.h"

/// A tab strip without pages: the parent decides what a tab means.
class VAPP_EXPORT CTabCtrl : public CWnd {
public:
    CTabCtrl();
    ~CTabCtrl() override;

    /// Adds a tab (the index is kept within 0 and the count). The current tab stays current; the first tab of
    /// all becomes it.
    void InsertItem(int index, const CString& text);
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(m_items.size()); }
    [[nodiscard]] CString GetItemText(int index) const;
    void SetItemText(int index, const CString& text);
    /// No tab is narrower than this text is in the strip's font; empty, as at first, for no such limit.
    [[nodiscard]] const CString& GetMinWidthText() const { return m_minWidthText; }
    void SetMinWidthText(const CString& text);
    /// Current tab, -1 for none.
    [[nodiscard]] int GetCurSel() const { return m_current; }
    /// Selects without notification; out of range selects none, and GetCurSel then gives -1.
    void SetCurSel(int index);
    /// The user picked a tab: selects and notifies the parent (cnTabSelectionChanged) if it is another one.
    void PickedByUser(int index);
    /// The user asked for the menu of a tab, at a point of the screen: tells the parent
    /// (cnTabContextClicked).
    void ContextClickedByUser(int index, CPoint screen);

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    std::vector<CString> m_items;
    CString m_minWidthText;
    int m_current = -1;
};

/// @file
/// A drop-down list of texts.
#pragma once

#include <vector>

#include "vapp/toolkit/CWnd.h"

/// A combo box without an edit field. Items are texts of the system, so no name is lost in a code page.
class VAPP_EXPORT CComboBox : public CWnd {
public:
    /// With `sorted`, `AddString` keeps the items in ascending order without regard to case.
    explicit CComboBox(bool sorted = false);
    ~CComboBox() override;

    void ResetContent();
    /// Adds an item (at its place if sorted) and gives its index. The selected item stays selected.
    int AddString(const CStringU& text);
    /// Puts an item in front of the one at the index, sorted or not, and gives its index; -1 as the index
    /// puts it at the end. Gives -1 out of range. The selected item stays selected.
    int InsertString(int index, const CStringU& text);
    [[nodiscard]] int GetCount() const { return static_cast<int>(m_items.size()); }
    /// The item's text; empty out of range.
    [[nodiscard]] CStringU GetLBText(int index) const;
    /// First item behind `start` that equals the text without regard to case, going round, `start` itself
    /// last; -1 if none. A start out of range begins at the first item.
    [[nodiscard]] int FindStringExact(int start, const CStringU& text) const;
    [[nodiscard]] int GetCurSel() const { return m_current; }
    /// Selects without notification; -1 or out of range selects none.
    void SetCurSel(int index);
    /// The user picked an item: selects it and notifies the parent (cnComboSelectionChanged).
    void PickedByUser(int index);
    /// The list closed: notifies the parent (cnComboClosedUp).
    void ClosedByUser();

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    std::vector<CStringU> m_items;
    int m_current = -1;
    bool m_sorted;
};

/// The combo box of the suite's controls library, with the same operations.
using TComboBoxCtrl = CComboBox;

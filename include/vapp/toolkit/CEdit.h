/// @file
/// A line of text that the user edits.
#pragma once

#include "vapp/toolkit/CWnd.h"

/// An edit control; its text is the window text.
class VAPP_EXPORT CEdit : public CWnd {
public:
    CEdit();
    ~CEdit() override;

    /// Grey text shown while the edit is empty.
    [[nodiscard]] const CString& GetCueText() const { return m_cue; }
    void SetCueText(const CString& cue);
    /// The user changed the text: stores it and notifies the parent (cnEditChanged).
    void EditedByUser(const CString& text);

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    CString m_cue;
};

/// The edit of the report toolkit, with the same operations.
using CXTPEdit = CEdit;

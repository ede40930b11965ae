/// @file
/// A line of text that the user edits, or several.
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
    /// Whether the text may have several lines. To be set before the window is made.
    [[nodiscard]] bool IsMultiLine() const { return m_isMultiLine; }
    void SetMultiLine(bool multiLine) { m_isMultiLine = multiLine; }
    /// The user changed the text: stores it and notifies the parent (cnEditChanged).
    void EditedByUser(const CString& text);

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    CString m_cue;
    bool m_isMultiLine = false;
};

/// The edit of the report toolkit, with the same operations.
using CXTPEdit = CEdit;

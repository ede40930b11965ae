/// @file
/// A box with a text and up to three buttons, which waits for the user's answer.
#pragma once

#include <optional>
#include <vector>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"

class CWnd;

/// A question, or a word to the user. The installed peer factory shows it; where there is none, or it shows
/// no boxes, nobody is asked and the answer is that of a user who closes the box.
class VAPP_EXPORT TMessageBox {
public:
    struct TButton {
        /// IDOK, IDCANCEL, IDYES or IDNO.
        int answer;
        /// An `&` in front of a letter makes it the button's key.
        CStringU text;
    };

    /// @param owner  the window that waits with it; null for none. Not owned.
    /// @param style  buttons and icon: MB_OKCANCEL | MB_ICONQUESTION and their like. Buttons of any other
    ///               style than OK, OK and Cancel, Yes and No, Yes, No and Cancel are OK alone.
    TMessageBox(CWnd* owner, const CStringU& title, const CStringU& text, UINT style);

    /// Words for the buttons, from the first one on, in place of their own.
    void SetButtonTexts(const std::vector<CStringU>& texts);

    /// Shows it and waits. The answer, or nothing if nobody could show it.
    [[nodiscard]] std::optional<int> Ask() const;
    /// Shows it and waits: the answer, that of closing the box if nobody could show it.
    int DoModal() const;  // NOLINT(modernize-use-nodiscard): a mere word to the user has no answer

    [[nodiscard]] CWnd* GetOwner() const { return m_owner; }
    [[nodiscard]] const CStringU& GetTitle() const { return m_title; }
    [[nodiscard]] const CStringU& GetText() const { return m_text; }
    [[nodiscard]] UINT GetStyle() const { return m_style; }
    /// The buttons in order; the first one is the default.
    [[nodiscard]] const std::vector<TButton>& GetButtons() const { return m_buttons; }
    /// What closing the box by other means than a button answers: the last button's answer.
    [[nodiscard]] int GetCloseAnswer() const { return m_buttons.back().answer; }

private:
    CWnd* m_owner;
    CStringU m_title;
    CStringU m_text;
    UINT m_style;
    std::vector<TButton> m_buttons;
};

/// @file
/// A window that asks the user something, and waits for the answer.
#pragma once

#include "vapp/toolkit/CWnd.h"
#include "vapp/toolkit/DialogTemplate.h"

/// A modal dialog. The deriving class owns the controls as members and creates them in `OnCreate`; it fills
/// them in `OnInitDialog`. A button of the number IDOK or IDCANCEL ends the dialog.
///
/// The surprise: where nobody can show it (no installed peers, or peers that show no dialogs), nobody could
/// answer either, and `DoModal` cancels it at once. `Open` and the buttons' `Click` do the same steps without
/// the waiting.
class VAPP_EXPORT CDialog : public CWnd {
public:
    /// @param dialog  the template; must outlive the dialog (a constant table)
    /// @param owner   the window that waits; null for the application's main window. Not owned.
    explicit CDialog(const DialogTemplate& dialog, CWnd* owner = nullptr);
    ~CDialog() override;

    /// `Open`, then waits until the dialog has ended, and ends the window. Gives what `EndDialog` was told;
    /// IDCANCEL if the window ended by itself; -1 if the dialog is open already.
    /// The object must live until this returns.
    int DoModal();
    /// Makes the window with its controls, and initialises it. False if it is open already.
    bool Open();
    /// True from `Open` until `EndDialog`.
    [[nodiscard]] bool IsWaiting() const { return m_isWaiting; }
    /// What `EndDialog` was told last; IDCANCEL before.
    [[nodiscard]] int GetResult() const { return m_result; }
    /// The window that was named, or the application's main window; may be null.
    [[nodiscard]] CWnd* GetOwner() const;
    [[nodiscard]] const DialogTemplate& GetTemplate() const { return m_template; }

    /// The user closed the window by other means than a button: as by the button to cancel.
    void ClosedByPeer();

protected:
    /// The window and its controls exist; fills them. Answers 1 unless it has given the keyboard to a control
    /// itself.
    virtual int OnInitDialog();
    /// Ends the dialog with IDOK.
    virtual void OnOK();
    /// Ends the dialog with IDCANCEL.
    virtual void OnCancel();
    /// Ends the waiting. The window goes when `DoModal` returns.
    void EndDialog(int result);
    /// Creates a member control at its place in the template, with its text.
    void CreateItem(CWnd& control, UINT id);

    bool OnNotify(Notification& notification, LRESULT& result) override;
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    const DialogTemplate& m_template;
    CWnd* m_owner;
    int m_result = IDCANCEL;
    bool m_isWaiting = false;
};

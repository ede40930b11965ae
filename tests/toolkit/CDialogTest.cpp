/// @file
/// Dialogs: the order of their steps, and every way to their end.
#include "vapp/toolkit/CDialog.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace {

constexpr std::array<DialogItem, 3> cnItems = {{
    {7, {0, 0, 50, 20}, "edit"},
    {IDOK, {0, 20, 50, 40}, "yes"},
    {IDCANCEL, {0, 40, 50, 60}, "no"},
}};
constexpr DialogTemplate cnTemplate = {300, {120, 80}, cnItems};

class Question : public CDialog {
public:
    explicit Question(CWnd* owner = nullptr) : CDialog(cnTemplate, owner) {}
    ~Question() override { DestroyWindow(); }

    void Press(UINT id) { dynamic_cast<CButton&>(*GetDlgItem(id)).Click(); }
    void End(int result) { EndDialog(result); }

    std::vector<std::string> steps;
    std::function<void(Question&)> whenInitialised;

protected:
    void OnCreate() override {
        steps.emplace_back("create");
        CreateItem(m_edit, 7);
        CreateItem(m_ok, IDOK);
        CreateItem(m_cancel, IDCANCEL);
    }
    int OnInitDialog() override {
        steps.emplace_back("init");
        if (whenInitialised) whenInitialised(*this);
        return CDialog::OnInitDialog();
    }
    void OnOK() override {
        steps.emplace_back("ok");
        CDialog::OnOK();
    }
    void OnCancel() override {
        steps.emplace_back("cancel");
        CDialog::OnCancel();
    }
    void OnDestroy() override { steps.emplace_back("destroy"); }

private:
    CEdit m_edit;
    CButton m_ok;
    CButton m_cancel;
};

// Shows dialogs by doing what a user would do.
class ScriptedPeers : public RecordingPeers {
public:
    std::function<void(CDialog&)> user;

    std::unique_ptr<Peer> CreateDialogWindow(CDialog& /*dialog*/) override { return nullptr; }
    bool WaitFor(CDialog& dialog) override {
        EXPECT_TRUE(dialog.IsWindowVisible());
        EXPECT_TRUE(dialog.IsWaiting());
        user(dialog);
        return true;
    }
};

using Steps = std::vector<std::string>;

}  // namespace

TEST(CDialog, WithoutPeersItIsCancelledAtOnce) {
    Question question;
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    EXPECT_EQ(question.steps, (Steps{"create", "init", "cancel", "destroy"}));
    EXPECT_FALSE(question.IsWindow());
    EXPECT_FALSE(question.IsWindowVisible());
}

TEST(CDialog, PeersWithoutDialogsCancelItToo) {
    const RecordingPeers peers;
    EXPECT_EQ(Question().DoModal(), IDCANCEL);
}

TEST(CDialog, ButtonsEndIt) {
    ScriptedPeers peers;
    for (const int id : {IDOK, IDCANCEL}) {
        Question question;
        peers.user = [&](CDialog& /*shown*/) { question.Press(static_cast<UINT>(id)); };
        EXPECT_EQ(question.DoModal(), id);
        EXPECT_EQ(question.steps, (Steps{"create", "init", id == IDOK ? "ok" : "cancel", "destroy"}));
    }
}

TEST(CDialog, ClosingItIsCancelling) {
    ScriptedPeers peers;
    Question question;
    peers.user = [](CDialog& shown) { shown.ClosedByPeer(); };
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    EXPECT_EQ(question.steps, (Steps{"create", "init", "cancel", "destroy"}));
    question.ClosedByPeer();
    EXPECT_EQ(question.steps.size(), 4u) << "it has ended";
}

TEST(CDialog, InitialisingMayEndIt) {
    ScriptedPeers peers;
    peers.user = [](CDialog& /*shown*/) { FAIL() << "nobody waits"; };
    Question question;
    question.whenInitialised = [](Question& asked) { asked.End(42); };
    EXPECT_EQ(question.DoModal(), 42);
}

TEST(CDialog, InitialisingMayEndItsWindow) {
    Question question;
    question.whenInitialised = [](Question& asked) { asked.DestroyWindow(); };
    EXPECT_EQ(question.DoModal(), IDCANCEL);
}

TEST(CDialog, TheEndOfItsWindowIsAnEnd) {
    ScriptedPeers peers;
    Question question;
    peers.user = [](CDialog& shown) { shown.DestroyWindow(); };
    EXPECT_EQ(question.DoModal(), IDCANCEL);
    EXPECT_FALSE(question.IsWaiting());
}

TEST(CDialog, ASecondDoModalWhileItIsOpenDoesNothing) {
    ScriptedPeers peers;
    Question question;
    peers.user = [&](CDialog& /*shown*/) {
        EXPECT_EQ(question.DoModal(), -1);
        question.Press(IDOK);
    };
    EXPECT_EQ(question.DoModal(), IDOK);
}

TEST(CDialog, CanBeAskedAgain) {
    ScriptedPeers peers;
    Question question;
    peers.user = [&](CDialog& /*shown*/) { question.Press(IDOK); };
    EXPECT_EQ(question.DoModal(), IDOK);
    peers.user = [&](CDialog& /*shown*/) {};
    EXPECT_EQ(question.DoModal(), IDCANCEL) << "the former answer doesn't count";
}

TEST(CDialog, OpensWithTheKeyboardInItsFirstControl) {
    Question question;
    ASSERT_TRUE(question.Open());
    EXPECT_EQ(CWnd::GetFocus(), question.GetDlgItem(7));
    EXPECT_EQ(question.GetRect(), CRect(0, 0, 120, 80));
    EXPECT_EQ(question.GetDlgItem(IDOK)->GetRect(), CRect(0, 20, 50, 40));
    EXPECT_EQ(question.GetDlgItem(IDOK)->GetWindowText(), CString("yes"));
    EXPECT_EQ(question.GetParent(), nullptr);
}

TEST(CDialog, ItsOwnerIsTheNamedWindowOrTheMainWindow) {
    CWinAppEx app("tool");
    CWnd main;
    CWnd other;
    EXPECT_EQ(Question().GetOwner(), nullptr);
    app.SetMainWnd(&main);
    EXPECT_EQ(Question().GetOwner(), &main);
    EXPECT_EQ(Question(&other).GetOwner(), &other);
}

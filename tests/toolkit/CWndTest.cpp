/// @file
/// Windows: coming, going, what is told to whom, and callbacks that end the window they come from.
#include "vapp/toolkit/CWnd.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace {

// A view (so that it has a peer) whose callbacks run a function of the test.
class Probe : public CView {
public:
    ~Probe() override { DestroyWindow(); }

    std::vector<std::string> calls;
    std::function<void()> onCreate, onDestroy, onSize, onSetFocus, onMessage, onNotify;

protected:
    void OnCreate() override { Run("create", onCreate); }
    void OnDestroy() override { Run("destroy", onDestroy); }
    void OnSize(UINT type, int cx, int cy) override {
        Run("size " + std::to_string(type) + " " + std::to_string(cx) + "x" + std::to_string(cy), onSize);
    }
    void OnSetFocus() override { Run("focus", onSetFocus); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        Run("message", onMessage);
        return static_cast<LRESULT>(message + wParam) + lParam;
    }
    bool OnNotify(Notification& notification, LRESULT& result) override {
        Run("notify", onNotify);
        result = 5;
        return notification.code == 1;
    }

private:
    void Run(const std::string& name, const std::function<void()>& function) {
        calls.push_back(name);
        if (function) function();
    }
};

}  // namespace

TEST(CWnd, CreateJoinsTheParent) {
    CWnd parent;
    CWnd child;
    ASSERT_TRUE(parent.Create(nullptr, 1));
    ASSERT_TRUE(child.Create(&parent, 7, {1, 2, 3, 4}));
    EXPECT_EQ(child.GetParent(), &parent);
    EXPECT_EQ(parent.GetDlgItem(7), &child);
    EXPECT_EQ(parent.GetDlgItem(8), nullptr);
    EXPECT_EQ(child.GetTopLevelParent(), &parent);
    EXPECT_EQ(child.GetRect(), CRect(1, 2, 3, 4));
}

TEST(CWnd, CreateRefusesASecondTimeAndAParentThatIsNoWindow) {
    CWnd parent;
    CWnd child;
    EXPECT_FALSE(child.Create(&parent, 1));
    EXPECT_FALSE(child.IsWindow());
    EXPECT_FALSE(child.Create(&child, 1));
    ASSERT_TRUE(child.Create(nullptr, 1));
    EXPECT_FALSE(child.Create(nullptr, 1));
}

TEST(CWnd, NewPeerIsToldEverythingButTheFocusBeforeOnCreate) {
    RecordingPeers peers;
    Probe window;
    std::vector<UINT> toldBefore;
    window.onCreate = [&] { toldBefore = peers.Of(window).changes; };
    ASSERT_TRUE(window.Create(nullptr, 1));
    EXPECT_EQ(toldBefore, std::vector<UINT>{cnChangeAll});
    EXPECT_EQ(cnChangeAll & cnChangeFocus, 0u);
}

TEST(CWnd, ChildMadeInOnCreateFindsTheHandleOfItsParentsPeer) {
    RecordingPeers peers;
    Probe parent;
    CStatic child;
    parent.onCreate = [&] { child.Create(&parent, 2); };
    ASSERT_TRUE(parent.Create(nullptr, 1));
    EXPECT_NE(peers.Of(child).parentHandleAtStart, nullptr);
    EXPECT_EQ(peers.Of(child).parentHandleAtStart, parent.GetPeer()->NativeHandle());
}

TEST(CWnd, DestroyGoesFromOnDestroyOverTheChildrenToThePeerAndTheParent) {
    RecordingPeers peers;
    CWnd root;
    Probe window;
    Probe child;
    ASSERT_TRUE(root.Create(nullptr, 1));
    ASSERT_TRUE(window.Create(&root, 2));
    ASSERT_TRUE(child.Create(&window, 3));
    bool wholeInOnDestroy = false;
    bool parentStillThere = false;
    window.onDestroy = [&] {
        wholeInOnDestroy = window.IsWindow() && child.IsWindow() && peers.Of(window).alive;
    };
    child.onDestroy = [&] {
        parentStillThere = peers.Of(window).alive && window.IsWindow() && root.GetDlgItem(2) == &window;
    };
    window.DestroyWindow();
    EXPECT_TRUE(wholeInOnDestroy);
    EXPECT_TRUE(parentStillThere);
    EXPECT_FALSE(window.IsWindow());
    EXPECT_FALSE(child.IsWindow());
    EXPECT_FALSE(peers.Of(window).alive);
    EXPECT_FALSE(peers.Of(child).alive);
    EXPECT_TRUE(root.GetChildren().empty());
    EXPECT_EQ(window.GetParent(), nullptr);
}

TEST(CWnd, DestroyedWindowCanBeCreatedAgain) {
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1));
    window.DestroyWindow();
    window.DestroyWindow();
    ASSERT_TRUE(window.Create(nullptr, 2));
    EXPECT_EQ(window.calls, (std::vector<std::string>{"create", "destroy", "create"}));
}

TEST(CWnd, DestructorLeavesTheParentAndTheChildren) {
    CWnd root;
    CWnd leaf;
    ASSERT_TRUE(root.Create(nullptr, 1));
    {
        CWnd middle;
        ASSERT_TRUE(middle.Create(&root, 2));
        ASSERT_TRUE(leaf.Create(&middle, 3));
    }
    EXPECT_TRUE(root.GetChildren().empty());
    EXPECT_FALSE(leaf.IsWindow());
    EXPECT_EQ(leaf.GetParent(), nullptr);
}

TEST(CWnd, WindowThatIsAboutToGoTakesNoNewChildren) {
    Probe window;
    CWnd late;
    bool created = true;
    window.onDestroy = [&] { created = late.Create(&window, 2); };
    ASSERT_TRUE(window.Create(nullptr, 1));
    window.DestroyWindow();
    EXPECT_FALSE(created);
}

TEST(CWnd, ChildThatEndsItsParentInItsOwnEndIsNotEndedTwice) {
    RecordingPeers peers;
    auto parent = std::make_unique<Probe>();
    Probe child;
    Probe sibling;
    ASSERT_TRUE(parent->Create(nullptr, 1));
    ASSERT_TRUE(child.Create(parent.get(), 2));
    ASSERT_TRUE(sibling.Create(parent.get(), 3));
    child.onDestroy = [&] { parent.reset(); };
    child.DestroyWindow();
    EXPECT_FALSE(child.IsWindow());
    EXPECT_FALSE(sibling.IsWindow());
    EXPECT_EQ(child.GetParent(), nullptr);
    EXPECT_EQ(child.calls, (std::vector<std::string>{"create", "destroy"}));
}

TEST(CWnd, WindowMayEndInAnyOfItsCallbacks) {
    RecordingPeers peers;
    Probe window;
    const auto end = [&] { window.DestroyWindow(); };
    window.onCreate = end;
    EXPECT_FALSE(window.Create(nullptr, 1));
    window.onCreate = nullptr;

    window.onSize = end;
    ASSERT_TRUE(window.Create(nullptr, 1));
    window.MoveWindow({0, 0, 9, 9});
    EXPECT_FALSE(window.IsWindow());

    window.onSetFocus = end;
    ASSERT_TRUE(window.Create(nullptr, 1));
    window.SetFocus();
    EXPECT_FALSE(window.IsWindow());
    EXPECT_EQ(CWnd::GetFocus(), nullptr);

    window.onMessage = end;
    ASSERT_TRUE(window.Create(nullptr, 1));
    EXPECT_EQ(window.SendMessage(2, 3, 4), 9);
    EXPECT_EQ(window.SendMessage(2, 3, 4), 0) << "no window, no answer";

    window.onNotify = end;
    ASSERT_TRUE(window.Create(nullptr, 1));
    CEdit edit;
    ASSERT_TRUE(edit.Create(&window, 2));
    edit.EditedByUser("x");
    EXPECT_FALSE(edit.IsWindow());
    EXPECT_EQ(edit.GetWindowText(), "x");
}

TEST(CWnd, NotificationCarriesItsSenderAndItsAnswerComesBack) {
    Probe parent;
    CWnd child;
    Notification notification;
    notification.code = 1;
    EXPECT_EQ(child.NotifyParent(notification), 0);
    ASSERT_TRUE(parent.Create(nullptr, 1));
    ASSERT_TRUE(child.Create(&parent, 12));
    EXPECT_EQ(child.NotifyParent(notification), 5);
    EXPECT_EQ(notification.from, &child);
    EXPECT_EQ(notification.id, 12u);
    notification.code = 2;
    EXPECT_EQ(child.NotifyParent(notification), 0) << "what nobody handles has no answer";
}

TEST(CWnd, ScreenRectangleSumsUpTheParents) {
    CWnd frame;
    CWnd pane;
    CWnd control;
    ASSERT_TRUE(frame.Create(nullptr, 1, {100, 200, 500, 600}));
    ASSERT_TRUE(pane.Create(&frame, 2, {10, 20, 200, 200}));
    ASSERT_TRUE(control.Create(&pane, 3, {1, 2, 31, 42}));
    EXPECT_EQ(control.GetWindowRect(), CRect(111, 222, 141, 262));
    EXPECT_EQ(control.GetClientRect(), CRect(0, 0, 30, 40));
    EXPECT_EQ(control.ScreenToClient({112, 224}), (CPoint{1, 2}));
    EXPECT_EQ(control.ClientToScreen({1, 2}), (CPoint{112, 224}));
}

TEST(CWnd, MoveTellsThePeerAndOnSizeOnlyOfAnotherSize) {
    RecordingPeers peers;
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1, {0, 0, 10, 10}));
    EXPECT_EQ(window.calls, std::vector<std::string>{"create"}) << "no OnSize at the start";
    peers.ForgetAll();
    window.MoveWindow({5, 5, 15, 15});
    EXPECT_EQ(peers.Of(window).changes, std::vector<UINT>{cnChangeRect});
    EXPECT_EQ(window.calls, std::vector<std::string>{"create"});
    window.MoveWindow({5, 5, 25, 35});
    EXPECT_EQ(window.calls.back(), "size 0 20x30");
    window.MoveWindow({5, 5, 25, 35});
    EXPECT_EQ(peers.Of(window).changes.size(), 2u);
}

TEST(CWnd, MovedByPeerDoesNotTellThePeer) {
    RecordingPeers peers;
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1, {0, 0, 10, 10}));
    peers.ForgetAll();
    window.MovedByPeer({0, 0, 30, 30});
    EXPECT_TRUE(peers.Of(window).changes.empty());
    EXPECT_EQ(window.calls.back(), "size 0 30x30");
}

TEST(CWnd, ChangesAreToldOnceAndOnlyIfThereIsOne) {
    RecordingPeers peers;
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1));
    peers.ForgetAll();
    for (int twice = 0; twice < 2; ++twice) {
        window.SetWindowText("text");
        window.SetAccessibleName("name");
        window.ShowWindow(false);
        window.EnableWindow(false);
    }
    EXPECT_EQ(peers.Of(window).changes,
              (std::vector<UINT>{cnChangeText, cnChangeText, cnChangeVisible, cnChangeEnabled}));
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_FALSE(window.IsWindowEnabled());
}

TEST(CWnd, RedrawOffGathersAndRedrawOnTellsOnceAndPaints) {
    RecordingPeers peers;
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1));
    peers.ForgetAll();
    window.SetRedraw(false);
    window.SetWindowText("text");
    window.ShowWindow(false);
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_TRUE(peers.Of(window).changes.empty());
    EXPECT_EQ(peers.Of(window).invalidations, 0u);
    EXPECT_EQ(peers.Of(window).updates, 0u);
    window.SetRedraw(true);
    EXPECT_EQ(peers.Of(window).changes, std::vector<UINT>{cnChangeText | cnChangeVisible});
    EXPECT_EQ(peers.Of(window).invalidations, 1u);
    window.SetRedraw(true);
    EXPECT_EQ(peers.Of(window).invalidations, 1u);
}

TEST(CWnd, InvalidateCountsWithAndWithoutAPeer) {
    CWnd headless;
    headless.Invalidate();
    headless.Invalidate(false);
    EXPECT_EQ(headless.GetInvalidateCount(), 2u);
    RecordingPeers peers;
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1));
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(window.GetInvalidateCount(), 1u);
    EXPECT_EQ(peers.Of(window).invalidations, 1u);
    EXPECT_EQ(peers.Of(window).updates, 1u);
}

TEST(CWnd, FocusIsOneWindowsAndTellsThePeer) {
    RecordingPeers peers;
    Probe first;
    Probe second;
    first.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), nullptr) << "only a window takes the keyboard";
    ASSERT_TRUE(first.Create(nullptr, 1));
    ASSERT_TRUE(second.Create(nullptr, 2));
    peers.ForgetAll();
    first.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &first);
    EXPECT_EQ(peers.Of(first).changes, std::vector<UINT>{cnChangeFocus});
    EXPECT_EQ(first.calls.back(), "focus");
    second.FocusedByPeer(true);
    EXPECT_EQ(CWnd::GetFocus(), &second);
    EXPECT_TRUE(peers.Of(second).changes.empty());
    first.FocusedByPeer(false);
    EXPECT_EQ(CWnd::GetFocus(), &second) << "the late report of a loss doesn't take it from another";
    second.FocusedByPeer(false);
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST(CWnd, FocusGoesToNobodyWhenItsWindowEnds) {
    Probe window;
    ASSERT_TRUE(window.Create(nullptr, 1));
    window.SetFocus();
    window.onDestroy = [&] { window.SetFocus(); };
    window.DestroyWindow();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST(CWnd, MainWindowThatEndsIsTheApplicationsNoMore) {
    CWinAppEx app;
    CWnd other;
    CWnd window;
    ASSERT_TRUE(window.Create(nullptr, 1));
    ASSERT_TRUE(other.Create(nullptr, 2));
    app.SetMainWnd(&window);
    other.DestroyWindow();
    EXPECT_EQ(gGetMainWnd(), &window);
    window.DestroyWindow();
    EXPECT_EQ(gGetMainWnd(), nullptr);
}

TEST(CWnd, MainWindowThatWasNeverMadeIsForgottenWithItsObject) {
    CWinAppEx app;
    {
        CWnd window;
        app.SetMainWnd(&window);
        CWnd().DestroyWindow();
        EXPECT_EQ(gGetMainWnd(), &window);
    }
    EXPECT_EQ(gGetMainWnd(), nullptr);
}

TEST(CWnd, ToolTipsAreOffUntilEnabled) {
    CWnd window;
    EXPECT_FALSE(window.AreToolTipsEnabled());
    window.EnableToolTips(true);
    EXPECT_TRUE(window.AreToolTipsEnabled());
    window.EnableToolTips(false);
    EXPECT_FALSE(window.AreToolTipsEnabled());
}

TEST(CWnd, ClientAreaLeavesOutWhatThePeerReserves) {
    Probe window;
    window.Create(nullptr, 1, {10, 10, 110, 60});
    window.calls.clear();
    window.ReservedByPeer({15, 12});
    EXPECT_EQ(window.GetClientRect(), CRect(0, 0, 85, 38));
    EXPECT_EQ(window.GetWindowRect(), CRect(10, 10, 110, 60)) << "the window is as large as before";
    window.ReservedByPeer({15, 12});
    window.MovedByPeer({0, 0, 200, 100});
    EXPECT_EQ(window.calls, (std::vector<std::string>{"size 0 85x38", "size 0 185x88"}));

    window.ReservedByPeer({-5, 5000});
    EXPECT_EQ(window.GetClientRect(), CRect(0, 0, 200, 0)) << "never below nothing";
    window.MovedByPeer({0, 0, -3, -4});
    EXPECT_EQ(window.GetClientRect(), CRect(0, 0, -3, -4)) << "a reversed rectangle stays as it is";
}

namespace {

// Notes which window a key or a menu was meant for, and answers keys if told so.
class AnsweringWindow : public CWnd {
public:
    ~AnsweringWindow() override { DestroyWindow(); }
    const CWnd* menuFrom = nullptr;
    const CWnd* keyFrom = nullptr;
    bool answersKeys = false;

protected:
    void OnContextMenu(CWnd& from, CPoint /*screen*/) override { menuFrom = &from; }
    bool OnKey(CWnd& from, TKey /*key*/, TModifiers /*modifiers*/) override {
        keyFrom = &from;
        return answersKeys;
    }
};

}  // namespace

TEST(CWnd, MenusAndKeysGoUpUntilAWindowAnswers) {
    AnsweringWindow top;
    ASSERT_TRUE(top.Create(nullptr, 1));
    CWnd middle;
    ASSERT_TRUE(middle.Create(&top, 2));
    CWnd child;
    child.ContextMenuByPeer({});
    EXPECT_FALSE(child.KeyByPeer(TKey::Find, {})) << "without a window there are no keys";
    ASSERT_TRUE(child.Create(&middle, 3));
    child.ContextMenuByPeer({});
    EXPECT_EQ(top.menuFrom, &child);
    EXPECT_FALSE(child.KeyByPeer(TKey::Find, {}));
    EXPECT_EQ(top.keyFrom, &child);
    top.answersKeys = true;
    EXPECT_TRUE(middle.KeyByPeer(TKey::Down, {}));
    EXPECT_EQ(top.keyFrom, &middle);
    CWnd alone;
    ASSERT_TRUE(alone.Create(nullptr, 4));
    alone.ContextMenuByPeer({});
    EXPECT_FALSE(alone.KeyByPeer(TKey::Down, {}));
}

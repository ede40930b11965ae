/// @file
/// Peers that write down what they are told, for tests of every room. Make a `RecordingPeers` first in a
/// test: while it lives, each window created gets a recording peer, and `Of(window)` tells what it heard. The
/// record outlives the peer, not the `RecordingPeers`.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vapp/toolkit/CButton.h"
#include "vapp/toolkit/CComboBox.h"
#include "vapp/toolkit/CDialog.h"
#include "vapp/toolkit/CEdit.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CListCtrl.h"
#include "vapp/toolkit/CMenu.h"
#include "vapp/toolkit/CSplitterWnd.h"
#include "vapp/toolkit/CStatic.h"
#include "vapp/toolkit/CTabCtrl.h"
#include "vapp/toolkit/CXTPReportControl.h"
#include "vapp/toolkit/Peer.h"
#include "vapp/toolkit/TMessageBox.h"
#include "vapp/toolkit/TSplashScreen.h"

/// What one window's peer was told.
struct PeerRecord {
    std::string kind;                           ///< "frame", "form", "report" ...
    std::vector<UINT> changes;                  ///< the bits of each call of Changed
    unsigned invalidations = 0;                 ///< calls of Invalidate
    unsigned updates = 0;                       ///< calls of UpdateNow
    bool alive = false;                         ///< the peer exists now
    const void* parentHandleAtStart = nullptr;  ///< handle of the parent's peer when this one was made

    /// All bits since the start or the last `Forget`.
    [[nodiscard]] UINT All() const {
        UINT bits = 0;
        for (const UINT change : changes)
            bits |= change;
        return bits;
    }
    /// Number of calls of Changed that had any of the bits.
    [[nodiscard]] int Count(UINT bits) const {
        return static_cast<int>(std::count_if(changes.begin(), changes.end(),
                                              [bits](UINT change) { return (change & bits) != 0; }));
    }
    void Forget() {
        changes.clear();
        invalidations = 0;
        updates = 0;
    }
};

/// A peer that only writes down.
class RecordingPeer : public Peer {
public:
    RecordingPeer(std::shared_ptr<PeerRecord> record, const CWnd& window, const char* kind)
        : m_record(std::move(record)) {
        m_record->kind = kind;
        m_record->alive = true;
        const CWnd* parent = window.GetParent();
        const Peer* parentPeer = parent != nullptr ? parent->GetPeer() : nullptr;
        m_record->parentHandleAtStart = parentPeer != nullptr ? parentPeer->NativeHandle() : nullptr;
    }
    ~RecordingPeer() override { m_record->alive = false; }

    void Changed(UINT changes) override { m_record->changes.push_back(changes); }
    void Invalidate(bool /*erase*/) override { ++m_record->invalidations; }
    void UpdateNow() override { ++m_record->updates; }
    [[nodiscard]] void* NativeHandle() const override { return m_record.get(); }

private:
    std::shared_ptr<PeerRecord> m_record;
};

/// Installs itself while it lives.
class RecordingPeers : public PeerFactory {
public:
    RecordingPeers() : m_former(Installed()) { Install(this); }
    ~RecordingPeers() override { Install(m_former); }

    [[nodiscard]] PeerRecord& Of(const CWnd& window) { return *Find(window); }
    void ForgetAll() {
        for (auto& [window, record] : m_records)
            record->Forget();
    }
    ClipboardPeer* clipboard = nullptr;  ///< the toolkit's clipboard; none
    CPoint cursor;                       ///< what CursorPosition answers
    std::vector<CRect> monitors;         ///< what MonitorAreas answers
    std::vector<TMessageBox> boxes;      ///< those that were shown
    std::optional<int> answer = IDOK;    ///< to every box; nothing: boxes can't be shown
    std::function<void()> whileBoxIsShown;
    /// The user of menus: sees one and gives the command that is picked.
    std::function<UINT(const CMenu& menu)> pick;
    /// The user of dialogs.
    std::function<void(CDialog& dialog)> answerDialog;
    CPoint menuPoint;                         ///< where the last menu was asked for
    TMenuAlign menuAlign = TMenuAlign::Left;  ///< and on which side

    std::unique_ptr<Peer> CreateFrame(CFrameWnd& window) override { return Make(window, "frame"); }
    std::unique_ptr<Peer> CreateSplitter(CSplitterWnd& window) override { return Make(window, "splitter"); }
    std::unique_ptr<Peer> CreateForm(CView& window) override { return Make(window, "form"); }
    std::unique_ptr<Peer> CreateStatic(CStatic& window) override { return Make(window, "static"); }
    std::unique_ptr<Peer> CreateEdit(CEdit& window) override { return Make(window, "edit"); }
    std::unique_ptr<Peer> CreateButton(CButton& window) override { return Make(window, "button"); }
    std::unique_ptr<Peer> CreateTab(CTabCtrl& window) override { return Make(window, "tab"); }
    std::unique_ptr<Peer> CreateCombo(CComboBox& window) override { return Make(window, "combo"); }
    std::unique_ptr<Peer> CreateList(CListCtrl& window) override { return Make(window, "list"); }
    std::unique_ptr<Peer> CreateReport(CXTPReportControl& window) override { return Make(window, "report"); }
    std::unique_ptr<Peer> CreateSplash(TSplashScreen& window) override { return Make(window, "splash"); }
    std::optional<int> ShowMessageBox(const TMessageBox& box) override {
        if (answer) boxes.push_back(box);
        if (whileBoxIsShown) whileBoxIsShown();
        return answer;
    }
    UINT TrackMenu(const CMenu& menu, CWnd& /*owner*/, CPoint screen, TMenuAlign align) override {
        menuPoint = screen;
        menuAlign = align;
        return pick ? pick(menu) : 0;
    }
    bool WaitFor(CDialog& dialog) override {
        if (!answerDialog) return false;
        answerDialog(dialog);
        return true;
    }
    [[nodiscard]] std::vector<CRect> MonitorAreas() const override { return monitors; }
    [[nodiscard]] CPoint CursorPosition() const override { return cursor; }
    [[nodiscard]] ClipboardPeer* GetClipboard() override { return clipboard; }

private:
    std::unique_ptr<Peer> Make(const CWnd& window, const char* kind) {
        return std::make_unique<RecordingPeer>(Find(window), window, kind);
    }

    std::shared_ptr<PeerRecord> Find(const CWnd& window) {
        std::shared_ptr<PeerRecord>& record = m_records[&window];
        if (!record) record = std::make_shared<PeerRecord>();
        return record;
    }

    PeerFactory* m_former;
    std::map<const CWnd*, std::shared_ptr<PeerRecord>> m_records;
};

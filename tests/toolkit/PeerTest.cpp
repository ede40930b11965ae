/// @file
/// The installed factory, and which peer each kind of window asks for.
#include "vapp/toolkit/Peer.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingPeers.h"

TEST(Peer, NoFactoryMeansNoPeers) {
    ASSERT_EQ(PeerFactory::Installed(), nullptr);
    CStatic text;
    ASSERT_TRUE(text.Create(nullptr, 1));
    EXPECT_EQ(text.GetPeer(), nullptr);
}

TEST(Peer, FactoryThatEndsIsNoLongerInstalled) {
    {
        RecordingPeers peers;
        EXPECT_EQ(PeerFactory::Installed(), &peers);
    }
    EXPECT_EQ(PeerFactory::Installed(), nullptr);
}

TEST(Peer, EachKindOfWindowAsksForItsOwnPeer) {
    RecordingPeers peers;
    CFrameWnd frame;
    CView view;
    CStatic text;
    CEdit edit;
    CButton button;
    CTabCtrl tab;
    CComboBox combo;
    CListCtrl list;
    CXTPReportControl report;
    CSplitterWnd splitter;
    TSplashScreen splash;
    ASSERT_TRUE(frame.CreateFrame("frame", {0, 0, 10, 10}));
    for (CWnd* child :
         std::initializer_list<CWnd*>{&view, &text, &edit, &button, &tab, &combo, &list, &report}) {
        ASSERT_TRUE(child->Create(&frame, 1));
    }
    ASSERT_TRUE(splitter.CreateStatic(&frame, 1, 1, 2));
    ASSERT_TRUE(splash.Create(nullptr, 0));
    EXPECT_EQ(peers.Of(frame).kind, "frame");
    EXPECT_EQ(peers.Of(view).kind, "form");
    EXPECT_EQ(peers.Of(text).kind, "static");
    EXPECT_EQ(peers.Of(edit).kind, "edit");
    EXPECT_EQ(peers.Of(button).kind, "button");
    EXPECT_EQ(peers.Of(tab).kind, "tab");
    EXPECT_EQ(peers.Of(combo).kind, "combo");
    EXPECT_EQ(peers.Of(list).kind, "list");
    EXPECT_EQ(peers.Of(report).kind, "report");
    EXPECT_EQ(peers.Of(splitter).kind, "splitter");
    EXPECT_EQ(peers.Of(splash).kind, "splash");
}

TEST(Peer, PeerEndsWhileItsControlIsWhole) {
    // A peer's destructor may still read its control: the control's own members must not be gone by then.
    class ReadingPeers : public RecordingPeers {
    public:
        class ReadingPeer : public Peer {
        public:
            ReadingPeer(CComboBox& combo, int& seen) : m_combo(combo), m_seen(seen) {}
            ~ReadingPeer() override { m_seen = m_combo.GetCount() + m_combo.GetLBText(0).GetByteLength(); }
            void Changed(UINT /*changes*/) override {}
            void Invalidate(bool /*erase*/) override {}
            void UpdateNow() override {}
            [[nodiscard]] void* NativeHandle() const override { return &m_seen; }

        private:
            CComboBox& m_combo;
            int& m_seen;
        };
        std::unique_ptr<Peer> CreateCombo(CComboBox& combo) override {
            return std::make_unique<ReadingPeer>(combo, seen);
        }
        int seen = 0;
    };
    ReadingPeers peers;
    {
        CComboBox combo;
        combo.AddString("abc");
        ASSERT_TRUE(combo.Create(nullptr, 1));
    }
    EXPECT_EQ(peers.seen, 4);
}

TEST(Peer, AnAdapterNeedsNoSplashNoBoxesAndNoMonitors) {
    class PlainPeers : public RecordingPeers {
    public:
        std::unique_ptr<Peer> CreateSplash(TSplashScreen& window) override {
            return PeerFactory::CreateSplash(window);
        }
        std::optional<int> ShowMessageBox(const TMessageBox& box) override {
            return PeerFactory::ShowMessageBox(box);
        }
        [[nodiscard]] std::vector<CRect> MonitorAreas() const override { return PeerFactory::MonitorAreas(); }
    };
    PlainPeers peers;
    TSplashScreen splash;
    ASSERT_TRUE(splash.Create(nullptr, 0));
    EXPECT_EQ(splash.GetPeer(), nullptr);
    EXPECT_EQ(TMessageBox(nullptr, "title", "text", MB_OK).Ask(), std::nullopt);
    EXPECT_TRUE(peers.MonitorAreas().empty());
}

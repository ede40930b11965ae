/// @file
/// The installed peer factory. It is not owned: an adapter keeps its own alive.
#include "vapp/toolkit/Peer.h"

namespace {

PeerFactory* s_installed = nullptr;

}  // namespace

Peer::~Peer() = default;

PeerFactory::~PeerFactory() {
    if (s_installed == this) s_installed = nullptr;
}

ClipboardPeer* PeerFactory::GetClipboard() {
    return nullptr;
}

std::unique_ptr<Peer> PeerFactory::CreateSplash(TSplashScreen& /*splash*/) {
    return nullptr;
}

std::optional<int> PeerFactory::ShowMessageBox(const TMessageBox& /*box*/) {
    return std::nullopt;
}

UINT PeerFactory::TrackMenu(const CMenu& /*menu*/, CWnd& /*owner*/, CPoint /*screen*/, TMenuAlign /*align*/) {
    return 0;
}

std::vector<CRect> PeerFactory::MonitorAreas() const {
    return {};
}

std::unique_ptr<Peer> PeerFactory::CreateDialogWindow(CDialog& /*dialog*/) {
    return nullptr;
}

bool PeerFactory::WaitFor(CDialog& /*dialog*/) {
    return false;
}

PeerFactory* PeerFactory::Installed() {
    return s_installed;
}

void PeerFactory::Install(PeerFactory* factory) {
    s_installed = factory;
}

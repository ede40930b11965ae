/// @file
/// The static control: a text or a picture.
#include "vapp/toolkit/CStatic.h"

CStatic::CStatic(TKind kind) : m_kind(kind) {}

CStatic::~CStatic() {
    DestroyWindow();
}

void CStatic::SetImage(HBITMAP bitmap) {
    // Told even for the same handle: its owner may have drawn another picture into it.
    m_image = bitmap;
    TellPeer(cnChangeLook);
}

std::unique_ptr<Peer> CStatic::CreatePeer(PeerFactory& factory) {
    return factory.CreateStatic(*this);
}

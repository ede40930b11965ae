/// @file
/// A pane: it leaves its document when it ends, whichever of the two goes first.
#include "vapp/toolkit/CView.h"

#include "vapp/toolkit/CDocument.h"

CView::CView() = default;

CView::~CView() {
    DestroyWindow();
    if (m_document != nullptr) m_document->RemoveView(this);
}

void CView::OnInitialUpdate() {}

void CView::OnUpdate(CView* /*sender*/, std::int64_t /*hint*/, CObject* /*hintObject*/) {
    Invalidate();
}

std::unique_ptr<Peer> CView::CreatePeer(PeerFactory& factory) {
    return factory.CreateForm(*this);
}

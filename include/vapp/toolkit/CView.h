/// @file
/// A pane that shows a document.
#pragma once

#include <cstdint>

#include "vapp/toolkit/CWnd.h"

class CDocument;

/// A child window with an optional document.
class VAPP_EXPORT CView : public CWnd {
public:
    CView();
    ~CView() override;

    [[nodiscard]] CDocument* GetDocument() const { return m_document; }
    /// Called once, as soon as the window and its children exist (see CSplitterWnd::CreateView). Panes that
    /// come later don't exist yet, and nobody has wired them: what needs them waits for its first refresh.
    virtual void OnInitialUpdate();
    /// The document has changed. The base asks for painting.
    virtual void OnUpdate(CView* sender, std::int64_t hint, CObject* hintObject);

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    friend class CDocument;
    CDocument* m_document = nullptr;
};

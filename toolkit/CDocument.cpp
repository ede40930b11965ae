/// @file
/// The views of a document, and the walk over them that tells of a change.
#include "vapp/toolkit/CDocument.h"

#include <algorithm>

#include "vapp/toolkit/CView.h"

CDocument::CDocument() = default;

CDocument::~CDocument() {
    for (CView* view : m_views)
        view->m_document = nullptr;
}

void CDocument::AddView(CView* view) {
    if (view == nullptr || view->m_document != nullptr) return;
    m_views.push_back(view);
    view->m_document = this;
}

void CDocument::RemoveView(CView* view) {
    if (std::erase(m_views, view) != 0) view->m_document = nullptr;
}

void CDocument::UpdateAllViews(CView* sender, std::int64_t hint, CObject* hintObject) {
    // Over a copy: a view that is told may make or destroy others.
    const std::vector<CView*> views = m_views;
    for (CView* view : views) {
        if (view == sender || std::find(m_views.begin(), m_views.end(), view) == m_views.end()) continue;
        view->OnUpdate(sender, hint, hintObject);
    }
}

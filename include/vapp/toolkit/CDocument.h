/// @file
/// A document: the list of views that are told when it changes.
#pragma once

#include <cstdint>
#include <vector>

#include "vapp/Export.h"
#include "vapp/toolkit/CObject.h"

class CView;

/// Views are not owned; a destroyed view takes itself off.
class VAPP_EXPORT CDocument : public CObject {
public:
    CDocument();
    ~CDocument() override;

    /// Adds a view at the end. A view that is there already, or of another document, is left alone.
    void AddView(CView* view);
    void RemoveView(CView* view);
    [[nodiscard]] const std::vector<CView*>& GetViews() const { return m_views; }
    /// Calls `OnUpdate` of all views but the sender, in order. During the walk views may leave, which are not
    /// called any more, and join, which are called the next time.
    void UpdateAllViews(CView* sender, std::int64_t hint = 0, CObject* hintObject = nullptr);

private:
    std::vector<CView*> m_views;
};

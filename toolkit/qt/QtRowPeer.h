/// @file
/// The peer of a control with rows. What such a control looks like is asked of it in the middle of painting,
/// and the answer may run host script that fills the control anew. A view must not be laid out under its own
/// painting, so that what changes then is told to it afterwards.
#pragma once

#include "toolkit/qt/QtPeer.h"

namespace vapp_qt {

class QtRowView;

class QtRowPeer : public QtPeer {
public:
    explicit QtRowPeer(CWnd& window);
    ~QtRowPeer() override;

    void Changed(UINT changes) override;
    void Invalidate(bool erase) override;
    void UpdateNow() override;

protected:
    /// The view, or null if Qt has deleted it.
    [[nodiscard]] QtRowView* RowView() const;
    /// Has the view read anew what changed. There is a view, and nothing is being painted.
    virtual void TellView(UINT changes) = 0;

private:
    void TellLater();

    UINT m_pending = 0;
};

}  // namespace vapp_qt

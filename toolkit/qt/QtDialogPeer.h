/// @file
/// A dialog: a window of its own in front of its owner's, which gets no events of the user meanwhile.
#pragma once

#include "toolkit/qt/QtPeer.h"

class CDialog;
class QEventLoop;

namespace vapp_qt {

class QtDialogPeer : public QtPeer {
public:
    explicit QtDialogPeer(CDialog& dialog);
    ~QtDialogPeer() override;

    void Changed(UINT changes) override;
    /// Handles events until the dialog is hidden or gone. This object may be gone then too.
    void Wait();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ApplyRect() override;

private:
    void EndWaiting();

    CDialog& m_dialog;
    QEventLoop* m_loop = nullptr;
};

}  // namespace vapp_qt

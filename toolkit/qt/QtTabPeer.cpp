/// @file
/// The tab strip.
#include "toolkit/qt/QtTabPeer.h"

#include <QSignalBlocker>
#include <QTabBar>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace vapp_qt {

QtTabPeer::QtTabPeer(CTabCtrl& tabs) : QtPeer(tabs, new QTabBar(gClientWidgetAbove(tabs))), m_tabs(tabs) {
    auto* bar = static_cast<QTabBar*>(Widget());
    bar->setShape(QTabBar::RoundedSouth);
    bar->setExpanding(false);
    bar->setDrawBase(false);
    QObject::connect(bar, &QTabBar::currentChanged, this, [this](int index) {
        const QtBusyScope busy;
        const QPointer<QtTabPeer> alive(this);
        m_tabs.PickedByUser(index);
        if (alive) ApplyTabs();
    });
}

void QtTabPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    if ((changes & (cnChangeItems | cnChangeSelection)) != 0) ApplyTabs();
}

void QtTabPeer::ApplyTabs() {
    auto* bar = static_cast<QTabBar*>(Widget());
    if (bar == nullptr) return;
    const QSignalBlocker quiet(bar);
    while (bar->count() > m_tabs.GetItemCount())
        bar->removeTab(bar->count() - 1);
    while (bar->count() < m_tabs.GetItemCount())
        bar->addTab(QString());
    for (int index = 0; index < bar->count(); ++index) {
        const QString text = gWithoutMnemonics(gToQString(m_tabs.GetItemText(index)));
        if (bar->tabText(index) != text) bar->setTabText(index, text);
    }
    bar->setCurrentIndex(m_tabs.GetCurSel());
}

}  // namespace vapp_qt

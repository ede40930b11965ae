/// @file
/// The tab strip.
#include "toolkit/qt/QtTabPeer.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWheelEvent>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CTabCtrl.h"

namespace vapp_qt {

namespace {

// A strip whose tabs can be hit also while they have no or short texts.
class TabWidget : public QTabBar {
public:
    using QTabBar::QTabBar;

    void SetMinWidthText(const QString& text) {
        m_minWidthText = text;
        setIconSize(iconSize());  // makes Qt lay the tabs out anew
        updateGeometry();
    }

protected:
    // A tab costs the host two lines, and a wheel turns by many.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    [[nodiscard]] QSize tabSizeHint(int index) const override {
        return QTabBar::tabSizeHint(index).expandedTo({MinWidth(), 0});
    }
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override {
        return QTabBar::minimumTabSizeHint(index).expandedTo({MinWidth(), 0});
    }

private:
    [[nodiscard]] int MinWidth() const { return fontMetrics().horizontalAdvance(m_minWidthText); }

    QString m_minWidthText;
};

}  // namespace

QtTabPeer::QtTabPeer(CTabCtrl& tabs) : QtPeer(tabs, new TabWidget(gClientWidgetAbove(tabs))), m_tabs(tabs) {
    auto* bar = static_cast<QTabBar*>(Widget());
    bar->setShape(QTabBar::RoundedSouth);
    bar->setExpanding(false);
    bar->setDrawBase(false);
    QObject::connect(bar, &QTabBar::currentChanged, this, &QtTabPeer::Picked);
    // The widget always has a current tab, and says nothing of a click on it. The control may have none.
    QObject::connect(bar, &QTabBar::tabBarClicked, this, [this, bar](int index) {
        const bool isPick = QApplication::mouseButtons() == Qt::LeftButton && m_tabs.GetCurSel() < 0;
        if (isPick && index == bar->currentIndex()) Picked(index);
    });
}

void QtTabPeer::Picked(int index) {
    const QtBusyScope busy;
    const QPointer<QtTabPeer> alive(this);
    m_tabs.PickedByUser(index);
    if (alive) ApplyTabs();
}

void QtTabPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    auto* bar = static_cast<TabWidget*>(Widget());
    if (bar != nullptr && (changes & cnChangeLook) != 0)
        bar->SetMinWidthText(gToQString(m_tabs.GetMinWidthText()));
    if ((changes & (cnChangeItems | cnChangeSelection)) != 0) ApplyTabs();
}

// A click means the tab under it, and beside the tabs none; the menu key means the current one.
bool QtTabPeer::eventFilter(QObject* watched, QEvent* event) {
    if (watched != Widget() || event->type() != QEvent::ContextMenu)
        return QtPeer::eventFilter(watched, event);
    const auto* request = static_cast<QContextMenuEvent*>(event);
    const auto* bar = static_cast<QTabBar*>(Widget());
    const bool isKey = request->reason() == QContextMenuEvent::Keyboard;
    const int tab = isKey ? bar->currentIndex() : bar->tabAt(request->pos());
    const QPoint corner = isKey ? bar->tabRect(tab).bottomLeft() : request->pos();
    const QtBusyScope busy;
    if (tab >= 0) m_tabs.ContextClickedByUser(tab, m_tabs.ClientToScreen({corner.x(), corner.y()}));
    return true;
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

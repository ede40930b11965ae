/// @file
/// The tab strip.
#include "toolkit/qt/QtTabPeer.h"

#include <QSignalBlocker>
#include <QTabBar>

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
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(bar, &QWidget::customContextMenuRequested, this, [this, bar](const QPoint& place) {
        const QtBusyScope busy;
        // The menu key asks from the middle of the strip, where there may be no tab: it means the current
        // one.
        const bool isOnTab = bar->tabAt(place) >= 0;
        const int tab = isOnTab ? bar->tabAt(place) : bar->currentIndex();
        if (!isOnTab && !bar->hasFocus()) return;
        const QPoint corner = isOnTab ? place : bar->tabRect(tab).bottomLeft();
        m_tabs.ContextClickedByUser(tab, m_tabs.ClientToScreen({corner.x(), corner.y()}));
    });
    QObject::connect(bar, &QTabBar::currentChanged, this, [this](int index) {
        const QtBusyScope busy;
        const QPointer<QtTabPeer> alive(this);
        m_tabs.PickedByUser(index);
        if (alive) ApplyTabs();
    });
}

void QtTabPeer::Changed(UINT changes) {
    QtPeer::Changed(changes);
    auto* bar = static_cast<TabWidget*>(Widget());
    if (bar != nullptr && (changes & cnChangeLook) != 0)
        bar->SetMinWidthText(gToQString(m_tabs.GetMinWidthText()));
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

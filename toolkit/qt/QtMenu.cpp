/// @file
/// The menu is made anew for each showing, in the font and colours of the moment.
#include "toolkit/qt/QtMenu.h"

#include <QEvent>
#include <QMenu>
#include <QObject>
#include <QPointer>

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/CWnd.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace vapp_qt {

namespace {

// A menu as wide as the longest name that somebody has pasted would cover the screen.
constexpr qsizetype cnLongestText = 160;

// A tab would divide the text from the name of a key; it is shown as a blank.
QString ShownText(const CStringU& itemText) {
    QString text = gToQString(itemText);
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    if (text.size() <= cnLongestText) return text;
    // Never between the two halves of a character, nor between an ampersand and what it belongs to.
    qsizetype end = cnLongestText;
    while (end > 0 && (text[end].isLowSurrogate() || text[end - 1] == QLatin1Char('&')))
        --end;
    return text.left(end) + QChar(0x2026);
}

// `picked` must live as long as the menu is open.
void AddItems(QMenu& shown, const CMenu& menu, UINT& picked) {
    for (int position = 0; position < menu.GetItemCount(); ++position) {
        const CMenu::TItem& item = *menu.GetItem(position);
        if (item.kind == CMenu::TItem::TKind::Separator) {
            shown.addSeparator();
        } else if (item.subMenu) {
            AddItems(*shown.addMenu(ShownText(item.text)), *item.subMenu, picked);
        } else {
            QAction* action = shown.addAction(ShownText(item.text));
            action->setObjectName(QStringLiteral("command%1").arg(item.id));
            action->setEnabled(item.isEnabled);
            action->setCheckable(item.isChecked);
            action->setChecked(item.isChecked);
            if (item.isDefault) shown.setDefaultAction(action);
            QObject::connect(action, &QAction::triggered, &shown, [&picked, id = item.id] { picked = id; });
        }
    }
}

// A menu is a window of its own, which stays when the one that it belongs to is hidden or ends: the user
// would go on picking from it for nobody.
class LeaveWithOwner : public QObject {
public:
    LeaveWithOwner(QMenu& menu, QWidget& owner) : m_menu(&menu) { owner.installEventFilter(this); }
    bool eventFilter(QObject* owner, QEvent* event) override {
        if (event->type() == QEvent::Hide && m_menu) m_menu->close();
        return QObject::eventFilter(owner, event);
    }

private:
    QPointer<QMenu> m_menu;
};

}  // namespace

UINT gTrackMenu(const CMenu& menu, const CWnd& owner, CPoint screen, TMenuAlign align) {
    QWidget* const widget = gWidgetOf(owner);
    if (widget == nullptr) return 0;
    UINT picked = 0;
    // The owner's widget may end while the user looks, and takes the menu with it.
    const QPointer<QMenu> shown = new QMenu(widget);
    shown->setObjectName(QStringLiteral("popupMenu"));
    AddItems(*shown, menu, picked);
    const CPoint client = owner.ScreenToClient(screen);
    QPoint corner = widget->mapToGlobal(QPoint(client.x, client.y));
    if (align == TMenuAlign::Right) corner.rx() -= shown->sizeHint().width();
    const LeaveWithOwner leaving(*shown, *widget);
    shown->exec(corner);
    delete shown.data();
    return picked;
}

}  // namespace vapp_qt

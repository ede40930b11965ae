/// @file
/// A drop-down list without a label beside it.
///
/// Qt's own answer on X11 gives what is chosen as the name: there the name is that of a label which belongs
/// to the list. Our lists have a name and no label, so that nobody would hear what the choice is about.
#include "toolkit/qt/QtComboAccessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

#include "toolkit/qt/QtComboPeer.h"

namespace vapp_qt {

namespace {

class ComboAccessible final : public QAccessibleWidget {
public:
    explicit ComboAccessible(QtComboWidget& combo)
        : QAccessibleWidget(&combo, QAccessible::ComboBox), m_combo(combo) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (!isValid()) return {};
        if (kind == QAccessible::Name) return m_combo.accessibleName();
        return kind == QAccessible::Value ? m_combo.currentText() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (!isValid()) return state;
        state.expandable = true;
        state.hasPopup = true;
        state.expanded = m_combo.view()->isVisible();
        return state;
    }

    [[nodiscard]] int childCount() const override { return isValid() ? 1 : 0; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return isValid() && index == 0 ? QAccessible::queryAccessibleInterface(m_combo.view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return isValid() && child != nullptr && child->object() == m_combo.view() ? 0 : -1;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        QAccessibleInterface* const list = child(0);
        return list != nullptr && m_combo.view()->isVisible() && list->rect().contains(x, y) ? list : nullptr;
    }

    [[nodiscard]] QStringList actionNames() const override {
        return {QAccessibleActionInterface::showMenuAction(), QAccessibleActionInterface::pressAction()};
    }
    void doAction(const QString& action) override {
        if (!isValid() || !m_combo.isEnabled() || !actionNames().contains(action)) return;
        if (m_combo.view()->isVisible()) {
            m_combo.hidePopup();
        } else {
            m_combo.showPopup();
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    QtComboWidget& m_combo;
};

QAccessibleInterface* MakeComboAccessible(const QString& /*className*/, QObject* object) {
    auto* const combo = qobject_cast<QtComboWidget*>(object);
    return combo != nullptr ? new ComboAccessible(*combo) : nullptr;
}

}  // namespace

void gInstallComboAccessibility() {
    QAccessible::installFactory(&MakeComboAccessible);
}

}  // namespace vapp_qt

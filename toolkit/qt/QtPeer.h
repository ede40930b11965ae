/// @file
/// What all peers of the Qt adapter have in common: one control, one widget, and the state that every window
/// has. The widget follows the control's place, visibility, names and focus; what Qt or the user does to the
/// widget is told to the control.
///
/// The surprise is the end. A widget may go before its peer, by its Qt parent, or after it, when a host ends
/// a window from inside an event of this very window; both are safe.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "vapp/toolkit/CWnd.h"

namespace vapp_qt {

/// A peer, and the event filter of its widget.
class QtPeer : public QObject, public Peer {
public:
    /// @param widget  taken over; a child of `gClientWidgetAbove(window)` unless it is a top-level one. Null
    /// if
    ///                the deriving class sets it in its constructor.
    QtPeer(CWnd& window, QWidget* widget);
    ~QtPeer() override;

    void Changed(UINT changes) override;
    void Invalidate(bool erase) override;
    void UpdateNow() override;
    [[nodiscard]] void* NativeHandle() const override;

    /// The widget, or null if Qt has deleted it.
    [[nodiscard]] QWidget* Widget() const { return m_widget; }
    /// The widget in which the control's client area lies and its children stand.
    [[nodiscard]] virtual QWidget* ClientWidget() const { return m_widget; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void SetWidget(QWidget* widget);
    /// Paints what was invalidated, at once unless something is being painted.
    static void PaintNow(QWidget& widget);
    [[nodiscard]] CWnd& Window() const { return m_window; }
    /// Puts the widget where the control is.
    virtual void ApplyRect();
    /// Tells the control where the widget is.
    virtual void ReportRect();
    virtual void ApplyVisible();
    /// Name and help for assistive technology; the identifier is the name that tests find widgets by.
    virtual void ApplyNames();
    /// A pane of this window moved.
    virtual void ChildPlaced() {}

private:
    CWnd& m_window;
    QPointer<QWidget> m_widget;
};

/// The client widget of the nearest window above that has one, or null: the parent of a window's widget.
[[nodiscard]] QWidget* gClientWidgetAbove(const CWnd& window);
/// The control's rectangle as Qt takes it: not negative, not too large, relative to the parent widget.
[[nodiscard]] QRect gGeometryOf(const CWnd& window);

/// While one of these exists, a widget is in the middle of an event that asks or tells a control. Whatever
/// the control's owner does then must not delete that widget under it, nor, while it paints, paint it at
/// once.
class QtBusyScope {
public:
    enum class TKind { Telling, Painting };

    explicit QtBusyScope(TKind kind = TKind::Telling);
    ~QtBusyScope();
    QtBusyScope(const QtBusyScope&) = delete;
    QtBusyScope& operator=(const QtBusyScope&) = delete;

    [[nodiscard]] static bool IsPainting();
    /// Of either kind.
    [[nodiscard]] static bool IsActive();

private:
    TKind m_kind;
};

}  // namespace vapp_qt

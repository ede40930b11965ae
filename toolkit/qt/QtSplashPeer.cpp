/// @file
/// A frameless window as large as the picture.
#include "toolkit/qt/QtSplashPeer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "toolkit/qt/QtColor.h"
#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/TSplashScreen.h"
#include "vapp/toolkit/qt/QtBitmap.h"

namespace vapp_qt {

namespace {

// Pixels of the colour vanish, those of all others stay, half transparent ones too.
QImage WithoutColor(const QImage& picture, COLORREF key) {
    if (key == cnNoColor || picture.isNull()) return picture;
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    const QRgb gone = gToQColor(key, Qt::black).rgb();
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            if ((line[x] | 0xFF000000u) == gone) line[x] = 0;
        }
    }
    return result;
}

}  // namespace

QtSplashWidget::QtSplashWidget(const TSplashScreen& splash)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_splash(&splash) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    // So that a program whose last window it is doesn't end with it.
    setAttribute(Qt::WA_QuitOnClose, false);
    setObjectName(QStringLiteral("splash"));
}

void QtSplashWidget::TakePicture() {
    m_picture = WithoutColor(QtBitmap::ImageOf(m_splash->GetPicture()), m_splash->GetColorKey());
    setFixedSize(m_picture.isNull() ? QSize(1, 1) : m_picture.deviceIndependentSize().toSize());
    const QStringList words = {gToQString(m_splash->GetVersionString()),
                               gToQString(m_splash->GetStartupWaitMessage())};
    setAccessibleName(words.join(QLatin1Char(' ')).trimmed());
    update();
}

void QtSplashWidget::paintEvent(QPaintEvent* /*event*/) {
    if (m_splash == nullptr) return;
    QPainter painter(this);
    painter.drawImage(QPoint(), m_picture);
    painter.setPen(gToQColor(m_splash->GetVersionColor(), Qt::black));
    // A place beyond the picture shows nothing, however far.
    const QPoint corner(static_cast<int>(qMin<UINT>(m_splash->GetVersionXLocation(), QWIDGETSIZE_MAX)),
                        static_cast<int>(qMin<UINT>(m_splash->GetVersionYLocation(), QWIDGETSIZE_MAX)));
    painter.drawText(QRect(corner, size()), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                     gToQString(m_splash->GetVersionString()));
    constexpr int cnMargin = 8;
    painter.drawText(rect().adjusted(cnMargin, cnMargin, -cnMargin, -cnMargin),
                     Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap,
                     gToQString(m_splash->GetStartupWaitMessage()));
}

QtSplashPeer::QtSplashPeer(TSplashScreen& splash)
    : QtPeer(splash, new QtSplashWidget(splash)), m_splash(splash) {
    m_clock.setSingleShot(true);
    QObject::connect(&m_clock, &QTimer::timeout, this, [this] {
        const QtBusyScope busy;
        m_splash.TimedOutByPeer();
    });
}

QtSplashPeer::~QtSplashPeer() {
    if (auto* widget = static_cast<QtSplashWidget*>(Widget())) widget->Detach();
}

bool QtSplashPeer::eventFilter(QObject* watched, QEvent* event) {
    // Behind the report nothing may follow: this object has ended with the window.
    if (watched != Widget() || event->type() != QEvent::Close) return QtPeer::eventFilter(watched, event);
    const QtBusyScope busy;
    m_splash.ClosedByPeer();
    return false;
}

void QtSplashPeer::Changed(UINT changes) {
    if (Widget() != nullptr && (changes & cnChangeLook) != 0) {
        static_cast<QtSplashWidget*>(Widget())->TakePicture();
    }
    QtPeer::Changed(changes & ~cnChangeVisible);
    if (Widget() != nullptr && (changes & cnChangeVisible) != 0) ApplyVisible();
}

// What is handled here may be the clock, and so the end of this object: nothing follows it.
void QtSplashPeer::UpdateNow() {
    QtPeer::UpdateNow();
    if (!QtBusyScope::IsActive()) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtSplashPeer::ApplyRect() {
    const QSize size = Widget()->size();
    QPoint corner;
    if (const auto& wanted = m_splash.GetPosition()) {
        corner = QPoint(wanted->x, wanted->y);
    } else if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect middle(QPoint(), size);
        corner = middle.translated(screen->geometry().center() - middle.center()).topLeft();
    }
    Widget()->move(corner);
    m_splash.MovedByPeer({corner.x(), corner.y(), corner.x() + size.width(), corner.y() + size.height()});
}

// Where no event loop runs yet, Qt handles what is waiting when a splash is shown. That may be the end of
// this object; the widget outlives its own showing.
void QtSplashPeer::ApplyVisible() {
    const bool visible = m_splash.IsWindowVisible();
    const QPointer<QtSplashPeer> alive(this);
    {
        const QtBusyScope busy;
        Widget()->setVisible(visible);
    }
    if (!alive) return;
    if (visible && m_splash.GetTimeOut() > 0) {
        m_clock.start(m_splash.GetTimeOut());
    } else {
        m_clock.stop();
    }
}

}  // namespace vapp_qt

/// @file
/// The splash: its picture, the version and a word of patience, on top of all windows, for its time.
///
/// The surprise: it lets Qt handle what is waiting, apart from the user's input, when it is to paint now. A
/// program that starts doesn't run the event loop, and without it nothing gets to the screen.
#pragma once

#include <QImage>
#include <QTimer>

#include "toolkit/qt/QtPeer.h"

class TSplashScreen;

namespace vapp_qt {

class QtSplashWidget : public QWidget {
    Q_OBJECT
public:
    explicit QtSplashWidget(const TSplashScreen& splash);

    /// Takes the picture of the splash, and its size.
    void TakePicture();
    void Detach() { m_splash = nullptr; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const TSplashScreen* m_splash;
    QImage m_picture;
};

class QtSplashPeer : public QtPeer {
public:
    explicit QtSplashPeer(TSplashScreen& splash);
    ~QtSplashPeer() override;

    void Changed(UINT changes) override;
    void UpdateNow() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ApplyRect() override;
    void ApplyVisible() override;

private:
    TSplashScreen& m_splash;
    QTimer m_clock;
};

}  // namespace vapp_qt

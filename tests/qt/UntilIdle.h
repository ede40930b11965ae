/// @file
/// A wait for the moment at which the event loop has nothing else to do.
#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>

/// Runs the event loop until it has come to rest once, whatever else is done in such a moment.
inline void gRunUntilIdle() {
    QEventLoop loop;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop,
                     &QEventLoop::quit);
    // A loop that has nothing to do at all comes to rest as well.
    QAbstractEventDispatcher::instance()->wakeUp();
    loop.exec();
}

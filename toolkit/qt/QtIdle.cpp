/// @file
/// Idle moments, as the event dispatcher tells them.
#include "vapp/toolkit/qt/QtIdle.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <utility>

QMetaObject::Connection gRunWhenIdle(const QObject& context, std::function<void()> work) {
    const QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    if (dispatcher == nullptr) return {};
    return QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &context,
                            [work = std::move(work)] {
                                if (QApplication::activePopupWidget() == nullptr) work();
                            });
}

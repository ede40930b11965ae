/// @file
/// The moment at which a host refreshes its navigator: Qt's event loop has nothing else to do.
///
/// The surprise is what doesn't count as such a moment. A menu waits in an event loop of its own, which comes
/// to rest as well. Rows that were fetched then would move under the open menu, and what the user picks from
/// it would be done with another cell than the one that it was opened for.
#pragma once

#include <QObject>
#include <functional>

#include "vapp/toolkit/qt/QtExport.h"

/// Calls `work` whenever the event loop of this thread is about to wait, but for loops of open menus and
/// drop-down lists; once more when they have closed. A QApplication must exist.
///
/// @param context  lives in this thread; its end is the end of the calls
/// @param work     also called while it runs, if it waits in a loop of its own, a dialog say
/// @return the connection, to end the calls earlier
QMetaObject::Connection VAPP_QT_EXPORT gRunWhenIdle(const QObject& context, std::function<void()> work);

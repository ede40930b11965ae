/// @file
/// Marks what the Qt adapter shows to its hosts. A macro of its own: the adapter is a library of its own,
/// which imports the window toolkit's names while it exports these.
#pragma once

#include <QtGlobal>

#if defined(VAPP_STATIC)
#define VAPP_QT_EXPORT
#elif defined(VAPP_QT_BUILDING)
#define VAPP_QT_EXPORT Q_DECL_EXPORT
#else
#define VAPP_QT_EXPORT Q_DECL_IMPORT
#endif

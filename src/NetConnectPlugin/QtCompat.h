// SPDX-License-Identifier: MIT
// What must differ between Qt 4.8 and Qt 5.15, in one place.
#ifndef ORBISDIAL_QTCOMPAT_H
#define ORBISDIAL_QTCOMPAT_H

#include <QObject>
#include <QPointer>
#include <QtGlobal>
#include <QtPlugin>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)

// Qt 5 reads a plug-in's metadata; Qt 4 only asks the exported entry points.
#define Q_PLUGIN_METADATA(x)

// Whether the host wants traces at all.
inline bool isTraceWanted() { return true; }

// The library's one plug-in object; a new one when the old one was deleted.
#define ORBISDIAL_EXPORT_PLUGIN(Class)                       \
    extern "C" Q_DECL_EXPORT QObject* qt_plugin_instance() { \
        static QPointer<QObject> instance;                   \
        if (!instance) instance = new Class;                 \
        return instance;                                     \
    }

#else

#include <QLoggingCategory>

inline bool isTraceWanted() { return QLoggingCategory::defaultCategory()->isDebugEnabled(); }

// moc writes the very same function for a class with Q_PLUGIN_METADATA.
#define ORBISDIAL_EXPORT_PLUGIN(Class)

#endif

#endif

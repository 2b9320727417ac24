// What must differ between Qt 4.8 and Qt 5.15, in one place.
#ifndef ORBISDIAL_QTCOMPAT_H
#define ORBISDIAL_QTCOMPAT_H

#include <QtGlobal>
#include <QtPlugin>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
// Qt 5 reads a plug-in's metadata; Qt 4 only asks the exported entry points.
#define Q_PLUGIN_METADATA(x)
#endif

#endif

// SPDX-License-Identifier: MIT
// What must differ between Qt 4.8, Qt 5.15 and Qt 6, in one place; what needs windows stands in page/QtCompatPage.h.
#ifndef ORBISDIAL_QTCOMPAT_H
#define ORBISDIAL_QTCOMPAT_H

#include <QMutex>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <QtPlugin>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)

// Qt 5 reads a plug-in's metadata; Qt 4 only asks the exported entry points.
#define Q_PLUGIN_METADATA(x)

// Whether the host wants traces at all.
inline bool isTraceWanted() { return true; }

inline int sizeOf(const QLatin1String& text) { return int(qstrlen(text.latin1())); }

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

inline int sizeOf(const QLatin1String& text) { return int(text.size()); }

// moc writes the very same function for a class with Q_PLUGIN_METADATA.
#define ORBISDIAL_EXPORT_PLUGIN(Class)

#endif

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QRegExp>

// A part of a text that others hold, as XML readers hand it out.
typedef QStringRef TextPart;
inline TextPart wholeOf(const QString& text) { return QStringRef(&text); }

// A mutex that its owner may lock again.
class RecursiveMutex : public QMutex {
public:
    RecursiveMutex() : QMutex(Recursive) {}
};

typedef QRegExp Pattern;
inline Pattern patternOf(const char* pattern) { return QRegExp(QString::fromLatin1(pattern)); }
inline bool matchesWhole(const char* pattern, const QString& text) { return patternOf(pattern).exactMatch(text); }

#else

#include <QRecursiveMutex>
#include <QRegularExpression>
#include <QStringView>

typedef QStringView TextPart;
inline TextPart wholeOf(const QString& text) { return text; }

typedef QRecursiveMutex RecursiveMutex;

// Letters are those of every language, as QRegExp has it.
typedef QRegularExpression Pattern;
inline Pattern patternOf(const QString& pattern) {
    return QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption);
}
inline Pattern patternOf(const char* pattern) { return patternOf(QString::fromLatin1(pattern)); }
inline bool matchesWhole(const char* pattern, const QString& text) {
    return patternOf(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern))).match(text).hasMatch();
}

#endif

#endif

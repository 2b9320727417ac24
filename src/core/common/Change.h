// SPDX-License-Identifier: MIT
// The host's translator: string IDs to texts of the current language.
#ifndef ORBISDIAL_CHANGE_H
#define ORBISDIAL_CHANGE_H

#include <QString>
#include <QStringList>

#include "HostCoreExport.h"

// All operations are for the GUI thread.
class HOSTCORE_EXPORT Change {
public:
    // The text of a string ID: in the current language, else in English, else empty.
    static QString tr(const QString& id, const QString& context);

    // The code of the current language, e.g. "en", "de", "zh_CN".
    static QString GetLangName();

    // The codes of the languages that are shipped, English always and first.
    static QStringList GetLanguages();

    // Makes a language current, for QCoreApplication::translate(), Qt's own dialogs and the layout direction too; false
    // (and nothing changes) when the language is not shipped. The host then sends event 320 to every plug-in.
    static bool SetLanguage(const QString& code);
};

#endif

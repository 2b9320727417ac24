// SPDX-License-Identifier: MIT
// Says at a widget that what is set there has no effect on a connection.
#ifndef ORBISDIAL_NETCONNECTFIELDNOTE_H
#define ORBISDIAL_NETCONNECTFIELDNOTE_H

#include <QWidget>

#include "Change.h"
#include "DialupNotes.h"

// In the current language; the attribute is that of the profile's field. Says nothing where the host has no such text.
inline void showFieldNote(QWidget* widget, const char* attribute) {
    const QString id = DialupNoteTextId(QString::fromLatin1(attribute));
    const QString note = Change::tr(id, QString::fromLatin1(ORBISDIAL_DIALUP_TEXTS));
    widget->setToolTip(note);
    widget->setAccessibleDescription(note);
}

#endif

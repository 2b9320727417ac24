// SPDX-License-Identifier: MIT
// What of a profile has no effect on a connection, to be said where it is set or shown.
#ifndef ORBISDIAL_DIALUPNOTES_H
#define ORBISDIAL_DIALUPNOTES_H

#include <QString>

// The context in which Change::tr() translates these texts.
#define ORBISDIAL_DIALUP_TEXTS "DialupPlugin"

struct DialupNote {
    const char* attribute;  // of the profile's field, as in DialupProfileFields
    const char* textId;     // of a sentence that says so
};

inline const DialupNote DialupNotes[] = {
    {"phonenumber", "IDS_DIALUP_NOTE_NUMBER"},
    {"ip", "IDS_DIALUP_NOTE_ADDRESS"},
    {"wins", "IDS_DIALUP_NOTE_WINS"},
    {"winsalt", "IDS_DIALUP_NOTE_WINS"},
};

// The string ID of the note on a field; empty when the field has its effect.
inline QString DialupNoteTextId(const QString& attribute) {
    for (unsigned int i = 0; i < sizeof(DialupNotes) / sizeof(DialupNotes[0]); ++i)
        if (attribute == QLatin1String(DialupNotes[i].attribute)) return QLatin1String(DialupNotes[i].textId);
    return QString();
}

#endif

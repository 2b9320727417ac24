// SPDX-License-Identifier: MIT
// One thing that is wrong with a file, for the person who ships it.
#ifndef ORBISDIAL_CHECK_FINDING_H
#define ORBISDIAL_CHECK_FINDING_H

#include <QString>

// Where a tag begins.
struct XmlPlace {
    qint64 line = 0;    // from 1; 0 for the file as a whole
    qint64 column = 0;  // from 1
};

// A value record. It never holds a password.
struct Finding {
    QString file;  // its path
    XmlPlace place;
    QString text;    // what is wrong, in English
    QString remedy;  // what to do

    // One line, as compilers write it: "file:line:column: what; remedy", without the numbers where there are none.
    QString asLine() const {
        QString where = file;
        if (place.line > 0) where += QString(":%1:%2").arg(place.line).arg(place.column);
        return where + ": " + text + "; " + remedy;
    }
};

#endif

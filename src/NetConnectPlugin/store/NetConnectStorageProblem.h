// SPDX-License-Identifier: MIT
// The last thing that went wrong with a file of the plug-in, for a person to read.
#ifndef ORBISDIAL_NETCONNECTSTORAGEPROBLEM_H
#define ORBISDIAL_NETCONNECTSTORAGEPROBLEM_H

#include <QString>

#include "ReasonText.h"

// A value record. It never holds a password.
struct NetConnectStorageProblem {
    NetConnectStorageProblem() : line(0), column(0) {}

    bool isNull() const { return reason.isEmpty(); }

    // One line in the language of the moment: "file:line:column: reason", without the numbers where there are none.
    QString text() const {
        QString place = file;
        if (line > 0) place += ":" + QString::number(line) + ":" + QString::number(column);
        return place.isEmpty() ? reason.text() : place + ": " + reason.text();
    }

    QString file;   // full path, or a bare name when even the folder can't be had
    qint64 line;    // from 1; 0 when the problem has no place in the file
    qint64 column;  // from 0, as QXmlStreamReader counts
    Reason reason;  // empty when there is no problem
};

#endif

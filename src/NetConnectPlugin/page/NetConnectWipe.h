// SPDX-License-Identifier: MIT
// Overwrites texts that must not stay in memory longer than they are needed.
#ifndef ORBISDIAL_NETCONNECTWIPE_H
#define ORBISDIAL_NETCONNECTWIPE_H

#include <QLineEdit>
#include <QString>

// As far as Qt allows: a text that is shared stays until its last owner is wiped.
inline void wipeText(QString* text) {
    if (text->isDetached()) text->fill(QChar());
    text->clear();
}

// Takes along what could be undone.
inline void wipeText(QLineEdit* edit) {
    QString text = edit->text();
    edit->setText(QString());
    wipeText(&text);
}

#endif

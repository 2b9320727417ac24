// SPDX-License-Identifier: MIT
// What must differ between Qt 4.8, Qt 5.15 and Qt 6 where there are windows.
#ifndef ORBISDIAL_QTCOMPATPAGE_H
#define ORBISDIAL_QTCOMPATPAGE_H

#include <QComboBox>

#include "QtCompat.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QRegExpValidator>
typedef QRegExpValidator PatternValidator;

#else

#include <QRegularExpressionValidator>
typedef QRegularExpressionValidator PatternValidator;

#endif

// Calls the receiver's slot, which takes a text, with the box' text whenever another entry becomes the current one.
inline void connectCurrentText(QComboBox* box, QObject* receiver, const char* slot) {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QObject::connect(box, SIGNAL(currentIndexChanged(QString)), receiver, slot);
#else
    QObject::connect(box, &QComboBox::currentIndexChanged, receiver, [=](int index) {
        const QByteArray name = QByteArray(slot + 1).split('(').first();
        QMetaObject::invokeMethod(receiver, name, Qt::DirectConnection, Q_ARG(QString, box->itemText(index)));
    });
#endif
}

#endif

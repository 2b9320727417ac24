// SPDX-License-Identifier: MIT
// One program for each data and configuration folder: a second start raises the first one's window and ends.
#ifndef ORBISDIAL_SINGLEINSTANCE_H
#define ORBISDIAL_SINGLEINSTANCE_H

#include <QObject>

class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kestra.orbisdial.Instance")

public:
    // Takes the name of these folders on the session's bus; without a bus this is the first instance. Another one gets
    // the profile file, if there is one, to offer it for import.
    explicit SingleInstance(const QString& file = QString());

    // False: another one has the name, and was asked to come to the front where it could be.
    bool isFirst() const { return m_IsFirst; }

public slots:
    // What another start calls.
    Q_SCRIPTABLE void Raise() { emit raised(); }
    Q_SCRIPTABLE void Import(const QString& file) { emit importWanted(file); }

signals:
    void raised();
    void importWanted(const QString& file);

private:
    bool m_IsFirst = true;
};

#endif

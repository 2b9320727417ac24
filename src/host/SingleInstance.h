// One program for each data and configuration folder: a second start raises the first one's window and ends.
#ifndef ORBISDIAL_SINGLEINSTANCE_H
#define ORBISDIAL_SINGLEINSTANCE_H

#include <QObject>

class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kestra.orbisdial.Instance")

public:
    // Takes the name of these folders on the session's bus; without a bus this is the first instance.
    SingleInstance();

    // False: another one has the name, and was asked to come to the front where it could be.
    bool isFirst() const { return m_IsFirst; }

public slots:
    // What another start calls.
    Q_SCRIPTABLE void Raise() { emit raised(); }

signals:
    void raised();

private:
    bool m_IsFirst = true;
};

#endif

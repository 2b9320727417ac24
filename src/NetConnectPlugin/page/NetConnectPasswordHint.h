// SPDX-License-Identifier: MIT
// A line below the password field that warns of a password that can't be kept.
#ifndef ORBISDIAL_NETCONNECTPASSWORDHINT_H
#define ORBISDIAL_NETCONNECTPASSWORDHINT_H

#include <QLabel>
#include <QLineEdit>

// Shown while the field can be typed in and holds characters that the keyed sealing loses. GUI thread.
class NetConnectPasswordHint : public QLabel {
    Q_OBJECT

public:
    // The field must live as long as the hint.
    NetConnectPasswordHint(QLineEdit* field, QWidget* parent);

    // Whether passwords are stored by the keyed method at all.
    void setKeyedMethod(bool on);

public slots:
    void refresh();

private:
    QLineEdit* m_pField;
    bool m_bKeyedMethod;
};

#endif

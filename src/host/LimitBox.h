// SPDX-License-Identifier: MIT
// How much the SIM card is to move in a month at most: the connection's, or without one the chosen modem's.
#ifndef ORBISDIAL_LIMITBOX_H
#define ORBISDIAL_LIMITBOX_H

#include <QDoubleSpinBox>
#include <QLabel>

// In gigabytes; no limit at 0. It and its label are hidden while there is no card.
class LimitBox : public QDoubleSpinBox {
public:
    LimitBox();

    QLabel* label() const { return m_Label; }

    void load();
    bool store();  // for the card that was there when it was loaded; false: it could not be done
    void retranslate();

private:
    QLabel* m_Label;
    QString m_Imsi;
    double m_Stored = 0;  // as shown
};

#endif

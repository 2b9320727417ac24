// SPDX-License-Identifier: MIT
// The sign of a state, and the bars of a signal.
#ifndef ORBISDIAL_STATESIGN_H
#define ORBISDIAL_STATESIGN_H

#include <QIcon>
#include <QWidget>

#include "ConnectionPicture.h"

class StateSign : public QWidget {
    Q_OBJECT

public:
    explicit StateSign(QWidget* parent = nullptr);

    void setSign(ConnectionPicture::Sign sign);
    QSize sizeHint() const override;

    // The same as an icon, for the tray.
    static QIcon icon(ConnectionPicture::Sign sign);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ConnectionPicture::Sign m_Sign = ConnectionPicture::Idle;
};

// Five bars that rise with the text's height; nothing for an unknown signal.
class SignalBars : public QWidget {
    Q_OBJECT

public:
    explicit SignalBars(QWidget* parent = nullptr);

    void setPercent(int percent);  // -1: unknown
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_Percent = -1;
};

#endif

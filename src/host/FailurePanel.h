// SPDX-License-Identifier: MIT
// What went wrong with the last connection. It stays until the next attempt begins, or somebody closes it.
#ifndef ORBISDIAL_FAILUREPANEL_H
#define ORBISDIAL_FAILUREPANEL_H

#include <QFrame>

#include "ConnectionPicture.h"

class QLabel;
class QPushButton;
class QToolButton;

class FailurePanel : public QFrame {
    Q_OBJECT

public:
    explicit FailurePanel(QWidget* parent = nullptr);

    void show(const ConnectionPicture& picture);
    void retranslate();

signals:
    void triedAgain();
    void unlockWanted();

private:
    void showDetails(bool on);

    QLabel* m_Title;
    QLabel* m_Text;
    QLabel* m_Details;
    QToolButton* m_ShowDetails;
    QPushButton* m_TryAgain;
    QPushButton* m_Unlock;
};

#endif

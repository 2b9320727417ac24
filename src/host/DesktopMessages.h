// SPDX-License-Identifier: MIT
// Messages about changes of the connection, by the desktop's own service for them.
#ifndef ORBISDIAL_DESKTOPMESSAGES_H
#define ORBISDIAL_DESKTOPMESSAGES_H

#include <QObject>

#include "Notices.h"

// The service is org.freedesktop.Notifications of the session's bus: desktops have it that have no tray. A message
// takes the place of the one before, and is left out when the user switched them off.
class DesktopMessages : public QObject {
    Q_OBJECT

public:
    explicit DesktopMessages(QObject* parent = nullptr);

    // Tells what of the change is worth it. What was so before the first call is no news.
    void refresh(const ConnectionPicture& picture);

    // What comes next is no news: it says the same in another language.
    void forget() { m_IsFirst = true; }

signals:
    // A message was clicked.
    void clicked();

    // Nobody took the message.
    void failed(const Notice& notice);

private slots:
    void onAction(uint id, const QString& action);

private:
    void send(const Notice& notice);

    ConnectionPicture m_Picture;
    bool m_IsFirst = true;
    bool m_TakesMarkup = false;
    uint m_Id = 0;  // of the last message; 0: there was none
};

#endif

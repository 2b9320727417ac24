// SPDX-License-Identifier: MIT
#include "DesktopMessages.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include "HostSettings.h"
#include "HostText.h"

namespace {

// The names that the desktop's service for notifications has.
const QString Service = QStringLiteral("org.freedesktop.Notifications");
const QString Path = QStringLiteral("/org/freedesktop/Notifications");
const QString Clicked = QStringLiteral("default");
constexpr int ServicesOwnTime = -1;

QDBusMessage call(const char* method) {
    return QDBusMessage::createMethodCall(Service, Path, Service, QLatin1String(method));
}

}  // namespace

DesktopMessages::DesktopMessages(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(Service, Path, Service, QStringLiteral("ActionInvoked"), this, SLOT(onAction(uint, QString)));
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call("GetCapabilities")), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QStringList> reply = *answer;
        m_TakesMarkup = !reply.isError() && reply.value().contains(QLatin1String("body-markup"));
        answer->deleteLater();
    });
}

void DesktopMessages::refresh(const ConnectionPicture& picture) {
    const auto notice = Notice::of(m_Picture, picture);
    m_Picture = picture;
    const bool isNews = notice && !m_IsFirst;
    m_IsFirst = false;
    if (isNews && HostSettings::isOn(HostSettings::Notifies)) send(*notice);
}

void DesktopMessages::send(const Notice& notice) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        emit failed(notice);
        return;
    }
    QDBusMessage message = call("Notify");
    const QStringList actions = {Clicked, hostText("IDS_HOST_SHOW_WINDOW")};
    const QVariantMap hints = {{QStringLiteral("desktop-entry"), QStringLiteral("orbisdial")}};
    message.setArguments({hostText("IDS_HOST_TITLE"), m_Id, QStringLiteral("orbisdial"), notice.title,
                          m_TakesMarkup ? notice.text.toHtmlEscaped() : notice.text, actions, hints, ServicesOwnTime});
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, notice] {
        const QDBusPendingReply<uint> reply = *answer;
        if (reply.isError())
            emit failed(notice);
        else
            m_Id = reply.value();
        answer->deleteLater();
    });
}

void DesktopMessages::onAction(uint id, const QString& action) {
    if (id == m_Id && action == Clicked) emit clicked();
}

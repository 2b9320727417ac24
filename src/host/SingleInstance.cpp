// SPDX-License-Identifier: MIT
#include "SingleInstance.h"

#include <vrks.h>

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>
#include <memory>

#include "CommonUtilsBase.h"

namespace {

const QString Path = QStringLiteral("/Instance");
const QString Interface = QStringLiteral("com.kestra.orbisdial.Instance");
constexpr int AnswerMs = 2000;  // for one that hangs

QString dataFolder() {
    unsigned short* folder = nullptr;
    if (VRKS_GetUserDataDirectory(&folder) != 0) return QString();
    const std::unique_ptr<unsigned short[]> owner(folder);
    return QDir(QString(reinterpret_cast<const QChar*>(folder))).canonicalPath();
}

QString serviceName() {
    const QString folders =
        dataFolder() + QLatin1Char('\n') + QFileInfo(CommonUtilsBase::GetSettingsFile()).absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(folders.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return Interface + QStringLiteral(".i") + QString::fromLatin1(hash);
}

}  // namespace

SingleInstance::SingleInstance(const QString& file) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    const QString name = serviceName();
    bus.registerObject(Path, this, QDBusConnection::ExportScriptableSlots);
    if (bus.registerService(name)) return;
    const QString wanted = file.isEmpty() ? QStringLiteral("Raise") : QStringLiteral("Import");
    auto call = QDBusMessage::createMethodCall(name, Path, Interface, wanted);
    if (!file.isEmpty()) call << file;
    const bool failed = bus.call(call, QDBus::Block, AnswerMs).type() == QDBusMessage::ErrorMessage;
    m_IsFirst = failed && !bus.interface()->isServiceRegistered(name);  // it has just ended
}

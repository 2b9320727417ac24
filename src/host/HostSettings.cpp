// SPDX-License-Identifier: MIT
#include "HostSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include "CommonUtilsBase.h"

namespace {

const QString True = QStringLiteral("true");
const QString False = QStringLiteral("false");
const QString WindowGroup = QStringLiteral("Window");

struct Place {
    const char* group;
    const char* key;
    bool isOnAtFirst;
};

// By HostSettings::Switch. The first is one that the settings plug-in reads.
const Place Places[] = {{"ConnectionSetting", "load", false},
                        {"Host", "closeToTray", false},
                        {"Host", "notify", true},
                        {"Host", "hasConnected", false}};

QString autostartFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/orbisdial.desktop");
}

// Quoted as the value of Exec in a desktop entry must be.
QByteArray quoted(const QString& program) {
    QString text;
    for (const QChar c : program) {
        if (QStringLiteral("\"`$\\").contains(c)) text += QStringLiteral("\\\\");
        text += c == QLatin1Char('%') ? QStringLiteral("%%") : QString(c);
    }
    return '"' + text.toUtf8() + '"';
}

QByteArray desktopEntry() {
    return "[Desktop Entry]\nType=Application\nName=OrbisDial\nIcon=orbisdial\nExec=" +
           quoted(QCoreApplication::applicationFilePath()) + " --tray\nX-GNOME-Autostart-enabled=true\n";
}

QByteArray kept(const char* key) {
    return QByteArray::fromBase64(CommonUtilsBase::GetSettings(WindowGroup, QLatin1String(key)).toLatin1());
}

void keep(const char* key, const QByteArray& value) {
    if (value == kept(key)) return;
    CommonUtilsBase::SetSettings(WindowGroup, QLatin1String(key), QString::fromLatin1(value.toBase64()));
}

}  // namespace

bool HostSettings::isOn(Switch which) {
    const Place& place = Places[which];
    const QString value = CommonUtilsBase::GetSettings(QLatin1String(place.group), QLatin1String(place.key));
    return value.isEmpty() ? place.isOnAtFirst : value.contains(True);
}

bool HostSettings::set(Switch which, bool on) {
    if (on == isOn(which)) return true;
    const Place& place = Places[which];
    return CommonUtilsBase::SetSettings(QLatin1String(place.group), QLatin1String(place.key), on ? True : False);
}

bool HostSettings::startsWithSession() { return QFile::exists(autostartFile()); }

bool HostSettings::setStartsWithSession(bool starts) {
    if (starts == startsWithSession()) return true;
    if (!starts) return QFile::remove(autostartFile());
    if (!QDir().mkpath(QFileInfo(autostartFile()).path())) return false;
    QSaveFile file(autostartFile());
    return file.open(QIODevice::WriteOnly) && file.write(desktopEntry()) > 0 && file.commit();
}

QByteArray HostSettings::windowGeometry() { return kept("geometry"); }

QByteArray HostSettings::windowState() { return kept("state"); }

void HostSettings::keepWindow(const QByteArray& geometry, const QByteArray& state) {
    keep("geometry", geometry);
    keep("state", state);
}

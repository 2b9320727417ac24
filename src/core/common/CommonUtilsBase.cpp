// SPDX-License-Identifier: MIT
#include "CommonUtilsBase.h"

#include <dlfcn.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

QString settingsFolder() {
    const QString configured = qEnvironmentVariable("ORBISDIAL_CONFIG_DIR");
    if (!configured.isEmpty()) return configured;
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/orbisdial";
}

QString settingsFile() { return settingsFolder() + "/orbisdial.ini"; }

QString settingsKey(const QString& group, const QString& key) { return group.isEmpty() ? key : group + '/' + key; }

QString namedLibraryPath() { return qEnvironmentVariable("ORBISDIAL_LIBRARY_PATH"); }

bool makeSettingsFolder() {
    const QString folder = QDir::cleanPath(settingsFolder());
    if (QFileInfo(folder).isDir()) return true;
    return QDir().mkpath(QFileInfo(folder).path()) && ::mkdir(QFile::encodeName(folder).constData(), 0700) == 0;
}

QString folderOfThisLibrary() {
    static const char address = 0;
    Dl_info info;
    if (::dladdr(&address, &info) == 0) return QString();
    return QFileInfo(QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath()).path();
}

}  // namespace

// A hand-written value with commas is a list to QSettings; it comes back joined.
QString CommonUtilsBase::GetSettings(const QString& group, const QString& key) {
    const QSettings settings(settingsFile(), QSettings::IniFormat);
    return settings.value(settingsKey(group, key)).toStringList().join(',');
}

bool CommonUtilsBase::SetSettings(const QString& group, const QString& key, const QString& value) {
    if (!makeSettingsFolder()) return false;
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(settingsKey(group, key), value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QString CommonUtilsBase::GetSettingsFile() { return QDir::cleanPath(settingsFile()); }

QStringList CommonUtilsBase::GetConfigurationFolders() {
    if (!namedLibraryPath().isEmpty()) return QStringList();
    QStringList folders(QDir::cleanPath(settingsFolder()));
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (const QString& place : places.mid(1))
        folders << QDir::cleanPath(place + "/orbisdial");  // the first is the user's
    folders << QStringLiteral("/etc/orbisdial");
    return folders;
}

QString CommonUtilsBase::GetPluginLibraryPath() {
    static const QString besideThisLibrary = folderOfThisLibrary() + "/orbisdial";
    const QString configured = namedLibraryPath();
    return configured.isEmpty() ? besideThisLibrary : QDir::cleanPath(configured);
}

QString CommonUtilsBase::ParanthesisCorrection(const QString& text) { return text; }

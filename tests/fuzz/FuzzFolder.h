// SPDX-License-Identifier: MIT
// What the fuzz targets share: folders of the process's own, and checks that end it.
#ifndef ORBISDIAL_TESTS_FUZZFOLDER_H
#define ORBISDIAL_TESTS_FUZZFOLDER_H

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>

// A broken promise, which the fuzzer reports as a crash.
inline void require(bool holds) {
    if (!holds) std::abort();
}

class FuzzFolder {
public:
    FuzzFolder() {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        require(QDir().mkpath(path("data")) && QDir().mkpath(pluginPath("")));
        qputenv("ORBISDIAL_DATA_DIR", QFile::encodeName(path("data")));
        qputenv("ORBISDIAL_CONFIG_DIR", QFile::encodeName(path("config")));
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(path("library")));
        qputenv("ORBISDIAL_DEVICE", "simulated");
    }

    QString path(const QString& name) const { return m_Root.path() + "/" + name; }
    QString pluginPath(const QString& name) const { return path("library/plugins/NetConnectPlugin/") + name; }

    static void write(const QString& file, const uint8_t* data, size_t size) {
        QFile out(file);
        require(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        require(out.write(reinterpret_cast<const char*>(data), qint64(size)) == qint64(size));
    }

private:
    QTemporaryDir m_Root;
};

#endif

// SPDX-License-Identifier: MIT
#include "Platform.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <cerrno>
#include <memory>

#include "ChosenModem.h"
#include "Command.h"
#include "CommandError.h"
#include "DeviceText.h"
#include "Message.h"
#include "StandardOutput.h"
#include "TerminalText.h"
#include "vrks_simulated.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

namespace {

const char DataFolderVariable[] = "ORBISDIAL_DATA_DIR";
const char DeviceVariable[] = "ORBISDIAL_DEVICE";

void writeTrace(QtMsgType, const QMessageLogContext&, const QString& text) {
    const QByteArray line = TerminalText::printable(text).toUtf8() + '\n';
    StandardOutput::write(STDERR_FILENO, line.constData(), std::size_t(line.size()));
}

void dropTrace(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) writeTrace(type, context, text);
}

void setVariable(const char* name, const QString& value) {
    if (value.isEmpty()) throw CommandError::usage(message("an option's value is empty"));
    qputenv(name, QFile::encodeName(value));
}

void checkDevice() {
    const char* problem = nullptr;
    if (!vrks_backend_name(&problem))
        throw CommandError::failed(problem ? DeviceText::inLanguage(QString::fromUtf8(problem))
                                           : message("the modem's backend can't be had"));
}

QString dataFolder() {
    const QString folder = QFile::decodeName(qgetenv(DataFolderVariable));
    if (!folder.isEmpty()) return folder;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/orbisdial";
}

}  // namespace

void Platform::prepare() {
    qInstallMessageHandler(dropTrace);
    qputenv("QT_NO_GLIB", "1");  // GLib crashes a program when memory runs out
    QLoggingCategory::setFilterRules("default.debug=false");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)  // Qt 6 knows no other encoding of the system
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

void Platform::requireUtf8(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (QString::fromUtf8(argv[i]).toUtf8() != argv[i])
            throw CommandError::usage(message("argument %1 is not UTF-8", {QString::number(i)}));
}

void Platform::applyOptions(const Invocation& invocation) {
    if (invocation.isSet("trace")) {
        qInstallMessageHandler(writeTrace);
        QLoggingCategory::setFilterRules(QString());
    }
    if (invocation.isSet("data-dir")) useDataFolder(invocation.value("data-dir"));
    if (invocation.isSet("device")) useDevice(invocation.value("device"));
    checkDevice();
    ChosenModem::use();
}

void Platform::useDataFolder(const QString& folder) { setVariable(DataFolderVariable, folder); }

void Platform::useDevice(const QString& kind) {
    if (!deviceKinds().contains(kind))
        throw CommandError::usage(
            message("unknown device %1; use one of %2", {quoted(kind), deviceKinds().join(", ")}));
    setVariable(DeviceVariable, kind);
}

QStringList Platform::deviceKinds() { return {"simulated", "modemmanager", "none", "auto"}; }

bool Platform::asksDaemons() { return qstrcmp(vrks_backend_name(nullptr), "modemmanager") == 0; }

QString Platform::dataFolderProblem() {
    unsigned short* directory = nullptr;
    const long status = VRKS_GetUserDataDirectory(&directory);
    const std::unique_ptr<unsigned short[]> owned(directory);
    if (status == 0 && directory) return QString();
    const QFileInfo folder(dataFolder());
    return folder.exists() && !folder.isDir()
               ? message("the data folder %1 is not a folder", {folder.filePath()})
               : message("the data folder %1 can't be made or entered", {folder.filePath()});
}

bool Platform::isDataFolderMissing() {
    struct stat ignored = {};
    return ::stat(QFile::encodeName(dataFolder()).constData(), &ignored) != 0 && errno == ENOENT;
}

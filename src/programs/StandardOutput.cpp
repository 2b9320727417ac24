// SPDX-License-Identifier: MIT
#include "StandardOutput.h"

#include <poll.h>
#include <unistd.h>

#include <QCoreApplication>
#include <cerrno>
#include <cstring>

#include "TerminalText.h"

namespace {

void waitUntilReady(int stream) {
    pollfd wanted = {stream, POLLOUT, 0};
    ::poll(&wanted, 1, -1);
}

bool canGoOn(int stream) {
    if (errno == EAGAIN) waitUntilReady(stream);
    return errno == EAGAIN || errno == EINTR;
}

}  // namespace

bool StandardOutput::write(int stream, const char* data, std::size_t size) {
    while (size > 0) {
        errno = EIO;  // of a call that neither writes nor fails
        const ssize_t written = ::write(stream, data, size);
        if (written == 0 || (written < 0 && !canGoOn(stream))) return false;
        if (written < 0) continue;
        data += written;
        size -= std::size_t(written);
    }
    return true;
}

QString StandardOutput::writeText(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    if (write(STDOUT_FILENO, bytes.constData(), std::size_t(bytes.size()))) return QString();
    const QString why = QString::fromLocal8Bit(std::strerror(errno));
    return QCoreApplication::translate("Reasons", "the output can't be written: %1").arg(why);
}

void StandardOutput::writeDiagnostic(const char* program, const QString& text) {
    const QByteArray line = program + QByteArray(": ") + TerminalText::printable(text.trimmed()).toUtf8() + '\n';
    write(STDERR_FILENO, line.constData(), std::size_t(line.size()));
}

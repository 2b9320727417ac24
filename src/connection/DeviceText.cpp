// SPDX-License-Identifier: MIT
#include "DeviceText.h"

#include <QRegularExpression>

#include "ReasonText.h"
#include "TextValues.h"

namespace {

// Those with values before the one that takes anything.
const char* const Texts[] = {
    QT_TRANSLATE_NOOP("Reasons", "the device backend can't start"),
    QT_TRANSLATE_NOOP("Reasons", "ORBISDIAL_DEVICE names no device backend; use simulated, modemmanager, none or auto"),
    QT_TRANSLATE_NOOP("Reasons", "the process was made by one that uses the modem"),
    QT_TRANSLATE_NOOP("Reasons", "the device backend \"%1\" can't be loaded: there is no %2"),
    QT_TRANSLATE_NOOP("Reasons", "the device backend \"%1\" can't be loaded: it belongs to another version"),
    QT_TRANSLATE_NOOP("Reasons", "the device backend \"%1\" can't be loaded: %2"),
    QT_TRANSLATE_NOOP("Reasons", "Mobile broadband is switched off"),
    QT_TRANSLATE_NOOP("Reasons", "NetworkManager can't use the modem now"),
    QT_TRANSLATE_NOOP("Reasons", "NetworkManager does not answer"),
};

QRegularExpression patternOf(const char* text) {
    QString pattern = QRegularExpression::escape(QString::fromLatin1(text));
    for (const char* place : {"\\%1", "\\%2"}) pattern.replace(QLatin1String(place), QLatin1String("(.+)"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

}  // namespace

QString DeviceText::inLanguage(const QString& english) {
    for (const char* text : Texts) {
        const QRegularExpressionMatch match = patternOf(text).match(english);
        if (match.hasMatch()) return TextValues::filled(reasonText(text), match.capturedTexts().mid(1));
    }
    return english;
}

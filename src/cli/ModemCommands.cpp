// SPDX-License-Identifier: MIT
// modems, modem.

#include <QJsonArray>

#include "ChosenModem.h"
#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"

namespace {

const char ModemVariable[] = "ORBISDIAL_MODEM";

QString keyOf(const VRKS_ModemInfo& info) { return QString::fromUtf8(info.id); }

bool isNamed(const VRKS_ModemInfo& info, const QString& name) {
    return name == keyOf(info) || name == QString::fromUtf8(info.imei) || name == QString::fromUtf8(info.port);
}

QList<VRKS_ModemInfo> modemsHere() {
    ModemReport::required();
    return ModemReport::all();
}

// A key that was chosen may be that of a modem which is not plugged in.
QString keyNamed(const QString& name) {
    for (const VRKS_ModemInfo& info : modemsHere())
        if (isNamed(info, name)) return keyOf(info);
    if (name == ChosenModem::id()) return name;
    throw CommandError::notFound(message("there is no modem %1; see orbisctl modems", {quoted(name)}));
}

void warnOfVariable() {
    if (qEnvironmentVariableIsEmpty(ModemVariable)) return;
    printWarning(message("%1 names a modem, and counts before the choice", {ModemVariable}));
}

void keep(const QString& key) {
    if (!ChosenModem::choose(key)) throw CommandError::failed(message("the choice can't be kept in the settings"));
    warnOfVariable();
}

void showModem(Output& output) {
    const VRKS_ModemInfo info = ModemReport::required();
    const QString chosen = ChosenModem::id();
    QStringList lines{ModemReport::line(QT_TRANSLATE_NOOP("Programs", "chosen"),
                                        chosen.isEmpty() ? message("automatically") : chosen)};
    QJsonObject object = ModemReport::object(info);
    object["chosen"] = chosen.isEmpty() ? QJsonValue() : chosen;
    output.result(object, lines + ModemReport::lines(info));
}

}  // namespace

void listModems(const Invocation&, Output& output) {
    const QString chosen = ChosenModem::id();
    bool isChosenHere = chosen.isEmpty();
    QJsonArray modems;
    QStringList lines;
    for (const VRKS_ModemInfo& info : modemsHere()) {
        const bool isChosen = keyOf(info) == chosen;
        isChosenHere |= isChosen;
        QJsonObject object = ModemReport::object(info);
        object["inUse"] = info.isSelected != 0;
        object["chosen"] = isChosen;
        modems.append(object);
        QStringList about{ModemReport::title(info), ModemReport::status(info)};
        if (isChosen) about.append(message("chosen"));
        lines.append(QString("%1 %2  %3").arg(info.isSelected ? "*" : " ", keyOf(info), about.join(", ")));
    }
    if (!isChosenHere) lines.append(QString("  %1  %2").arg(chosen, message("chosen, not plugged in")));
    output.result({{"modems", modems}, {"chosen", chosen.isEmpty() ? QJsonValue() : chosen}}, lines);
}

void chooseModem(const Invocation& invocation, Output& output) {
    const bool clears = invocation.isSet("clear");
    if (clears && !invocation.arguments().isEmpty()) throw CommandError::usage(message("--clear takes no modem"));
    if (!clears && invocation.arguments().isEmpty()) return showModem(output);
    const QString key = clears ? QString("") : keyNamed(invocation.arguments().first());
    keep(key);
    output.result({{"chosen", key.isEmpty() ? QJsonValue() : key}}, {});
}

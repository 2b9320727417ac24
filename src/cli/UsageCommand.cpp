// SPDX-License-Identifier: MIT
// usage.

#include <QJsonArray>

#include "Amounts.h"
#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionReport.h"
#include "DataUsage.h"
#include "Message.h"
#include "ModemReport.h"
#include "Output.h"
#include "Platform.h"

namespace {

// The card whose volume is meant, and the connection that may have moved more since it was counted.
struct Meant {
    DataConnection connection;
    QString imsi;
};

Meant meant() {
    ModemReport::required();
    ConnectionReport::requireKnown();
    DataConnection connection = DataConnection::current();
    const QString imsi = connection.card();
    if (!imsi.isEmpty()) return {connection, imsi};
    const int obstacle = ModemState::current().obstacle();
    connection.failure = obstacle == VRKS_FAILURE_NONE ? VRKS_FAILURE_NO_CARD : obstacle;
    connection.words.clear();
    throw ConnectionReport::error(connection);
}

// Who only looks makes no folder.
DataUsage counted() {
    const DataUsage usage = Platform::isDataFolderMissing() ? DataUsage(QString()) : DataUsage();
    if (usage.isReadable()) return usage;
    throw CommandError::failed(message("what was counted can't be read, or is damaged"));
}

QJsonObject object(const QString& month, const UsageTotals& totals) {
    return {{"month", month},
            {"received", double(totals.received)},
            {"sent", double(totals.sent)},
            {"total", double(totals.all())}};
}

QString sentence(const QString& month, const UsageTotals& totals) {
    return message(
        "%1: %2 received, %3 sent, %4 together",
        {month, Amounts::volume(totals.received), Amounts::volume(totals.sent), Amounts::volume(totals.all())});
}

void showMonth(const Meant& meant, Output& output) {
    const DataUsage usage = counted();
    const QDate today = QDate::currentDate();
    const QString month = DataUsage::nameOf(today);
    const UsageTotals totals = usage.monthWith(meant.connection, meant.imsi, today);
    const quint64 limit = usage.limit(meant.imsi);
    const int percent = limit ? int(qMin(double(totals.all()) * 100 / double(limit), 1e6)) : 0;
    QJsonObject shown = object(month, totals);
    shown["limit"] = limit ? QJsonValue(double(limit)) : QJsonValue();
    shown["percent"] = limit ? QJsonValue(percent) : QJsonValue();
    const QString ofLimit =
        limit ? message("%1 percent of the limit of %2", {QString::number(percent), Amounts::volume(limit)})
              : message("no limit is set");
    output.result(shown, {sentence(month, totals), ofLimit});
}

void showMonths(const Meant& meant, Output& output) {
    const QMap<QString, UsageTotals> months = counted().months(meant.connection, meant.imsi);
    QJsonArray rows;
    QStringList lines;
    for (auto month = months.begin(); month != months.end(); ++month) {
        rows.append(object(month.key(), *month));
        lines.append(sentence(month.key(), *month));
    }
    if (months.isEmpty()) lines.append(message("nothing has been counted yet"));
    output.result({{"months", rows}}, lines);
}

quint64 limitIn(const QString& text) {
    const std::optional<quint64> bytes = Amounts::bytesIn(text);
    if (!bytes)
        throw CommandError::usage(message("%1 is no limit; say a volume such as 500MB or 1.5GB", {quoted(text)}));
    return *bytes;
}

void requireOneOf(const Invocation& invocation, const QStringList& options) {
    int count = 0;
    for (const QString& option : options) count += invocation.isSet(option);
    if (count > 1)
        throw CommandError::usage(message("only one of these goes at a time: %1", {"--" + options.join(" --")}));
}

}  // namespace

void showUsage(const Invocation& invocation, Output& output) {
    requireOneOf(invocation, {"months", "limit", "clear"});
    const bool hasLimit = invocation.isSet("limit");
    const quint64 limit = hasLimit ? limitIn(invocation.value("limit")) : 0;
    const Meant card = meant();
    if (invocation.isSet("months")) return showMonths(card, output);
    const bool isSetting = hasLimit || invocation.isSet("clear");
    if (isSetting && !DataUsage().setLimit(card.imsi, limit))
        throw CommandError::failed(message("the limit can't be stored"));
    showMonth(card, output);
}

// SPDX-License-Identifier: MIT
#include "ConnectionReport.h"

#include <vrks_simulated.h>

#include <QJsonArray>
#include <QStringList>

#include "ConnectionText.h"
#include "Message.h"
#include "ModemReport.h"
#include "Platform.h"

namespace {

const char* const States[] = {"down", "dialling", "up", "hanging-up"};
const char* const Steps[] = {nullptr, "preparing", "registering", "connecting", "addressing"};

template <std::size_t Count>
QJsonValue word(const char* const (&words)[Count], int value) {
    const bool isWord = value >= 0 && value < int(Count) && words[value];
    return isWord ? QJsonValue(words[value]) : QJsonValue();
}

QJsonValue nullIfEmpty(const QString& text) { return text.isEmpty() ? QJsonValue() : text; }

QString failureName(int failure) {
    const char* name = "";
    VRKS_NetConnectSrv_GetFailureName(failure, &name);
    return QString::fromLatin1(name);
}

QJsonValue failureWord(int failure) {
    return failure == VRKS_FAILURE_NONE ? QJsonValue() : QJsonValue(failureName(failure));
}

// As "1:02:03".
QString duration(qint64 seconds) {
    return QString("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

// The sentence, or the failure's name where no language has one, and what the network said.
QString failureText(const DataConnection& connection) {
    QString text = ConnectionText::failure(connection.failure, connection.name, connection.words);
    if (text.isEmpty()) text = failureName(connection.failure);
    return withDetails(text, ConnectionText::details(connection));
}

QString upLine(const DataConnection& connection) {
    QStringList parts{message("connected: %1", {connection.name}), connection.interfaceName, connection.address,
                      connection.address6};
    if (connection.seconds >= 0) parts.append(duration(connection.seconds));
    parts.append(message("%1 bytes received, %2 sent",
                         {QString::number(connection.received), QString::number(connection.sent)}));
    parts.removeAll(QString());
    return parts.join(", ");
}

QString downLine(const DataConnection& connection) {
    if (!connection.usedBy.isEmpty()) return message("not connected; the modem is in use by %1", {connection.usedBy});
    if (connection.failure == VRKS_FAILURE_NONE) return message("not connected");
    return message("not connected: %1", {failureText(connection)});
}

QString stateLine(const DataConnection& connection) {
    switch (connection.state) {
        case VRKS_CONNECTION_UP:
            return upLine(connection);
        case VRKS_CONNECTION_DIALLING:
            return message("connecting: %1: %2", {connection.name, ConnectionReport::step(connection)});
        case VRKS_CONNECTION_HANGING_UP:
            return message("disconnecting: %1", {connection.name});
        default:
            return downLine(connection);
    }
}

CommandError::ExitStatus exitStatus(int failure) {
    switch (failure) {
        case VRKS_FAILURE_NO_MODEM:
        case VRKS_FAILURE_NO_CARD:
            return CommandError::NotFound;
        case VRKS_FAILURE_BAD_REQUEST:
        case VRKS_FAILURE_IN_USE:
        case VRKS_FAILURE_AUTHENTICATION:
        case VRKS_FAILURE_NOT_SUBSCRIBED:
        case VRKS_FAILURE_REFUSED:
        case VRKS_FAILURE_APN:
        case VRKS_FAILURE_REGISTRATION_DENIED:
        case VRKS_FAILURE_LOCKED:
        case VRKS_FAILURE_WRONG_CARD:
        case VRKS_FAILURE_WRONG_PIN:
        case VRKS_FAILURE_CREDENTIALS_MISSING:
        case VRKS_FAILURE_NOT_ALLOWED:
            return CommandError::Refused;
        default:
            return CommandError::Failed;
    }
}

}  // namespace

CommandError ConnectionReport::silence(int failure, const QString& withoutBackend) {
    if (!Platform::asksDaemons()) return CommandError::failed(withoutBackend);
    DataConnection none;
    none.failure = failure;
    return error(none);
}

void ConnectionReport::requireKnown() {
    if (!DataConnection::current().isKnown)
        throw silence(VRKS_FAILURE_NO_NETWORK_SERVICE, message("nothing can tell of connections"));
}

DataConnection ConnectionReport::present() {
    DataConnection connection = DataConnection::current();
    const bool isWithoutReason = connection.isDown() && connection.failure == VRKS_FAILURE_NONE;
    if (isWithoutReason && ModemReport::isServiceMissing()) connection.failure = VRKS_FAILURE_NO_MODEM_SERVICE;
    return connection;
}

QJsonObject ConnectionReport::lasting(const DataConnection& connection) {
    return {{"state", word(States, connection.state)},
            {"step", word(Steps, connection.step)},
            {"profile", nullIfEmpty(connection.name)},
            {"failure", failureWord(connection.failure)},
            {"words", nullIfEmpty(connection.words)},
            {"usedBy", nullIfEmpty(connection.usedBy)},
            {"endsWithProcess", connection.endsWithProcess},
            {"interface", nullIfEmpty(connection.interfaceName)},
            {"address", nullIfEmpty(connection.address)},
            {"address6", nullIfEmpty(connection.address6)},
            {"dns", QJsonArray::fromStringList(connection.dns)},
            {"simulated", vrks_simulated_active() != 0}};
}

QJsonObject ConnectionReport::object(const DataConnection& connection) {
    QJsonObject object = lasting(connection);
    object["since"] = connection.since > 0 ? QJsonValue(connection.since) : QJsonValue();
    object["seconds"] = connection.seconds >= 0 ? QJsonValue(connection.seconds) : QJsonValue();
    object["received"] = double(connection.received);
    object["sent"] = double(connection.sent);
    return object;
}

QString ConnectionReport::line(const DataConnection& connection) {
    const QString line = stateLine(connection);
    return vrks_simulated_active() ? message("%1 (simulated modem)", {line}) : line;
}

QString ConnectionReport::step(const DataConnection& connection) {
    const QString text = ConnectionText::step(connection.step);
    return text.isEmpty() ? word(Steps, connection.step).toString() : text;
}

CommandError ConnectionReport::error(const DataConnection& connection) {
    if (connection.failure == VRKS_FAILURE_NONE)
        return CommandError::failed(message("the connection was ended elsewhere"));
    return {exitStatus(connection.failure), failureText(connection)};
}

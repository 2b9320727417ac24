// SPDX-License-Identifier: MIT
// The daemons and modems beside which a test program runs; what each does is told at the top of stack.py.
#ifndef ORBISDIAL_TESTS_STACK_H
#define ORBISDIAL_TESTS_STACK_H

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QtTest>
#include <algorithm>

class Stack {
public:
    Stack() { m_Control.connectToServer(path("control")); }

    // A file of the stack's own, such as "NetworkManager.log".
    static QString path(const QString& name) { return qEnvironmentVariable("ORBISDIAL_STACK") + "/" + name; }

    // Each answers whether it was done; the daemons may take a moment to notice.
    bool plug(const QString& modem, const QJsonArray& tables) { return isDone({"plug", modem, tables}); }
    bool unplug(const QString& modem) { return isDone({"unplug", modem}); }
    bool replug(const QString& modem) { return isDone({"replug", modem}); }
    bool reply(const QString& modem, const QString& command, const QString& text) {
        return isDone({"reply", modem, command, text});
    }
    bool send(const QString& modem, const QString& line) { return isDone({"send", modem, line}); }
    // From LTE to UMTS, which the modem tells unasked.
    bool handOver(const QString& modem) {
        const char* const places[][2] = {
            {"+CEREG", "0"}, {"+CGREG", "1,\"0A01\",\"0000B001\",2"}, {"+CREG", "1,\"0A01\",\"0000B001\",2"}};
        return std::all_of(std::begin(places), std::end(places), [&](const auto& place) {
            const QString name = place[0], state = place[1];
            return reply(modem, "AT" + name + "?", name + ": 2," + state) && send(modem, name + ": " + state);
        });
    }
    bool kill(const QString& daemon) { return isDone({"daemon", "kill", daemon}); }
    bool freeze(const QString& daemon) { return isDone({"daemon", "stop", daemon}); }
    bool thaw(const QString& daemon) { return isDone({"daemon", "cont", daemon}); }
    bool start(const QString& daemon) { return isDone({"daemon", "start", daemon}); }
    bool permit(bool permits) { return isDone({"permit", permits}); }
    bool setPppd(const QString& mode) { return isDone({"pppd", mode}); }

    // What the modem was sent so far.
    QStringList commands(const QString& modem) { return ask({"commands", modem})["answer"].toVariant().toStringList(); }

    // How pppd was called last: "arguments", "user", "password".
    static QJsonObject lastPppdCall() {
        QFile log(path("pppd.log"));
        if (!log.open(QIODevice::ReadOnly)) return {};
        return QJsonDocument::fromJson(log.readAll().trimmed().split('\n').last()).object();
    }

private:
    bool isDone(const QJsonArray& command) {
        const QJsonObject answer = ask(command);
        if (!answer.contains("answer")) qWarning() << command << answer;
        return answer.contains("answer");
    }

    QJsonObject ask(const QJsonArray& command) {
        m_Control.write(QJsonDocument(command).toJson(QJsonDocument::Compact) + "\n");
        while (!m_Control.canReadLine())
            if (!m_Control.waitForReadyRead()) return {};
        return QJsonDocument::fromJson(m_Control.readLine()).object();
    }

    QLocalSocket m_Control;
};

#endif

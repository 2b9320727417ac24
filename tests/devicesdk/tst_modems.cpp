// SPDX-License-Identifier: MIT
// Modems and their choice, unlocking, data connections and USSD on the simulated modems, and the events of all that.
#include <QSemaphore>
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <mutex>
#include <utility>

#include "Rows.h"
#include "vrks.h"
#include "vrks_simulated.h"

namespace {

std::mutex eventsMutex;
QList<int> events;
QSemaphore mayReturn;
std::atomic<bool> blocks{false};

void record(int event) {
    const std::lock_guard lock(eventsMutex);
    events.append(event);
}

int noteDevice(int event, void*) {
    record(event);
    return 0;
}

// The pointer is a list that the event is noted in too, or null.
void note(int event, void* data) {
    record(event);
    if (data) *static_cast<QList<int>*>(data) += event;
    if (blocks) mayReturn.acquire();
}

// Those since the last call, in the order of their numbers.
QString takeEvents() {
    vrks_simulated_wait_events();
    const std::lock_guard lock(eventsMutex);
    std::sort(events.begin(), events.end());
    QStringList texts;
    for (int event : std::as_const(events)) texts += QString::number(event);
    events.clear();
    return texts.join(' ');
}

bool wasTold(int event) {
    return QTest::qWaitFor([=] {
        const std::lock_guard lock(eventsMutex);
        return events.contains(event);
    });
}

template <class Record, long (*Query)(Record*)>
Record ask() {
    Record record{};
    record.size = sizeof record;
    if (Query(&record) != 0) QTest::qFail("a query failed", __FILE__, __LINE__);
    return record;
}

VRKS_ModemInfo modem() { return ask<VRKS_ModemInfo, VRKS_DevSrv_GetModemInfo>(); }
VRKS_Connection connection() { return ask<VRKS_Connection, VRKS_NetConnectSrv_GetConnection>(); }
VRKS_Ussd ussd() { return ask<VRKS_Ussd, VRKS_NetSrv_GetUssd>(); }

bool reaches(int state) {
    return QTest::qWaitFor([=] { return connection().state == state; });
}

bool sessionReaches(int state) {
    return QTest::qWaitFor([=] { return ussd().state == state; });
}

QString failureName(int failure) {
    const char* name = nullptr;
    return VRKS_NetConnectSrv_GetFailureName(failure, &name) == 0 ? name : "-";
}

VRKS_DialRequest request() {
    VRKS_DialRequest request{};
    request.size = sizeof request;
    request.name = "Home";
    return request;
}

long dial() {
    const VRKS_DialRequest plain = request();
    return VRKS_NetConnectSrv_Dial(&plain);
}

// Several "NAME=VALUE"; nothing behind the sign, as in "NAME=", is an empty value.
void set(const QStringList& settings) {
    for (const QString& setting : settings) {
        const QByteArray name = setting.section('=', 0, 0).toUtf8(), value = setting.section('=', 1).toUtf8();
        QVERIFY2(vrks_simulated_set(name, value) == 0, qPrintable(setting));
    }
}

QStringList modemKeys() {
    QStringList keys;
    char key[VRKS_MODEM_ID_SIZE];
    while (VRKS_DevSrv_GetModemAt(unsigned(keys.size()), key) == 0) keys += key;
    return keys;
}

const QStringList AtOnce = {"DIAL_MS=0", "HANG_UP_MS=0", "UNLOCK_MS=0", "USSD_MS=0"};

}  // namespace

class tst_modems : public QObject {
    Q_OBJECT

private slots:
    void init() {
        QCOMPARE(vrks_simulated_reset(), 0L);
        set(AtOnce);
        QCOMPARE(VRKS_DevSrv_RegisterDevInitEventCallback(noteDevice), 0L);
        QCOMPARE(VRKS_DevSrv_RegisterEventCallback(note, nullptr), 0L);
        takeEvents();
    }

    void cleanup() {
        qunsetenv("ORBISDIAL_MODEM");
        takeEvents();
        VRKS_DevSrv_UnRegisterDevInitEventCallback(noteDevice);
        VRKS_DevSrv_UnRegisterEventCallback(note, nullptr);
    }

    void changesRaiseEvents_data() {
        const Rows<QStringList, QString, QString, QString> row("before", "name", "value", "expected");
        row("becomes ready", {"STATUS=1"}, "STATUS", "3", "2 6014");
        row("is ready no more", {}, "STATUS", "4", "2 6016");
        row("starts", {"STATUS=0"}, "STATUS", "1", "2");
        row("locked", {}, "LOCK", "pin", "2 6016");
        row("another card", {}, "IMSI", "26201", "6016");
        row("another card while not ready", {"STATUS=1"}, "IMSI", "26201", "");
        row("no card", {}, "IMSI", {}, "2 6016");
        row("product", {}, "PRODUCT_TYPE", "1", "2 6016");
        row("customise name", {}, "CUSTOMIZE_NAME", "ACME", "6016");
        row("card mode", {}, "CARD_MODE", "2", "6016");
        row("handover", {}, "SYS_MODE", "5", "3");
        row("signal", {}, "SIGNAL", "20", "2");
        row("nothing new", {"SIGNAL=20"}, "SIGNAL", "20", "");
        row("used by another", {}, "USED_BY", "nm", "5");
        row("second modem comes", {}, "2_PRESENT", "1", "1 2");
        row("second modem's card", {"2_PRESENT=1"}, "2_IMSI", "26202", "");
        row("unplugged", {}, "PRESENT", "0", "1 2 3 6016");
        row("the second takes over", {"2_PRESENT=1"}, "PRESENT", "0", "1 2 6016");
    }

    void changesRaiseEvents() {
        set(cell<QStringList>("before"));
        const QString value = cell("value");
        QCOMPARE(vrks_simulated_change(cell("name").toLatin1(), value.isNull() ? nullptr : qPrintable(value)), 0L);
        QCOMPARE(takeEvents(), cell("expected"));
    }

    void oneEventOfAKindWaits() {
        blocks = true;
        vrks_simulated_change("SIGNAL", "1");
        QVERIFY(wasTold(VRKS_EVENT_MODEM_CHANGED));
        for (int i = 2; i < 50; ++i) vrks_simulated_change("SIGNAL", QByteArray::number(i));
        blocks = false;
        mayReturn.release();
        QCOMPARE(takeEvents(), QString("2 2"));
        QCOMPARE(modem().signal, 49);
    }

    // A window reads its lists at each: it must get on with its own work meanwhile.
    void flappingModemIsToldInTurns() {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 200; ++i) vrks_simulated_change("STATUS", i % 2 ? "3" : "1");
        const QStringList told = takeEvents().split(' ');
        const int most = 2 + int(timer.elapsed() / 100);
        for (const char* event : {"6014", "6016"}) {
            const int count = told.count(event);
            QVERIFY2(count >= 1 && count <= most, qPrintable(QString("%1: %2").arg(event).arg(count)));
        }
    }

    void eventsAreKeptForTheFirst() {
        cleanup();
        vrks_simulated_change("SIGNAL", "1");
        vrks_simulated_change("SIGNAL", "2");
        vrks_simulated_change("SYS_MODE", "5");
        QCOMPARE(takeEvents(), QString());
        QList<int> ofFirst, ofSecond;
        QCOMPARE(VRKS_DevSrv_RegisterEventCallback(note, &ofFirst), 0L);
        QVERIFY(VRKS_DevSrv_RegisterEventCallback(note, &ofFirst) != 0);
        takeEvents();
        QCOMPARE(VRKS_DevSrv_RegisterEventCallback(note, &ofSecond), 0L);
        takeEvents();
        QCOMPARE(VRKS_DevSrv_UnRegisterEventCallback(note, &ofFirst), 0L);
        vrks_simulated_change("SYS_MODE", "6");
        takeEvents();
        QCOMPARE(VRKS_DevSrv_UnRegisterEventCallback(note, &ofSecond), 0L);
        QVERIFY(VRKS_DevSrv_UnRegisterEventCallback(note, &ofSecond) != 0);
        QCOMPARE(ofFirst, QList<int>({VRKS_EVENT_MODEM_CHANGED, VRKS_EVENT_SYSTEM_MODE_CHANGED}));
        QCOMPARE(ofSecond, QList<int>({VRKS_EVENT_SYSTEM_MODE_CHANGED}));
    }

    void choosesAModem_data() {
        const Rows<QStringList, QByteArray, QByteArray, QStringList, QString> row("settings", "variable", "selected",
                                                                                  "keys", "inUse");
        const QString one = "/simulated/1", two = "/simulated/2";
        const QStringList both = {one, two};
        row("one", {}, "", "", {one}, one);
        row("none", {"PRESENT=0"}, "", "", {}, "");
        row("first ready", {"STATUS=1", "2_PRESENT=1"}, "", "", both, two);
        row("none ready", {"STATUS=1", "2_STATUS=1", "2_PRESENT=1"}, "", "", both, one);
        row("by key", {"2_PRESENT=1"}, two.toLatin1(), "", both, two);
        row("by IMEI", {"2_PRESENT=1"}, "004999010640001", "", both, two);
        row("by port", {"2_PRESENT=1"}, "sim1", "", both, two);
        row("named and not there", {}, "sim1", "", {one}, "");
        row("selected", {"2_PRESENT=1"}, "sim0", two.toLatin1(), both, two);
    }

    void choosesAModem() {
        QFETCH(QByteArray, selected);
        qputenv("ORBISDIAL_MODEM", cell<QByteArray>("variable"));
        set(cell<QStringList>("settings"));
        QCOMPARE(VRKS_DevSrv_SelectModem(selected), 0L);
        QCOMPARE(modemKeys(), cell<QStringList>("keys"));
        const VRKS_ModemInfo info = modem();
        QCOMPARE(QString(info.id), cell("inUse"));
        QCOMPARE(info.isSelected != 0, *info.id != 0);
        int status = -1;
        QCOMPARE(VRKS_DevSrv_GetDevStatus(&status), 0L);
        QCOMPARE(status, info.status);
    }

    // A second modem that is ready too must not take over from the one in use, in whatever order they came.
    void presentModemStays() {
        set({"PRESENT=0", "2_PRESENT=1"});
        QCOMPARE(QString(modem().id), QString("/simulated/2"));
        set({"PRESENT=1"});
        QCOMPARE(QString(modem().id), QString("/simulated/2"));
        VRKS_ModemInfo other{};
        other.size = sizeof other;
        QCOMPARE(VRKS_DevSrv_GetModemInfoOf("/simulated/1", &other), 0L);
        QVERIFY(!other.isSelected && QString(other.port) == "sim0");
        QVERIFY(VRKS_DevSrv_GetModemInfoOf("/simulated/3", &other) != 0);
    }

    // An older program has a shorter record, a newer one a longer one.
    void recordsHaveTheCallersSize() {
        struct {
            VRKS_ModemInfo info;
            char more[8];
        } record;
        std::memset(&record, 'G', sizeof record);
        record.info.size = offsetof(VRKS_ModemInfo, card);
        QCOMPARE(VRKS_DevSrv_GetModemInfo(&record.info), 0L);
        QCOMPARE(record.info.isSelected, 1);
        QCOMPARE(record.info.card, int(0x47474747));
        record.info.size = sizeof record;
        QCOMPARE(VRKS_DevSrv_GetModemInfo(&record.info), 0L);
        QCOMPARE(record.info.size, unsigned(sizeof record));
        QCOMPARE(QByteArray(record.more, sizeof record.more), QByteArray(8, '\0'));
        record.info.size = 4;
        QVERIFY(VRKS_DevSrv_GetModemInfo(&record.info) != 0);
    }

    // What is listed can be set again as it stands.
    void settingsAreListed() {
        char name[VRKS_TEXT_SIZE], value[VRKS_TEXT_SIZE];
        QSet<QString> names;
        for (unsigned int i = 0; vrks_simulated_get_at(i, name, value) == 0; ++i) {
            names += name;
            if (*value) QVERIFY2(vrks_simulated_change(name, value) == 0, name);
        }
        for (const char* known : {"IMSI", "2_IMSI", "LOCK", "DIAL", "USSD"}) QVERIFY2(names.contains(known), known);
        QCOMPARE(takeEvents(), QString());
    }

    void unlocks_data() {
        // What is entered, each a PIN or "PUK NEWPIN", and the last result.
        const Rows<QStringList, QStringList, int, int, int> row("settings", "codes", "result", "lock", "attempts");
        const QStringList pin = {"LOCK=pin"}, puk = {"LOCK=puk"};
        row("right", pin, {"1234"}, VRKS_UNLOCK_DONE, VRKS_LOCK_NONE, -1);
        row("wrong", pin, {"0000"}, VRKS_UNLOCK_WRONG, VRKS_LOCK_PIN, 2);
        row("right after wrong", pin, {"0000", "1234"}, VRKS_UNLOCK_DONE, VRKS_LOCK_NONE, -1);
        row("the last wrong one", pin, {"0000", "0000", "0000"}, VRKS_UNLOCK_WRONG, VRKS_LOCK_PUK, 10);
        row("PUK", puk, {"12345678 4321"}, VRKS_UNLOCK_DONE, VRKS_LOCK_NONE, -1);
        row("wrong PUK", puk, {"00000000 4321"}, VRKS_UNLOCK_WRONG, VRKS_LOCK_PUK, 9);
        row("lost", {"LOCK=puk", "PUK_ATTEMPTS=1"}, {"00000000 4321"}, VRKS_UNLOCK_WRONG, VRKS_LOCK_OTHER, -1);
        row("not allowed", {"LOCK=pin", "UNLOCK=not-allowed"}, {"1234"}, VRKS_UNLOCK_NOT_ALLOWED, VRKS_LOCK_PIN, 3);
    }

    void unlocks() {
        set(cell<QStringList>("settings"));
        QCOMPARE(modem().status, VRKS_DEV_STATUS_LOCKED);
        for (const QString& code : cell<QStringList>("codes")) {
            const QByteArray first = code.section(' ', 0, 0).toLatin1(), second = code.section(' ', 1).toLatin1();
            QCOMPARE(second.isEmpty() ? VRKS_DevSrv_EnterPin(first) : VRKS_DevSrv_EnterPuk(first, second), 0L);
            QVERIFY(wasTold(VRKS_EVENT_UNLOCK_RESULT));
            takeEvents();
        }
        const VRKS_ModemInfo info = modem();
        QCOMPARE(info.unlockResult, cell<int>("result"));
        QCOMPARE(info.lock, cell<int>("lock"));
        QCOMPARE(info.attempts, cell<int>("attempts"));
        QCOMPARE(info.status, info.lock ? VRKS_DEV_STATUS_LOCKED : VRKS_DEV_STATUS_READY);
        char imsi[VRKS_IMSI_SIZE];
        QCOMPARE(VRKS_DevSrv_GetImsiInfo(imsi) == 0, info.lock == VRKS_LOCK_NONE);
    }

    // None of these may cost an attempt.
    void refusesToUnlock() {
        QVERIFY(VRKS_DevSrv_EnterPin("1234") != 0);
        set({"LOCK=pin", "UNLOCK_MS=60000"});
        for (const char* pin : {"123", "123456789", "12a4", "", static_cast<const char*>(nullptr)})
            QVERIFY2(VRKS_DevSrv_EnterPin(pin) != 0, pin);
        QVERIFY(VRKS_DevSrv_EnterPuk("12345678", "1234") != 0);
        QCOMPARE(VRKS_DevSrv_EnterPin("1234"), 0L);
        QVERIFY(VRKS_DevSrv_EnterPin("1234") != 0);
        QCOMPARE(modem().attempts, 3);
        set({"LOCK=puk"});
        QVERIFY(VRKS_DevSrv_EnterPuk("1234567", "1234") != 0);
    }

    void dialsAndHangsUp() {
        VRKS_DialRequest full = request();
        full.apn = "internet";
        full.user = "me";
        full.allowsChap = 1;
        full.dns = "0.0.0.0";
        full.alternativeDns = "192.0.2.1";
        QCOMPARE(VRKS_NetConnectSrv_Dial(&full), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_UP));
        const VRKS_Connection up = connection();
        QVERIFY(up.isOwn && up.since > 0 && up.seconds >= 0 && *up.interfaceName && *up.address);
        QCOMPARE(QString(up.name), QString("Home"));
        QCOMPARE(QString(up.dns[0]), QString("192.0.2.1"));
        QTRY_VERIFY(connection().received > up.received && connection().sent > up.sent);
        VRKS_DialRequest dialled{};
        QCOMPARE(vrks_simulated_dialled(&dialled), 0L);
        QVERIFY(QString(dialled.apn) == "internet" && QString(dialled.user) == "me" && dialled.allowsChap);

        QVERIFY(dial() != 0);
        QCOMPARE(connection().state, VRKS_CONNECTION_UP);
        QCOMPARE(VRKS_NetConnectSrv_HangUp(), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_DOWN));
        const VRKS_Connection down = connection();
        QVERIFY(down.failure == VRKS_FAILURE_NONE && down.seconds == -1 && down.received > 0 && !*down.address);
        QVERIFY(VRKS_NetConnectSrv_HangUp() != 0);
        QVERIFY(takeEvents().contains("5"));
    }

    void connectionKeepsItsCard() {
        set({"2_PRESENT=1", "IMSI=26201", "2_IMSI=26202"});
        QCOMPARE(dial(), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_UP));
        QCOMPARE(VRKS_DevSrv_SelectModem("/simulated/2"), 0L);
        char chosen[VRKS_IMSI_SIZE];
        QCOMPARE(VRKS_DevSrv_GetImsiInfo(chosen), 0L);
        QCOMPARE(QString(chosen), QString("26202"));
        QCOMPARE(QString(connection().imsi), QString("26201"));
        set({"IMSI=2620112345678901"});  // too long for one
        QCOMPARE(QString(connection().imsi), QString());
        QCOMPARE(vrks_simulated_change("PRESENT", "0"), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_DOWN));
    }

    // Each failure has a name, which the simulated network goes by, and the older names still stand for theirs.
    void dialFails_data() {
        const Rows<QString, QString> row("setting", "failure");
        for (int failure = 1; failure < VRKS_FAILURE_COUNT; ++failure) {
            const QString name = failureName(failure);
            row(qPrintable(name), name, name);
        }
        row("older: authentication", "authentication-fails", "authentication-failed");
        row("older: signal", "no-signal", "not-registered");
    }

    void dialFails() {
        set({"DIAL=" + cell("setting"), "DIAL_WORDS=said so"});
        QCOMPARE(dial(), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_DOWN));
        QCOMPARE(failureName(connection().failure), cell("failure"));
        QCOMPARE(QString(connection().words), QString(cell("setting") == "cancelled" ? "" : "said so"));
    }

    void networkLooksAtTheRequest_data() {
        const Rows<QString, QString> row("setting", "failure");
        row("user", "DIAL_USER=other", "authentication-failed");
        row("password", "DIAL_PASSWORD=other", "authentication-failed");
        row("APN", "DIAL_APN=other", "apn-refused");
        row("all right", "DIAL_USER=me", "none");
    }

    void networkLooksAtTheRequest() {
        set({cell("setting")});
        VRKS_DialRequest mine = request();
        mine.user = "me";
        QCOMPARE(VRKS_NetConnectSrv_Dial(&mine), 0L);
        QVERIFY(QTest::qWaitFor([] { return connection().state != VRKS_CONNECTION_DIALLING; }));
        QCOMPARE(failureName(connection().failure), cell("failure"));
    }

    void refusesToDial_data() {
        const Rows<QStringList, QString, QByteArray, QString, QString> row("settings", "member", "value", "failure",
                                                                           "words");
        row("no modem", {"PRESENT=0"}, "", "", "no-modem", "");
        row("starting", {"STATUS=1"}, "", "", "not-ready", "");
        row("no card", {"IMSI="}, "", "", "none", "");  // an empty number is one
        row("locked", {"LOCK=puk"}, "", "", "locked", "");
        row("in use", {"USED_BY=nm work"}, "", "", "in-use", "nm work");
        row("no name", {}, "name", "", "bad-request", "name");
        row("APN with a blank", {}, "apn", "inter net", "bad-request", "apn");
        row("APN of 64", {}, "apn", QByteArray(64, 'a'), "none", "");
        row("APN of 65", {}, "apn", QByteArray(65, 'a'), "bad-request", "apn");
        row("user not UTF-8", {}, "user", "\xc0\x80", "bad-request", "user");
        row("surrogate", {}, "user", "\xed\xa0\x80", "bad-request", "user");
        row("cut character", {}, "user", "\xe4\xb8", "bad-request", "user");
        row("four bytes", {}, "user", "\xf0\x9f\x93\xb6", "none", "");
        row("password too long", {}, "password", QByteArray(256, 'p'), "bad-request", "password");
        row("DNS", {}, "dns", "1.2.3", "bad-request", "dns");
        row("no DNS", {}, "dns", "0.0.0.0", "none", "");
    }

    void refusesToDial() {
        set(cell<QStringList>("settings"));
        const QString member = cell("member");
        const QByteArray value = cell<QByteArray>("value");
        VRKS_DialRequest bad = request();
        (member == "apn"        ? bad.apn
         : member == "user"     ? bad.user
         : member == "password" ? bad.password
         : member == "dns"      ? bad.dns
                                : bad.number) = value;
        if (member == "name") bad.name = value;
        const bool refused = cell("failure") != "none";
        QCOMPARE(VRKS_NetConnectSrv_Dial(&bad) != 0, refused);
        QCOMPARE(failureName(connection().failure), cell("failure"));
        QCOMPARE(QString(connection().words), cell("words"));
        if (!refused) return;
        QCOMPARE(connection().state, VRKS_CONNECTION_DOWN);
        QVERIFY(takeEvents().contains("5"));
    }

    void cancelsAtEachStep_data() {
        const Rows<int> row("step");
        row("preparing", VRKS_STEP_PREPARING);
        row("registering", VRKS_STEP_REGISTERING);
        row("connecting", VRKS_STEP_CONNECTING);
        row("addressing", VRKS_STEP_ADDRESSING);
    }

    void cancelsAtEachStep() {
        set({"DIAL_MS=400", "HANG_UP_MS=20"});
        QCOMPARE(dial(), 0L);
        QVERIFY(QTest::qWaitFor([] { return connection().step == cell<int>("step"); }));
        set({"REFUSE_HANG_UP=1"});
        QVERIFY(VRKS_NetConnectSrv_HangUp() != 0);
        QCOMPARE(connection().state, VRKS_CONNECTION_DIALLING);
        set({"REFUSE_HANG_UP=0"});
        QCOMPARE(VRKS_NetConnectSrv_HangUp(), 0L);
        QCOMPARE(connection().state, VRKS_CONNECTION_HANGING_UP);
        QCOMPARE(VRKS_NetConnectSrv_HangUp(), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_DOWN));
        QCOMPARE(failureName(connection().failure), QString("cancelled"));
    }

    void connectionEnds_data() {
        const Rows<QString, QString, QString> row("name", "value", "failure");
        row("by itself", "DIAL_DROP_MS", "200", "dropped");
        row("told to", "", "suspended", "suspended");
        row("modem unplugged", "PRESENT", "0", "modem-gone");
        row("modem not ready", "STATUS", "1", "dropped");
    }

    void connectionEnds() {
        const QByteArray name = cell("name").toLatin1(), value = cell("value").toLatin1();
        if (name == "DIAL_DROP_MS") set({name + "=" + value});
        QCOMPARE(dial(), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_UP));
        QCOMPARE(name.isEmpty() ? vrks_simulated_drop(value) : vrks_simulated_change(name, value), 0L);
        QVERIFY(reaches(VRKS_CONNECTION_DOWN));
        QCOMPARE(failureName(connection().failure), cell("failure"));
    }

    void asksTheNetwork_data() {
        const Rows<QString, int, int, QString> row("setting", "state", "failure", "text");
        row("answers", "USSD=answers", VRKS_USSD_ANSWER, 0, "Your balance: 12.34");
        row("asks back", "USSD=asks", VRKS_USSD_ASKS, 0, "1 Balance\n2 Tariff");
        row("refused", "USSD=network", VRKS_USSD_FAILED, VRKS_USSD_FAILURE_NETWORK, "");
        row("modem can't", "HAS_USSD=0", VRKS_USSD_FAILED, VRKS_USSD_FAILURE_NOT_SUPPORTED, "");
    }

    void asksTheNetwork() {
        set({cell("setting")});
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QVERIFY(wasTold(VRKS_EVENT_USSD_RESULT));
        const VRKS_Ussd answer = ussd();
        QCOMPARE(answer.state, cell<int>("state"));
        QCOMPARE(answer.failure, cell<int>("failure"));
        QCOMPARE(QString(answer.text), cell("text"));
    }

    void ussdSessionIsAnsweredOrEnded() {
        set({"USSD=asks"});
        for (const char* bad : {"", "\xff", static_cast<const char*>(nullptr)}) QVERIFY(VRKS_NetSrv_SendUssd(bad) != 0);
        QVERIFY(VRKS_NetSrv_SendUssd(QByteArray(183, '1')) != 0);
        QVERIFY(VRKS_NetSrv_AnswerUssd("1") != 0 && VRKS_NetSrv_CancelUssd() != 0);
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QVERIFY(sessionReaches(VRKS_USSD_ASKS));
        QVERIFY(VRKS_NetSrv_SendUssd("*100#") != 0);
        QCOMPARE(VRKS_NetSrv_AnswerUssd("1"), 0L);
        QVERIFY(sessionReaches(VRKS_USSD_ANSWER));
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QVERIFY(sessionReaches(VRKS_USSD_ASKS));
        QCOMPARE(VRKS_NetSrv_CancelUssd(), 0L);
        QCOMPARE(ussd().failure, VRKS_USSD_FAILURE_CANCELLED);
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QVERIFY(vrks_simulated_change("STATUS", "1") == 0);
        QCOMPARE(ussd().failure, VRKS_USSD_FAILURE_MODEM_GONE);
        QVERIFY(VRKS_NetSrv_SendUssd("*100#") != 0);
        set({"STATUS=3", "USSD_PATIENCE_MS=1"});
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QVERIFY(sessionReaches(VRKS_USSD_FAILED));
        QCOMPARE(ussd().failure, VRKS_USSD_FAILURE_NETWORK);
    }
};

QTEST_GUILESS_MAIN(tst_modems)
#include "tst_modems.moc"

// SPDX-License-Identifier: MIT
// The device SDK beside the real ModemManager and scripted modems.
#include <QElapsedTimer>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <mutex>

#include "Stack.h"
#include "vrks.h"

namespace {

constexpr int Patience = 30000;       // milliseconds; a modem is there after one second on an idle machine
constexpr int Silence = 300;          // in which nothing more may come
constexpr int WithoutWaiting = 5000;  // an answer that waits for a frozen daemon never comes

VRKS_ModemInfo info() {
    VRKS_ModemInfo info{};
    info.size = sizeof info;
    VRKS_DevSrv_GetModemInfo(&info);
    return info;
}

// These came, and no other.
#define TRY_EVENTS(...)                                                 \
    do {                                                                \
        const QVector<int> expected{__VA_ARGS__};                       \
        QTRY_COMPARE_WITH_TIMEOUT(m_Log->device(), expected, Patience); \
        QTest::qWait(Silence);                                          \
        QCOMPARE(m_Log->device(), expected);                            \
    } while (false)

// All events since it was cleared.
class EventLog {
public:
    EventLog() {
        s_Log = this;
        VRKS_DevSrv_RegisterDevInitEventCallback(onDevice);
        VRKS_DevSrv_RegisterEventCallback(onOther, this);
    }
    ~EventLog() {
        VRKS_DevSrv_UnRegisterDevInitEventCallback(onDevice);
        VRKS_DevSrv_UnRegisterEventCallback(onOther, this);
    }

    void clear() {
        const std::lock_guard lock(m_Mutex);
        m_Device.clear();
        m_Others.clear();
    }
    QVector<int> device() {
        const std::lock_guard lock(m_Mutex);
        return m_Device;
    }
    bool has(int event) {
        const std::lock_guard lock(m_Mutex);
        return m_Others.contains(event);
    }
    // As they were told together with the event.
    int attemptsAtUnlockResult() {
        const std::lock_guard lock(m_Mutex);
        return m_Attempts;
    }

private:
    static int onDevice(int event, void*) {
        const std::lock_guard lock(s_Log->m_Mutex);
        s_Log->m_Device << event;
        return 1;
    }
    static void onOther(int event, void* log) {
        auto* self = static_cast<EventLog*>(log);
        const std::lock_guard lock(self->m_Mutex);
        self->m_Others << event;
        if (event == VRKS_EVENT_UNLOCK_RESULT) self->m_Attempts = info().attempts;
    }

    static EventLog* s_Log;
    std::mutex m_Mutex;
    QVector<int> m_Device;
    QSet<int> m_Others;
    int m_Attempts = -1;
};

EventLog* EventLog::s_Log = nullptr;

int status() {
    int status = -1;
    VRKS_DevSrv_GetDevStatus(&status);
    return status;
}

VRKS_Ussd ussd() {
    VRKS_Ussd ussd{};
    ussd.size = sizeof ussd;
    VRKS_NetSrv_GetUssd(&ussd);
    return ussd;
}

QByteArray imsi() {
    char imsi[VRKS_IMSI_SIZE] = "";
    VRKS_DevSrv_GetImsiInfo(imsi);
    return imsi;
}

int productType() {
    int type = -1;
    VRKS_DevSrv_GetProductType(&type);
    return type;
}

// 10 for a multi-mode card, and its mode.
int multiMode() {
    unsigned char isMultiMode = 0;
    unsigned int mode = 0;
    VRKS_DevSrv_GetMultiModeCardStatus(&isMultiMode, nullptr, nullptr, &mode);
    return isMultiMode * 10 + static_cast<int>(mode);
}

bool isRegistered() { return info().registration == VRKS_REGISTRATION_HOME && info().generation != 0; }

// Passes bytes between programs and the real bus, so that a bus can go and come back.
class BusRelay : public QObject {
public:
    BusRelay() : m_Name(m_Folder.filePath("bus")) {}

    QString address() const { return "unix:path=" + m_Name; }
    void open() {
        QVERIFY(m_Server.listen(m_Name));
        connect(&m_Server, &QLocalServer::newConnection, this, [this] { relay(m_Server.nextPendingConnection()); });
    }
    void close() {
        m_Server.close();
        m_Server.disconnect(this);
        qDeleteAll(m_Server.findChildren<QLocalSocket*>(QString(), Qt::FindDirectChildrenOnly));
    }

private:
    void relay(QLocalSocket* near) {
        auto* far = new QLocalSocket(near);
        far->connectToServer(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS").section('=', 1).section(',', 0, 0));
        connect(near, &QLocalSocket::readyRead, far, [=] { far->write(near->readAll()); });
        connect(far, &QLocalSocket::readyRead, near, [=] { near->write(far->readAll()); });
        if (near->bytesAvailable()) far->write(near->readAll());
    }

    QTemporaryDir m_Folder;
    QString m_Name;
    QLocalServer m_Server;
};

class Probe : public QProcess {
public:
    explicit Probe(const QStringList& arguments = {},
                   const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
        setProcessEnvironment(environment);
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(MODEM_PROBE, arguments);
    }
    ~Probe() override {
        closeWriteChannel();
        waitForFinished();
    }

    // The last line so far.
    QByteArray line() {
        while (canReadLine()) m_Line = readLine().trimmed();
        return m_Line;
    }

private:
    QByteArray m_Line;
};

QProcessEnvironment withVariable(const QString& name, const QString& value) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(name, value);
    return environment;
}

}  // namespace

class tst_realmodems : public QObject {
    Q_OBJECT

private:
    Stack m_Stack;
    std::unique_ptr<EventLog> m_Log;
    QByteArray m_Unplugging;

    bool areAllUnplugged() {
        char id[VRKS_MODEM_ID_SIZE];
        if (VRKS_DevSrv_GetModemAt(0, id) != 0) return status() == VRKS_DEV_STATUS_NO_MODEM;
        if (m_Unplugging != id && m_Stack.unplug(QString(id).section('/', -1))) m_Unplugging = id;
        return false;
    }

    // Plugged in, in its network, and all of that told.
    bool plugIn(const QString& id, const QJsonArray& tables = {"GSM"}) {
        const auto isThere = [this] {
            return isRegistered() && m_Log->device().contains(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
        };
        if (!m_Stack.plug(id, tables) || !QTest::qWaitFor(isThere, Patience)) return false;
        m_Log->clear();
        return true;
    }

private slots:
    void initTestCase() {
        qputenv("ORBISDIAL_DEVICE_WAIT_MS", QByteArray::number(Patience));
        m_Log = std::make_unique<EventLog>();
        QCOMPARE(status(), VRKS_DEV_STATUS_NO_MODEM);
    }

    void cleanup() {
        m_Unplugging.clear();
        m_Stack.thaw("ModemManager");
        VRKS_DevSrv_SelectModem(nullptr);
        QTRY_VERIFY_WITH_TIMEOUT(areAllUnplugged(), Patience);
        QTest::qWait(Silence);
        m_Log->clear();
    }

    void tellsAllOfAModem() {
        QVERIFY(m_Stack.plug("gsm", {"GSM"}));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(), Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
        QVERIFY(m_Log->has(VRKS_EVENT_MODEM_LIST_CHANGED));
        QCOMPARE(status(), VRKS_DEV_STATUS_READY);
        QCOMPARE(imsi(), QByteArray("460110123456789"));
        QCOMPARE(productType(), 0);
        QCOMPARE(multiMode(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(QByteArray(info().operatorName), QByteArray("Example"), Patience);
        const VRKS_ModemInfo modem = info();
        QCOMPARE(modem.id, "/virtual/gsm");
        QCOMPARE(modem.port, "gsm-port");
        QCOMPARE(modem.manufacturer, "Example Vendor");
        QCOMPARE(modem.model, "Virtual One");
        QCOMPARE(modem.imei, "490154203237518");
        QCOMPARE(modem.ownNumber, "+15555550100");
        QCOMPARE(modem.cardOperator, "Example");
        QCOMPARE(modem.gid1, "2AFF");
        QCOMPARE(modem.operatorCode, "46011");
        QCOMPARE(modem.technology, "LTE");
        QCOMPARE(modem.generation, 4);
        QTRY_COMPARE_WITH_TIMEOUT(info().signal, 64, Patience);
        QCOMPARE(modem.card, int(VRKS_CARD_PRESENT));
        QCOMPARE(modem.isSelected, 1);
    }

    void anotherCardFollowsAReplug() {
        QVERIFY(plugIn("replug"));
        QVERIFY(m_Stack.unplug("replug"));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_NO_MODEM, Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_CARD_CHANGED);
        m_Log->clear();
        QVERIFY(m_Stack.reply("replug", "AT+CIMI", "262011234567890"));
        QVERIFY(m_Stack.replug("replug"));
        QTRY_COMPARE_WITH_TIMEOUT(imsi(), QByteArray("262011234567890"), Patience);
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(), Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    void aHandoverReloadsNothing() {
        QVERIFY(plugIn("handover"));
        QVERIFY(m_Stack.handOver("handover"));
        QTRY_COMPARE_WITH_TIMEOUT(QByteArray(info().technology), QByteArray("UMTS"), Patience);
        QTRY_VERIFY_WITH_TIMEOUT(m_Log->has(VRKS_EVENT_MODEM_CHANGED), Patience);
        QTRY_VERIFY_WITH_TIMEOUT(m_Log->has(VRKS_EVENT_SYSTEM_MODE_CHANGED), Patience);
        TRY_EVENTS();
    }

    void theRadioReloadsNothing() {
        QVERIFY(plugIn("radio"));
        QCOMPARE(QProcess::execute("nmcli", {"radio", "wwan", "off"}), 0);
        QTRY_COMPARE_WITH_TIMEOUT(info().registration, int(VRKS_REGISTRATION_IDLE), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(info().signal, -1, Patience);
        QCOMPARE(status(), VRKS_DEV_STATUS_READY);
        QCOMPARE(QProcess::execute("nmcli", {"radio", "wwan", "on"}), 0);
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(), Patience);
        TRY_EVENTS();
    }

    void aPinUnlocks() {
        QVERIFY(m_Stack.plug("pin", {"GSM", "PIN"}));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_LOCKED, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(info().lock, int(VRKS_LOCK_PIN), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(info().card, int(VRKS_CARD_PRESENT), Patience);
        QCOMPARE(m_Log->device(), QVector<int>{});
        QVERIFY(VRKS_DevSrv_EnterPuk("12345678", "1234") != 0);

        QTRY_COMPARE_WITH_TIMEOUT(info().attempts, 3, Patience);
        QVERIFY(m_Stack.reply("pin", "AT+CSIM=10,\"0020000100\"", "+CSIM: 4,\"63C2\""));
        QVERIFY(m_Stack.reply("pin", "AT+CPIN=*", "(silence)"));
        QCOMPARE(VRKS_DevSrv_EnterPin("0000"), 0L);
        QVERIFY(VRKS_DevSrv_EnterPin("0000") != 0);
        QTRY_VERIFY_WITH_TIMEOUT(!m_Stack.commands("pin").filter("AT+CPIN=").isEmpty(), Patience);
        QVERIFY(m_Stack.send("pin", "+CME ERROR: 16"));
        QTRY_VERIFY_WITH_TIMEOUT(m_Log->has(VRKS_EVENT_UNLOCK_RESULT), Patience);
        QCOMPARE(info().unlockResult, int(VRKS_UNLOCK_WRONG));
        QCOMPARE(m_Log->attemptsAtUnlockResult(), 2);
        QVERIFY(!QByteArray(info().unlockWords).isEmpty());
        QCOMPARE(m_Stack.commands("pin").filter("AT+CPIN=").size(), 1);

        m_Log->clear();
        QCOMPARE(VRKS_DevSrv_EnterPin("1234"), 0L);
        QTRY_VERIFY_WITH_TIMEOUT(m_Log->has(VRKS_EVENT_UNLOCK_RESULT), Patience);
        QCOMPARE(info().unlockResult, int(VRKS_UNLOCK_DONE));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(), Patience);
        QCOMPARE(info().lock, int(VRKS_LOCK_NONE));
        QCOMPARE(imsi(), QByteArray("460110123456789"));
        TRY_EVENTS(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    void aPukUnlocks() {
        QVERIFY(m_Stack.plug("puk", {"GSM", "PUK"}));
        QTRY_COMPARE_WITH_TIMEOUT(info().lock, int(VRKS_LOCK_PUK), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(info().attempts, 10, Patience);
        QVERIFY(VRKS_DevSrv_EnterPin("1234") != 0);
        QCOMPARE(VRKS_DevSrv_EnterPuk("12345678", "1234"), 0L);
        QTRY_COMPARE_WITH_TIMEOUT(info().unlockResult, int(VRKS_UNLOCK_DONE), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_READY, Patience);
    }

    void aMissingCardIsTold() {
        QVERIFY(m_Stack.plug("nocard", {"GSM", "NO_CARD"}));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_FAILED, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(info().card, int(VRKS_CARD_NONE), Patience);
        QCOMPARE(imsi(), QByteArray());
        TRY_EVENTS();
    }

    void cdmaNeedsNoCard() {
        QVERIFY(m_Stack.plug("cdma", {"GSM", "CDMA"}));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_READY, Patience);
        QCOMPARE(productType(), VRKS_PRODUCT_TYPE_CDMA);
        QCOMPARE(info().dialsAsCdma, 1);
        QCOMPARE(imsi(), QByteArray());
        QTRY_COMPARE_WITH_TIMEOUT(info().registration, int(VRKS_REGISTRATION_HOME), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(QByteArray(info().technology), QByteArray("EV-DO"), Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    void aMultiModeCardHasTheModeOfItsNetwork() {
        QVERIFY(m_Stack.plug("multi", {"GSM", "MULTI"}));
        QTRY_COMPARE_WITH_TIMEOUT(multiMode(), 11, Patience);
        QCOMPARE(productType(), 0);
        QCOMPARE(imsi(), QByteArray("460110123456789"));
    }

    void oneOfTwoModemsIsInUse() {
        QVERIFY(m_Stack.plug("two-a", {"GSM"}));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_READY, Patience);
        QVERIFY(m_Stack.plug("two-b", {"GSM", "SECOND"}));
        char id[VRKS_MODEM_ID_SIZE];
        QTRY_COMPARE_WITH_TIMEOUT(VRKS_DevSrv_GetModemAt(1, id), 0L, Patience);
        QCOMPARE(id, "/virtual/two-b");
        VRKS_ModemInfo second{};
        second.size = sizeof second;
        const auto secondStatus = [&] { return VRKS_DevSrv_GetModemInfoOf(id, &second) == 0 ? second.status : -1; };
        QTRY_COMPARE_WITH_TIMEOUT(secondStatus(), VRKS_DEV_STATUS_READY, Patience);
        QCOMPARE(info().id, "/virtual/two-a");
        TRY_EVENTS(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);

        m_Log->clear();
        QCOMPARE(VRKS_DevSrv_SelectModem("/virtual/two-b"), 0L);
        QTRY_COMPARE_WITH_TIMEOUT(imsi(), QByteArray("262011234567890"), Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_CARD_CHANGED);

        m_Log->clear();
        QCOMPARE(VRKS_DevSrv_SelectModem(nullptr), 0L);
        QVERIFY(m_Stack.unplug("two-b"));
        QTRY_COMPARE_WITH_TIMEOUT(imsi(), QByteArray("460110123456789"), Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_CARD_CHANGED);
    }

    void ussdAnswersAndAsks() {
        QVERIFY(plugIn("ussd", {"GSM", "USSD"}));
        QTRY_COMPARE_WITH_TIMEOUT(info().hasUssd, 1, Patience);
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QTRY_VERIFY_WITH_TIMEOUT(m_Log->has(VRKS_EVENT_USSD_RESULT), Patience);
        QCOMPARE(ussd().state, int(VRKS_USSD_ANSWER));
        QCOMPARE(ussd().text, "Your balance is 12.34");

        QVERIFY(m_Stack.reply("ussd", "AT+CUSD=1,*", "OK\n+CUSD: 1,\"1 Balance 2 Help\",15"));
        QCOMPARE(VRKS_NetSrv_SendUssd("*101#"), 0L);
        QTRY_COMPARE_WITH_TIMEOUT(ussd().state, int(VRKS_USSD_ASKS), Patience);
        QCOMPARE(ussd().text, "1 Balance 2 Help");
        QVERIFY(m_Stack.reply("ussd", "AT+CUSD=1,*", "OK\n+CUSD: 0,\"Bye\",15"));
        QCOMPARE(VRKS_NetSrv_AnswerUssd("1"), 0L);
        QTRY_COMPARE_WITH_TIMEOUT(ussd().state, int(VRKS_USSD_ANSWER), Patience);
        QCOMPARE(ussd().text, "Bye");

        // What it says unasked: another question, a last word, nothing.
        QVERIFY(m_Stack.reply("ussd", "AT+CUSD=1,*", "OK\n+CUSD: 1,\"1 Balance 2 Help\",15"));
        for (const QByteArray last : {"Too slow", ""}) {
            QCOMPARE(VRKS_NetSrv_SendUssd("*101#"), 0L);
            QTRY_COMPARE_WITH_TIMEOUT(ussd().state, int(VRKS_USSD_ASKS), Patience);
            QVERIFY(m_Stack.send("ussd", "+CUSD: 1,\"Still there" + last + "?\",15"));
            QTRY_COMPARE_WITH_TIMEOUT(ussd().text, "Still there" + last + "?", Patience);
            m_Log->clear();
            QVERIFY(m_Stack.send("ussd", last.isEmpty() ? "+CUSD: 2" : "+CUSD: 0,\"" + last + "\",15"));
            QTRY_VERIFY_WITH_TIMEOUT(m_Log->has(VRKS_EVENT_USSD_RESULT), Patience);
            QCOMPARE(QByteArray(ussd().text), last);
            QCOMPARE(ussd().failure, int(last.isEmpty() ? VRKS_USSD_FAILURE_NETWORK : VRKS_USSD_FAILURE_NONE));
        }

        QVERIFY(m_Stack.reply("ussd", "AT+CUSD=1,*", "OK"));
        QCOMPARE(VRKS_NetSrv_SendUssd("*102#"), 0L);
        QCOMPARE(VRKS_NetSrv_CancelUssd(), 0L);
        QTRY_COMPARE_WITH_TIMEOUT(ussd().failure, int(VRKS_USSD_FAILURE_CANCELLED), Patience);
        QVERIFY(VRKS_NetSrv_CancelUssd() != 0);
    }

    void survivesTheDaemonsDeath() {
        QVERIFY(plugIn("killed", {"GSM", "USSD"}));
        QVERIFY(m_Stack.reply("killed", "AT+CUSD=1,*", "(silence)"));
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QTRY_VERIFY_WITH_TIMEOUT(!m_Stack.commands("killed").filter("AT+CUSD=1,").isEmpty(), Patience);
        QVERIFY(m_Stack.kill("ModemManager"));
        QTRY_COMPARE_WITH_TIMEOUT(status(), -1, Patience);
        QCOMPARE(ussd().failure, int(VRKS_USSD_FAILURE_NO_MODEM_SERVICE));
        TRY_EVENTS(VRKS_EVENT_DEV_CARD_CHANGED);
        m_Log->clear();
        QVERIFY(m_Stack.start("ModemManager"));
        QTRY_VERIFY_WITH_TIMEOUT(isRegistered(), Patience);
        TRY_EVENTS(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    void aFrozenDaemonHoldsNobody() {
        QVERIFY(plugIn("frozen", {"GSM", "USSD"}));
        QVERIFY(m_Stack.freeze("ModemManager"));
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(imsi(), QByteArray("460110123456789"));
        QCOMPARE(VRKS_NetSrv_SendUssd("*100#"), 0L);
        QCOMPARE(VRKS_NetSrv_CancelUssd(), 0L);
        QVERIFY(clock.elapsed() < WithoutWaiting);

        // Another program's first call waits for its bounded time, or not at all, and its end for nothing.
        for (const char* wait : {"700", "0"}) {
            clock.restart();
            Probe probe({}, withVariable("ORBISDIAL_DEVICE_WAIT_MS", wait));
            QTRY_COMPARE_WITH_TIMEOUT(probe.line(), QByteArray("?"), Patience);
            probe.closeWriteChannel();
            QVERIFY(probe.waitForFinished());
            QVERIFY(clock.elapsed() >= atoi(wait));
            QVERIFY2(clock.elapsed() < atoi(wait) + WithoutWaiting, qPrintable(QString::number(clock.elapsed())));
        }
        QVERIFY(m_Stack.thaw("ModemManager"));
        QVERIFY(isRegistered());
    }

    void aSilentBusHoldsNobody_data() {
        QTest::addColumn<QString>("device");
        QTest::newRow("auto") << "auto";
        QTest::newRow("chosen") << "modemmanager";
    }

    void aSilentBusHoldsNobody() {
        QFETCH(const QString, device);
        const QTemporaryDir folder;
        QLocalServer silent;
        QVERIFY(silent.listen(folder.filePath("bus")));
        QProcessEnvironment environment = withVariable("ORBISDIAL_DEVICE", device);
        environment.insert("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + folder.filePath("bus"));
        environment.insert("ORBISDIAL_DEVICE_WAIT_MS", "500");
        Probe probe({}, environment);
        probe.closeWriteChannel();
        QVERIFY(probe.waitForFinished(Patience));
        QCOMPARE(probe.line(), QByteArray("?"));
    }

    void plainProgramsFollowTheBus() {
        QVERIFY(m_Stack.plug("plain", {"GSM"}));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_READY, Patience);
        Probe automatic({}, withVariable("ORBISDIAL_DEVICE", "auto"));
        QTRY_COMPARE_WITH_TIMEOUT(automatic.line(), QByteArray("3"), Patience);
        BusRelay relay;
        Probe probe({}, withVariable("DBUS_SYSTEM_BUS_ADDRESS", relay.address()));
        QTRY_COMPARE_WITH_TIMEOUT(probe.line(), QByteArray("?"), Patience);
        relay.open();
        QTRY_COMPARE_WITH_TIMEOUT(probe.line(), QByteArray("3"), Patience);
        relay.close();
        QTRY_COMPARE_WITH_TIMEOUT(probe.line(), QByteArray("?"), Patience);
        relay.open();
        QTRY_COMPARE_WITH_TIMEOUT(probe.line(), QByteArray("3"), Patience);
    }

    void programsEndAndForkAtAnyMoment() {
        QVERIFY(m_Stack.plug("end", {"GSM"}));
        QTRY_COMPARE_WITH_TIMEOUT(status(), VRKS_DEV_STATUS_READY, Patience);
        Probe fork({"fork"});
        QVERIFY(fork.waitForFinished());
        QCOMPARE(fork.line(), QByteArray("0"));
        Probe exit({"exit"});
        QVERIFY(exit.waitForFinished());
        QCOMPARE(exit.exitStatus(), QProcess::NormalExit);
        QCOMPARE(exit.exitCode(), 0);
        for (int i = 0; i < 10; ++i) {  // the first picture is there after some tens of milliseconds
            Probe probe({}, withVariable("ORBISDIAL_DEVICE_WAIT_MS", QString::number(5 * i)));
            probe.closeWriteChannel();
            QVERIFY(probe.waitForFinished());
            QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
        }
    }
};

QTEST_GUILESS_MAIN(tst_realmodems)
#include "tst_realmodems.moc"

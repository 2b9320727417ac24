// SPDX-License-Identifier: MIT
// What real modems do, as a person sees it: each event at the device SDK, at orbisctl, in the window and on its page.
// Every step builds on the ones before it.
#include <sys/stat.h>

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <mutex>

#include "Change.h"
#include "Host.h"
#include "HostText.h"
#include "INetConnectSetting.h"
#include "INotifyService.h"
#include "Program.h"
#include "Rows.h"
#include "Stack.h"
#include "Startup.h"
#include "TestFolder.h"
#include "vrks.h"

namespace {

constexpr int Patience = 30000;  // milliseconds; a modem is there after one second on an idle machine
constexpr int Silence = 300;     // in which nothing more may come

// Cards, of which the last is of an operator that uses the code of another's network.
const char FirstCard[] = "460110123456789";
const char SecondCard[] = "262011234567890";
const char GuestCard[] = "234101234567890";
const char GuestName[] = "giffgaff";

// The device events of the SDK.
class EventLog {
public:
    EventLog() {
        s_Log = this;
        VRKS_DevSrv_RegisterDevInitEventCallback(onEvent);
    }
    ~EventLog() { VRKS_DevSrv_UnRegisterDevInitEventCallback(onEvent); }

    QVector<int> events() {
        const std::lock_guard lock(m_Mutex);
        return QVector<int>(m_Events.begin(), m_Events.end());  // one that shares would be read without the lock
    }
    void clear() {
        const std::lock_guard lock(m_Mutex);
        m_Events.clear();
    }

private:
    static int onEvent(int event, void*) {
        const std::lock_guard lock(s_Log->m_Mutex);
        s_Log->m_Events << event;
        return 1;
    }

    static EventLog* s_Log;
    std::mutex m_Mutex;
    QVector<int> m_Events;
};

EventLog* EventLog::s_Log = nullptr;

QJsonObject orbisctl(const QStringList& arguments) {
    const Outcome outcome = runProgram(ORBISCTL, QStringList("--json") + arguments);
    if (outcome.status != 0) qWarning() << arguments << outcome.err;
    return outcome.json();
}

QStringList sorted(QStringList list) {
    list.sort();
    return list;
}

}  // namespace

// The SDK and the page have been told of these events, once each, and nothing of ours has touched the user's file.
#define TRY_TOLD(...)                                                    \
    do {                                                                 \
        const QVector<int> expected{__VA_ARGS__};                        \
        QTRY_COMPARE_WITH_TIMEOUT(m_Log->events(), expected, Patience);  \
        QTRY_COMPARE_WITH_TIMEOUT(m_Reloads, expected.size(), Patience); \
        QTest::qWait(Silence);                                           \
        QCOMPARE(m_Log->events(), expected);                             \
        QCOMPARE(m_Reloads, expected.size());                            \
        m_Log->clear();                                                  \
        m_Reloads = 0;                                                   \
    } while (false)

class tst_modemevents : public QObject, public INotify {
    Q_OBJECT
    Q_INTERFACES(INotify)

public:
    // The page has read the profiles again.
    int Notify(unsigned int event, unsigned int, unsigned int) override {
        if (event == NotifyProfilesChanged) ++m_Reloads;
        return 0;
    }

private slots:
    void initTestCase() {
        qunsetenv("ORBISDIAL_LIBRARY_PATH");  // what is shipped
        qputenv("ORBISDIAL_DEVICE_WAIT_MS", "0");
        QVERIFY(Change::SetLanguage("en"));
        m_Log = std::make_unique<EventLog>();
        m_Host = std::make_unique<Host>();
        m_Host->start();
        qputenv("ORBISDIAL_DEVICE_WAIT_MS", QByteArray::number(Patience));  // of the processes that are started here
        m_Host->window()->show();
        m_Host->window()->openSettings();
        QObject* const notifier =
            Startup::GetPluginContainer()->FindPlugin(ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
        QVERIFY(notifier);
        qobject_cast<INotifyService*>(notifier)->AddListener(ORBISDIAL_DIALUP_CLSID, this);
    }

    void init() {
        if (m_HasFailed) QSKIP("an earlier step failed");
    }

    void cleanup() { m_HasFailed |= QTest::currentTestFailed(); }

    void cleanupTestCase() {
        m_Host.reset();
        m_Log.reset();
    }

    void noModem() { awaitState("IDS_HOST_NO_MODEM", VRKS_DEV_STATUS_NO_MODEM); }

    void becomesReady() {
        QVERIFY(m_Stack.plug("one", {"GSM"}));
        awaitCard(FirstCard);
        awaitTechnology("LTE");
        TRY_TOLD(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    void aHandoverReloadsNothing() {
        const QByteArray before = userFile();
        QVERIFY(m_Stack.handOver("one"));
        awaitTechnology("UMTS");
        TRY_TOLD();
        QCOMPARE(userFile(), before);
    }

    void aModemThatComesAndGoesLeavesTheFileAlone() {
        const QByteArray before = userFile();
        for (int i = 0; i < 2; ++i) flap(FirstCard);
        QCOMPARE(userFile(), before);
    }

    void theDefaultFollowsAnotherCard() {
        unplug();
        QVERIFY(m_Stack.reply("one", "AT+CIMI", GuestCard));
        QVERIFY(m_Stack.reply("one", "AT+CRSM=176,28486,0,0,17", cardFile(GuestName)));
        QVERIFY(m_Stack.replug("one"));
        awaitCard(GuestCard, GuestName);
        TRY_TOLD(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    void theUsersDefaultStays() {
        m_Own = "Own";
        QCOMPARE(runProgram(ORBISCTL, {"add", m_Own, "phonenumber=*99#", "apn=own.example"}).status, 0);
        QCOMPARE(runProgram(ORBISCTL, {"default", m_Own}).status, 0);
        awaitCard(GuestCard, GuestName);
        QTest::qWait(Silence);
        m_Reloads = 0;
        const QByteArray before = userFile();
        flap(GuestCard, GuestName);
        unplug();
        QVERIFY(m_Stack.reply("one", "AT+CIMI", SecondCard));
        QVERIFY(m_Stack.reply("one", "AT+CRSM=176,28486,0,0,17", cardFile("Example")));
        QVERIFY(m_Stack.replug("one"));
        awaitCard(SecondCard);
        TRY_TOLD(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
        QCOMPARE(userFile(), before);
    }

    void anotherModemIsAChange() {
        QVERIFY(m_Stack.plug("two", {"GSM"}));
        QTRY_COMPARE_WITH_TIMEOUT(orbisctl({"modems"})["modems"].toArray()[1].toObject()["status"].toString(),
                                  QString("ready"), Patience);
        TRY_TOLD();
        QVERIFY(m_Stack.unplug("one"));
        awaitCard(FirstCard);
        TRY_TOLD(VRKS_EVENT_DEV_CARD_CHANGED);
    }

    void theDaemonDies() {
        QVERIFY(m_Stack.kill("ModemManager"));
        awaitState("IDS_HOST_NO_SERVICE", -1);
        TRY_TOLD(VRKS_EVENT_DEV_CARD_CHANGED);
        QVERIFY(m_Stack.start("ModemManager"));
        QTRY_COMPARE_WITH_TIMEOUT(m_Log->events(), QVector<int>{VRKS_EVENT_DEV_DEVICE_INIT_FINISH}, Patience);
    }

    // The window opens with what is known, and waits for nothing.
    void aFrozenDaemonHoldsNoWindow() {
        const QString picture = m_Folder.path("picture.png");
        QVERIFY(m_Stack.freeze("ModemManager"));
        qunsetenv("ORBISDIAL_DEVICE_WAIT_MS");
        const Outcome outcome = runProgram(ORBISDIAL_PROGRAM, {"--screenshot", picture});
        QVERIFY(m_Stack.thaw("ModemManager"));
        QVERIFY2(outcome.status == 0, outcome.err);
        QVERIFY(!QImage(picture).isNull());
    }

    void whoIsFrozenIsNamed_data() {
        const Rows<QString, QString> row("daemon", "command");
        row("modems", "ModemManager", "modems");
        row("connection", "NetworkManager", "status");
    }

    void whoIsFrozenIsNamed() {
        QVERIFY(m_Stack.freeze(cell("daemon")));
        const Outcome outcome = runProgram(ORBISCTL, {cell("command")});
        QVERIFY(m_Stack.thaw(cell("daemon")));
        const QByteArray reason = '(' + cell("daemon").toUtf8() + ") is not running or does not answer.";
        QVERIFY2(outcome.err.startsWith("orbisctl: ") && outcome.err.contains(reason), outcome.err);
        QCOMPARE(outcome.status, 1);
    }

private:
    // Content, and whether it is still the same file.
    QByteArray userFile() const {
        struct stat status {};
        ::stat(QFile::encodeName(m_Folder.userFile()), &status);
        return TestFolder::read(m_Folder.userFile()) + QByteArray::number(qulonglong(status.st_ino)) + ' ' +
               QByteArray::number(qlonglong(status.st_mtim.tv_sec)) + ' ' +
               QByteArray::number(qlonglong(status.st_mtim.tv_nsec));
    }

    // A card's own name for its operator, as it keeps it (3GPP TS 31.102, EF SPN).
    static QString cardFile(const QByteArray& name) {
        return "+CRSM: 144,0,\"00" + name.toHex().toUpper() + QByteArray(2 * (16 - name.size()), 'F') + '"';
    }

    void unplug() {
        QVERIFY(m_Stack.unplug("one"));
        awaitState("IDS_HOST_NO_MODEM", VRKS_DEV_STATUS_NO_MODEM);
        TRY_TOLD(VRKS_EVENT_DEV_CARD_CHANGED);
    }

    void flap(const QString& imsi, const QString& cardOperator = "Example") {
        unplug();
        QVERIFY(m_Stack.replug("one"));
        awaitCard(imsi, cardOperator);
        TRY_TOLD(VRKS_EVENT_DEV_DEVICE_INIT_FINISH);
    }

    // Without a modem; the status is -1 when nothing can tell.
    void awaitState(const char* headline, int status) const {
        QTRY_COMPARE_WITH_TIMEOUT(label("Host_ConnectionState"), hostText(headline), Patience);
        QCOMPARE(label("Host_SimSummary"), QString());
        QTRY_COMPARE_WITH_TIMEOUT(orbisctl({"device"})["status"].toInt(-1), status, Patience);
    }

    void awaitTechnology(const QString& technology) const {
        QTRY_VERIFY_WITH_TIMEOUT(label("Host_ConnectionDetail").contains(technology), Patience);
        QTRY_COMPARE_WITH_TIMEOUT(orbisctl({"device"})["modem"].toObject()["technology"].toString(), technology,
                                  Patience);
    }

    // What follows from a card that is ready, everywhere.
    void awaitCard(const QString& imsi, const QString& cardOperator = "Example") const {
        const QJsonObject card = orbisctl({"explain", imsi, "--operator", cardOperator});
        const QString prefix = card["prefix"].toString(), proposed = card["default"].toString();
        const QString provider = card["operator"].toString();
        QStringList names(m_Own);
        for (const QJsonValue& offered : card["offered"].toArray()) names << offered.toObject()["name"].toString();
        names.removeAll(QString());
        names.sort();
        const QString defaultName = m_Own.isEmpty() ? proposed : m_Own;
        QVERIFY(names.contains(proposed) && provider.isEmpty() == (cardOperator == "Example"));

        const QString told = provider.isEmpty() ? hostText("IDS_HOST_SIM_PRESET", {imsi, proposed, prefix})
                                                : hostText("IDS_HOST_SIM_OPERATOR", {imsi, proposed, prefix, provider});
        QTRY_COMPARE_WITH_TIMEOUT(label("Host_SimSummary"), told, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(listed(defaultName), names, Patience);
        const auto* chooser = m_Host->window()->findChild<QComboBox*>("Host_ProfileChooser");
        QTRY_COMPARE_WITH_TIMEOUT(chooser->currentText(), hostText("IDS_HOST_PROFILE_DEFAULT", {defaultName}),
                                  Patience);
        QTRY_COMPARE_WITH_TIMEOUT(deviceTells(), QStringList({"ready", imsi, prefix, proposed, provider}), Patience);
        QCOMPARE(orbisctlLists(defaultName), names);
    }

    static QStringList deviceTells() {
        const QJsonObject device = orbisctl({"device"});
        QStringList told(device["modem"].toObject()["status"].toString());
        for (const char* key : {"imsi", "prefix", "proposedDefault", "proposedFor"}) told << device[key].toString();
        return told;
    }

    // The profiles of the page; none when another one is marked.
    QStringList listed(const QString& defaultName) const {
        const auto* box = m_Host->window()->findChild<QComboBox*>("NetConnectSettingUIPlugin_ProfileCombobox");
        const QString mark = ' ' + Change::tr("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT", "NetConnectPlugin");
        QStringList names;
        for (int i = 0; i < box->count(); ++i) names << box->itemText(i);
        const int marked = names.indexOf(defaultName + mark);
        if (marked < 0) return {};
        names[marked] = defaultName;
        return sorted(names);
    }

    static QStringList orbisctlLists(const QString& defaultName) {
        QStringList names;
        for (const QJsonValue& profile : orbisctl({"list"})["profiles"].toArray()) {
            const QString name = profile.toObject()["name"].toString();
            if (profile.toObject()["default"].toBool() != (name == defaultName)) return {};
            names << name;
        }
        return sorted(names);
    }

    QString label(const char* name) const { return m_Host->window()->findChild<QLabel*>(name)->text(); }

    const TestFolder m_Folder;
    Stack m_Stack;
    std::unique_ptr<EventLog> m_Log;
    std::unique_ptr<Host> m_Host;
    QString m_Own;  // the user's own profile, and default
    int m_Reloads = 0;
    bool m_HasFailed = false;
};

QTEST_MAIN(tst_modemevents)
#include "tst_modemevents.moc"

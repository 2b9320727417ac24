// SPDX-License-Identifier: MIT
// The dial-up plug-in as a host loads it, on the simulated modem.
#include <vrks_simulated.h>

#include <QApplication>
#include <QDialog>
#include <QPluginLoader>
#include <QPushButton>

#include "Change.h"
#include "ConnectionSettings.h"
#include "DataConnection.h"
#include "DataUsage.h"
#include "FakeProfiles.h"
#include "IBasePlugin.h"
#include "IDialupUIService.h"
#include "INotifyService.h"
#include "Rows.h"
#include "Startup.h"
#include "TestFolder.h"

using State = IDialupUIService::ConnectionState;
Q_DECLARE_METATYPE(State)

namespace {

template <class T>
T* shownChild(const QString& name) {
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->objectName() == name && widget->isVisible()) return qobject_cast<T*>(widget);
    return nullptr;
}

void click(const char* name) {
    QTRY_VERIFY(shownChild<QPushButton>(name));
    QTest::mouseClick(shownChild<QPushButton>(name), Qt::LeftButton);
}

// The notification service's place in the container: remembers the states that the host is told of.
class StateRecorder : public QObject, public INotifyService {
    Q_OBJECT
    Q_INTERFACES(INotifyService)

public:
    void AddListener(QString, INotify*) override {}
    void RemoveListener(INotify*) override {}
    int SendNotify(QString clsid, unsigned int event, unsigned int state, unsigned int) override {
        if (clsid == ORBISDIAL_HOST_LISTENER_CLSID && event == NotifyConnectionChanged) states.append(State(state));
        return 0;
    }

    QVector<State> states;
};

}  // namespace

class tst_dialup : public QObject {
    Q_OBJECT

private slots:
    void init() {
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(QFileInfo(TEXTS_DIR).path()));
        vrks_simulated_reset();
        for (const char* setting : {"DIAL_MS", "HANG_UP_MS"}) vrks_simulated_set(setting, "80");
        for (const char* file : {"config/orbisdial.ini", "data/usage.json"}) QFile::remove(m_Folder.path(file));
        Change::SetLanguage("en");
        Fake::reset();
        Fake::set("fake.profiles", QStringList{"Home", "Ask me"});
        Startup::GetPluginContainer()->AddPlugin(&m_Profiles, ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
        Startup::GetPluginContainer()->AddPlugin(&m_Recorder, ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
        m_Recorder.states.clear();
        load();
    }

    void cleanup() {
        unload();
        Startup::GetPluginContainer()->RemovePlugin(&m_Profiles);
        Startup::GetPluginContainer()->RemovePlugin(&m_Recorder);
    }

    void dials_data() {
        const Rows<QString, State, QString, QString> row("outcome", "end", "failure", "details");
        row("answers", "answers", State::Connected, "", "");
        row("busy", "busy", State::Disconnected, "busy", "CME 100");
        row("wrong password", "authentication-failed", State::Disconnected, "\"Home\"", "CME 100");
    }

    void dials() {
        QFETCH(QString, outcome);
        QFETCH(State, end);
        vrks_simulated_set("DIAL", outcome.toLatin1());
        vrks_simulated_set("DIAL_WORDS", "CME 100");
        QCOMPARE(m_Service->Connect(""), 0);
        QCOMPARE(m_Service->GetConnectionState(), State::Connecting);
        QVERIFY(!m_Service->IsConnected());
        QCOMPARE(m_Service->Connect("Home"), 1);
        QTRY_VERIFY(!text(ORBISDIAL_DIAL_STEP).isEmpty());
        QTRY_COMPARE(m_Service->GetConnectionState(), end);

        QString name = "unchanged";
        const bool isUp = end == State::Connected;
        QCOMPARE(m_Service->GetConnectedProfileName(&name), isUp);
        QCOMPARE(name, QString(isUp ? "Home" : "unchanged"));
        QVERIFY(!m_Service->GetConnectedProfileName(nullptr));
        compareFailure();
        QTEST(text(ORBISDIAL_FAILURE_DETAILS), "details");
        QCOMPARE(text(ORBISDIAL_DIAL_STEP), QString());
        QCOMPARE(m_Recorder.states, (QVector<State>{State::Connecting, end}));
    }

    void refuses_data() {
        const Rows<QString, QString, int, QString> row("profile", "lack", "status", "failure");
        row("unknown profile", "Gone 100%1", "", 23, "\"Gone 100%1\"");
        row("empty default", "", "default", 23, "no default profile");
        row("no settings plug-in", "", "settings", 13, "not loaded");
        row("modem not ready", "", "STATUS=1", 13, "not ready");
        row("no modem", "Ask me", "PRESENT=0", 13, "Plug one in");
        row("locked", "", "LOCK=pin", 13, "PIN");
        row("in use", "", "USED_BY=nmcli", 13, "in use by nmcli");
        row("APN", "Ask me", "apn=two words", 22, "access point name (APN) of \"Ask me\"");
        row("DNS", "", "dnsalt=300.1.1.1", 22, "alternative DNS server");
    }

    void refuses() {
        QFETCH(QString, profile);
        QFETCH(QString, lack);
        const QString name = lack.section('=', 0, 0), value = lack.section('=', 1);
        if (lack == "default") Fake::set("fake.default", "");
        if (lack == "settings") Startup::GetPluginContainer()->RemovePlugin(&m_Profiles);
        if (name == name.toUpper() && !value.isEmpty()) vrks_simulated_change(name.toLatin1(), value.toUtf8());
        Fake::set("fake.fields", QVariantMap{{name, value}});
        QTEST(m_Service->Connect(profile), "status");
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QVERIFY(!isPromptShown());
        compareFailure();
    }

    void refusesWithoutModem() {
        if (vrks_simulated_active()) QSKIP("needs a process without the simulated modem");
        QCOMPARE(m_Service->Connect("Home"), 13);
        QVERIFY2(m_Service->GetLastFailure().contains("ModemManager"), qPrintable(m_Service->GetLastFailure()));
    }

    // An attempt that can't begin leaves no trace of the one before it, and tells its own end.
    void saysWhatEndedLast() {
        vrks_simulated_set("DIAL", "busy");
        m_Service->Connect("Home");
        QTRY_VERIFY(m_Service->GetLastFailure().contains("busy"));
        QCOMPARE(m_Service->Connect("Gone"), 23);
        vrks_simulated_change("USED_BY", "nmcli");
        QTRY_VERIFY(text(ORBISDIAL_MODEM_USED_BY).contains("nmcli"));
        QVERIFY2(m_Service->GetLastFailure().contains("Gone"), qPrintable(m_Service->GetLastFailure()));
        vrks_simulated_change("USED_BY", nullptr);
        vrks_simulated_set("DIAL", "answers");
        m_Service->Connect("Home");
        QTRY_VERIFY(m_Service->IsConnected());
        vrks_simulated_drop("dropped");
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QVERIFY2(m_Service->GetLastFailure().contains("lost"), qPrintable(m_Service->GetLastFailure()));
        QVERIFY(Change::SetLanguage("de"));
        QVERIFY(m_Service->GetLastFailure().contains("abgebrochen"));
    }

    void saysWhatHasNoEffect() {
        Fake::set("fake.fields", QVariantMap{{"ip", "10.0.0.9"}, {"phonenumber", "0800 1"}, {"winsalt", "10.0.0.1"}});
        m_Service->Connect("Home");
        QTRY_VERIFY(m_Service->IsConnected());
        const QStringList notes = text(ORBISDIAL_CONNECTION_NOTES).split('\n');
        QCOMPARE(notes.size(), 4);
        QVERIFY2(notes.last().contains("192.0.2.10"), qPrintable(notes.last()));
    }

    // As orbisctl does, seen from here.
    void showsAndEndsAnothersConnection() {
        for (const char* setting : {"DIAL_MS", "HANG_UP_MS"}) vrks_simulated_set(setting, "500");
        VRKS_DialRequest request{};
        request.size = sizeof request;
        request.name = "Of another program";
        QCOMPARE(VRKS_NetConnectSrv_Dial(&request), 0L);
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Connecting);
        QTRY_VERIFY(m_Service->IsConnected());
        QString name;
        QVERIFY(m_Service->GetConnectedProfileName(&name));
        QCOMPARE(name, QString(request.name));
        QCOMPARE(m_Service->Disconnect(), 0);
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QVERIFY(m_Recorder.states.contains(State::Connected));
        QCOMPARE(m_Recorder.states.last(), State::Disconnected);
    }

    void saysThatItCannotEnd() {
        m_Service->Connect("Home");
        QTRY_VERIFY(m_Service->IsConnected());
        for (const bool isLate : {false, true}) {
            vrks_simulated_set("REFUSE_HANG_UP", isLate ? "2" : "1");
            QCOMPARE(m_Service->Disconnect(), isLate ? 0 : 2);
            QCOMPARE(m_Service->IsConnected(), !isLate);
            QTRY_VERIFY(m_Service->IsConnected());
            QVERIFY2(m_Service->GetLastFailure().contains("could not be ended"),
                     qPrintable(m_Service->GetLastFailure()));
        }
        vrks_simulated_set("REFUSE_HANG_UP", "0");
        QCOMPARE(m_Service->Disconnect(), 0);
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QCOMPARE(m_Service->GetLastFailure(), QString());
    }

    void endsWithTheWindowUnlessItShallStay() {
        for (const bool stays : {false, true}) {
            QVERIFY(ConnectionSettings::setStaysAfterExit(stays));
            m_Service->Connect("Home");
            QTRY_VERIFY(m_Service->IsConnected());
            QCOMPARE(dialled().endsWithProcess, int(!stays));
            m_Service->Disconnect();
            QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        }
    }

    void countsToTheLastByte() {
        const QString card = ModemState::current().imsi;
        QVERIFY(DataUsage().setLimit(card, 1));
        vrks_simulated_set("RATE", "1000000");
        m_Service->Connect("Home");
        QTRY_VERIFY(m_Service->IsConnected());
        QTest::qWait(20);
        m_Service->Disconnect();
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        const DataConnection ended = DataConnection::current();
        const UsageTotals month = DataUsage().month(card);
        QVERIFY(month.received > 0);
        QCOMPARE(month.received, ended.received);
        QCOMPARE(month.sent, ended.sent);
        QVERIFY2(text(ORBISDIAL_USAGE_WARNING).contains("used up"), qPrintable(text(ORBISDIAL_USAGE_WARNING)));
    }

    void connectsByItself() {
        vrks_simulated_change("STATUS", "1");
        QVERIFY(ConnectionSettings::setStaysAfterExit(false));  // makes the settings' folder
        notify(NotifyProfilesChanged);
        QTest::qWait(20);
        QVERIFY(AutoConnectSettings::set("Home", true));  // as another program does
        QTRY_VERIFY(text(ORBISDIAL_AUTOMATIC_HOLD).contains("modem"));
        vrks_simulated_change("STATUS", "3");
        QTRY_VERIFY(m_Service->IsConnected());
        m_Service->Disconnect();
        QTRY_VERIFY(text(ORBISDIAL_AUTOMATIC_HOLD).contains("yourself"));
        QTest::qWait(100);  // long enough for another dialling
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
    }

    void neverUsesAWrongPasswordTwice_data() {
        const Rows<bool> row("runs");
        row("changed in a window", true);
        row("changed while none was there", false);
    }

    void neverUsesAWrongPasswordTwice() {
        const bool runs = cell<bool>("runs");
        vrks_simulated_set("DIAL", "authentication-failed");
        QVERIFY(AutoConnectSettings::set("Home", true));
        notify(NotifyProfilesChanged);
        QTRY_VERIFY(text(ORBISDIAL_AUTOMATIC_HOLD).contains("\"Home\""));
        vrks_simulated_set("DIAL", "answers");
        if (!runs) reload();
        notify(NotifyProfilesChanged);
        vrks_simulated_change("SIGNAL", "50");
        QTest::qWait(100);
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QVERIFY(text(ORBISDIAL_AUTOMATIC_HOLD).contains("\"Home\""));
        Fake::set("fake.fields", QVariantMap{{"password", "the right one"}});
        if (!runs) reload();
        notify(NotifyProfilesChanged);
        QTRY_VERIFY(m_Service->IsConnected());
        QCOMPARE(dialled().password, "the right one");
    }

    void automaticConnectionFollowsItsProfile() {
        vrks_simulated_change("REGISTRATION", "roaming");
        QVERIFY(AutoConnectSettings::set("Home", true));
        notify(NotifyProfilesChanged);
        QTRY_VERIFY(text(ORBISDIAL_AUTOMATIC_HOLD).contains("roaming"));
        Fake::set("fake.profiles", QStringList{"Ask me", "House"});
        notify(NotifyProfilesChanged);
        QTRY_COMPARE(AutoConnectSettings::rules().keys(), QList<QString>{"House"});
        vrks_simulated_change("IMSI", "262011234567890");  // another card has other profiles
        Fake::set("fake.profiles", QStringList{"Ask me"});
        notify(NotifyProfilesChanged);
        QTest::qWait(20);
        QVERIFY(AutoConnectSettings::isOn("House"));
    }

    void asks() {
        for (const bool isAnswered : {false, true}) {
            QCOMPARE(m_Service->Connect("Ask me"), 0);
            QTRY_VERIFY(shownChild<QLineEdit>("DialupPlugin_UserEdit"));
            QCOMPARE(shownChild<QLineEdit>("DialupPlugin_UserEdit")->text(), QString("ada"));
            QCOMPARE(shownChild<QLineEdit>("DialupPlugin_PasswordEdit")->echoMode(), QLineEdit::Password);
            QTest::qWait(20);
            QCOMPARE(m_Service->GetConnectionState(), State::Connecting);
            shownChild<QLineEdit>("DialupPlugin_UserEdit")->setText("eva");
            click(isAnswered ? "DialupPlugin_ConnectButton" : "DialupPlugin_CancelButton");
            if (isAnswered) QCOMPARE(dialled().user, "eva");
            if (isAnswered) QCOMPARE(dialled().password, "secret-of-ada");
            QTRY_COMPARE(m_Service->GetConnectionState(), isAnswered ? State::Connected : State::Disconnected);
            QTRY_VERIFY(!isPromptShown());
            QCOMPARE(m_Service->GetLastFailure().contains("cancelled"), !isAnswered);
        }
        m_Service->Disconnect();
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        Fake::set("fake.neverAsk", true);
        m_Service->Connect("Ask me");
        QTRY_VERIFY(m_Service->IsConnected());
    }

    void promptFollowsItsProfile() {
        QCOMPARE(m_Service->Connect("Ask me"), 0);
        QCOMPARE(notify(NotifyProfilesChanged), 0);
        QVERIFY(isPromptShown());
        QVERIFY(Change::SetLanguage("ru"));
        notify(NotifyLanguageChanged);
        QCOMPARE(shownChild<QPushButton>("DialupPlugin_ConnectButton")->text(),
                 Change::tr("IDS_DIALUP_CONNECT", "DialupPlugin"));
        Change::SetLanguage("en");
        Fake::set("fake.profiles", QStringList{"Home"});
        notify(NotifyProfilesChanged);
        QVERIFY(!isPromptShown());
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QVERIFY2(m_Service->GetLastFailure().contains("\"Ask me\""), qPrintable(m_Service->GetLastFailure()));
    }

    void disconnects_data() {
        const Rows<QString, State, State, QString> row("profile", "from", "next", "failure");
        row("asking", "Ask me", State::Connecting, State::Disconnected, "cancelled");
        row("dialling", "Home", State::Connecting, State::Disconnecting, "cancelled");
        row("connected", "Home", State::Connected, State::Disconnecting, "");
    }

    void disconnects() {
        QFETCH(QString, profile);
        QFETCH(State, from);
        QCOMPARE(m_Service->Disconnect(), 1);
        m_Service->Connect(profile);
        QTRY_COMPARE(m_Service->GetConnectionState(), from);
        QCOMPARE(m_Service->Disconnect(), 0);
        QTEST(m_Service->GetConnectionState(), "next");
        QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
        QTest::qWait(60);  // a dialling that goes on unseen would connect now
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
        compareFailure();
        QVERIFY(!isPromptShown());
    }

    void closesItsPromptAtTheEnd() {
        m_Service->Connect("Ask me");
        qobject_cast<IBasePlugin*>(m_Object)->OnDestroy();
        QVERIFY(!isPromptShown());
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
    }

private:
    void load() {
        m_Object = m_Loader.instance();
        QVERIFY2(m_Object, qPrintable(m_Loader.errorString()));
        m_Service = qobject_cast<IDialupUIService*>(m_Object);
        QVERIFY(m_Service);
        QCOMPARE(qobject_cast<IBasePlugin*>(m_Object)->Init(), 1);
    }

    void unload() {
        qobject_cast<IBasePlugin*>(m_Object)->OnDestroy();
        delete m_Object;
    }

    void reload() {
        unload();
        load();
    }

    static bool isPromptShown() { return shownChild<QDialog>("DialupPlugin_CredentialsPrompt"); }
    int notify(unsigned int event) const { return qobject_cast<INotify*>(m_Object)->Notify(event, 0, 0); }

    QString text(const char* property) const { return m_Object->property(property).toString(); }

    static VRKS_DialRequest dialled() {
        VRKS_DialRequest request{};
        vrks_simulated_dialled(&request);
        return request;
    }

    // With a part of it in the row; an empty one stands for none.
    void compareFailure() const {
        QFETCH(QString, failure);
        const QString last = m_Service->GetLastFailure();
        QVERIFY2(last.contains(failure) && last.isEmpty() == failure.isEmpty(), qPrintable(last));
    }

    TestFolder m_Folder;
    QPluginLoader m_Loader{DIALUP_PLUGIN};
    FakeProfiles m_Profiles;
    StateRecorder m_Recorder;
    QPointer<QObject> m_Object;
    IDialupUIService* m_Service = nullptr;
};

QTEST_MAIN(tst_dialup)
#include "tst_dialup.moc"

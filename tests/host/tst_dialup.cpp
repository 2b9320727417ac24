// The dial-up plug-in as a host loads it, on the simulated modem.
#include <vrks_simulated.h>

#include <QApplication>
#include <QDialog>
#include <QPluginLoader>
#include <QPushButton>

#include "Change.h"
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
        Change::SetLanguage("en");
        Fake::reset();
        Fake::set("fake.profiles", QStringList{"Home", "Ask me"});
        Startup::GetPluginContainer()->AddPlugin(&m_Profiles, ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
        Startup::GetPluginContainer()->AddPlugin(&m_Recorder, ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
        m_Recorder.states.clear();
        m_Object = m_Loader.instance();
        QVERIFY2(m_Object, qPrintable(m_Loader.errorString()));
        m_Service = qobject_cast<IDialupUIService*>(m_Object);
        QVERIFY(m_Service);
        m_Object->setProperty(ORBISDIAL_SIMULATED_DELAY, 1);
    }

    void cleanup() {
        qobject_cast<IBasePlugin*>(m_Object)->OnDestroy();
        delete m_Object;
        Startup::GetPluginContainer()->RemovePlugin(&m_Profiles);
        Startup::GetPluginContainer()->RemovePlugin(&m_Recorder);
    }

    void dials_data() {
        const Rows<QString, State, QString> row("outcome", "end", "failure");
        row("answers", "answers", State::Connected, "");
        row("no carrier", "no-carrier", State::Disconnected, "no carrier");
    }

    void dials() {
        QFETCH(QString, outcome);
        QFETCH(State, end);
        m_Object->setProperty(ORBISDIAL_SIMULATED_OUTCOME, outcome);
        QCOMPARE(m_Service->Connect(""), 0);
        QCOMPARE(m_Service->GetConnectionState(), State::Connecting);
        QVERIFY(!m_Service->IsConnected());
        QCOMPARE(m_Service->Connect("Home"), 1);
        QTRY_COMPARE(m_Service->GetConnectionState(), end);

        QString name = "unchanged";
        const bool isUp = end == State::Connected;
        QCOMPARE(m_Service->GetConnectedProfileName(&name), isUp);
        QCOMPARE(name, QString(isUp ? "Home" : "unchanged"));
        QVERIFY(!m_Service->GetConnectedProfileName(nullptr));
        compareFailure();
        QCOMPARE(m_Recorder.states, (QVector<State>{State::Connecting, end}));
    }

    void refuses_data() {
        const Rows<QString, QString, int, QString> row("profile", "lack", "status", "failure");
        row("unknown profile", "Gone 100%1", "", 23, "\"Gone 100%1\"");
        row("empty default", "", "default", 23, "no default profile");
        row("no settings plug-in", "", "settings", 13, "not loaded");
        row("modem not ready", "", "modem", 13, "not ready");
    }

    void refuses() {
        QFETCH(QString, profile);
        QFETCH(QString, lack);
        if (lack == "default") Fake::set("fake.default", "");
        if (lack == "profiles") Fake::set("fake.profiles", QStringList{"Office"});
        if (lack == "settings") Startup::GetPluginContainer()->RemovePlugin(&m_Profiles);
        if (lack == "modem") vrks_simulated_set("STATUS", "0");
        QTEST(m_Service->Connect(profile), "status");
        QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
        compareFailure();
    }

    void refusesOtherModems() {
        if (vrks_simulated_active()) QSKIP("needs a process without the simulated modem");
        QCOMPARE(m_Service->Connect("Home"), 13);
        QVERIFY2(m_Service->GetLastFailure().contains("simulated"), qPrintable(m_Service->GetLastFailure()));
    }

    void asks() {
        for (const bool isAnswered : {false, true}) {
            QCOMPARE(m_Service->Connect("Ask me"), 0);
            QTRY_VERIFY(shownChild<QLineEdit>("DialupPlugin_UserEdit"));
            QCOMPARE(shownChild<QLineEdit>("DialupPlugin_UserEdit")->text(), QString("ada"));
            QCOMPARE(shownChild<QLineEdit>("DialupPlugin_PasswordEdit")->echoMode(), QLineEdit::Password);
            QTest::qWait(20);
            QCOMPARE(m_Service->GetConnectionState(), State::Connecting);
            click(isAnswered ? "DialupPlugin_ConnectButton" : "DialupPlugin_CancelButton");
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
        row("dialling", "Home", State::Connecting, State::Disconnected, "cancelled");
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
        QTest::qWait(20);  // a dialling that goes on unseen would connect now
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
    static bool isPromptShown() { return shownChild<QDialog>("DialupPlugin_CredentialsPrompt"); }
    int notify(unsigned int event) const { return qobject_cast<INotify*>(m_Object)->Notify(event, 0, 0); }

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

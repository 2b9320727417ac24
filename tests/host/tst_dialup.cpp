// The dial-up plug-in as a host loads it, on the simulated modem.
#include <vrks_simulated.h>

#include <QApplication>
#include <QDialog>
#include <QPluginLoader>
#include <QPushButton>
#include <QtTest>

#include "Change.h"
#include "FakeProfiles.h"
#include "IBasePlugin.h"
#include "IDialupUIService.h"
#include "INotifyService.h"
#include "Startup.h"
#include "TestFolder.h"

using State = IDialupUIService::ConnectionState;
Q_DECLARE_METATYPE(State)

namespace {

template <class T>
T* shownChild(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        if (window->objectName() == name) return qobject_cast<T*>(window);
        if (T* child = window->findChild<T*>(name)) return child;
    }
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
    void init();
    void cleanup();

    void dials_data();
    void dials();
    void refuses_data();
    void refuses();
    void refusesOtherModems();
    void asks_data();
    void asks();
    void promptFollowsItsProfile();
    void promptSpeaksTheNewLanguage();
    void disconnects_data();
    void disconnects();
    void closesItsPromptAtTheEnd();

private:
    void setDelay(int milliseconds) { m_Object->setProperty(ORBISDIAL_SIMULATED_DELAY, milliseconds); }

    TestFolder m_Folder;
    QPluginLoader m_Loader{DIALUP_PLUGIN};
    FakeProfiles m_Profiles;
    StateRecorder m_Recorder;
    QPointer<QObject> m_Object;
    IDialupUIService* m_Service = nullptr;
};

void tst_dialup::init() {
    qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(QFileInfo(TEXTS_DIR).path()));
    vrks_simulated_reset();
    Change::SetLanguage("en");
    Fake::set("fake.profiles", QStringList{"Home", "Ask me", "100%1"});
    Fake::set("fake.default", "Home");
    Fake::set("fake.neverAsk", false);
    Startup::GetPluginContainer()->AddPlugin(&m_Profiles, ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind);
    Startup::GetPluginContainer()->AddPlugin(&m_Recorder, ORBISDIAL_NOTIFYSERVICE_CLSID, NotifyServicePluginKind);
    m_Recorder.states.clear();
    m_Object = m_Loader.instance();
    QVERIFY2(m_Object, qPrintable(m_Loader.errorString()));
    m_Service = qobject_cast<IDialupUIService*>(m_Object);
    QVERIFY(m_Service);
    setDelay(1);
}

void tst_dialup::cleanup() {
    qobject_cast<IBasePlugin*>(m_Object)->OnDestroy();
    delete m_Object;
    Startup::GetPluginContainer()->RemovePlugin(&m_Profiles);
    Startup::GetPluginContainer()->RemovePlugin(&m_Recorder);
}

void tst_dialup::dials_data() {
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<State>("end");
    QTest::addColumn<QString>("failure");
    QTest::newRow("answers") << "answers" << State::Connected << "";
    QTest::newRow("no carrier") << "no-carrier" << State::Disconnected << "no carrier";
    QTest::newRow("authentication") << "authentication-fails" << State::Disconnected << "refused the user name";
    QTest::newRow("no signal") << "no-signal" << State::Disconnected << "no signal";
}

void tst_dialup::dials() {
    QFETCH(QString, outcome);
    QFETCH(State, end);
    QFETCH(QString, failure);
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
    QVERIFY2(m_Service->GetLastFailure().contains(failure), qPrintable(m_Service->GetLastFailure()));
    QCOMPARE(m_Service->GetLastFailure().isEmpty(), isUp);
    QCOMPARE(m_Recorder.states, (QVector<State>{State::Connecting, end}));
}

void tst_dialup::refuses_data() {
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QString>("lack");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("failure");
    QTest::newRow("unknown profile") << "Gone 100%1"
                                     << "" << 23 << "\"Gone 100%1\"";
    QTest::newRow("empty default") << ""
                                   << "default" << 23 << "no default profile";
    QTest::newRow("default that is gone") << ""
                                          << "profiles" << 23 << "\"Home\"";
    QTest::newRow("no settings plug-in") << ""
                                         << "settings" << 13 << "not loaded";
    QTest::newRow("modem not ready") << ""
                                     << "modem" << 13 << "not ready";
}

void tst_dialup::refuses() {
    QFETCH(QString, profile);
    QFETCH(QString, lack);
    QFETCH(int, status);
    QFETCH(QString, failure);
    if (lack == "default") Fake::set("fake.default", "");
    if (lack == "profiles") Fake::set("fake.profiles", QStringList{"Office"});
    if (lack == "settings") Startup::GetPluginContainer()->RemovePlugin(&m_Profiles);
    if (lack == "modem") vrks_simulated_set("STATUS", "0");
    QCOMPARE(m_Service->Connect(profile), status);
    QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
    QVERIFY2(m_Service->GetLastFailure().contains(failure), qPrintable(m_Service->GetLastFailure()));
}

void tst_dialup::refusesOtherModems() {
    if (vrks_simulated_active()) QSKIP("needs a process without the simulated modem");
    QCOMPARE(m_Service->Connect("Home"), 13);
    QVERIFY2(m_Service->GetLastFailure().contains("simulated"), qPrintable(m_Service->GetLastFailure()));
}

void tst_dialup::asks_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<State>("end");
    QTest::newRow("answered") << QByteArray("DialupPlugin_ConnectButton") << State::Connected;
    QTest::newRow("cancelled") << QByteArray("DialupPlugin_CancelButton") << State::Disconnected;
}

void tst_dialup::asks() {
    QFETCH(QByteArray, button);
    QFETCH(State, end);
    QCOMPARE(m_Service->Connect("Ask me"), 0);
    QTRY_VERIFY(shownChild<QLineEdit>("DialupPlugin_UserEdit"));
    QCOMPARE(shownChild<QLineEdit>("DialupPlugin_UserEdit")->text(), QString("ada"));
    QCOMPARE(shownChild<QLineEdit>("DialupPlugin_PasswordEdit")->echoMode(), QLineEdit::Password);
    QTest::qWait(20);
    QCOMPARE(m_Service->GetConnectionState(), State::Connecting);
    click(button);
    QTRY_COMPARE(m_Service->GetConnectionState(), end);
    QTRY_VERIFY(!shownChild<QDialog>("DialupPlugin_CredentialsPrompt"));
    QCOMPARE(m_Service->GetLastFailure().contains("cancelled"), end == State::Disconnected);

    m_Service->Disconnect();
    QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
    Fake::set("fake.neverAsk", true);
    m_Service->Connect("Ask me");
    QTRY_VERIFY(m_Service->IsConnected());
}

void tst_dialup::promptFollowsItsProfile() {
    auto* listener = qobject_cast<INotify*>(m_Object);
    QCOMPARE(m_Service->Connect("Ask me"), 0);
    QCOMPARE(listener->Notify(NotifyProfilesChanged, 0, 0), 0);
    QVERIFY(shownChild<QDialog>("DialupPlugin_CredentialsPrompt"));
    Fake::set("fake.profiles", QStringList{"Home"});
    listener->Notify(NotifyProfilesChanged, 0, 0);
    QVERIFY(!shownChild<QDialog>("DialupPlugin_CredentialsPrompt"));
    QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
    QVERIFY2(m_Service->GetLastFailure().contains("\"Ask me\""), qPrintable(m_Service->GetLastFailure()));
}

void tst_dialup::promptSpeaksTheNewLanguage() {
    m_Service->Connect("Ask me");
    QVERIFY(Change::SetLanguage("ru"));
    qobject_cast<INotify*>(m_Object)->Notify(NotifyLanguageChanged, 0, 0);
    QTest::qWait(20);  // Qt's own widgets take their new texts from the event loop
    for (const char* button : {"Connect", "Cancel"}) {
        const QString text = Change::tr(QString("IDS_DIALUP_") + QString(button).toUpper(), "DialupPlugin");
        QVERIFY(!text.isEmpty());
        QCOMPARE(shownChild<QPushButton>(qPrintable(QString("DialupPlugin_%1Button").arg(button)))->text(), text);
    }
}

void tst_dialup::disconnects_data() {
    QTest::addColumn<QString>("profile");
    QTest::addColumn<State>("from");
    QTest::addColumn<State>("next");
    QTest::addColumn<QString>("failure");
    QTest::newRow("asking") << "Ask me" << State::Connecting << State::Disconnected << "cancelled";
    QTest::newRow("dialling") << "Home" << State::Connecting << State::Disconnected << "cancelled";
    QTest::newRow("connected") << "Home" << State::Connected << State::Disconnecting << "";
}

void tst_dialup::disconnects() {
    QFETCH(QString, profile);
    QFETCH(State, from);
    QFETCH(State, next);
    QFETCH(QString, failure);
    QCOMPARE(m_Service->Disconnect(), 1);
    m_Service->Connect(profile);
    QTRY_COMPARE(m_Service->GetConnectionState(), from);
    QCOMPARE(m_Service->Disconnect(), 0);
    QCOMPARE(m_Service->GetConnectionState(), next);
    QTRY_COMPARE(m_Service->GetConnectionState(), State::Disconnected);
    QTest::qWait(20);  // a dialling that goes on unseen would connect now
    QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
    QVERIFY2(m_Service->GetLastFailure().contains(failure), qPrintable(m_Service->GetLastFailure()));
    QVERIFY(!shownChild<QDialog>("DialupPlugin_CredentialsPrompt"));
}

void tst_dialup::closesItsPromptAtTheEnd() {
    m_Service->Connect("Ask me");
    qobject_cast<IBasePlugin*>(m_Object)->OnDestroy();
    QVERIFY(!shownChild<QDialog>("DialupPlugin_CredentialsPrompt"));
    QCOMPARE(m_Service->GetConnectionState(), State::Disconnected);
}

QTEST_MAIN(tst_dialup)
#include "tst_dialup.moc"

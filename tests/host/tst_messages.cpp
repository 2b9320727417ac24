// SPDX-License-Identifier: MIT
// The desktop's messages about the connection, on a bus of the test's own with a stand-in for the desktop's service;
// and without either.
#include <vrks_simulated.h>

#include <QDBusConnection>
#include <QProcess>
#include <memory>
#include <utility>

#include "Change.h"
#include "ConnectionView.h"
#include "DataUsage.h"
#include "DesktopMessages.h"
#include "FakeProfiles.h"
#include "Host.h"
#include "HostSettings.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

const QString Imsi = "310260123456789";
const QString Password = "pass-word-of-nobody-else";
const QString Profile = "Tom & <b>";

// No service is started on this bus that the computer happens to have.
const char BusConfiguration[] = R"(<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>)";

bool hasBus() { return QDBusConnection::sessionBus().isConnected(); }

}  // namespace

// What desktops answer to.
class Notifications : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    static constexpr uint Id = 7;

    struct Message {
        uint replaced;
        QString title, body;
        QStringList actions;
    };
    QVector<Message> messages;

    QStringList titles() const {
        QStringList all;
        for (const Message& message : messages) all.append(message.title);
        return all;
    }

    QString bodies() const {
        QString all;
        for (const Message& message : messages) all += message.body + '\n';
        return all;
    }

public slots:
    QStringList GetCapabilities() { return {"body", "body-markup", "actions"}; }
    uint Notify(const QString&, uint replaced, const QString&, const QString& title, const QString& body,
                const QStringList& actions, const QVariantMap&, int) {
        messages.append({replaced, title, body, actions});
        return Id;
    }

signals:
    void ActionInvoked(uint id, const QString& action);
};

class tst_messages : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        if (qgetenv("DBUS_SESSION_BUS_ADDRESS").contains("nonexistent")) return;
        TestFolder::write(m_Bus.filePath("bus.conf"), BusConfiguration);
        m_Daemon.start("dbus-daemon", {"--nofork", "--print-address", "--config-file=" + m_Bus.filePath("bus.conf")});
        if (!m_Daemon.waitForStarted() || !m_Daemon.waitForReadyRead()) QSKIP("no dbus-daemon");
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_Daemon.readLine().trimmed());
        QVERIFY(hasBus());
    }

    void cleanupTestCase() {
        m_Daemon.kill();
        m_Daemon.waitForFinished();
    }

    void init() {
        m_Folder = std::make_unique<TestFolder>();
        QDir().rmdir(m_Folder->path("library/lang"));
        QVERIFY(QFile::link(TEXTS_DIR, m_Folder->path("library/lang")));
        install("DialupPlugin", DIALUP_PLUGIN);
        install("FakeSettingsPlugin", FAKE_PLUGIN);
        vrks_simulated_reset();
        vrks_simulated_set("DIAL_MS", "40");
        vrks_simulated_set("DIAL_WORDS", "in the network's own words");
        Fake::reset();
        Fake::set("fake.profiles", QStringList(Profile));
        Fake::set("fake.default", Profile);
        Fake::set("fake.fields", QVariantMap{{"user", "tom"}, {"password", Password}});
    }

    void cleanup() {
        m_Host.reset();
        m_Service.reset();
        QDBusConnection::disconnectFromBus("desktop");
    }

    void tells_data() {
        const Rows<QStringList, QString, QString, bool> row("change", "title", "body", "isFirst");
        row("up", {"DIAL", "answers"}, "Connected with " + Profile, "Simulated network", true);
        row("dropped", {"DIAL_DROP_MS", "100"}, "The connection with " + Profile + " broke", "again", false);
        row("failed", {"DIAL", "authentication-failed"}, "Could not connect with " + Profile, "Tom &amp; &lt;b&gt;",
            true);
    }
    void tells() {
        if (!hasBus()) QSKIP("no bus");
        offerService();
        const QStringList change = cell<QStringList>("change");
        vrks_simulated_set(change[0].toLatin1(), change[1].toLatin1());
        start();
        m_Host->window()->view()->act();
        waitFor(cell<QString>("title"), cell<QString>("body"));
        QCOMPARE(m_Service->messages.last().replaced, cell<bool>("isFirst") ? 0 : Notifications::Id);
    }

    void tellsOfALockedCard() {
        if (!hasBus()) QSKIP("no bus");
        offerService();
        start();
        vrks_simulated_change("LOCK", "pin");
        waitFor("SIM card locked", "PIN");
    }

    // Once, and not again because the language changes.
    void tellsOfTheLimitOnce() {
        if (!hasBus()) QSKIP("no bus");
        offerService();
        DataUsage().setLimit(Imsi, 1);
        start();
        m_Host->window()->view()->act();
        QTRY_VERIFY(m_Host->window()->picture().isUp);
        QTest::qWait(50);  // for bytes, if there were none at once
        m_Host->window()->view()->act();
        QTRY_COMPARE(m_Service->bodies().count("used up"), 1);
        QTRY_VERIFY(!m_Host->window()->picture().isUp);
        const int count = m_Service->messages.size();
        QVERIFY(m_Host->changeLanguage("de"));
        QTest::qWait(100);
        QCOMPARE(m_Service->messages.size(), count);
        Change::SetLanguage("en");
    }

    void showsTheWindowWhenClicked() {
        if (!hasBus()) QSKIP("no bus");
        offerService();
        start();
        m_Host->window()->view()->act();
        QTRY_COMPARE(m_Service->messages.size(), 1);
        m_Host->window()->hide();
        emit m_Service->ActionInvoked(Notifications::Id + 1, "default");
        QTest::qWait(50);
        QVERIFY(!m_Host->window()->isVisible());
        emit m_Service->ActionInvoked(Notifications::Id, "default");
        QTRY_VERIFY(m_Host->window()->isVisible());
    }

    void isSilentWhenNotWanted() {
        if (!hasBus()) QSKIP("no bus");
        offerService();
        HostSettings::set(HostSettings::Notifies, false);
        start();
        m_Host->window()->view()->act();
        QTRY_VERIFY(m_Host->window()->picture().isUp);
        QTest::qWait(50);
        QCOMPARE(m_Service->titles(), QStringList());
    }

    // The tray says it then; without a bus at once.
    void handsOnWhatNobodyTakes() {
        DesktopMessages messages;
        QStringList handedOn;
        connect(&messages, &DesktopMessages::failed, this,
                [&handedOn](const Notice& notice) { handedOn.append(notice.title); });
        ConnectionPicture picture;
        messages.refresh(picture);
        picture.isUp = true;
        picture.headline = "Connected";
        messages.refresh(picture);
        if (!hasBus()) QCOMPARE(handedOn, QStringList("Connected"));
        QTRY_COMPARE(handedOn, QStringList("Connected"));
    }

private:
    void install(const QString& folder, const QString& library) const {
        const QString place = m_Folder->path("library/plugins/" + folder);
        QVERIFY(QDir().mkpath(place) && QFile::link(library, place + '/' + QFileInfo(library).fileName()));
    }

    void offerService() {
        m_Service = std::make_unique<Notifications>();
        QDBusConnection bus =
            QDBusConnection::connectToBus(QString::fromLatin1(qgetenv("DBUS_SESSION_BUS_ADDRESS")), "desktop");
        QVERIFY(bus.registerObject("/org/freedesktop/Notifications", m_Service.get(),
                                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(bus.registerService("org.freedesktop.Notifications"));
    }

    void start() {
        m_Host = std::make_unique<Host>();
        m_Host->start();
        m_Host->window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_Host->window()));
    }

    // The last message; none tells more than a passer-by may read.
    void waitFor(const QString& title, const QString& body) {
        QTRY_VERIFY2(m_Service->titles().contains(title), qPrintable(m_Service->titles().join('\n')));
        const Notifications::Message last = m_Service->messages.last();
        QCOMPARE(last.title, title);
        QVERIFY2(last.body.contains(body), qPrintable(last.body));
        QCOMPARE(last.actions.value(0), QString("default"));
        for (const Notifications::Message& message : std::as_const(m_Service->messages))
            for (const QString& secret : {Password, Imsi})
                QVERIFY(!message.title.contains(secret) && !message.body.contains(secret));
    }

    const QTemporaryDir m_Bus;
    QProcess m_Daemon;
    std::unique_ptr<TestFolder> m_Folder;
    std::unique_ptr<Notifications> m_Service;
    std::unique_ptr<Host> m_Host;
};

QTEST_MAIN(tst_messages)
#include "tst_messages.moc"

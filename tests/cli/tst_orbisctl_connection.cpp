// SPDX-License-Identifier: MIT
// Connecting, and what belongs to it, on the simulated modem.

#include <csignal>

#include "OrbisctlFixture.h"
#include "Rows.h"
#include "SimulatedSettings.h"
#include "Terminal.h"

namespace {

// A command that stays, whose output is read while it runs.
class Running {
public:
    explicit Running(const QStringList& arguments) {
        m_Process.start(ORBISCTL, arguments);
        m_Process.waitForStarted();
    }
    ~Running() {
        m_Process.kill();
        m_Process.waitForFinished();
    }

    QByteArray out() {
        m_Process.waitForReadyRead(1);
        return m_Out += m_Process.readAllStandardOutput();
    }
    QByteArray err() { return m_Process.readAllStandardError(); }
    void send(int signal) { ::kill(pid_t(m_Process.processId()), signal); }

    // As a shell tells it, more than 128 for a signal; -1 while it runs.
    int status() {
        if (m_Process.state() != QProcess::NotRunning) m_Process.waitForFinished(1);
        if (m_Process.state() != QProcess::NotRunning) return -1;
        return m_Process.exitStatus() == QProcess::CrashExit ? 128 + m_Process.exitCode() : m_Process.exitCode();
    }

private:
    QProcess m_Process;
    QByteArray m_Out;
};

}  // namespace

class tst_orbisctl_connection : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("ORBISDIAL_SIM_DIAL_MS", "0"); }

    void connecting_data() {
        const Rows<QStringList, QStringList, int, QByteArray> row("network", "arguments", "status", "words");
        row("default", {"DIAL_APN=alpha.example", "DIAL_USER=alpha"}, {}, 0, "connected: Alpha, sim0, 192.0.2.10");
        row("by name", {"DIAL_APN=beta.example"}, {"Beta"}, 0, "connected: Beta");
        row("with password", {"DIAL_PASSWORD=s3cret"}, {"Own"}, 0, "connected: Own");
        row("slow", {"DIAL_MS=300"}, {}, 0, "connected: Alpha");
        row("wrong APN", {"DIAL_APN=alpha.example"}, {"Beta"}, 4, "");
        row("wrong password", {"DIAL_PASSWORD=other", "DIAL_WORDS=go away"}, {"Own"}, 4, "go away");
        row("no answer", {"DIAL=no-carrier"}, {}, 1, "");
        row("no modem", {"PRESENT=0"}, {}, 3, "");
        row("locked", {"LOCK=pin"}, {}, 4, "");
        row("in use", {"USED_BY=Somebody"}, {}, 4, "");
        row("too late", {"DIAL_MS=20000"}, {"--timeout", "1"}, 5, "in time");
        row("no profile", {}, {"Nope"}, 3, "Nope");
        row("no number", {}, {"--timeout", "0"}, 2, "--timeout");
        row("undiallable", {}, {"Bad"}, 4, "apn");
    }
    void connecting() {
        const int status = cell<int>("status");
        const QByteArray words = cell<QByteArray>("words");
        const OrbisctlFixture fixture;
        const SimulatedSettings settings(cell<QStringList>("network"));
        fixture.writeUser(
            "<Profile name='Own' password='s3cret' encrypttype='2' phonenumber='*99#'/>"
            "<Profile name='Bad' apn='two words' autoapn='false' phonenumber='*99#'/>");
        const Outcome outcome = fixture.run(QStringList{"connect"} + cell<QStringList>("arguments"));
        if (status != 0) {
            COMPARE_REFUSED(outcome, status, words);
            QCOMPARE(outcome.out, QByteArray());
            return;
        }
        COMPARE_DONE(outcome);
        QVERIFY2(outcome.out.startsWith(words), outcome.out);
        QVERIFY2(outcome.out.endsWith("(simulated modem); it ends with this program, see --hold\n"), outcome.out);
    }

    void noDefault() {
        const OrbisctlFixture fixture;
        fixture.ship("NetConnectConfig.xml", "<vrksdoc><FunctionConfig/></vrksdoc>");
        COMPARE_REFUSED(fixture.run({"connect"}), 3, "no default");
    }

    void holding_data() {
        const Rows<int> row("signal");
        row("interrupt", SIGINT);
        row("end", SIGTERM);
        row("hang up", SIGHUP);
    }
    void holding() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"HANG_UP_MS=100"});
        Running command({"connect", "--hold"});
        QTRY_VERIFY(command.out().contains("connected: Alpha"));
        QVERIFY(!command.out().contains("--hold"));
        command.send(cell<int>("signal"));
        QTRY_COMPARE(command.status(), 128 + cell<int>("signal"));
        QVERIFY2(command.out().endsWith("disconnected: Alpha\n"), command.out());
    }

    void heldConnectionDrops() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"DIAL_DROP_MS=100"});
        const Outcome outcome = fixture.run({"connect", "--hold"});
        COMPARE_REFUSED(outcome, 1, "");
        QVERIFY2(outcome.out.startsWith("connected: Alpha"), outcome.out);
    }

    void hangingUpIsRefused_data() { nameRows("setting", {"REFUSE_HANG_UP=1", "REFUSE_HANG_UP=2"}); }
    void hangingUpIsRefused() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({cell("setting").toLatin1()});
        Running command({"connect", "--hold"});
        QTRY_VERIFY(command.out().contains("connected: Alpha"));
        command.send(SIGINT);
        QTRY_COMPARE(command.status(), 128 + SIGINT);
        QVERIFY(!command.out().contains("disconnected"));
        QVERIFY(command.err().contains("can't be ended"));
    }

    void givingUp() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"DIAL_MS=60000", "HANG_UP_MS=50"});
        Terminal terminal({ORBISCTL, "connect"});
        QTRY_VERIFY2(terminal.screen().contains("orbisctl: "), terminal.screen());  // how far it is
        terminal.type("\x03");
        QTRY_COMPARE(terminal.status(), 128 + SIGINT);
        QVERIFY2(!terminal.screen().contains("connected"), terminal.screen());
    }

    void credentialsAreAskedFor() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"DIAL_USER=me", "DIAL_PASSWORD=s3cret"});
        QByteArray configuration = TestFolder::read(fixture.pluginDir() + "/NetConnectConfig.xml");
        configuration.replace("</NetConnectConfig>",
                              "<group name='prompt'><module name='prompt'><item name='PromptPwd' value='true'/>"
                              "<item name='UserCheck' value='true'/></module></group></NetConnectConfig>");
        fixture.ship("NetConnectConfig.xml", configuration);
        fixture.writeUser("<Profile name='Own' user='them' popusername='true' phonenumber='*99#'/>");
        Terminal terminal({ORBISCTL, "connect", "Own"});
        QTRY_VERIFY2(terminal.screen().contains("User name [them]: "), terminal.screen());
        terminal.type("me\n");
        QTRY_VERIFY2(terminal.screen().contains("Password: "), terminal.screen());
        QTRY_VERIFY(!terminal.hasEcho());
        terminal.type("s3cret\n");
        QTRY_COMPARE(terminal.status(), 0);
        QVERIFY2(terminal.screen().contains("connected: Own"), terminal.screen());
        QVERIFY2(!terminal.screen().contains("s3cret"), terminal.screen());
    }

    void status() {
        const OrbisctlFixture fixture;
        const QJsonObject down = fixture.run({"--json", "status"}).json();
        QCOMPARE(down["state"].toString(), QString("down"));
        QCOMPARE(down["simulated"].toBool(), true);
        QVERIFY(down["profile"].isNull() && down["failure"].isNull());
        const QJsonObject up = fixture.run({"--json", "connect", "Beta"}).json();
        QCOMPARE(up["state"].toString(), QString("up"));
        QCOMPARE(up["profile"].toString(), QString("Beta"));
        QCOMPARE(up["dns"].toArray().size(), 2);
        const SimulatedSettings settings({"USED_BY=Somebody"});
        QCOMPARE(fixture.run({"status"}).out,
                 QByteArray("not connected; the modem is in use by Somebody (simulated modem)\n"));
        COMPARE_REFUSED(fixture.run({"status", "--device", "none"}), 1, "nothing can tell");
    }

    void watchEndsWithItsReader() {
        const OrbisctlFixture fixture;
        const Outcome outcome =
            runProgram("bash", {"-c", "\"$0\" --json status --watch | head -n 1; exit ${PIPESTATUS[0]}", ORBISCTL});
        COMPARE_DONE(outcome);
        QCOMPARE(outcome.json()["state"].toString(), QString("down"));
    }

    void disconnecting() {
        const OrbisctlFixture fixture;
        QCOMPARE(fixture.run({"disconnect"}).out, QByteArray("not connected\n"));
        const SimulatedSettings settings({"USED_BY=Somebody"});
        COMPARE_REFUSED(fixture.run({"disconnect"}), 4, "Somebody");
    }

    void automaticConnection() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='*99#'/>");
        const auto isOn = [&](const QString& name) {
            return fixture.run({"--json", "autoconnect", name}).json()["autoconnect"].toBool();
        };
        QVERIFY(!isOn("Own"));
        COMPARE_DONE(fixture.run({"autoconnect", "Own", "on", "--roaming"}));
        QCOMPARE(fixture.run({"autoconnect", "Own"}).out, QByteArray("on, roaming too\n"));
        COMPARE_DONE(fixture.run({"set", "Own", "name=Renamed"}));
        QVERIFY(isOn("Renamed"));
        COMPARE_DONE(fixture.run({"delete", "Renamed"}));
        COMPARE_DONE(fixture.run({"add", "Renamed", "phonenumber=*99#"}));
        QVERIFY(!isOn("Renamed"));
        COMPARE_REFUSED(fixture.run({"autoconnect", "Nope", "on"}), 3, "Nope");
        COMPARE_REFUSED(fixture.run({"autoconnect", "Alpha", "maybe"}), 2, "maybe");
        COMPARE_REFUSED(fixture.run({"autoconnect", "Alpha", "off", "--roaming"}), 2, "--roaming");
    }

    // Accounts get locked; a window must not try the same again.
    void refusedCredentialsAreKept() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='*99#' user='me'/>");
        const SimulatedSettings settings({"DIAL_USER=you"});
        const auto waits = [&] { return fixture.run({"--json", "autoconnect", "Own"}).json()["refused"].toBool(); };
        QCOMPARE(fixture.run({"connect", "Own"}).status, 4);
        COMPARE_DONE(fixture.run({"autoconnect", "Own", "on"}));
        QVERIFY(!waits());
        QCOMPARE(fixture.run({"connect", "Own"}).status, 4);
        QVERIFY(waits());
        COMPARE_DONE(fixture.run({"set", "Own", "user=you"}));
        QVERIFY(!waits());
        COMPARE_DONE(fixture.run({"connect", "Own"}));
        QVERIFY(!waits());
    }

    void usage_data() {
        const Rows<QStringList, QStringList, int, QByteArray> row("modem", "arguments", "status", "words");
        row("nothing", {}, {}, 0, "0 B together\nno limit is set\n");
        row("no months", {}, {"--months"}, 0, "nothing has been counted yet\n");
        row("a limit", {}, {"--limit", "1,5 gb"}, 0, "\n0 percent of the limit of 1.5 GB\n");
        row("no unit", {}, {"--limit", "5"}, 2, "\"5\"");
        row("binary unit", {}, {"--limit", "5GiB"}, 2, "5GiB");
        row("limit of nothing", {}, {"--limit", "0 MB"}, 2, "0 MB");
        row("too large", {}, {"--limit", "9000001GB"}, 2, "9000001GB");
        row("two things", {}, {"--clear", "--months"}, 2, "--months");
        row("no card", {"IMSI="}, {}, 3, "SIM card");
        row("no modem", {"PRESENT=0"}, {"--limit", "5MB"}, 3, "no modem");
        row("locked", {"LOCK=pin"}, {}, 4, "locked");
    }
    void usage() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings(cell<QStringList>("modem"));
        const QByteArray words = cell<QByteArray>("words");
        const Outcome outcome = fixture.run(QStringList{"usage"} + cell<QStringList>("arguments"));
        if (cell<int>("status") != 0) {
            COMPARE_REFUSED(outcome, cell<int>("status"), words);
            return;
        }
        COMPARE_DONE(outcome);
        QVERIFY2(outcome.out.endsWith(words), outcome.out);
    }

    void countsVolume() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"RATE=1000000", "HANG_UP_MS=0"});
        COMPARE_DONE(fixture.run({"usage", "--limit", "1 kB"}));
        double before = 0;
        for (const int warnings : {1, 0}) {  // the second time all is said
            Running command({"connect", "--hold"});
            QTRY_VERIFY(command.out().contains("connected: Alpha"));
            QTest::qWait(20);
            command.send(SIGINT);
            QTRY_COMPARE(command.status(), 128 + SIGINT);
            QCOMPARE(command.err().count("used up"), warnings);
            const QJsonObject month = fixture.run({"--json", "usage"}).json();
            QVERIFY(month["total"].toDouble() > before && month["percent"].toInt() >= 100);
            before = month["total"].toDouble();
        }
        QCOMPARE(fixture.run({"-f", "total", "usage", "--months"}).out.trimmed().toDouble(), before);
        const QByteArray locale = qgetenv("LC_ALL");
        qputenv("LC_ALL", "ar_EG.UTF-8");  // which has other figures
        QCOMPARE(fixture.run({"--json", "usage"}).json()["total"].toDouble(), before);
        qputenv("LC_ALL", locale);
        QVERIFY(fixture.run({"--json", "usage", "--clear"}).json()["limit"].isNull());
    }

    void volumeThatCannotBeStoredIsNoFailure() {
        const OrbisctlFixture fixture;
        QVERIFY(QDir().mkpath(QFileInfo(fixture.userFile()).path() + "/usage.json"));
        const Outcome outcome = fixture.run({"connect"});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err, QByteArray("orbisctl: warning: the data volume can't be stored\n"));
        COMPARE_REFUSED(fixture.run({"usage"}), 1, "can't be read");
        COMPARE_REFUSED(fixture.run({"usage", "--limit", "1GB"}), 1, "can't be stored");
    }

    void ussd_data() {
        const Rows<QStringList, QByteArray, int, QByteArray> row("network", "input", "status", "words");
        const QByteArray question = "What now?\n", answer = "Seven left\n";
        row("answer", {}, "", 0, answer);
        row("conversation", {"USSD=asks"}, "1\n", 0, question + answer);
        row("no reply", {"USSD=asks"}, "", 0, question);
        row("empty reply", {"USSD=asks"}, "\n1\n", 0, question);
        row("not supported", {"HAS_USSD=0"}, "", 4, "takes no such");
        row("refused", {"USSD=network"}, "", 4, "refused");
        row("silence", {"USSD=timeout"}, "", 5, "did not answer");
        row("too late", {"USSD_MS=20000"}, "", 5, "in time");
        row("not ready", {"LOCK=pin"}, "", 4, "not ready");
        row("no modem", {"PRESENT=0"}, "", 3, "no modem");
    }
    void ussd() {
        const int status = cell<int>("status");
        const OrbisctlFixture fixture;
        const SimulatedSettings settings(QStringList{"USSD_TEXT=Seven left", "USSD_QUESTION=What now?"} +
                                         cell<QStringList>("network"));
        const Outcome outcome = fixture.run({"ussd", "*100#", "--timeout", "1"}, cell<QByteArray>("input"));
        if (status != 0) {
            COMPARE_REFUSED(outcome, status, cell<QByteArray>("words"));
        } else {
            COMPARE_DONE(outcome);
            QCOMPARE(outcome.out, cell<QByteArray>("words"));
        }
    }

    // Nobody types anything.
    void theNetworkEndsAConversation() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"USSD=asks", "USSD_PATIENCE_MS=100"});
        Terminal terminal({ORBISCTL, "ussd", "*100#"});
        QTRY_VERIFY2(terminal.screen().endsWith("ended the session.\r\n"), terminal.screen());
        QVERIFY2(terminal.screen().contains("session): \r\norbisctl: "), terminal.screen());
    }

    void balance_data() {
        const Rows<QString, QStringList, int, QByteArray, QByteArray> row("profile", "network", "status", "out",
                                                                          "words");
        row("by command", "Alpha", {}, 0, "Alpha Net, *100#:\nSeven left\n", "");
        row("by message", "Beta", {}, 4, "Send the text message \"SALDO\" to 111.\n", "Beta Mobile");
        row("no card", "Alpha", {"IMSI="}, 3, "", "tells the operator");
        row("refused", "Alpha", {"USSD=network"}, 4, "", "refused");
        row("no modem", "Alpha", {"PRESENT=0"}, 3, "", "no modem");
    }
    void balance() {
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run({"default", cell("profile")}));
        const SimulatedSettings settings(QStringList{"USSD_TEXT=Seven left"} + cell<QStringList>("network"));
        const Outcome outcome = fixture.run({"balance"});
        QCOMPARE(outcome.out, cell<QByteArray>("out"));
        if (cell<int>("status") != 0) {
            COMPARE_REFUSED(outcome, cell<int>("status"), cell<QByteArray>("words"));
        } else {
            COMPARE_DONE(outcome);
            QCOMPARE(fixture.run({"--json", "balance"}).json()["number"].toString(), QString("*100#"));
        }
    }
};

QTEST_GUILESS_MAIN(tst_orbisctl_connection)
#include "tst_orbisctl_connection.moc"

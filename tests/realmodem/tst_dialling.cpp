// SPDX-License-Identifier: MIT
// Data connections of the SDK, dialled by the real NetworkManager over scripted modems.
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <ctime>

#include <QProcess>

#include "Connections.h"
#include "Program.h"
#include "Rows.h"
#include "Stack.h"
#include "TestFolder.h"

namespace {

constexpr int NobodysId = 65534;

const QString Dialling = "ATD*99*";
const QString Connected = "CONNECT 150000000";
const QString NoCarrier = "NO CARRIER";

// NetworkManager's own command line, as another program that connects.
bool nmcli(const QString& arguments) {
    const Outcome outcome = runProgram("nmcli", arguments.split(' '));
    if (outcome.status != 0) qWarning() << arguments << outcome.err;
    return outcome.status == 0;
}

void sendDatagram(const char* address) {
    sockaddr_in target{};
    target.sin_family = AF_INET;
    target.sin_port = htons(9);
    ::inet_pton(AF_INET, address, &target.sin_addr);
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const char text[100] = {};
    ::sendto(fd, text, sizeof text, 0, reinterpret_cast<const sockaddr*>(&target), sizeof target);
    ::close(fd);
}

QStringList sorted(QStringList list) {
    list.sort();
    return list;
}

}  // namespace

class tst_dialling : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        qputenv("ORBISDIAL_MODEM", "gsm-port");  // of the processes that are started here too
        qputenv("ORBISDIAL_DEVICE_WAIT_MS", QByteArray::number(Patience));
        QVERIFY(m_Stack.plug("gsm", {"GSM"}));
        QVERIFY(m_Stack.plug("cdma", {"GSM", "CDMA"}));
        QTRY_COMPARE_WITH_TIMEOUT(modemCount(), 2, Patience);
        QVERIFY(use("gsm"));
    }

    // Whatever a row did, the next one finds a modem that can dial.
    void init() {
        if (m_IsSpoilt && ++m_Failures > 2) QSKIP("Earlier rows failed.");
        if (m_IsSpoilt) startAnew();
        m_IsSpoilt = true;
        QVERIFY(use("gsm"));
        QVERIFY(m_Stack.reply("gsm", Dialling, Connected));
        QVERIFY(m_Stack.setPppd("up"));
        QTRY_COMPARE_WITH_TIMEOUT(deviceStatus(), VRKS_DEV_STATUS_READY, Patience);
        QTRY_VERIFY2_WITH_TIMEOUT(connection().state == VRKS_CONNECTION_DOWN && !*connection().usedBy, shown(),
                                  Patience);
    }

    void cleanup() { m_IsSpoilt = QTest::currentTestFailed(); }

    void whatWasAskedForReachesTheFarEnd_data() {
        const Rows<QString, bool, bool, QStringList> row("modem", "chap", "pap", "refused");
        row("gsm, chap", "gsm", true, false, {"refuse-eap", "refuse-pap"});
        row("gsm, pap", "gsm", false, true, {"refuse-chap", "refuse-eap", "refuse-mschap", "refuse-mschap-v2"});
        row("cdma, any", "cdma", false, false, {});
    }

    void whatWasAskedForReachesTheFarEnd() {
        const auto modem = cell("modem");
        QVERIFY(use(modem));
        Request request;
        request.user = "ann";
        request.password = "p\xc3\xa4ss word";
        request.allowsChap = cell<bool>("chap");
        request.allowsPap = cell<bool>("pap");
        QVERIFY(dial(request));
        TRY_UP();
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
        QVERIFY(use("gsm"));

        const QJsonObject call = Stack::lastPppdCall();
        const QStringList arguments = call["arguments"].toVariant().toStringList();
        QCOMPARE(call["user"].toString(), QString("ann"));
        QCOMPARE(call["password"].toString(), QString::fromUtf8(request.password));
        QCOMPARE(sorted(arguments.filter(QRegularExpression("^refuse-"))), cell<QStringList>("refused"));
        QVERIFY(arguments.filter("word").isEmpty());
        const QStringList commands = m_Stack.commands(modem);
        QCOMPARE(commands.filter("internet.example").isEmpty(), modem == "cdma");
        QVERIFY2(commands.filter("+CGDCONT=1").isEmpty(), "the APN that the modem attaches with is not ours");
    }

    void whatIsShown() {
        const long long began = std::time(nullptr);
        QVERIFY(dial());
        TRY_UP();
        TRY_CONNECTION(hasAddress());
        const VRKS_Connection up = connection();
        QVERIFY(up.isOwn && up.endsWithProcess);
        QCOMPARE(up.name, "Home");
        QCOMPARE(up.interfaceName, "ppp0");
        QCOMPARE(up.address, "10.64.0.2");
        QCOMPARE(up.dns[0], "10.64.0.1");
        QCOMPARE(up.dns[1], "10.64.0.3");
        QVERIFY(up.since >= began && up.since <= std::time(nullptr));
        QVERIFY(up.seconds >= 0);
        char imsi[VRKS_IMSI_SIZE] = "";
        QCOMPARE(VRKS_DevSrv_GetImsiInfo(imsi), 0L);
        QVERIFY(*imsi);
        QVERIFY(use("cdma"));
        QCOMPARE(connection().imsi, imsi);
        QVERIFY(use("gsm"));

        sendDatagram("10.64.0.1");
        TRY_CONNECTION(connection().sent >= up.sent + 100 && connection().received >= up.received + 100);
        const VRKS_Connection last = connection();
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
        QVERIFY(!hasLink());
        QVERIFY(connection().sent >= last.sent && connection().received >= last.received);
        QCOMPARE(connection().interfaceName, "");

        QVERIFY(dial());
        QVERIFY(connection().sent == 0 && connection().received == 0);
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_CANCELLED);
    }

    void failures_data() {
        const Rows<QString, QString, int> row("modemSays", "pppd", "expected");
        row("no carrier", NoCarrier, "up", VRKS_FAILURE_NO_CARRIER);
        row("the network refuses the password", "+CME ERROR: 149", "up", VRKS_FAILURE_AUTHENTICATION);
        row("not subscribed", "+CME ERROR: 133", "up", VRKS_FAILURE_NOT_SUBSCRIBED);
        row("an APN nobody knows", "+CME ERROR: 127", "up", VRKS_FAILURE_APN);
        row("without network", "+CME ERROR: 30", "up", VRKS_FAILURE_NOT_REGISTERED);
        row("anything else", "+CME ERROR: 134", "up", VRKS_FAILURE_OTHER);
        row("PPP fails", Connected, "refused", VRKS_FAILURE_REFUSED);
        row("the line breaks", Connected, "dies", VRKS_FAILURE_DROPPED);
    }

    void failures() {
        QVERIFY(m_Stack.reply("gsm", Dialling, cell("modemSays")));
        QVERIFY(m_Stack.setPppd(cell("pppd")));
        QVERIFY(dial());
        TRY_DOWN(cell<int>("expected"));
        QVERIFY(*connection().words);
        QCOMPARE(connection().name, "Home");
    }

    void onlyIpv4() {
        QVERIFY(m_Stack.setPppd("ipv4-only"));
        Request request;
        request.user = "ann";
        request.password = "secret";
        const int calls = pppdCalls();
        QVERIFY(dial(request));
        TRY_DOWN(VRKS_FAILURE_REFUSED);
        QCOMPARE(pppdCalls(), calls + 1);  // a wrong password is not sent twice

        QVERIFY(dial());
        TRY_UP();
        QCOMPARE(pppdCalls(), calls + 3);
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
    }

    void cancelling_data() {
        const Rows<int, int> row("where", "step");
        row("before anything", Begun, VRKS_STEP_PREPARING);
        row("while NetworkManager has no use of the modem", Unmanaged, VRKS_STEP_PREPARING);
        row("while NetworkManager does not answer", Frozen, VRKS_STEP_PREPARING);
        row("while the modem dials, in vain", InVain, VRKS_STEP_CONNECTING);
        row("while the modem dials, with success", Answered, VRKS_STEP_CONNECTING);
        row("while a modem dials that does not answer", Silent, VRKS_STEP_CONNECTING);
        row("while the modem dials and NetworkManager hangs", Hung, VRKS_STEP_CONNECTING);
        row("while PPP negotiates", NoAddress, VRKS_STEP_CONNECTING);
    }

    void cancelling() {
        const int where = cell<int>("where");
        if (where == Unmanaged) QVERIFY(nmcli("device set gsm-port managed no"));
        if (where == Frozen) QVERIFY(m_Stack.freeze("NetworkManager"));
        if (where == Begun || where >= InVain) QVERIFY(m_Stack.reply("gsm", Dialling, "(silence)"));
        if (where == NoAddress) QVERIFY(m_Stack.setPppd("silence"));
        const int calls = pppdCalls(), dialled = dialCommands();
        QVERIFY(dial());
        if (where >= InVain) QTRY_VERIFY_WITH_TIMEOUT(dialCommands() > dialled, 15000);
        if (where == NoAddress) QTRY_COMPARE_WITH_TIMEOUT(pppdCalls(), calls + 1, Patience);
        if (where != Begun) {
            TRY_CONNECTION(connection().step == cell<int>("step"));
            QTest::qWait(100);
        }
        QVERIFY2(connection().state == VRKS_CONNECTION_DIALLING, shown());
        QVERIFY(!dial());
        if (where == Hung) QVERIFY(m_Stack.freeze("NetworkManager"));
        QVERIFY(hangUp());
        QVERIFY2(connection().state != VRKS_CONNECTION_DIALLING, shown());
        if (where == Frozen) QVERIFY(m_Stack.thaw("NetworkManager"));
        if (where == Answered) {
            QTest::qWait(100);
            QVERIFY(m_Stack.send("gsm", Connected));
        }
        TRY_CONNECTION((where != InVain || m_Stack.send("gsm", NoCarrier)) &&
                       connection().state == VRKS_CONNECTION_DOWN);
        QVERIFY2(connection().failure == VRKS_FAILURE_CANCELLED, shown());
        QVERIFY(!hangUp());
        if (where == Hung) QVERIFY(m_Stack.thaw("NetworkManager"));
        if (where == Unmanaged) QVERIFY(nmcli("device set gsm-port managed yes"));
        if (where == Begun || where >= Silent) QVERIFY(m_Stack.send("gsm", NoCarrier));

        QVERIFY(m_Stack.reply("gsm", Dialling, Connected));
        QVERIFY(m_Stack.setPppd("up"));
        QVERIFY(dial());
        TRY_UP();
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
    }

    void endedByOthers_data() {
        nameRows("command", {"connection down id Home", "connection up id Foreign", "radio wwan off"});
    }

    void endedByOthers() {
        const QString command = cell("command");
        const bool isTaking = command.contains("Foreign");
        QVERIFY(dial());
        TRY_UP();
        if (isTaking) QVERIFY(addForeign());
        QVERIFY(nmcli(command));
        TRY_DOWN(isTaking ? VRKS_FAILURE_TAKEN : VRKS_FAILURE_ENDED_OUTSIDE);
        if (isTaking) QVERIFY(nmcli("connection delete Foreign"));
        if (command.contains("radio")) QVERIFY(nmcli("radio wwan on"));
    }

    // NetworkManager keeps the connection until the modem has answered.
    void endedByOthersWhileTheModemIsSilent() {
        QVERIFY(m_Stack.reply("gsm", Dialling, "(silence)"));
        const int dialled = dialCommands();
        QVERIFY(dial());
        QTRY_VERIFY_WITH_TIMEOUT(dialCommands() > dialled, 15000);
        QVERIFY(nmcli("--wait 0 connection down id Home"));
        TRY_DOWN(VRKS_FAILURE_ENDED_OUTSIDE);
        QVERIFY(m_Stack.send("gsm", NoCarrier));
    }

    void radioThatIsOffOrHasJustComeOn() {
        QVERIFY(nmcli("radio wwan off"));
        QVERIFY(dial());
        TRY_DOWN(VRKS_FAILURE_NOT_READY);
        QVERIFY(nmcli("radio wwan on"));
        QVERIFY(dial());
        TRY_UP();
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
    }

    void modemIsTakenAway() {
        QVERIFY(dial());
        TRY_UP();
        QVERIFY(m_Stack.unplug("gsm"));
        TRY_DOWN(VRKS_FAILURE_MODEM_GONE);
        QTRY_COMPARE_WITH_TIMEOUT(deviceStatus(), VRKS_DEV_STATUS_NO_MODEM, Patience);
        QVERIFY(!dial());
        QVERIFY2(connection().failure == VRKS_FAILURE_NO_MODEM, shown());
        QVERIFY(m_Stack.replug("gsm"));
    }

    void daemonDies_data() {
        const Rows<QString, bool, bool, int> row("daemon", "isUp", "hangs", "expected");
        row("NetworkManager while dialling", "NetworkManager", false, false, VRKS_FAILURE_NO_NETWORK_SERVICE);
        row("NetworkManager while dialling, it hangs", "NetworkManager", false, true, VRKS_FAILURE_NO_NETWORK_SERVICE);
        row("NetworkManager while up", "NetworkManager", true, false, VRKS_FAILURE_NO_NETWORK_SERVICE);
        row("ModemManager while dialling", "ModemManager", false, false, VRKS_FAILURE_NO_MODEM_SERVICE);
        row("ModemManager while up", "ModemManager", true, false, VRKS_FAILURE_NO_MODEM_SERVICE);
    }

    void daemonDies() {
        const bool isUp = cell<bool>("isUp"), hangs = cell<bool>("hangs");
        if (!isUp) QVERIFY(m_Stack.reply("gsm", Dialling, "(silence)"));
        QVERIFY(dial());
        TRY_CONNECTION(isUp ? connection().state == VRKS_CONNECTION_UP : connection().step == VRKS_STEP_CONNECTING);
        QVERIFY(hangs ? m_Stack.freeze(cell("daemon")) : m_Stack.kill(cell("daemon")));
        TRY_DOWN(cell<int>("expected"));
        if (cell("daemon") == "NetworkManager") {
            QVERIFY(dial());
            TRY_DOWN(VRKS_FAILURE_NO_NETWORK_SERVICE);
        }
        if (!isUp) QVERIFY(m_Stack.send("gsm", NoCarrier));  // what the other daemon waits for
        QVERIFY(hangs ? m_Stack.thaw(cell("daemon")) : m_Stack.start(cell("daemon")));
        QVERIFY(use("gsm"));
        QVERIFY(m_Stack.reply("gsm", Dialling, Connected));
        QTRY_VERIFY2_WITH_TIMEOUT(isUpAgain(), shown(), Patience);
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
    }

    void anotherProgramsConnectionIsLeftAlone() {
        QVERIFY(addForeign());
        QVERIFY(nmcli("connection up id Foreign"));
        TRY_CONNECTION(QByteArray(connection().usedBy) == "Foreign");
        QVERIFY2(connection().state == VRKS_CONNECTION_DOWN, shown());
        QVERIFY(!hangUp());
        QVERIFY(!dial());
        QVERIFY2(connection().failure == VRKS_FAILURE_IN_USE, shown());
        QCOMPARE(connection().words, "Foreign");
        QVERIFY(hasLink());
        QVERIFY(nmcli("connection delete Foreign"));
        TRY_CONNECTION(!*connection().usedBy);
    }

    // ModemManager then takes the port for one that carries a call, until the modem is looked for anew.
    void anotherProcessDiesWhileDialling() {
        QVERIFY(m_Stack.reply("gsm", Dialling, "(silence)"));
        const int dialled = dialCommands();
        QProcess other;
        other.start(DIALLER, {"Other", "bound"});
        QTRY_VERIFY_WITH_TIMEOUT(dialCommands() > dialled, 15000);
        TRY_CONNECTION(connection().state == VRKS_CONNECTION_DIALLING);
        other.kill();
        QVERIFY(other.waitForFinished());
        QTRY_VERIFY2_WITH_TIMEOUT(connection().state != VRKS_CONNECTION_DIALLING, shown(), 15000);
        QVERIFY(m_Stack.send("gsm", Connected));
        TRY_CONNECTION(connection().state == VRKS_CONNECTION_DOWN);
        QVERIFY(m_Stack.reply("gsm", Dialling, Connected));
        QVERIFY(dial());
        TRY_UP();
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
    }

    void anotherProcessHangsUp() {
        QProcess other;
        other.start(DIALLER, {"Other", "staying"});
        TRY_UP();
        QVERIFY(hangUp());
        QByteArray last;
        const QByteArray expected =
            QByteArray::number(VRKS_CONNECTION_DOWN) + ' ' + QByteArray::number(VRKS_FAILURE_HUNG_UP) + '\n';
        QTRY_VERIFY2_WITH_TIMEOUT((last += other.readAllStandardOutput()).endsWith(expected), last, 15000);
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
    }

    // And counts what the connection moved.
    void theCommandLineHangsUp() {
        const QTemporaryDir folder;
        const QStringList asUser{"--data-dir", folder.path()};
        QVERIFY(dial());
        TRY_UP();
        TRY_CONNECTION(hasAddress());
        sendDatagram("10.64.0.1");
        TRY_CONNECTION(connection().sent >= 100 && connection().received >= 100);
        if (isRealRoot()) {
            QVERIFY(m_Stack.permit(false));
            const Outcome refused = runProgram("setpriv", {"--reuid=65534", "--clear-groups", ORBISCTL, "disconnect"});
            QVERIFY(m_Stack.permit(true));
            QVERIFY2(refused.status == 4 && refused.err.contains("can't be ended (Not authorized"), refused.err);
        }
        QVERIFY2(connection().state == VRKS_CONNECTION_UP, shown());
        QCOMPARE(runProgram(ORBISCTL, asUser + QStringList("disconnect")).out, QByteArray("disconnected: Home\n"));
        TRY_DOWN(VRKS_FAILURE_HUNG_UP);
        const QJsonObject month = runProgram(ORBISCTL, asUser + QStringList{"--json", "usage"}).json();
        QVERIFY(month["sent"].toDouble() >= 100 && month["received"].toDouble() >= 100);
    }

    void theCommandLineSaysWhatIsThere_data() {
        const Rows<QString, QStringList, QByteArray> row("modemSays", "command", "text");
        row("on its way", "(silence)", {"connect", "Work"}, "\"Home\" is being connected");
        row("up", Connected, {"connect", "Work"}, "\"Home\" is connected");
        row("ending", Connected, {"status"}, "disconnecting: Home");
    }

    void theCommandLineSaysWhatIsThere() {
        const bool isUp = cell("modemSays") == Connected, isEnding = !cell<QStringList>("command").contains("Work");
        const QTemporaryDir folder;
        TestFolder::write(folder.filePath("UserProfile.prof"),
                          "<vrksdoc type='Profile'><ProfileGroup><Profile name='Work' phonenumber='*99#'/>"
                          "</ProfileGroup></vrksdoc>");
        QVERIFY(m_Stack.reply("gsm", Dialling, cell("modemSays")));
        const int dialled = dialCommands();
        QVERIFY(dial());
        TRY_CONNECTION(isUp ? connection().state == VRKS_CONNECTION_UP : dialCommands() > dialled);
        if (isEnding) QVERIFY(m_Stack.freeze("ModemManager"));
        if (isEnding) QVERIFY(nmcli("--wait 0 connection down id Home"));
        const QStringList command{"ORBISDIAL_DEVICE_WAIT_MS=2000", ORBISCTL, "--data-dir", folder.path()};
        const Outcome outcome = runProgram("env", command + cell<QStringList>("command"));
        if (isEnding) QVERIFY(m_Stack.thaw("ModemManager"));
        QVERIFY2((outcome.out + outcome.err).contains(cell<QByteArray>("text")), outcome.out + outcome.err);
        hangUp();
        TRY_CONNECTION((isUp || m_Stack.send("gsm", NoCarrier)) && connection().state == VRKS_CONNECTION_DOWN);
    }

    // After the process that hung up has given up waiting for NetworkManager.
    void aHangUpIsAnsweredLate() {
        QVERIFY(dial());
        TRY_UP();
        QProcess other;
        other.start(DIALLER, {"Other", "staying"});
        QByteArray told;
        QTRY_VERIFY2_WITH_TIMEOUT((told += other.readAllStandardOutput()).startsWith("2 0\n"), told, Patience);
        QVERIFY(m_Stack.freeze("NetworkManager"));
        QVERIFY(hangUp());
        TRY_CONNECTION(connection().failure == VRKS_FAILURE_NO_NETWORK_SERVICE);
        QVERIFY(m_Stack.thaw("NetworkManager"));
        TRY_DOWN(VRKS_FAILURE_NONE);
        const QByteArray last = "0 " + QByteArray::number(VRKS_FAILURE_HUNG_UP) + '\n';
        QTRY_VERIFY2_WITH_TIMEOUT((told += other.readAllStandardOutput()).endsWith(last), told, Patience);
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
    }

    // As it reaches this process, so it reaches one that pauses before it dials by itself.
    void hangingUpNothingIsTold() {
        TRY_CONNECTION(connection().state == VRKS_CONNECTION_DOWN);
        QVERIFY(!hangUp());
        TRY_CONNECTION(connection().failure == VRKS_FAILURE_HUNG_UP);
    }

    void anotherProcessOfOurs_data() {
        const Rows<QString> row("kind");
        row("it ends the connection with itself", "bound");
        row("its connection stays, and ends here", "staying");
    }

    void anotherProcessOfOurs() {
        const bool isBound = cell("kind") == "bound";
        QElapsedTimer timer;
        timer.start();
        QProcess other;
        other.start(DIALLER, {"Other", cell("kind")});
        TRY_UP();
        TRY_CONNECTION(hasAddress());
        const VRKS_Connection up = connection();
        QCOMPARE(up.name, "Other");
        QVERIFY(!up.isOwn);
        QCOMPARE(bool(up.endsWithProcess), isBound);
        QCOMPARE(up.interfaceName, "ppp0");
        TRY_CONNECTION(connection().seconds >= 0 && connection().seconds <= timer.elapsed() / 1000 + 1);
        QVERIFY(connection().since > 0 &&
                std::abs(connection().since + connection().seconds - std::time(nullptr)) <= 1);
        QVERIFY(!dial());

        other.kill();
        QVERIFY(other.waitForFinished());
        if (isBound) {
            QTRY_VERIFY_WITH_TIMEOUT(!hasLink(), Patience);
            TRY_CONNECTION(connection().state == VRKS_CONNECTION_DOWN);
            return;
        }
        QTest::qWait(500);
        QVERIFY2(connection().state == VRKS_CONNECTION_UP && hasLink(), shown());
        QVERIFY(hangUp());
        TRY_DOWN(VRKS_FAILURE_NONE);
        QVERIFY(!hasLink());
    }

    void unprivilegedUser_data() {
        const Rows<bool, int> row("isPermitted", "failure");
        row("denied", false, VRKS_FAILURE_NOT_ALLOWED);
        row("allowed", true, VRKS_FAILURE_NONE);
    }

    void unprivilegedUser() {
        if (!isRealRoot()) QSKIP("Only root can be another user.");
        const bool isPermitted = cell<bool>("isPermitted");
        QVERIFY(m_Stack.permit(isPermitted));
        QProcess other;
        other.start(DIALLER, {"Theirs", "bound", QString::number(NobodysId)});
        QByteArray last;
        const QByteArray expected = QByteArray::number(isPermitted ? VRKS_CONNECTION_UP : VRKS_CONNECTION_DOWN) + ' ' +
                                    QByteArray::number(cell<int>("failure")) + '\n';
        QTRY_VERIFY2_WITH_TIMEOUT((last += other.readAllStandardOutput()).endsWith(expected), last, Patience);
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
        QVERIFY(m_Stack.permit(true));
    }

private:
    enum { Begun, Unmanaged, Frozen, NoAddress, InVain, Answered, Silent, Hung };

    static int modemCount() {
        char id[VRKS_MODEM_ID_SIZE];
        unsigned count = 0;
        while (VRKS_DevSrv_GetModemAt(count, id) == 0) ++count;
        return int(count);
    }

    // A failed row must not fail those after it.
    void startAnew() {
        for (const char* daemon : {"NetworkManager", "ModemManager"}) m_Stack.kill(daemon);
        for (const char* daemon : {"ModemManager", "NetworkManager"}) m_Stack.start(daemon);
        m_Stack.permit(true);
        for (const char* command : {"radio wwan on", "connection delete Foreign"}) nmcli(command);
    }

    // Whether the modem is in use and ready, in the end.
    static bool use(const QString& modem) {
        const QByteArray id = "/virtual/" + modem.toUtf8();
        VRKS_DevSrv_SelectModem(id);
        return QTest::qWaitFor(
            [&] {
                VRKS_ModemInfo info{};
                info.size = sizeof info;
                return VRKS_DevSrv_GetModemInfo(&info) == 0 && id == info.id && info.status == VRKS_DEV_STATUS_READY;
            },
            Patience);
    }

    // Dials anew when a daemon that has just come was not ready.
    static bool isUpAgain() {
        if (connection().state == VRKS_CONNECTION_DOWN) dial();
        return connection().state == VRKS_CONNECTION_UP;
    }

    static bool addForeign() {
        return nmcli("connection add type gsm con-name Foreign ifname * apn x connection.autoconnect no");
    }

    // How often the modem was told to dial; what it is to answer must not come before.
    int dialCommands() { return m_Stack.commands("gsm").filter(QRegularExpression("^ATD")).size(); }

    static int pppdCalls() {
        QFile log(Stack::path("pppd.log"));
        return log.open(QIODevice::ReadOnly) ? log.readAll().count('\n') : 0;
    }

    // As opposed to one of a namespace that has no other users.
    static bool isRealRoot() {
        QFile users("/proc/self/uid_map");
        return users.open(QIODevice::ReadOnly) && users.readAll().simplified() == "0 0 4294967295";
    }

    Stack m_Stack;
    bool m_IsSpoilt = false;
    int m_Failures = 0;
};

QTEST_GUILESS_MAIN(tst_dialling)
#include "tst_dialling.moc"

// SPDX-License-Identifier: MIT
// When to connect by itself: with a clock, a modem and a network that the test moves.
#include "AutoConnectPolicy.h"
#include "Rows.h"

class tst_autoconnect : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_Policy = {};
        m_Now = 0;
        m_Modem = {};
        m_Modem.isKnown = true;
        m_Modem.status = VRKS_DEV_STATUS_READY;
        m_Modem.card = VRKS_CARD_PRESENT;
        m_Modem.registration = VRKS_REGISTRATION_HOME;
        m_Candidate = {"Home"};
    }

    void looksAtTheModem_data() {
        const Rows<int, int, int, bool, int> row("status", "lock", "registration", "mayRoam", "hold");
        const int Ready = VRKS_DEV_STATUS_READY, Open = VRKS_LOCK_NONE;
        row("at home", Ready, Open, VRKS_REGISTRATION_HOME, false, AutoConnectNoHold);
        row("roaming", Ready, Open, VRKS_REGISTRATION_ROAMING, false, AutoConnectRoaming);
        row("may roam", Ready, Open, VRKS_REGISTRATION_ROAMING, true, AutoConnectNoHold);
        row("perhaps roaming", Ready, Open, VRKS_REGISTRATION_UNKNOWN, false, AutoConnectNotRegistered);
        row("searching", Ready, Open, VRKS_REGISTRATION_SEARCHING, true, AutoConnectNotRegistered);
        row("denied", Ready, Open, VRKS_REGISTRATION_DENIED, true, AutoConnectNotRegistered);
        row("starting", VRKS_DEV_STATUS_STARTING, Open, VRKS_REGISTRATION_HOME, false, AutoConnectNotReady);
        row("locked", VRKS_DEV_STATUS_LOCKED, VRKS_LOCK_PIN, VRKS_REGISTRATION_UNKNOWN, true, AutoConnectNotReady);
        row("gone", VRKS_DEV_STATUS_NO_MODEM, Open, VRKS_REGISTRATION_UNKNOWN, true, AutoConnectNotReady);
    }

    void looksAtTheModem() {
        m_Modem.status = cell<int>("status");
        m_Modem.lock = cell<int>("lock");
        m_Modem.registration = cell<int>("registration");
        m_Candidate.mayRoam = cell<bool>("mayRoam");
        const AutoConnectDecision decision = decide();
        QTEST(decision.hold, "hold");
        QCOMPARE(decision.mustDial, decision.hold == AutoConnectNoHold);
        QCOMPARE(decision.wait, qint64(0));
    }

    void looksAtTheProfile() {
        m_Candidate.mustAsk = true;
        QCOMPARE(decide().hold, int(AutoConnectMustAsk));
        m_Candidate.isRefused = true;
        QCOMPARE(decide().hold, int(AutoConnectRefused));
        m_Candidate.name.clear();
        QCOMPARE(decide().hold, int(AutoConnectIsOff));
    }

    void whatFollowsFromAnEnd_data() {
        const Rows<int, int, bool> row("failure", "hold", "isRefused");
        row("hung up in this program", VRKS_FAILURE_NONE, AutoConnectHungUp, false);
        row("hung up in another program", VRKS_FAILURE_HUNG_UP, AutoConnectHungUp, false);
        row("given up", VRKS_FAILURE_CANCELLED, AutoConnectHungUp, false);
        row("ended outside", VRKS_FAILURE_ENDED_OUTSIDE, AutoConnectHungUp, false);
        row("dropped", VRKS_FAILURE_DROPPED, AutoConnectPause, false);
        row("no carrier", VRKS_FAILURE_NO_CARRIER, AutoConnectPause, false);
        row("slept", VRKS_FAILURE_SUSPENDED, AutoConnectPause, false);
        row("unheard of", 1000, AutoConnectPause, false);
        row("wrong password", VRKS_FAILURE_AUTHENTICATION, AutoConnectFailed, true);
        row("perhaps a wrong password", VRKS_FAILURE_REFUSED, AutoConnectFailed, true);
        row("no password", VRKS_FAILURE_CREDENTIALS_MISSING, AutoConnectFailed, true);
        row("wrong PIN", VRKS_FAILURE_WRONG_PIN, AutoConnectFailed, true);
        row("APN", VRKS_FAILURE_APN, AutoConnectFailed, false);
        row("a modem that hangs", VRKS_FAILURE_STUCK, AutoConnectFailed, false);
        row("not allowed", VRKS_FAILURE_NOT_ALLOWED, AutoConnectFailed, false);
    }

    void whatFollowsFromAnEnd() {
        m_Policy.dials();
        QCOMPARE(end(cell<int>("failure")), cell<bool>("isRefused"));
        QTEST(decide().hold, "hold");
        QVERIFY(!end(cell<int>("failure")));  // the same news once more
        m_Policy.userConnects(true);
        QVERIFY(decide().mustDial);
    }

    void pausesGrow() {
        QVector<qint64> pauses;
        for (int i = 0; i < 7; ++i) {
            fail();
            pauses.append(decide().wait);
            m_Now += pauses.last() - 1;
            QVERIFY(!decide().mustDial);
            m_Now += 1;
            QVERIFY(decide().mustDial);
        }
        QCOMPARE(pauses, (QVector<qint64>{5000, 10000, 20000, 40000, 80000, 120000, 120000}));
    }

    // Only one that was up for a while ends the row of failures.
    void pausesBeginAnew_data() {
        const Rows<int, int> row("upFor", "pause");
        row("soon dropped", 119999, 20000);
        row("up for long", 120000, 5000);
    }

    void pausesBeginAnew() {
        fail();
        fail();
        m_Now += 60000;
        m_Policy.dials();
        observe(VRKS_CONNECTION_UP);
        m_Now += cell<int>("upFor");
        observe(VRKS_CONNECTION_UP);
        QVERIFY(!decide().mustDial);
        end(VRKS_FAILURE_DROPPED);
        QCOMPARE(decide().wait, qint64(cell<int>("pause")));
    }

    // The modem that comes back is worth an attempt at once, the user's hanging up is not forgotten for it.
    void forgetsFailuresAlone() {
        fail();
        m_Policy.cannotDial();
        m_Policy.forgetFailures();
        QVERIFY(decide().mustDial);
        m_Policy.userHangsUp();
        m_Policy.forgetFailures();
        QCOMPARE(decide().hold, int(AutoConnectHungUp));
    }

    void isHeldByHangingUpInAPause() {
        fail();
        QVERIFY(!decide().hold || decide().hold == int(AutoConnectPause));
        end(VRKS_FAILURE_HUNG_UP);
        m_Now += 60000;
        QCOMPARE(decide().hold, int(AutoConnectHungUp));
    }

    void leavesOthersAlone() {
        DataConnection connection;
        connection.usedBy = "nmcli";
        m_Policy.observe(connection, m_Now);
        QCOMPARE(decide().hold, int(AutoConnectInUse));
        m_Policy.observe({}, m_Now);
        QVERIFY(decide().mustDial);
        m_Policy.userConnects(false);  // with a profile that does not connect by itself
        end(VRKS_FAILURE_DROPPED);
        QCOMPARE(decide().hold, int(AutoConnectHungUp));
    }

    // What another program begins is the user's doing, and ends what his hanging up began.
    void knowsWhatOthersBegin() {
        DataConnection connection;
        QVERIFY(!m_Policy.isBegunElsewhere(connection));
        connection.state = VRKS_CONNECTION_DIALLING;
        QVERIFY(m_Policy.isBegunElsewhere(connection));
        connection.isOwn = true;
        QVERIFY(!m_Policy.isBegunElsewhere(connection));
        connection.isOwn = false;
        m_Policy.observe(connection, m_Now);
        connection.state = VRKS_CONNECTION_UP;
        QVERIFY(!m_Policy.isBegunElsewhere(connection));
    }

private:
    AutoConnectDecision decide() const { return m_Policy.decide(m_Candidate, m_Modem, m_Now); }

    bool observe(int state, int failure = VRKS_FAILURE_NONE) {
        DataConnection connection;
        connection.state = state;
        connection.failure = failure;
        return m_Policy.observe(connection, m_Now);
    }

    bool end(int failure) { return observe(VRKS_CONNECTION_DOWN, failure); }

    void fail() {
        m_Policy.dials();
        end(VRKS_FAILURE_NO_CARRIER);
    }

    AutoConnectPolicy m_Policy;
    AutoConnectPolicy::Candidate m_Candidate;
    ModemState m_Modem;
    qint64 m_Now = 0;
};

QTEST_GUILESS_MAIN(tst_autoconnect)
#include "tst_autoconnect.moc"

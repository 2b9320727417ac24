// SPDX-License-Identifier: MIT
// What the window and the tray say of what is known, without a window.
#include <vrks.h>

#include <cstring>

#include "Amounts.h"
#include "Change.h"
#include "ConnectionPicture.h"
#include "HostText.h"
#include "Notices.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

using Picture = ConnectionPicture;
using Setting = void (*)(ConnectionFacts&);

void set(char* place, const char* text) { std::strcpy(place, text); }

// A ready modem in its home network.
ConnectionFacts readyFacts() {
    ConnectionFacts facts;
    facts.isModemKnown = facts.connection.isKnown = facts.hasDialer = true;
    facts.modem.status = VRKS_DEV_STATUS_READY;
    facts.modem.card = VRKS_CARD_PRESENT;
    facts.modem.registration = VRKS_REGISTRATION_HOME;
    facts.modem.signal = 64;
    set(facts.modem.operatorName, "Example");
    set(facts.modem.technology, "LTE");
    facts.defaultProfile = "Work";
    return facts;
}

ConnectionFacts failedFacts() {
    ConnectionFacts facts = readyFacts();
    facts.failure = "The network refused you. Ask somebody.";
    facts.connection.name = "Work";
    facts.connection.failure = VRKS_FAILURE_AUTHENTICATION;
    facts.failureDetails = "own words";
    return facts;
}

ConnectionFacts lockedFacts() {
    ConnectionFacts facts = readyFacts();
    facts.modem.status = VRKS_DEV_STATUS_LOCKED;
    facts.modem.lock = VRKS_LOCK_PIN;
    return facts;
}

ConnectionFacts upFacts() {
    ConnectionFacts facts = readyFacts();
    facts.state = IDialupUIService::Connected;
    facts.profile = "Work";
    return facts;
}

}  // namespace

Q_DECLARE_METATYPE(Setting)

class tst_picture : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QDir().rmdir(m_Folder.path("library/lang"));
        QVERIFY(QFile::link(TEXTS_DIR, m_Folder.path("library/lang")));
        QVERIFY(Change::SetLanguage("en"));
    }

    void tellsStatesApart_data() {
        const Rows<Setting, int, QString, QString, int, bool> row("change", "sign", "headline", "detail", "action",
                                                                  "isAllowed");
        const auto add = [&row](const char* name, Setting change, int sign, const char* headline, const char* detail,
                                int action,
                                bool isAllowed) { row(name, change, sign, headline, detail, action, isAllowed); };
        add(
            "no dialler", [](ConnectionFacts& facts) { facts.hasDialer = false; }, Picture::Missing,
            "No dial-up plug-in", "Install", Picture::Connect, false);
        add(
            "just started", [](ConnectionFacts& facts) { facts.isModemKnown = false, facts.isSettling = true; },
            Picture::Busy, "Looking for a modem", "moment", Picture::Connect, false);
        add(
            "no service", [](ConnectionFacts& facts) { facts.isModemKnown = false; }, Picture::Missing,
            "Modem service not available", "ModemManager", Picture::Connect, false);
        add(
            "connections unknown", [](ConnectionFacts& facts) { facts.connection.isKnown = false; }, Picture::Missing,
            "Connection service not available", "NetworkManager", Picture::Connect, false);
        add(
            "no modem", [](ConnectionFacts& facts) { facts.modem.status = VRKS_DEV_STATUS_NO_MODEM; }, Picture::Missing,
            "No modem", "Plug in", Picture::Connect, false);
        add(
            "starting", [](ConnectionFacts& facts) { facts.modem.status = VRKS_DEV_STATUS_STARTING; }, Picture::Busy,
            "Modem starting", "ready", Picture::Connect, false);
        add(
            "no card",
            [](ConnectionFacts& facts) {
                facts.modem.status = VRKS_DEV_STATUS_FAILED, facts.modem.card = VRKS_CARD_NONE;
            },
            Picture::Missing, "No SIM card", "put a SIM card", Picture::Connect, false);
        add(
            "broken", [](ConnectionFacts& facts) { facts.modem.status = VRKS_DEV_STATUS_FAILED; }, Picture::Failed,
            "Modem not ready", "Unplug", Picture::Connect, false);
        add(
            "PIN", [](ConnectionFacts& facts) { facts = lockedFacts(); }, Picture::Attention, "SIM card locked", "PIN",
            Picture::Unlock, true);
        add(
            "PUK", [](ConnectionFacts& facts) { facts = lockedFacts(), facts.modem.lock = VRKS_LOCK_PUK; },
            Picture::Attention, "SIM card locked", "PUK", Picture::Unlock, true);
        add(
            "other lock", [](ConnectionFacts& facts) { facts = lockedFacts(), facts.modem.lock = VRKS_LOCK_OTHER; },
            Picture::Attention, "SIM card locked", "Neither", Picture::Connect, false);
        add(
            "searching", [](ConnectionFacts& facts) { facts.modem.registration = VRKS_REGISTRATION_SEARCHING; },
            Picture::Idle, "Not connected", "Searching", Picture::Connect, true);
        add(
            "home", [](ConnectionFacts&) {}, Picture::Idle, "Not connected",
            "Example \u00b7 LTE \u00b7 signal 64\u00a0%", Picture::Connect, true);
        add(
            "roaming", [](ConnectionFacts& facts) { facts.modem.registration = VRKS_REGISTRATION_ROAMING; },
            Picture::Idle, "Not connected", "signal 64\u00a0% \u00b7 roaming", Picture::Connect, true);
        add(
            "denied", [](ConnectionFacts& facts) { facts.modem.registration = VRKS_REGISTRATION_DENIED; },
            Picture::Idle, "Not connected", "refuses this SIM card", Picture::Connect, true);
        add(
            "used by another", [](ConnectionFacts& facts) { facts.usedBy = "In use by X."; }, Picture::Attention,
            "Not connected", "In use by X.", Picture::Connect, false);
        add(
            "connecting",
            [](ConnectionFacts& facts) {
                facts.state = IDialupUIService::Connecting, facts.profile = "50 %1", facts.step = "A step";
            },
            Picture::Busy, "Connecting with 50 %1", "A step", Picture::Cancel, true);
        add(
            "connected", [](ConnectionFacts& facts) { facts = upFacts(); }, Picture::Online, "Connected with Work",
            "Example", Picture::Disconnect, true);
        add(
            "disconnecting", [](ConnectionFacts& facts) { facts.state = IDialupUIService::Disconnecting; },
            Picture::Busy, "Disconnecting", "Example", Picture::Disconnect, false);
    }
    void tellsStatesApart() {
        QFETCH(Setting, change);
        ConnectionFacts facts = readyFacts();
        change(facts);
        const Picture picture = Picture::of(facts);
        QTEST(int(picture.sign), "sign");
        QFETCH(QString, headline);
        QFETCH(QString, detail);
        QVERIFY2(picture.headline.startsWith(headline), qPrintable(picture.headline));
        QVERIFY2(picture.detail.contains(detail), qPrintable(picture.detail));
        QTEST(int(picture.action), "action");
        QTEST(picture.isActionAllowed, "isAllowed");
    }

    // A failure is shown until the next attempt, but not one that the user wanted.
    void keepsAFailure() {
        ConnectionFacts facts = failedFacts();
        Picture picture = Picture::of(facts);
        QVERIFY(picture.hasFailed && picture.sign == Picture::Failed && picture.failedProfile == "Work");
        QCOMPARE(picture.failureDetails, QString("authentication-failed\nown words"));
        for (const int wanted : {VRKS_FAILURE_CANCELLED, VRKS_FAILURE_HUNG_UP}) {
            facts.connection.failure = wanted;
            QVERIFY(!Picture::of(facts).hasFailed);
        }
        QVERIFY(Picture::of(facts).notes.contains(facts.failure));  // another program did it
        facts = failedFacts();
        facts.state = IDialupUIService::Connecting;
        QVERIFY(!Picture::of(facts).hasFailed);
        facts.state = IDialupUIService::Connected;  // it could not be ended
        QVERIFY(!Picture::of(facts).hasFailed && Picture::of(facts).notes.contains(facts.failure));
        facts = lockedFacts();
        facts.failure = "locked";
        picture = Picture::of(facts);
        QVERIFY(picture.hasFailed && picture.canUnlock && picture.sign == Picture::Attention);
    }

    void saysWhatBefell_data() {
        const Rows<int, QString> row("failure", "title");
        row("never up", VRKS_FAILURE_AUTHENTICATION, "Could not connect with Work");
        row("dropped", VRKS_FAILURE_DROPPED, "The connection with Work broke");
        row("ended by another program", VRKS_FAILURE_ENDED_OUTSIDE, "The connection with Work was ended");
    }
    void saysWhatBefell() {
        ConnectionFacts facts = failedFacts();
        facts.connection.failure = cell<int>("failure");
        QTEST(Picture::of(facts).failureTitle, "title");
    }

    void notices_data() {
        const Rows<int, int, QString> row("before", "now", "title");
        row("comes up", Down, Up, "Connected with Work");
        row("stays up", Up, Up, "");
        row("user ends it", Up, Down, "");
        row("fails", Down, Failed, "Could not connect with Work");
        row("still failed", Failed, Failed, "");
        row("locked", Down, Locked, "SIM card locked");
        row("limit", Up, AtLimit, "Connected with Work");
        row("limit was said", AtLimit, AtLimit, "");
    }
    void notices() {
        QFETCH(int, before);
        QFETCH(int, now);
        const auto notice = Notice::of(pictureOf(before), pictureOf(now));
        QTEST(notice ? notice->title : QString(), "title");
    }

    void writesAmounts() {
        QCOMPARE(Amounts::volume(0), QString("0 B"));
        QCOMPARE(Amounts::volume(999), QString("999 B"));
        QCOMPARE(Amounts::volume(999499), QString("999 kB"));
        QCOMPARE(Amounts::volume(999500), QString("1.0 MB"));
        QCOMPARE(Amounts::volume(34200000), QString("34.2 MB"));
        QCOMPARE(Amounts::rate(150000), QString("1.2 Mbit/s"));
        QCOMPARE(Amounts::duration(761), QString("12:41"));
        QCOMPARE(Amounts::duration(3 * 3600 + 5), QString("3:00:05"));
        QVERIFY(Change::SetLanguage("de"));
        QCOMPARE(Amounts::volume(34200000), QString("34,2 MB"));
        Change::SetLanguage("en");
    }

private:
    enum { Down, Up, Failed, Locked, AtLimit };

    static Picture pictureOf(int state) {
        ConnectionFacts facts = state == Down     ? readyFacts()
                                : state == Failed ? failedFacts()
                                : state == Locked ? lockedFacts()
                                                  : upFacts();
        if (state == AtLimit) facts.usageWarning = "80 percent are used.";
        return Picture::of(facts);
    }

    const TestFolder m_Folder;
};

QTEST_MAIN(tst_picture)
#include "tst_picture.moc"

// SPDX-License-Identifier: MIT
// Which default the user's file keeps while cards, browsed files and card modes come and go.

#include <QtTest>

#include "LogicFixture.h"
#include "NetConnectStoreAction.h"

class tst_defaults : public LogicTest {
    Q_OBJECT

private slots:
    void theUsersDefaultWaitsForItsCard_data() {
        const Rows<QString, QString> row("key", "away");
        row("no modem", "IMSI", QString());
        row("no card", "IMSI", "");
        row("not ready", "STATUS", "1");
    }
    void theUsersDefaultWaitsForItsCard() {
        QFETCH(QString, key);
        shipPresets();
        setUser(profile("Mine"), "<Default name='Card' IsUserSet='1'/>");
        setDevice(qPrintable(key), cell("away"));
        restart();
        QVERIFY(!names().contains("Card"));
        QCOMPARE(defaultName(), QString("Apn"));  // for now
        QVERIFY(!logic()->IsDefaultUserSet());
        QVERIFY(isStored("Card", true));
        QCOMPARE(logic()->SaveDialUpProfile(named("Another")), 0);
        QCOMPARE(names().size(), 3);
        QVERIFY(isStored("Card", true));
        restart();
        QVERIFY(isStored("Card", true));  // at the end, too

        names();
        putCardIn();
        logic()->Init();
        QVERIFY(names().contains("Card"));
        QCOMPARE(defaultName(), QString("Card"));
        QVERIFY(logic()->IsDefaultUserSet());
    }

    // The profile that stands in for it may go.
    void theWaitingDefaultOutlivesItsStandIn() {
        shipPresets();
        setUser(profile("Apn"), "<Default name='Card' IsUserSet='1'/>");
        setDevice("IMSI", QString());
        restart();
        names();
        QCOMPARE(defaultName(), QString("Apn"));
        QCOMPARE(logic()->DelDialUpProfile("Apn"), 0);
        QCOMPARE(logic()->ForgetDefault("Apn"), 0);
        QCOMPARE(defaultName(), QString());
        QVERIFY(isStored("Card", true));
        QCOMPARE(logic()->SaveDialUpProfile(named("Another")), 0);
        QVERIFY(isStored("Card", true));
    }

    void whatTheUserChoosesMeanwhileCounts() {
        shipPresets();
        setUser(profile("Mine"), "<Default name='Card' IsUserSet='1'/>");
        setDevice("IMSI", QString());
        restart();
        names();
        QCOMPARE(logic()->SetDefaultDialUpProfileName("Mine", true), 0);
        QVERIFY(isStored("Mine", true));
    }

    void aModemThatComesAndGoesLeavesTheFileAlone() {
        shipPresets();
        setUser(profile("Mine"));
        restart();
        names();
        QVERIFY(isStored("Proposed", false));
        const FileStamp before = FileStamp::of(userFile());
        for (int i = 0; i < 2; ++i) {
            setDevice("IMSI", QString());
            reload();
            names();
            QCOMPARE(defaultName(), QString("Apn"));
            putCardIn();
            reload();
            names();
            QCOMPARE(defaultName(), QString("Proposed"));
            QVERIFY(FileStamp::of(userFile()) == before);
        }
        setDevice("IMSI", QString());
        reload();
        names();
        NetConnectSettingUILogic::Destroy();
        QVERIFY(isStored("", false));
    }

    void aBrowsedDefaultIsForgottenBeforeTheEnd() {
        shipPresets();
        setUser(profile("Mine"), "<Default name='Mine' IsUserSet='1'/>");
        write(path("browsed.prof"), document(profile("Theirs"), "<Default name='Proposed'/>"));
        restart();
        QList<QString> candidates;
        QCOMPARE(logic()->GetDialUpProfileFromFile(&candidates, path("browsed.prof")), 0);
        QCOMPARE(defaultName(), QString("Proposed"));
        NetConnectSettingUILogic::Destroy();
        QVERIFY(isStored("Mine", true));
    }

    // A multi-mode card whose mode the file says nothing about.
    void aModeWithoutADefaultKeepsTheFlag() {
        shipPresets();
        setUser(profile("Mine"), "<Default name='Mine' IsUserSet='1'/>");
        setDevice("MULTI_MODE", "1");
        setDevice("CARD_MODE", "0");
        restart();
        QVERIFY(logic()->IsDefaultUserSet());
        for (const char* mode : {"0", "1", "2"}) {
            setDevice("CARD_MODE", mode);
            logic()->Init();
            names();
            QCOMPARE(defaultName(), QString("Mine"));
            QVERIFY(logic()->IsDefaultUserSet());
            QCOMPARE(logic()->SaveDialUpProfile(named(QString("For mode ") + mode)), 0);
            QVERIFY(isStored("Mine", true));
        }
    }

    // The profile that was to take its place could not be stored.
    void aPresetStaysWhenTheActionIsDropped() {
        shipPresets();
        restart();
        const QStringList before = names();
        {
            NetConnectStoreAction action;
            QCOMPARE(logic()->DelDialUpProfile("Card"), 0);
            QVERIFY(!names().contains("Card"));
        }
        QCOMPARE(names(), before);
    }

    // A command gathers what its listing proposed and what its end takes back.
    void aProposalThatIsTakenBackWritesNothing() {
        shipPresets();
        setUser(profile("Mine"), "<Default name=''/>");
        const QByteArray before = user();
        restart();
        {
            NetConnectStoreAction action;
            names();
            QCOMPARE(defaultName(), QString("Proposed"));
            logic()->ClearAutomaticDefault();
            QCOMPARE(action.commit(), 0);
        }
        NetConnectSettingUILogic::Destroy();
        QCOMPARE(user(), before);
    }

private:
    void shipPresets() {
        shipConfig(section("Function", {"IMSIAPN=true"}) +
                   section("IMSIProfileList imsi='31026'", {"Card", "Proposed=default"}) +
                   section("ProfileList", {"Apn=default"}));
    }
    static void putCardIn() {
        setDevice("STATUS", "3");
        setDevice("IMSI", "310260000000001");
    }
    // As on the device's event.
    static void reload() {
        logic()->ResetFlags();
        logic()->Init();
    }
    bool isStored(const QByteArray& name, bool isUserSet) const {
        const QByteArray flag = isUserSet ? " IsUserSet=\"1\"" : "";
        return user().replace('\'', '"').contains("<Default name=\"" + name + "\"" + flag + "/>");
    }
};

QTEST_GUILESS_MAIN(tst_defaults)
#include "tst_defaults.moc"

// SPDX-License-Identifier: MIT
// Which modem orbisctl uses, what it tells of it, and how it unlocks a card.

#include "OrbisctlFixture.h"
#include "Rows.h"
#include "SimulatedSettings.h"
#include "Terminal.h"

class tst_orbisctl_modem : public QObject {
    Q_OBJECT

private slots:
    void deviceTellsOfTheModem_data() {
        const Rows<QString, QString, QJsonValue, QByteArray> row("setting", "key", "value", "line");
        row("home", "SIGNAL=42", "signal", 42, "signal in percent         42\n");
        row("no signal", "SIGNAL=", "signal", QJsonValue(), "signal in percent         -\n");
        row("roaming", "REGISTRATION=roaming", "registration", "roaming", "registration              roaming\n");
        row("card's operator", "CARD_OPERATOR=Gr\u00fcn", "cardOperator", "Gr\u00fcn", "Gr\u00fcn\n");
        row("proposal", "CARD_OPERATOR=beta", "cardOperator", "beta", "proposed for              Beta Mobile\n");
        row("locked", "LOCK=puk", "attempts", 10, "lock                      puk\n");
        row("CDMA", "PRODUCT_TYPE=1", "dialsAsCdma", true, "dials as CDMA             yes\n");
        row("no card", "IMSI=", "card", "none", "card                      none\n");
    }
    void deviceTellsOfTheModem() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({cell("setting")});
        const Outcome json = fixture.run({"--json", "device"});
        COMPARE_DONE(json);
        QCOMPARE(json.json()["modem"].toObject()[cell("key")], cell<QJsonValue>("value"));
        const QByteArray out = fixture.run({"device"}).out;
        QVERIFY2(out.contains(cell<QByteArray>("line")), out);
    }

    void choiceIsKept() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"2_PRESENT=1", "2_IMSI=262020000000001", "2_PORT=ttyUSB2"});
        const auto inUse = [&] { return fixture.run({"--json", "device"}).json()["imsi"].toString(); };
        QCOMPARE(inUse(), QString("262019876543210"));
        COMPARE_DONE(fixture.run({"modem", "ttyUSB2"}));
        QCOMPARE(inUse(), QString("262020000000001"));
        const QByteArray listed = fixture.run({"modems"}).out;
        QVERIFY2(listed.contains("\n* /simulated/2") && listed.contains("chosen"), listed);
        qputenv("ORBISDIAL_MODEM", "/simulated/1");
        QCOMPARE(inUse(), QString("262019876543210"));
        qunsetenv("ORBISDIAL_MODEM");
        COMPARE_REFUSED(fixture.run({"modem", "ttyUSB9"}), 3, "ttyUSB9");
        QCOMPARE(inUse(), QString("262020000000001"));
        COMPARE_DONE(fixture.run({"modem", "--clear"}));
        QCOMPARE(inUse(), QString("262019876543210"));
    }

    void chosenModemIsAway() {
        const OrbisctlFixture fixture;
        {
            const SimulatedSettings settings({"2_PRESENT=1"});
            COMPARE_DONE(fixture.run({"modem", "/simulated/2"}));
        }
        const QByteArray listed = fixture.run({"modems"}).out;
        QVERIFY2(listed.contains("/simulated/2  chosen, not plugged in"), listed);
        COMPARE_REFUSED(fixture.run({"pin"}, "1234\n"), 3, "no modem");
        COMPARE_DONE(fixture.run({"modem", "/simulated/2"}));  // again is no error
    }

    // Every command says what connect says.
    void withoutTheService_data() {
        const Rows<QStringList, QByteArray> row("arguments", "out");
        for (const char* command : {"connect", "status", "modems", "modem", "pin", "puk", "balance", "usage"})
            row(command, {command}, "");
        row("ussd", {"ussd", "*100#"}, "");
        row("for a script", {"-f", "state,failure", "status"}, "down\tno-modem-service\n");
        row("device", {"-f", "status,imsi", "device"}, "\t\n");
    }

    void withoutTheService() {
        const OrbisctlFixture fixture;
        qputenv("ORBISDIAL_DEVICE", "modemmanager");
        const Outcome outcome = fixture.run(cell<QStringList>("arguments"));
        if (outcome.err.contains("can't be loaded")) QSKIP("built without real modems");
        COMPARE_REFUSED(outcome, 1, "(ModemManager) is not running");
        QCOMPARE(outcome.out, cell<QByteArray>("out"));
    }

    void unlocking_data() {
        const Rows<QStringList, QStringList, QByteArray, int, QByteArray> row("card", "arguments", "input", "status",
                                                                              "words");
        const QStringList pin{"LOCK=pin"}, lastPin{"LOCK=pin", "PIN_ATTEMPTS=1"}, puk{"LOCK=puk"};
        const QStringList unknown{"LOCK=pin", "PIN_ATTEMPTS="};
        row("PIN", pin, {"pin"}, "1234\n", 0, "");
        row("wrong PIN", pin, {"pin"}, "4321\n", 4, "attempts left: 2");
        row("last attempt", lastPin, {"pin"}, "1234\n", 4, "--last");
        row("last attempt spent", lastPin, {"pin", "--last"}, "1234\n", 0, "");
        row("last attempt lost", lastPin, {"pin", "--last"}, "4321\n", 4, "asks for its PUK");
        row("unknown attempts", unknown, {"pin"}, "1234\n", 4, "not known");
        row("no PIN", pin, {"pin"}, "12 34\n", 1, "4 to 8 digits");
        row("nothing", pin, {"pin"}, "", 1, "PIN: standard input");
        row("PIN for PUK", puk, {"pin"}, "1234\n", 4, "see orbisctl puk");
        row("PUK for PIN", pin, {"puk"}, "12345678\n1111\n", 4, "see orbisctl pin");
        row("PUK", puk, {"puk"}, "12345678\n1111\n", 0, "");
        row("wrong PUK", puk, {"puk"}, "87654321\n1111\n", 4, "attempts left: 9");
        row("last PUK", {"LOCK=puk", "PUK_ATTEMPTS=1"}, {"puk"}, "12345678\n1111\n", 4, "the card is lost");
        row("short PUK", puk, {"puk"}, "1234567\n1111\n", 1, "8 digits");
        row("no new PIN", puk, {"puk"}, "12345678\n", 1, "PIN: standard input");
        row("not locked", {}, {"pin"}, "1234\n", 4, "asks for no PIN");
        row("other lock", {"LOCK=other"}, {"pin"}, "1234\n", 4, "neither PIN nor PUK");
        row("no card", {"IMSI="}, {"pin"}, "1234\n", 3, "no SIM card");
        row("not allowed", {"LOCK=pin", "UNLOCK=not-allowed"}, {"pin"}, "1234\n", 4, "may not");
        row("card's fault", {"LOCK=pin", "UNLOCK=other"}, {"pin"}, "1234\n", 1, "SIM failure");
        row("slow card", {"LOCK=pin", "UNLOCK_MS=300"}, {"pin"}, "1234\n", 0, "");
        row("too slow", {"LOCK=pin", "UNLOCK_MS=20000"}, {"pin", "--timeout", "1"}, "1234\n", 5, "does not answer");
        row("no number", pin, {"pin", "--timeout", "soon"}, "1234\n", 2, "--timeout");
    }
    void unlocking() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings(cell<QStringList>("card"));
        const Outcome outcome = fixture.run(cell<QStringList>("arguments"), cell<QByteArray>("input"));
        if (cell<int>("status") != 0)
            COMPARE_REFUSED(outcome, cell<int>("status"), cell<QByteArray>("words"));
        else
            COMPARE_DONE(outcome);
        QVERIFY(!outcome.err.contains("1234\n") && !outcome.err.contains("4321"));
    }

    void newPinIsAskedForTwice() {
        const OrbisctlFixture fixture;
        const SimulatedSettings settings({"LOCK=puk"});
        Terminal terminal({ORBISCTL, "puk"});
        QTRY_VERIFY2(terminal.screen().contains("PUK (attempts left: 10): "), terminal.screen());
        terminal.type("12345678\n");
        QTRY_VERIFY2(terminal.screen().contains("New PIN: "), terminal.screen());
        QTRY_VERIFY(!terminal.hasEcho());
        terminal.type("1111\n");
        QTRY_VERIFY2(terminal.screen().contains("New PIN again: "), terminal.screen());
        QTRY_VERIFY(!terminal.hasEcho());
        terminal.type("1112\n");
        QTRY_COMPARE(terminal.status(), 1);
        QVERIFY2(terminal.screen().contains("differ"), terminal.screen());
        QVERIFY2(!terminal.screen().contains("111"), terminal.screen());
    }
};

QTEST_GUILESS_MAIN(tst_orbisctl_modem)
#include "tst_orbisctl_modem.moc"

// SPDX-License-Identifier: MIT
// The logic's loading, presets, function queries, device events and passwords.

#include "Change.h"
#include "INetConnectSetting.h"
#include "LogicFixture.h"

static const char* const Failing = nullptr;  // a query of the device

class tst_loading : public LogicTest {
    Q_OBJECT

private slots:
    void configuredPairs_data() {
        const Rows<QString, QString, QString, int> row("customizeName", "productType", "where", "imsiRows");
        row("plain", "", "0", "common", 1);
        row("customised", "operator", "0", "customised", 0);
        row("unknown name empties the presets", "other", "0", "common", 0);
        row("CDMA product", "", "1", "cdma", 1);
        row("both", "operator", "1", "cdma", 0);
    }
    void configuredPairs() {
        QFETCH(int, imsiRows);
        setDevice("CUSTOMIZE_NAME", cell("customizeName"));
        setDevice("PRODUCT_TYPE", cell("productType"));
        shipConfig(
            section("Function", {"where=common", "IMSIAPN=true"}) + section("IMSIProfileList imsi='31026'", {"Preset"}),
            "<group name='customize'><module name='operator'>" + section("Function", {"where=customised"}) +
                "</module></group><group name='common'><module name='CDMA'>" + section("Function", {"where=cdma"}) +
                "</module></group>");
        restart();
        QString value;
        QCOMPARE(logic()->GetFunctionConfigStringValues("where", &value), 0);
        QTEST(value, "where");
        QCOMPARE(logic()->GetDefaultAPNProfileList().size(), imsiRows);
        QCOMPARE(logic()->HasIMSIPresets(), imsiRows > 0);
        logic()->getConfigData();  // once more, for the leak checker
    }

    void imsi_data() {
        const Rows<QString, QString, QString, QString> row("imsi", "prefix", "names", "proposed");
        row("longest key", "262011234567890", "26201", "Second,First", "First");
        row("shorter key", "262991234567890", "262", "Country", "");
        row("three-digit network", "310260123456789", "310260", "US", "US");
        row("no key", "901280000000000", "", "", "");
        row("failing query", Failing, "", "", "");
    }
    void imsi() {
        QFETCH(QString, imsi);
        setDevice("IMSI", imsi);
        shipConfig(section("Function", {"IMSIAPN=true"}) + section("IMSIProfileList", {"Any=default"}) +
                   section("IMSIProfileList imsi='262'", {"Country"}) +
                   section("IMSIProfileList imsi='26201'", {"First=default", "Second=default"}) +
                   section("IMSIProfileList imsi='310260'", {"US=default"}));
        restart();
        QTEST(logic()->GetDefaultAPNProfileList().join(","), "names");
        QTEST(logic()->MatchedIMSIPrefix(), "prefix");
        QTEST(logic()->ProposedDefault(), "proposed");
        QTEST(logic()->SelectByIMSI(imsi).prefix, "prefix");
    }

    void cardOperator_data() {
        const Rows<QString, QString, QString> row("cardOperator", "proposed", "proposedOperator");
        row("names another operator", "GUEST", "Guest 1", "Guest Mobile");
        row("names the marked one's", "host", "Host", "Host");
        row("names nobody", "Stranger", "Host", "");
        row("no name", "", "Host", "");
        row("failing query", Failing, "Host", "");
    }
    void cardOperator() {
        QFETCH(QString, proposed);
        setDevice("CARD_OPERATOR", cell("cardOperator"));
        shipGuest();
        QObject status;
        restart()->PublishStatus(&status);
        QCOMPARE(logic()->GetDefaultAPNProfileList(), QStringList({"Guest 1", "Host", "Guest 2"}));
        QTEST(logic()->ProposedOperator(), "proposedOperator");
        QTEST(status.property(ORBISDIAL_PROPOSED_OPERATOR).toString(), "proposedOperator");
        QCOMPARE(status.property(ORBISDIAL_PROPOSED_DEFAULT).toString(), proposed);
        names();
        QCOMPARE(defaultName(), proposed);
        logic()->ResetFlags();
        QCOMPARE(logic()->ProposedOperator(), QString());
    }

    void theUsersDefaultOutlivesACardsOperator() {
        setDevice("CARD_OPERATOR", "guest");
        shipGuest();
        setUser(profile("Own"), "<Default name='Own' IsUserSet='1'/>");
        restart();
        names();
        QCOMPARE(defaultName(), QString("Own"));
        QCOMPARE(logic()->ProposedDefault(), QString("Guest 1"));
        setDevice("CARD_OPERATOR", "host");
        logic()->ResetFlags();
        logic()->Init();
        names();
        QCOMPARE(defaultName(), QString("Own"));
        QCOMPARE(logic()->ProposedOperator(), QString("Host"));
    }

    void anIndexThatIsMissingOrDamagedChangesNothing() {
        setDevice("CARD_OPERATOR", "guest");
        shipGuest();
        ship("Operators.xml", "<Operators><operator name='Guest'><preset name='Guest 1'/>");
        QCOMPARE(restart()->ProposedDefault(), QString("Host"));
        const NetConnectStorageProblem problem = logic()->LastStorageProblem();
        QVERIFY2(problem.file.endsWith("/Operators.xml") && problem.line == 1, qPrintable(problem.text()));
        QFile::remove(pluginDir() + "/Operators.xml");
        QCOMPARE(restart()->ProposedDefault(), QString("Host"));
        QVERIFY(logic()->LastStorageProblem().isNull());
    }

    void problemsFollowTheLanguage_data() {
        const Rows<QByteArray, QString, QString> row("user", "english", "german");
        row("of a file", "<!DOCTYPE vrksdoc [<!ENTITY a 'b'>]><vrksdoc/>", "declares entities",
            QString::fromUtf8("deklariert Entit\u00e4ten"));
        row("of a moment", document(profile("Own")), "can't be exported",
            QString::fromUtf8("in diese Datei k\u00f6nnen keine"));
    }
    void problemsFollowTheLanguage() {
        shipTexts();
        const QString german = "/lang/orbisdial_de.qm";
        QVERIFY(QFile::copy(ORBISDIAL_LIBRARY_DIR + german, path("library" + german)));
        write(userFile(), cell<QByteArray>("user"));
        QTest::qWait(150);  // a file that is just written is read again each time
        restart();
        QStringList chosen("Own");
        if (logic()->LastStorageProblem().isNull()) logic()->ExportSelectedProfilesToFile(&chosen, userFile());
        QVERIFY2(logic()->LastStorageProblem().text().contains(cell("english")),
                 qPrintable(logic()->LastStorageProblem().text()));
        Change::SetLanguage("de");
        names();
        const QString said = logic()->LastStorageProblem().text();
        Change::SetLanguage("en");
        QVERIFY2(said.contains(cell("german")), qPrintable(said));
        names();
        QVERIFY(logic()->LastStorageProblem().text().contains(cell("english")));
    }

    void aDeviceThatIsNotReadySelectsNothing() {
        setDevice("STATUS", "2");
        shipConfig(section("Function", {"IMSIAPN=true"}) + section("IMSIProfileList imsi='31026'", {"US=default"}));
        QVERIFY(restart()->GetDefaultAPNProfileList().isEmpty());
        setDevice("STATUS", "3");
        QCOMPARE(logic()->Init(), 0);
        QCOMPARE(logic()->GetDefaultAPNProfileList(), QStringList({"US"}));
        logic()->ResetFlags();
        QCOMPARE(logic()->ProposedDefault(), QString());
        logic()->Init();
        QCOMPARE(logic()->ProposedDefault(), QString("US"));
        // A card that can no longer be asked must not bring the forgotten proposal back.
        logic()->ResetFlags();
        setDevice("IMSI", QString());
        QCOMPARE(logic()->Init(), 23);
        QCOMPARE(logic()->ProposedDefault(), QString());
    }

    void functionValues_data() {
        const Rows<QString, bool, int> row("configured", "on", "number");
        row("true", "true", true, 48);
        row("one", "1", false, 1);
        row("zero stands for the default", "0", false, 48);
        row("hexadecimal", "0x10", false, 48);
        row("none", Failing, false, 48);
    }
    void functionValues() {
        QFETCH(QString, configured);
        shipConfig(configured.isNull() ? QByteArray() : section("Function", {"Key=" + configured.toUtf8()}));
        restart();
        bool on = true;
        int number = 0;
        QString text = "before";
        QCOMPARE(logic()->GetFunctionConfigValue("Key", &on), 0);
        QCOMPARE(logic()->GetFunctionConfigValue("Key", number, 48), 0);
        QCOMPARE(logic()->GetFunctionConfigStringValues("Key", &text), 0);
        QTEST(on, "on");
        QTEST(number, "number");
        QCOMPARE(text, configured);
        QCOMPARE(logic()->GetFunctionConfigValue("Key", static_cast<bool*>(nullptr)), 23);
        QCOMPARE(logic()->GetFunctionConfigStringValues("Key", nullptr), 23);
    }

    void ehrpd() {
        setDevice("SYS_MODE", "2");
        for (int subMode = 30; subMode <= 37; ++subMode) {
            setDevice("SYS_SUBMODE", QString::number(subMode));
            QCOMPARE(logic()->IsEhrpdSubMode(), subMode >= 31 && subMode <= 36);
        }
        setDevice("SYS_MODE", Failing);
        QVERIFY(!logic()->IsEhrpdSubMode());
    }

    void deviceEvents_data() {
        const Rows<int, QString, int, int> row("event", "status", "result", "signalCount");
        row("initialised and ready", 6014, "3", 1, 1);
        row("initialised, not ready", 6014, "2", 1, 0);
        row("card changed", 6016, Failing, 1, 1);
        row("other", 6015, "3", 0, 0);
    }
    void deviceEvents() {
        QFETCH(int, event);
        QFETCH(int, signalCount);
        QCOMPARE(NetConnectSettingUILogic::OnDevInitEvent(event, nullptr), 0);  // there is no logic yet
        restart();
        setDevice("STATUS", cell("status"));
        QSignalSpy spy(logic(), SIGNAL(DeviceInit()));
        QTEST(NetConnectSettingUILogic::OnDevInitEvent(event, nullptr), "result");
        QCOMPARE(spy.count(), signalCount);

        NetConnectSettingUILogic::RegisterDevice();
        vrks_simulated_raise_event(event);
        vrks_simulated_wait_events();
        QCOMPARE(spy.count(), 2 * signalCount);
        NetConnectSettingUILogic::UnRegisterDevice();
        vrks_simulated_raise_event(event);
        vrks_simulated_wait_events();
        QCOMPARE(spy.count(), 2 * signalCount);
    }

    void libraryNames() {
        shipTexts();
        shipLibrary(profile("Stored", "langid='IDS_OK' user='u'") +
                    profile("Kept", "langid='IDS_NO_SUCH_TEXT' user='k'") + profile("Plain", "user='p'"));
        shipConfig(section("ProfileList", {"Stored=default", "Kept"}));
        restart();
        const QString shown = Change::tr("IDS_OK", "NetConnectPlugin");
        QVERIFY(!shown.isEmpty());
        QCOMPARE(logic()->isLangidDefine("Stored"), shown);
        QCOMPARE(logic()->isLangidDefine("Plain"), QString());
        QCOMPARE(logic()->GetDefaultAPNProfileList(), QStringList({"Kept", shown}));
        QCOMPARE(logic()->ProposedDefault(), shown);
        QCOMPARE(fetch(shown).user + fetch("Kept").user + fetch("Plain").user, QString("ukp"));
        QCOMPARE(logic()->DelDialUpProfile(shown), 0);
        QCOMPARE(names(), QStringList({"Kept"}));
    }

    void presetsAreReadWhenTheyAreAskedFor() {
        shipTexts();
        shipLibrary(profile("A&amp;B", "user='a'") + profile("Two", "user='2'") + profile("Two", "user='3'"));
        restart();
        const auto users = [this] { return fetch("A&B").user + fetch("Two").user + fetch("None").user; };
        QCOMPARE(users(), QString("a2"));
        const QString file = pluginDir() + "/ProfileLib.prof";
        const QByteArray content = read(file);
        write(file, "<vrksdoc><broken");
        logic()->Init();
        QCOMPARE(logic()->LastStorageProblem().file, file);
        QCOMPARE(users(), QString("a2"));
        QCOMPARE(logic()->Operators().first().presets.size(), 3);  // needs them all
        QCOMPARE(users(), QString("a2"));
        write(file, QByteArray(content).replace("\"2\"", "\"4\""));
        logic()->Init();
        QCOMPARE(users(), QString("a4"));
        write(file, QByteArray(content).replace("user=\"2\"", "user=\"2\" langid=\"IDS_OK\""));
        logic()->Init();
        QCOMPARE(users() + fetch("OK").user, QString("a32"));
    }

    void whatWasReadStaysInForce_data() {
        const Rows<QString> row("fate");
        for (const char* fate : {"gone", "unreadable", "damaged"}) row(fate, fate);
    }
    void whatWasReadStaysInForce() {
        shipTexts();
        for (int i = 0; i < 2; ++i) {
            const QString file = pluginDir() + (i == 0 ? "/NetConnectConfig.xml" : "/ProfileLib.prof");
            shipConfig(section("Function", {"ENCRYPT=true"}) + section("ProfileList", {"Start=default", "Stored"}));
            shipLibrary(profile("Stored", "langid='IDS_OK'"));
            setUser("", "<Default name='OK' IsUserSet='1'/>");
            restart();
            const QStringList before = names();
            QCOMPARE(before, QStringList({"OK", "Start"}));
            const QByteArray content = read(file);
            QFile::remove(file);
            if (cell("fate") == "unreadable") QDir().mkpath(file);
            if (cell("fate") == "damaged") write(file, "<vrksdoc><broken");

            logic()->Init();
            QCOMPARE(logic()->LastStorageProblem().file, file);
            QCOMPARE(names(), before);
            QCOMPARE(defaultName(), QString("OK"));
            QVERIFY(logic()->IsDefaultUserSet());
            QCOMPARE(logic()->SaveDialUpProfile(named("Mine", "secret")), 0);
            QVERIFY2(user().contains("Mine") && !user().contains("secret"), user());

            QDir().rmdir(file);
            write(file, QByteArray(content).replace("Start", "Other").replace("IDS_OK", ""));
            logic()->Init();
            QVERIFY(logic()->LastStorageProblem().isNull());
            QVERIFY(names() != before + QStringList("Mine"));
        }
    }

    // What counts is what the files say when the logic is made.
    void filesReadAhead_data() {
        const Rows<QByteArray, QByteArray> row("afterwards", "counts");
        row("as they were", "first", "first");
        row("changed", "other", "other");
        row("damaged", "first\"<", "");
        row("gone", QByteArray(), "");
    }
    void filesReadAhead() {
        QFETCH(QByteArray, afterwards);
        const auto shipBoth = [this](const QByteArray& value) {
            shipConfig(section("Function", {"where=" + value}) + section("ProfileList", {"Preset"}));
            const QString file = pluginDir() + "/NetConnectConfig.xml";
            write(file, read(file).replace('\'', '"'));  // the form that is read ahead
            shipLibrary(profile("Preset", "apn='" + value + "' "));
        };
        shipBoth("first");
        QTest::qWait(130);  // until the files' stamps vouch for them
        end();
        NetConnectSettingUILogic::ReadAhead();
        if (afterwards.isNull()) QVERIFY(QDir(pluginDir()).removeRecursively() && QDir().mkpath(pluginDir()));
        if (!afterwards.isEmpty() && afterwards != "first") shipBoth(afterwards);
        QString value;
        logic()->GetFunctionConfigStringValues("where", &value);
        QTEST(value.toUtf8(), "counts");
        QTEST(fetch("Preset").apn.toUtf8(), "counts");
        NetConnectSettingUILogic::ReadAhead();  // of no use to an instance that is there
    }

    void passwords() {
        for (const char* method : {"1", "2"}) {
            const QString password = QString::fromUtf8("caf\xc3\xa9"), stored = logic()->XorEncrypt(password, method);
            QCOMPARE(logic()->XorDecrypt(stored, method), password);
            QVERIFY(!stored.contains(password));
            QCOMPARE(logic()->XorEncrypt(password, method) == stored, *method == '1');
        }
    }

private:
    // Presets of a network's own operator and of a guest, who has no code of its own.
    void shipGuest() {
        shipConfig(section("Function", {"IMSIAPN=true"}) +
                   section("IMSIProfileList imsi='31026'", {"Guest 2", "Host=default", "Guest 1"}));
        ship("Operators.xml",
             "<Operators><operator country='us' name='Host'><preset name='Host'/></operator><operator country='us' "
             "name='Guest Mobile'><preset name='Guest 1'/><preset name='Guest 2'/></operator></Operators>");
    }
};

QTEST_MAIN(tst_loading)
#include "tst_loading.moc"

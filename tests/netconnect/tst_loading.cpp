// The logic's loading, presets, function queries, device events and passwords.

#include <QtTest>

#include "Change.h"
#include "LogicFixture.h"

class tst_loading : public LogicTest {
    Q_OBJECT

private slots:
    void configuredPairs_data() {
        QTest::addColumn<QByteArray>("customizeName");
        QTest::addColumn<QByteArray>("productType");
        QTest::addColumn<QString>("where");
        QTest::addColumn<int>("imsiRows");
        QTest::newRow("plain") << QByteArray("") << QByteArray("0") << "common" << 1;
        QTest::newRow("named common") << QByteArray("common") << QByteArray("0") << "common" << 1;
        QTest::newRow("customised") << QByteArray("operator") << QByteArray("0") << "customised" << 0;
        QTest::newRow("unknown name empties the presets") << QByteArray("other") << QByteArray("0") << "common" << 0;
        QTest::newRow("CDMA product") << QByteArray("") << QByteArray("1") << "cdma" << 1;
        QTest::newRow("failing queries") << QByteArray() << QByteArray() << "common" << 1;
        QTest::newRow("both") << QByteArray("operator") << QByteArray("1") << "cdma" << 0;
    }
    void configuredPairs() {
        QFETCH(QByteArray, customizeName);
        QFETCH(QByteArray, productType);
        QFETCH(QString, where);
        QFETCH(int, imsiRows);
        vrks_simulated_set("CUSTOMIZE_NAME", customizeName.isNull() ? nullptr : customizeName.constData());
        vrks_simulated_set("PRODUCT_TYPE", productType.isNull() ? nullptr : productType.constData());
        m_pFixture->shipConfig(LogicFixture::config(
            "<Function>" + LogicFixture::item("where", "common") + LogicFixture::item("IMSIAPN", "true") +
                "</Function><IMSIProfileList imsi='31026'>" + LogicFixture::item("Preset", "") + "</IMSIProfileList>",
            "<group name='customize'><module name='operator'><Function>" + LogicFixture::item("where", "customised") +
                "</Function></module></group><group name='common'><module name='CDMA'><Function>" +
                LogicFixture::item("where", "cdma") + "</Function></module></group>"));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QString value;
        QCOMPARE(logic->GetFunctionConfigStringValues("where", &value), 0);
        QCOMPARE(value, where);
        QCOMPARE(logic->GetDefaultAPNProfileList().size(), imsiRows);
        QCOMPARE(logic->HasIMSIPresets(), imsiRows > 0);
        logic->getConfigData();  // once more, for the leak checker
    }

    void imsi_data() {
        QTest::addColumn<QByteArray>("imsi");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("proposed");
        QTest::newRow("longest key") << QByteArray("262011234567890") << "26201"
                                     << "Second,First"
                                     << "First";
        QTest::newRow("shorter key") << QByteArray("262991234567890") << "262"
                                     << "Country"
                                     << "";
        QTest::newRow("three-digit network") << QByteArray("310260123456789") << "310260"
                                             << "US"
                                             << "US";
        QTest::newRow("no key") << QByteArray("901280000000000") << ""
                                << ""
                                << "";
        QTest::newRow("five characters") << QByteArray("26201") << "26201"
                                         << "Second,First"
                                         << "First";
        QTest::newRow("four characters") << QByteArray("2620") << ""
                                         << ""
                                         << "";
        QTest::newRow("failing query") << QByteArray() << ""
                                       << ""
                                       << "";
    }
    void imsi() {
        QFETCH(QByteArray, imsi);
        vrks_simulated_set("IMSI", imsi.isNull() ? nullptr : imsi.constData());
        m_pFixture->shipConfig(LogicFixture::config(
            LogicFixture::functions({"IMSIAPN"}) + "<IMSIProfileList>" + LogicFixture::item("Any", "default") +
            "</IMSIProfileList><IMSIProfileList imsi='262'>" + LogicFixture::item("Country", "") +
            "</IMSIProfileList><IMSIProfileList imsi='26201'>" + LogicFixture::item("First", "default") +
            LogicFixture::item("Second", "default") + "</IMSIProfileList><IMSIProfileList imsi='310260'>" +
            LogicFixture::item("US", "default") + "</IMSIProfileList>"));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QTEST(logic->GetDefaultAPNProfileList().join(","), "names");
        QTEST(logic->MatchedIMSIPrefix(), "prefix");
        QTEST(logic->ProposedDefault(), "proposed");
        QTEST(logic->SelectByIMSI(imsi).prefix, "prefix");
    }

    void aDeviceThatIsNotReadySelectsNothing() {
        vrks_simulated_set("STATUS", "2");
        m_pFixture->shipConfig(LogicFixture::config(LogicFixture::functions({"IMSIAPN"}) +
                                                    "<IMSIProfileList imsi='31026'>" +
                                                    LogicFixture::item("US", "default") + "</IMSIProfileList>"));
        QVERIFY(m_pFixture->restart()->GetDefaultAPNProfileList().isEmpty());
        vrks_simulated_set("STATUS", "3");
        QCOMPARE(m_pFixture->logic()->Init(), 0);
        QCOMPARE(m_pFixture->logic()->GetDefaultAPNProfileList(), QStringList({"US"}));
        m_pFixture->logic()->ResetFlags();
        QCOMPARE(m_pFixture->logic()->ProposedDefault(), QString());
        m_pFixture->logic()->Init();
        QCOMPARE(m_pFixture->logic()->ProposedDefault(), QString("US"));
        // A card that can no longer be asked must not bring the forgotten proposal back.
        m_pFixture->logic()->ResetFlags();
        vrks_simulated_set("IMSI", nullptr);
        QCOMPARE(m_pFixture->logic()->Init(), 23);
        QCOMPARE(m_pFixture->logic()->ProposedDefault(), QString());
    }

    void functionValues_data() {
        QTest::addColumn<QByteArray>("configured");
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("number");
        QTest::newRow("true") << QByteArray("true") << true << 48;
        QTest::newRow("capital") << QByteArray("True") << false << 48;
        QTest::newRow("one") << QByteArray("1") << false << 1;
        QTest::newRow("zero stands for the default") << QByteArray("0") << false << 48;
        QTest::newRow("negative") << QByteArray("-5") << false << -5;
        QTest::newRow("twenty") << QByteArray("20") << false << 20;
        QTest::newRow("hexadecimal") << QByteArray("0x10") << false << 48;
        QTest::newRow("none") << QByteArray() << false << 48;
    }
    void functionValues() {
        QFETCH(QByteArray, configured);
        const QByteArray item = configured.isNull() ? QByteArray() : LogicFixture::item("Key", configured);
        m_pFixture->shipConfig(LogicFixture::config("<Function>" + item + "</Function>"));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        bool on = true;
        int number = 0;
        QString text = "before";
        QCOMPARE(logic->GetFunctionConfigValue("Key", &on), 0);
        QCOMPARE(logic->GetFunctionConfigValue("Key", number, 48), 0);
        QCOMPARE(logic->GetFunctionConfigStringValues("Key", &text), 0);
        QTEST(on, "on");
        QTEST(number, "number");
        QCOMPARE(text, QString(configured));
        QCOMPARE(logic->GetFunctionConfigValue("Key", static_cast<bool*>(nullptr)), 23);
        QCOMPARE(logic->GetFunctionConfigStringValues("Key", nullptr), 23);
    }

    void ehrpd_data() {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QByteArray>("subMode");
        QTest::addColumn<bool>("isEhrpd");
        QTest::newRow("30") << QByteArray("2") << QByteArray("30") << false;
        QTest::newRow("31") << QByteArray("2") << QByteArray("31") << true;
        QTest::newRow("36") << QByteArray("2") << QByteArray("36") << true;
        QTest::newRow("37") << QByteArray("2") << QByteArray("37") << false;
        QTest::newRow("other mode") << QByteArray("5") << QByteArray("31") << false;
        QTest::newRow("failing query") << QByteArray() << QByteArray("31") << false;
    }
    void ehrpd() {
        QFETCH(QByteArray, mode);
        QFETCH(QByteArray, subMode);
        vrks_simulated_set("SYS_MODE", mode.isNull() ? nullptr : mode.constData());
        vrks_simulated_set("SYS_SUBMODE", subMode.constData());
        QTEST(m_pFixture->restart()->IsEhrpdSubMode(), "isEhrpd");
    }

    void deviceEvents_data() {
        QTest::addColumn<int>("event");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("signalCount");
        QTest::newRow("initialised and ready") << 6014 << QByteArray("3") << 1 << 1;
        QTest::newRow("initialised, not ready") << 6014 << QByteArray("2") << 1 << 0;
        QTest::newRow("initialised, no status") << 6014 << QByteArray() << 1 << 0;
        QTest::newRow("card changed") << 6016 << QByteArray() << 1 << 1;
        QTest::newRow("other") << 6015 << QByteArray("3") << 0 << 0;
    }
    void deviceEvents() {
        QFETCH(int, event);
        QFETCH(QByteArray, status);
        QFETCH(int, signalCount);
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        vrks_simulated_set("STATUS", status.isNull() ? nullptr : status.constData());
        QSignalSpy spy(logic, SIGNAL(DeviceInit()));
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

    void eventsWhileTheLogicEnds() {
        QCOMPARE(NetConnectSettingUILogic::OnDevInitEvent(6016, nullptr), 0);
        for (int i = 0; i < 50; ++i) {
            m_pFixture->restart();
            NetConnectSettingUILogic::RegisterDevice();
            for (int j = 0; j < 20; ++j) vrks_simulated_raise_event(6016);
            m_pFixture->logic()->ProposedDefault();
            NetConnectSettingUILogic::Destroy();
        }
    }

    void libraryNames() {
        useShippedTexts();
        m_pFixture->shipLibrary(
            LogicFixture::profiles(LogicFixture::profile("name='Stored' langid='IDS_OK' user='u'") +
                                   LogicFixture::profile("name='Kept' langid='IDS_NO_SUCH_TEXT' user='k'") +
                                   LogicFixture::profile("name='Plain' user='p'")));
        m_pFixture->shipConfig(LogicFixture::config(LogicFixture::functions({"IMSIAPN"}) + "<ProfileList>" +
                                                    LogicFixture::item("Stored", "default") +
                                                    LogicFixture::item("Kept", "") + "</ProfileList>"));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        const QString shown = Change::tr("IDS_OK", "NetConnectPlugin");
        QVERIFY(!shown.isEmpty());
        QCOMPARE(logic->isLangidDefine("Stored"), shown);
        QCOMPARE(logic->isLangidDefine("Plain"), QString());
        QCOMPARE(logic->GetDefaultAPNProfileList(), QStringList({"Kept", shown}));
        QCOMPARE(logic->ProposedDefault(), shown);
        QCOMPARE(m_pFixture->fetch(shown).user, QString("u"));
        QCOMPARE(m_pFixture->fetch("Kept").user, QString("k"));
        QCOMPARE(m_pFixture->fetch("Plain").user, QString("p"));
        QCOMPARE(logic->DelDialUpProfile(shown), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"Kept"}));
    }

    void passwords_data() {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("method");
        const QString cyrillic = QString::fromUtf8("\xd0\xbf\xd0\xb0\xd1\x80");
        QTest::newRow("base64") << "secret"
                                << "1";
        QTest::newRow("base64, any character") << cyrillic << "1";
        QTest::newRow("base64, empty") << ""
                                       << "1";
        QTest::newRow("keyed") << "secret"
                               << "2";
        QTest::newRow("keyed, Latin-1") << QString::fromUtf8("caf\xc3\xa9") << "2";
        QTest::newRow("keyed, empty") << ""
                                      << "2";
        QTest::newRow("keyed, no selector") << "secret"
                                            << "";
    }
    void passwords() {
        QFETCH(QString, password);
        QFETCH(QString, method);
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        const QString stored = logic->XorEncrypt(password, method);
        QCOMPARE(logic->XorDecrypt(stored, method), password);
        if (!password.isEmpty()) QVERIFY(!stored.contains(password));
        if (method != "1") QVERIFY(logic->XorEncrypt(password, method) != stored);
    }

private:
    void useShippedTexts() {
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(m_pFixture->folder.path("library")));
        const QString from = QString(ORBISDIAL_BUILD_DIR) + "/lib/orbisdial/lang/orbisdial_en.qm";
        QVERIFY2(QFile::copy(from, m_pFixture->folder.path("library/lang/orbisdial_en.qm")), qPrintable(from));
    }
};

QTEST_MAIN(tst_loading)
#include "tst_loading.moc"

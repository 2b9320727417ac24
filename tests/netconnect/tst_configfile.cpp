// NetConnectConfig.xml: groups, modules, sections, prompt items, and the mode default.

#include <QtTest>

#include "LogicFixture.h"

class tst_configfile : public LogicTest {
    Q_OBJECT

private slots:
    void onlyThePairAskedForIsFiled() {
        m_pFixture->shipConfig(
            "<x><item name='stray' value='1'/>"
            "<group name='common'><item name='no module' value='1'/>"
            "<module name='common'><item name='no section' value='1'/>"
            "<Function><item name='F' value='1' type='t'/><item name='F' value='2'/></Function>"
            "<ProfileTemplate><item name='T' value='3'/></ProfileTemplate>"
            "<ProfileList><item name='P' value='default'/><item value='nameless'/></ProfileList>"
            "<IMSIProfileList imsi='26201'><item name='I' value='default' type='x'/><item name='I2'/></IMSIProfileList>"
            "</module><item name='after the module' value='1'/>"
            "<module name='other'><Function><item name='other' value='1'/></Function></module></group>"
            "<group name='customize'><module name='common'><Function><item name='G' value='1'/></Function></module>"
            "<deep><item name='DisableNamePwd' value='yes'/></deep></group>"
            "<prompt name='PromptPwd' value='true'/></x>");
        QCOMPARE(read("common", "common"), 0);
        QCOMPARE(m_Functions.keys(), QStringList({"F"}));
        QCOMPARE(m_Functions.value("F").value, QString("2"));
        QCOMPARE(m_Functions.value("F").type, QString(""));
        QCOMPARE(m_Templates.keys(), QStringList({"T"}));
        QCOMPARE(m_ProfileList.size(), 2);
        QVERIFY(m_ProfileList.contains(""));
        QCOMPARE(m_IMSI.size(), 2);
        QCOMPARE(m_IMSI.values("26201").first().name, QString("I2"));
        QCOMPARE(m_Prompt.promptPwd, QString("true"));
        QCOMPARE(m_Prompt.disableNamePwd, QString("yes"));
        QVERIFY(m_Prompt.userCheck.isEmpty());
    }

    void aSectionCarriesOverToTheNextCall() {
        m_pFixture->shipConfig(
            "<x><group name='common'><module name='common'><Function/></module>"
            "<module name='CDMA'><item name='late' value='1'/></module></group></x>");
        QCOMPARE(read("common", "CDMA"), 0);
        QVERIFY(m_Functions.isEmpty());
        read("common", "common");
        QCOMPARE(read("common", "CDMA"), 0);
        QCOMPARE(m_Functions.keys(), QStringList({"late"}));
    }

    void modeDefault_data() {
        QTest::addColumn<QByteArray>("multiMode");
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QByteArray>("office");
        QTest::addColumn<QString>("defaults");
        QTest::newRow("CDMA") << QByteArray("1") << QByteArray("2") << QByteArray("") << "Office";
        QTest::newRow("WCDMA, any other value") << QByteArray("1") << QByteArray("1") << QByteArray("") << "Home";
        QTest::newRow("no mode") << QByteArray("1") << QByteArray("0") << QByteArray("") << "Start";
        QTest::newRow("single mode") << QByteArray("0") << QByteArray("2") << QByteArray("") << "Start";
        QTest::newRow("own value stays") << QByteArray("1") << QByteArray("2") << QByteArray("own") << "";
    }
    void modeDefault() {
        QFETCH(QByteArray, multiMode);
        QFETCH(QByteArray, mode);
        QFETCH(QByteArray, office);
        vrks_simulated_set("MULTI_MODE", multiMode.constData());
        vrks_simulated_set("CARD_MODE", mode.constData());
        m_pFixture->shipConfig(LogicFixture::config("<ProfileList>" + LogicFixture::item("Start", "default") +
                                                    LogicFixture::item("Home", "") +
                                                    LogicFixture::item("Office", office) +
                                                    "</ProfileList><MultiModeDefaultProfile><item name='Nobody' "
                                                    "value='CDMA'/><item name='Office' value='CDMA'/>"
                                                    "<item name='Home' value='GSM'/></MultiModeDefaultProfile>"));
        QCOMPARE(read("common", "common"), 0);
        QStringList defaults;
        for (auto it = m_ProfileList.cbegin(); it != m_ProfileList.cend(); ++it)
            if (it->value == "default") defaults << it.key();
        QTEST(defaults.join(","), "defaults");
    }

    void statuses() {
        QString name = "common";
        QCOMPARE(read("common", "common"), 23);  // there is no file yet
        m_pFixture->shipConfig("<x/>");
        QCOMPARE(
            xml()->GetSettingsFromXML(nullptr, &name, &m_Templates, &m_Functions, &m_ProfileList, &m_IMSI, nullptr),
            23);
        QCOMPARE(
            xml()->GetSettingsFromXML(&name, nullptr, &m_Templates, &m_Functions, &m_ProfileList, &m_IMSI, nullptr),
            23);
        m_pFixture->shipConfig(LogicFixture::config("<Function><item name='kept' value='1'/></Function><broken>"));
        QCOMPARE(read("common", "common"), 6);
        QVERIFY(m_Functions.contains("kept"));
        QVERIFY(xml()->lastProblem().line > 0);
        QFile::remove(m_pFixture->folder.pluginDir() + "/NetConnectConfig.xml");
        QDir().mkpath(m_pFixture->folder.pluginDir() + "/NetConnectConfig.xml");
        QCOMPARE(read("common", "common"), 23);
    }

private:
    static NetConnectXMLParse* xml() { return NetConnectXMLParse::GetInstance(); }

    int read(QString group, QString module) {
        m_Templates.clear();
        m_Functions.clear();
        m_ProfileList.clear();
        m_IMSI.clear();
        m_Prompt = UserPrompt();
        return xml()->GetSettingsFromXML(&group, &module, &m_Templates, &m_Functions, &m_ProfileList, &m_IMSI,
                                         &m_Prompt);
    }

    QHash<QString, NetConnectXML> m_Templates;
    QHash<QString, NetConnectXML> m_Functions;
    QHash<QString, NetConnectXML> m_ProfileList;
    QMultiHash<QString, IMSIINFO> m_IMSI;
    UserPrompt m_Prompt;
};

QTEST_MAIN(tst_configfile)
#include "tst_configfile.moc"

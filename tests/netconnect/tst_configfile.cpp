// SPDX-License-Identifier: MIT
// NetConnectConfig.xml: groups, modules, sections, prompt items, and the mode default.

#include "CommonUtilsBase.h"
#include "LogicFixture.h"

class tst_configfile : public LogicTest {
    Q_OBJECT

private slots:
    void onlyThePairAskedForIsFiled() {
        ship(
            "NetConnectConfig.xml",
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
        QCOMPARE(readPair("common", "common"), 0);
        QCOMPARE(m_Functions.keys(), QStringList({"F"}));
        QCOMPARE(m_Functions.value("F").value + m_Functions.value("F").type, QString("2"));
        QCOMPARE(m_Templates.keys(), QStringList({"T"}));
        QCOMPARE(m_ProfileList.size(), 2);
        QVERIFY(m_ProfileList.contains(""));
        QCOMPARE(m_IMSI.size(), 2);
        QCOMPARE(m_IMSI.values("26201").first().name, QString("I2"));
        QCOMPARE(m_Prompt.promptPwd + m_Prompt.disableNamePwd + m_Prompt.userCheck, QString("trueyes"));
    }

    void modeDefault_data() {
        const Rows<QString, QString, QString, QString> row("multiMode", "mode", "office", "defaults");
        row("CDMA", "1", "2", "", "Office");
        row("single mode", "0", "2", "", "Start");
        row("own value stays", "1", "2", "own", "");
    }
    void modeDefault() {
        setDevice("MULTI_MODE", cell("multiMode"));
        setDevice("CARD_MODE", cell("mode"));
        shipConfig(section("ProfileList", {"Start=default", "Home", "Office=" + cell("office").toUtf8()}) +
                   section("MultiModeDefaultProfile", {"Nobody=CDMA", "Office=CDMA", "Home=GSM"}));
        QCOMPARE(readPair("common", "common"), 0);
        QStringList defaults;
        for (auto it = m_ProfileList.cbegin(); it != m_ProfileList.cend(); ++it)
            if (it->value == "default") defaults << it.key();
        QTEST(defaults.join(","), "defaults");
    }

    void statuses() {
        const QString file = pluginDir() + "/NetConnectConfig.xml";
        QCOMPARE(readPair("common", "common"), 23);  // there is no file yet
        write(file, "<x/>");
        QCOMPARE(readPair(nullptr, "common"), 23);
        QCOMPARE(readPair("common", nullptr), 23);
        shipConfig(section("Function", {"kept=1"}) + "<broken>");
        QCOMPARE(readPair("common", "common"), 6);
        QVERIFY(m_Functions.contains("kept"));
        QVERIFY(NetConnectXMLParse::GetInstance()->lastProblem().line > 0);
        QFile::remove(file);
        QDir().mkpath(file);
        QCOMPARE(readPair("common", "common"), 23);
    }

    // What is kept of the file serves every pair, and no longer than the file stays as it was.
    void anUnchangedFileIsKept() {
        const auto module = [](const QByteArray& group, const QByteArray& name, const QByteArray& items) {
            return "<group name='" + group + "'><module name='" + name + "'>" + items + "</module></group>";
        };
        const QByteArray custom = module("customize", "ACME", section("Function", {"F=theirs"}));
        const QByteArray content =
            "<x>" + module("common", "common", section("Function", {"F=ours"})) + custom + "</x>";
        ship("NetConnectConfig.xml", content);
        QTest::qSleep(SettlingTime);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(readPair("common", "common") + readPair("customize", "ACME"), 0);
            QCOMPARE(m_Functions.value("F").value, QString("theirs"));
        }
        ship("NetConnectConfig.xml", QByteArray(content).replace("theirs", "others"));
        QCOMPARE(readPair("customize", "ACME"), 0);
        QCOMPARE(m_Functions.value("F").value, QString("others"));
        QFile::remove(pluginDir() + "/NetConnectConfig.xml");
        QCOMPARE(readPair("customize", "ACME"), 23);
        ship("NetConnectConfig.xml", content.chopped(5));
        QTest::qSleep(SettlingTime);
        QCOMPARE(readPair("customize", "ACME") + readPair("customize", "ACME"), 6 + 6);
        QCOMPARE(m_Functions.value("F").value, QString("theirs"));
    }

    // The user's, the session's in their order, the machine's, at last the shipped one.
    void theFirstConfigurationCounts() {
        const QStringList places{path("config"), path("first/orbisdial"), path("second/orbisdial")};
        for (const QString& place : places)
            write(place + "/NetConnectConfig.xml", configuration(QFileInfo(place).path().toUtf8()));
        shipConfig(section("Function", {"F=library path"}));
        QCOMPARE(readPair("common", "common"), 0);
        QCOMPARE(m_Functions.value("F").value, QString("library path"));  // which is a whole set

        useConfigurationFolders();
        for (const QString& place : places) {
            QCOMPARE(readPair("common", "common"), 0);
            QCOMPARE(m_Functions.value("F").value, QFileInfo(place).path());
            QVERIFY(QFile::remove(place + "/NetConnectConfig.xml"));
        }
        QCOMPARE(CommonUtilsBase::GetConfigurationFolders(), places + QStringList("/etc/orbisdial"));
        if (QFile::exists("/etc/orbisdial/NetConnectConfig.xml")) QSKIP("this computer has a configuration");
        QCOMPARE(readPair("common", "common"), 0);
        QCOMPARE(m_Functions.value("ENCRYPT").value, QString("true"));
    }

    // Another one in its place would have other switches, and read stored passwords otherwise.
    void aBrokenConfigurationIsNamed_data() {
        const Rows<QString, int> row("kind", "line");
        row("damaged", "damaged", 4);
        row("a folder", "folder", 0);
        row("a link to nothing", "link to nothing", 0);
    }
    void aBrokenConfigurationIsNamed() {
        const QString file = path("second/orbisdial/NetConnectConfig.xml");
        QVERIFY(QDir().mkpath(path("second/orbisdial")));
        if (cell("kind") == "damaged") write(file, configuration("broken").chopped(5));
        if (cell("kind") == "folder") QVERIFY(QDir().mkpath(file));
        if (cell("kind") == "link to nothing") QVERIFY(QFile::link(path("nowhere"), file));
        setUser(profile("Mine", "password='aXQ=' encrypttype='1'"), "<Default DefaultName='Mine' IsUserSet='1'/>");
        const QByteArray before = user();

        useConfigurationFolders();
        NetConnectSettingUILogic* const logic = restart();
        logic->Init();
        QVERIFY(logic->ConfigurationStatus() != 0);
        QCOMPARE(logic->ConfigurationProblem().file, file);
        QTEST(int(logic->ConfigurationProblem().line), "line");
        QVERIFY(!logic->ConfigurationProblem().reason.isEmpty());
        QVERIFY(names().contains("Mine"));
        QCOMPARE(logic->FunctionConfigKeys().contains("IMPORT"), false);  // nothing of the shipped one
        end();
        QCOMPARE(user(), before);
    }

    void cleanup() {
        qunsetenv("XDG_CONFIG_DIRS");
        qputenv("ORBISDIAL_LIBRARY_PATH", QFile::encodeName(path("library")));
    }

private:
    static QByteArray configuration(const QByteArray& value) {
        return "<x><group name='common'><module name='common'>" + section("Function", {"F=" + value}) +
               "</module></group></x>";
    }

    // The shipped files are then those of the build.
    void useConfigurationFolders() {
        qunsetenv("ORBISDIAL_LIBRARY_PATH");
        qputenv("XDG_CONFIG_DIRS", QFile::encodeName(path("first") + ":" + path("second")));
    }

    enum { SettlingTime = 150 };  // milliseconds; a file that changed just now is read again in any case

    int readPair(const char* group, const char* module) {
        m_Templates.clear();
        m_Functions.clear();
        m_ProfileList.clear();
        m_IMSI.clear();
        m_Prompt = UserPrompt();
        QString groupName = group, moduleName = module;
        return NetConnectXMLParse::GetInstance()->GetSettingsFromXML(group ? &groupName : nullptr,
                                                                     module ? &moduleName : nullptr, &m_Templates,
                                                                     &m_Functions, &m_ProfileList, &m_IMSI, &m_Prompt);
    }

    QHash<QString, NetConnectXML> m_Templates, m_Functions, m_ProfileList;
    QMultiHash<QString, IMSIINFO> m_IMSI;
    UserPrompt m_Prompt;
};

QTEST_MAIN(tst_configfile)
#include "tst_configfile.moc"

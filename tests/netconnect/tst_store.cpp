// Listing, adding, deleting, replacing and the default profile.

#include <QRandomGenerator>
#include <QtTest>
#include <algorithm>

#include "Change.h"
#include "LogicFixture.h"
#include "NetConnectStoreAction.h"

class tst_store : public LogicTest {
    Q_OBJECT

private slots:
    void sorting() {
        QList<QString> names = {"b", "A", "a", "C", "B"};
        QCOMPARE(m_pFixture->logic()->sortProfileNames(&names), 0);
        QCOMPARE(QStringList(names), QStringList({"A", "a", "b", "B", "C"}));
    }

    // Halves of surrogate pairs and letters with unusual case folding included.
    void sortingAsQtCompares() {
        const QVector<ushort> units = {'a',    'A',    'z',    '_',    0xdf,   0x130,  0x131,  0x3a3,  0x3c2,
                                       0x1e9e, 0xfb03, 0xd801, 0xdc00, 0xdc28, 0xd835, 0xdc41, 0xe000, 0xfffd};
        QRandomGenerator random(1);
        QList<QString> names;
        for (int i = 0; i < 3000; ++i) {
            names.append(QString());
            for (int length = random.bounded(6); length > 0; --length)
                names.last().append(QChar(units.at(random.bounded(units.size()))));
        }
        QList<QString> expected = names;
        std::stable_sort(expected.begin(), expected.end(), [](const QString& first, const QString& second) {
            return QString::compare(first, second, Qt::CaseInsensitive) < 0;
        });
        QCOMPARE(m_pFixture->logic()->sortProfileNames(&names), 0);
        QCOMPARE(names, expected);
    }

    // What was just written is kept, but only as long as the file holds it.
    void listingRightAfterWriting() {
        m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named(QString("mi\x01ne") + QChar(0xd800)));
        QCOMPARE(m_pFixture->names(), QStringList("mine"));
        const QString file = m_pFixture->folder.userFile();
        TestFolder::write(file, TestFolder::read(file).replace("mine", "your"));
        QCOMPARE(m_pFixture->names(), QStringList("your"));
        m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named("third"));
        QCOMPARE(m_pFixture->names(), QStringList({"third", "your"}));
    }

    void listing() {
        shipPresets("Zebra,Home", "Zebra");
        m_pFixture->setUserFile(
            LogicFixture::profiles(LogicFixture::profile("name='home'") + LogicFixture::profile("name='Home'")));
        m_pFixture->restart();
        QList<QString> names = {"given"};
        QCOMPARE(m_pFixture->logic()->GetAllDialUpProfile(&names), 0);
        QCOMPARE(QStringList(names), QStringList({"given", "home", "Home", "Zebra"}));
        QCOMPARE(m_pFixture->defaultName(), QString("Zebra"));
    }

    void translatedUserProfiles() {
        const QString lang = QString(ORBISDIAL_BUILD_DIR) + "/lib/orbisdial/lang/orbisdial_en.qm";
        QVERIFY2(QFile::copy(lang, m_pFixture->folder.path("library/lang/orbisdial_en.qm")), qPrintable(lang));
        const QString shown = Change::tr("IDS_OK", "NetConnectPlugin");
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='Stored' langid='IDS_OK'") +
                                                           LogicFixture::profile("name='Kept' langid='IDS_NONE'"),
                                                       "<Default name='Stored' IsUserSet='1'/>"));
        m_pFixture->restart();
        QCOMPARE(m_pFixture->names(), QStringList({"Kept", shown}));
        QCOMPARE(m_pFixture->defaultName(), shown);
        const QByteArray stored = TestFolder::read(m_pFixture->folder.userFile());
        QVERIFY(stored.contains("<Profile name=\"" + shown.toUtf8() + "\""));
        QVERIFY(stored.contains("<Default name=\"" + shown.toUtf8() + "\" IsUserSet=\"1\"/>"));

        // Nothing changes any more, so nothing is written.
        const FileStamp before = FileStamp::of(m_pFixture->folder.userFile());
        QCOMPARE(m_pFixture->names(), QStringList({"Kept", shown}));
        QVERIFY(FileStamp::of(m_pFixture->folder.userFile()) == before);
        QVERIFY(m_pFixture->logic()->DelDialUpProfile("Kept") == 0);
        QCOMPARE(m_pFixture->names(), QStringList({shown}));
    }

    void addingAndDeleting() {
        m_pFixture->shipConfig(LogicFixture::config(LogicFixture::functions({"ENCRYPT"})));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("Home", "secret")), 0);
        const QByteArray file = TestFolder::read(m_pFixture->folder.userFile());
        QVERIFY(!file.contains("secret"));
        QVERIFY(file.contains("encrypttype=\"2\""));
        QCOMPARE(m_pFixture->fetch("Home").password, QString("secret"));

        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("Home", "other")), 0);
        QCOMPARE(logic->AddDialUpProfile(LogicFixture::named("Home", "other")), 114);
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), file);
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("home")), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"Home", "home"}));
        QCOMPARE(logic->DelDialUpProfile("Home"), 0);
        QCOMPARE(logic->DelDialUpProfile("nobody"), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"home"}));
        QVERIFY(m_pFixture->fetch("Home").name.isEmpty());
    }

    void storedPasswords_data() {
        QTest::addColumn<QByteArray>("attributes");
        QTest::addColumn<bool>("encrypts");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("method");
        QTest::newRow("0 is base64") << QByteArray("password='c2VjcmV0' encrypttype='0'") << true << "secret"
                                     << "1";
        QTest::newRow("none is base64") << QByteArray("password='c2VjcmV0'") << true << "secret"
                                        << "1";
        QTest::newRow("1") << QByteArray("password='c2VjcmV0' encrypttype='1'") << true << "secret"
                           << "1";
        QTest::newRow("keyed, plain") << QByteArray("password='secret' encrypttype='2'") << true << "secret"
                                      << "2";
        QTest::newRow("tampered") << QByteArray("password='orbis1:AAAA' encrypttype='2'") << true << ""
                                  << "2";
        QTest::newRow("switched off") << QByteArray("password='c2VjcmV0' encrypttype='0'") << false << "c2VjcmV0"
                                      << "0";
    }
    void storedPasswords() {
        QFETCH(QByteArray, attributes);
        QFETCH(bool, encrypts);
        if (encrypts) m_pFixture->shipConfig(LogicFixture::config(LogicFixture::functions({"ENCRYPT"})));
        m_pFixture->setUserFile(LogicFixture::profiles(LogicFixture::profile("name='A' " + attributes)));
        m_pFixture->restart();
        const DialupProfile profile = m_pFixture->fetch("A");
        QTEST(profile.password, "password");
        QTEST(profile.encrypttype, "method");
        const bool isTampered = attributes.contains("orbis1:");
        QCOMPARE(m_pFixture->logic()->LastStorageProblem().reason.contains("sealed password"), isTampered);
    }

    void deletedPresetsStayAwayUntilTheNextLoad() {
        m_pFixture->shipConfig(LogicFixture::config(
            LogicFixture::functions({"IMSIAPN"}) + "<IMSIProfileList imsi='31026'>" + LogicFixture::item("One", "") +
            LogicFixture::item("Two", "") + "</IMSIProfileList><ProfileList>" + LogicFixture::item("One", "") +
            LogicFixture::item("Generic", "") + "</ProfileList>"));
        m_pFixture->restart();
        QCOMPARE(m_pFixture->names(), QStringList({"One", "Two"}));
        QCOMPARE(m_pFixture->logic()->DelDialUpProfile("One"), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"Two"}));
        QCOMPARE(m_pFixture->logic()->DelDialUpProfile("Two"), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"Generic"}));
        QVERIFY(!QFile::exists(m_pFixture->folder.userFile()));
        m_pFixture->logic()->Init();
        QCOMPARE(m_pFixture->names(), QStringList({"One", "Two"}));
    }

    void newProfileNames_data() {
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QByteArray>("templateName");
        QTest::addColumn<QString>("name");
        QTest::newRow("first") << "" << QByteArray("") << "New Profile1";
        QTest::newRow("third") << "New Profile1,New Profile2" << QByteArray("") << "New Profile3";
        QTest::newRow("gap") << "New Profile2" << QByteArray("IDS_NO_SUCH_TEXT") << "New Profile1";
    }
    void newProfileNames() {
        QFETCH(QString, existing);
        QFETCH(QByteArray, templateName);
        m_pFixture->shipConfig(LogicFixture::config("<ProfileTemplate>" + LogicFixture::item("name", templateName) +
                                                    LogicFixture::item("phonenumber", "*99#") + "</ProfileTemplate>"));
        m_pFixture->restart();
        for (const QString& name : existing.split(','))
            m_pFixture->logic()->SaveDialUpProfile(LogicFixture::named(name));
        DialupProfile profile;
        QCOMPARE(m_pFixture->logic()->NewDialUpProfileTemplate(&profile), 0);
        QTEST(profile.name, "name");
        QCOMPARE(profile.phonenumber, QString("*99#"));
        m_pFixture->shipConfig(LogicFixture::config(""));
        QFile::remove(m_pFixture->folder.pluginDir() + "/SysProfile.prof");
        m_pFixture->restart();
        QCOMPARE(m_pFixture->logic()->NewDialUpProfileTemplate(&profile), 23);
    }

    void deviceCredentials() {
        m_pFixture->shipConfig(LogicFixture::config(LogicFixture::functions({"Auto Get Profile"}) +
                                                    "<ProfileTemplate>" + LogicFixture::item("apn", "x") +
                                                    "</ProfileTemplate>"));
        m_pFixture->shipLibrary(LogicFixture::profiles(LogicFixture::profile("name='Bare'") +
                                                       LogicFixture::profile("name='Own' user='own'")));
        vrks_simulated_set("DS_USER", QByteArray(300, 'u').constData());
        vrks_simulated_set("DS_PASSWORD", "device");
        m_pFixture->restart();
        QCOMPARE(m_pFixture->fetch("Bare").password, QString("device"));
        QVERIFY(m_pFixture->fetch("Bare").user.size() <= 256);
        QCOMPARE(m_pFixture->fetch("Own").user, QString("own"));
        QCOMPARE(m_pFixture->fetch("nobody").user, QString());
        DialupProfile profile;
        QCOMPARE(m_pFixture->logic()->NewDialUpProfileTemplate(&profile), 0);
        QCOMPARE(profile.password, QString("device"));
    }

    // What becomes of the stored default when the profiles are listed, and when the plug-in ends.
    void defaults_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("isUserSet");
        QTest::addColumn<QString>("fromIMSI");
        QTest::addColumn<QString>("fromAPN");
        QTest::addColumn<QString>("listed");
        QTest::addColumn<QString>("atEnd");

        QTest::newRow("chosen stays") << "Mine" << true << ""
                                      << "Apn"
                                      << "Mine"
                                      << "Mine";
        QTest::newRow("not chosen is replaced") << "Mine" << false << ""
                                                << "Apn"
                                                << "Apn"
                                                << "";
        QTest::newRow("gone is replaced") << "Gone" << true << ""
                                          << "Apn"
                                          << "Apn"
                                          << "";
        QTest::newRow("none is replaced") << "" << false << ""
                                          << "Apn"
                                          << "Apn"
                                          << "";
        QTest::newRow("no proposal") << "Gone" << true << ""
                                     << ""
                                     << "Gone"
                                     << "Gone";
        QTest::newRow("nothing at all") << "" << false << ""
                                        << ""
                                        << ""
                                        << "";
        QTest::newRow("IMSI, chosen stays") << "Mine" << true << "Imsi"
                                            << ""
                                            << "Mine"
                                            << "Mine";
        QTest::newRow("IMSI, chosen preset stays") << "Other" << true << "Imsi"
                                                   << ""
                                                   << "Other"
                                                   << "Other";
        QTest::newRow("IMSI, not chosen is replaced") << "Mine" << false << "Imsi"
                                                      << ""
                                                      << "Imsi"
                                                      << "";
        QTest::newRow("IMSI, gone is replaced") << "Gone" << true << "Imsi"
                                                << ""
                                                << "Imsi"
                                                << "";
        QTest::newRow("IMSI, the APN proposal does not count as chosen") << "Mine" << true << "Imsi"
                                                                         << "Mine"
                                                                         << "Imsi"
                                                                         << "";
        QTest::newRow("IMSI of one character is none") << "" << false << "I"
                                                       << ""
                                                       << ""
                                                       << "";
        QTest::newRow("IMSI in force keeps an APN proposal") << "Apn" << true << ""
                                                             << "Apn:imsi"
                                                             << "Apn"
                                                             << "Apn";
    }
    void defaults() {
        QFETCH(QString, stored);
        QFETCH(bool, isUserSet);
        QFETCH(QString, fromIMSI);
        QFETCH(QString, fromAPN);
        QFETCH(QString, listed);
        const bool withIMSIList = !fromIMSI.isEmpty() || fromAPN.endsWith(":imsi");
        const QByteArray apn = fromAPN.section(':', 0, 0).toUtf8();
        QByteArray imsiRows;
        if (withIMSIList) imsiRows += LogicFixture::item("Other", "");
        if (fromAPN.endsWith(":imsi")) imsiRows += LogicFixture::item(apn, "");
        if (!fromIMSI.isEmpty()) imsiRows += LogicFixture::item(fromIMSI.toUtf8(), "default");
        m_pFixture->shipConfig(LogicFixture::config(
            LogicFixture::functions({"IMSIAPN"}) + "<IMSIProfileList imsi='31026'>" + imsiRows + "</IMSIProfileList>" +
            "<ProfileList>" + (apn.isEmpty() ? QByteArray() : LogicFixture::item(apn, "default")) + "</ProfileList>"));
        m_pFixture->setUserFile(LogicFixture::profiles(
            LogicFixture::profile("name='Mine'"),
            "<Default name='" + stored.toUtf8() + "'" + (isUserSet ? " IsUserSet='1'" : "") + "/>"));
        m_pFixture->restart();
        m_pFixture->names();
        QCOMPARE(m_pFixture->defaultName(), listed);
        NetConnectSettingUILogic::Destroy();
        QTEST(storedDefault(), "atEnd");
    }

    void endingWritesNothingWhereNothingIsToBeCleared() {
        m_pFixture->restart();
        NetConnectSettingUILogic::Destroy();
        QVERIFY(!QFile::exists(m_pFixture->folder.userFile()));
    }

    void choosingTheProposalIsNoChoice_data() {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<bool>("withIMSIList");
        QTest::addColumn<bool>("flag");
        QTest::newRow("APN proposal") << "Apn" << false << false;
        QTest::newRow("other") << "Mine" << false << true;
        QTest::newRow("IMSI proposal") << "Imsi" << true << false;
        QTest::newRow("APN proposal beside an IMSI list") << "Apn" << true << true;
    }
    void choosingTheProposalIsNoChoice() {
        QFETCH(QString, chosen);
        QFETCH(bool, withIMSIList);
        m_pFixture->shipConfig(LogicFixture::config(
            LogicFixture::functions({"IMSIAPN"}) + "<ProfileList>" + LogicFixture::item("Apn", "default") +
            "</ProfileList>" +
            (withIMSIList
                 ? "<IMSIProfileList imsi='31026'>" + LogicFixture::item("Imsi", "default") + "</IMSIProfileList>"
                 : QByteArray())));
        m_pFixture->restart();
        QCOMPARE(m_pFixture->logic()->SetDefaultDialUpProfileName(chosen, true), 0);
        QTEST(m_pFixture->logic()->IsDefaultUserSet(), "flag");
        QTEST(TestFolder::read(m_pFixture->folder.userFile()).contains("IsUserSet=\"1\""), "flag");
        QCOMPARE(storedDefault(), chosen);
    }

    void replacing() {
        m_pFixture->setUserFile(LogicFixture::profiles(
            LogicFixture::profile("name='Old' apn='a' langid='IDS_X'") + LogicFixture::profile("name='Taken'"),
            "<Default name='Old' IsUserSet='1'/>"));
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        DialupProfile edited = m_pFixture->fetch("Old");
        edited.name = "Taken";
        const QByteArray before = TestFolder::read(m_pFixture->folder.userFile());
        QCOMPARE(logic->ReplaceDialUpProfile("Old", edited), 114);
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), before);
        QCOMPARE(m_pFixture->defaultName(), QString("Old"));

        edited.name = "New";
        QCOMPARE(logic->ReplaceDialUpProfile("Old", edited), 0);
        QCOMPARE(m_pFixture->names(), QStringList({"New", "Taken"}));
        QCOMPARE(m_pFixture->defaultName(), QString("New"));
        QVERIFY(logic->IsDefaultUserSet());
        QVERIFY(m_pFixture->fetch("New").langid.isEmpty());

        edited.apn = "b";
        edited.langid = "IDS_X";
        QCOMPARE(logic->ReplaceDialUpProfile("New", edited), 0);
        QCOMPARE(m_pFixture->fetch("New").langid, QString("IDS_X"));
        QCOMPARE(m_pFixture->fetch("New").apn, QString("b"));
    }

    void gatheredWrites() {
        NetConnectSettingUILogic* logic = m_pFixture->restart();
        QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("First")), 0);
        const QByteArray before = TestFolder::read(m_pFixture->folder.userFile());
        {
            NetConnectStoreAction action;
            QCOMPARE(logic->DelDialUpProfile("First"), 0);
            QCOMPARE(logic->SaveDialUpProfile(LogicFixture::named("Second")), 0);
            QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), before);
        }  // neither committed nor dropped: dropped
        QVERIFY(logic->HasUserProfile("First") && !logic->HasUserProfile("Second"));
        {
            NetConnectStoreAction action;
            logic->DelDialUpProfile("First");
            logic->SaveDialUpProfile(LogicFixture::named("Second"));
            QCOMPARE(action.commit(), 0);
        }
        QCOMPARE(m_pFixture->names(), QStringList({"Second"}));
        QVERIFY(TestFolder::read(m_pFixture->folder.userFile()).contains("Second"));
    }

    void browsingStoresNothing() {
        shipPresets("Preset", "Preset");
        m_pFixture->setUserFile(
            LogicFixture::profiles(LogicFixture::profile("name='Mine'"), "<Default name='Preset'/>"));
        const QByteArray before = TestFolder::read(m_pFixture->folder.userFile());
        {
            NetConnectStoreAction browse(NetConnectStoreAction::Browse);
            m_pFixture->restart();
            QCOMPARE(m_pFixture->names(), QStringList({"Mine", "Preset"}));
            QCOMPARE(m_pFixture->defaultName(), QString("Preset"));
            NetConnectSettingUILogic::Destroy();
        }
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), before);
        QVERIFY(!QFile::exists(m_pFixture->folder.userFile() + ".lock"));
    }

private:
    void shipPresets(const QString& names, const QString& proposed) {
        QByteArray items;
        for (const QString& name : names.split(','))
            items += LogicFixture::item(name.toUtf8(), name == proposed ? "default" : "");
        m_pFixture->shipConfig(LogicFixture::config("<ProfileList>" + items + "</ProfileList>"));
    }

    QString storedDefault() {
        QList<DialupProfile> profiles;
        QString name;
        NetConnectXMLParse::GetInstance()->GetAllProfileFromUserDataXML(&profiles, &name, QString(), nullptr);
        return name;
    }
};

QTEST_MAIN(tst_store)
#include "tst_store.moc"

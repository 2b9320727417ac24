// SPDX-License-Identifier: MIT
// Listing, adding, deleting, replacing and the default profile.

#include <QRandomGenerator>
#include <algorithm>

#include "Change.h"
#include "LogicFixture.h"
#include "NetConnectStoreAction.h"

class tst_store : public LogicTest {
    Q_OBJECT

private slots:
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
        QCOMPARE(logic()->sortProfileNames(&names), 0);
        QCOMPARE(names, expected);
    }

    // A list is sorted from the one that was sorted before it, where that is little work.
    void sortingAfterChanges() {
        QRandomGenerator random(5);
        QList<QString> listed;
        for (int round = 0; round < 2000; ++round) {
            for (int changes = random.bounded(1, 4); changes > 0; --changes) {
                const int place = random.bounded(listed.size() + 1);
                if (place < listed.size() && random.bounded(2))
                    listed.removeAt(place);
                else
                    listed.insert(
                        random.bounded(2) ? place : listed.size(),
                        QString(QChar("aAbBcCdDeE"[random.bounded(10)])) + QString::number(random.bounded(20)));
            }
            QList<QString> expected = listed;
            std::stable_sort(expected.begin(), expected.end(), [](const QString& first, const QString& second) {
                return QString::compare(first, second, Qt::CaseInsensitive) < 0;
            });
            QList<QString> names = listed;
            QCOMPARE(logic()->sortProfileNames(&names), 0);
            QCOMPARE(names, expected);
        }
    }

    // What was just written is kept, but only as long as the file holds it.
    void listingRightAfterWriting() {
        logic()->SaveDialUpProfile(named(QString("mi\x01ne") + QChar(0xd800)));
        QCOMPARE(names(), QStringList("mine"));
        write(userFile(), user().replace("mine", "your"));
        QCOMPARE(names(), QStringList("your"));
        logic()->SaveDialUpProfile(named("third"));
        QCOMPARE(names(), QStringList({"third", "your"}));
    }

    void listing() {
        shipConfig(section("ProfileList", {"Zebra=default", "Home"}));
        setUser(profile("home") + profile("Home"));
        restart();
        QList<QString> names = {"given"};
        QCOMPARE(logic()->GetAllDialUpProfile(&names), 0);
        QCOMPARE(QStringList(names), QStringList({"given", "home", "Home", "Zebra"}));
        QCOMPARE(defaultName(), QString("Zebra"));
    }

    void translatedUserProfiles() {
        shipTexts();
        const QString shown = Change::tr("IDS_OK", "NetConnectPlugin");
        setUser(profile("Stored", "langid='IDS_OK'") + profile("Kept", "langid='IDS_NONE'"),
                "<Default name='Stored' IsUserSet='1'/>");
        restart();
        QCOMPARE(names(), QStringList({"Kept", shown}));
        QCOMPARE(defaultName(), shown);
        QVERIFY(user().contains("<Profile name=\"" + shown.toUtf8() + "\""));
        QVERIFY(user().contains("<Default name=\"" + shown.toUtf8() + "\" IsUserSet=\"1\"/>"));

        // Nothing changes any more, so nothing is written.
        const FileStamp before = FileStamp::of(userFile());
        QCOMPARE(names(), QStringList({"Kept", shown}));
        QVERIFY(FileStamp::of(userFile()) == before);
        QCOMPARE(logic()->DelDialUpProfile("Kept"), 0);
        QCOMPARE(names(), QStringList({shown}));
    }

    void addingAndDeleting() {
        shipConfig(section("Function", {"ENCRYPT=true"}));
        restart();
        QCOMPARE(logic()->SaveDialUpProfile(named("Home", "secret")), 0);
        const QByteArray file = user();
        QVERIFY(!file.contains("secret") && file.contains("encrypttype=\"2\""));
        QCOMPARE(fetch("Home").password, QString("secret"));

        QCOMPARE(logic()->SaveDialUpProfile(named("Home", "other")), 0);
        QCOMPARE(logic()->AddDialUpProfile(named("Home", "other")), 114);
        QCOMPARE(user(), file);
        QCOMPARE(logic()->SaveDialUpProfile(named("home")), 0);
        QCOMPARE(names(), QStringList({"Home", "home"}));
        QCOMPARE(logic()->DelDialUpProfile("Home"), 0);
        QCOMPARE(logic()->DelDialUpProfile("nobody"), 0);
        QCOMPARE(names(), QStringList({"home"}));
        QVERIFY(fetch("Home").name.isEmpty());
    }

    void storedPasswords_data() {
        const Rows<QString, bool, QString, QString> row("attributes", "encrypts", "password", "method");
        row("none is base64", "password='c2VjcmV0'", true, "secret", "1");
        row("1", "password='c2VjcmV0' encrypttype='1'", true, "secret", "1");
        row("tampered", "password='orbis1:AAAA' encrypttype='2'", true, "", "2");
        row("switched off", "password='c2VjcmV0' encrypttype='0'", false, "c2VjcmV0", "0");
    }
    void storedPasswords() {
        QFETCH(QString, attributes);
        shipConfig(cell<bool>("encrypts") ? section("Function", {"ENCRYPT=true"}) : QByteArray());
        setUser(profile("A", attributes.toUtf8()));
        restart();
        QTEST(fetch("A").password, "password");
        QTEST(fetch("A").encrypttype, "method");
        QCOMPARE(logic()->LastStorageProblem().reason.text().contains("sealed password"),
                 attributes.contains("orbis1:"));
    }

    // What can't be opened is shown as empty, which is no wish to have it empty. An edit by us, and by another plug-in,
    // of the first of two profiles of one name.
    void anEditLosesNothing_data() {
        const Rows<bool, QByteArray> row("isOurs", "second");
        row("ours", true, "");
        row("another's", false, "");
        row("another's, of two", false, profile("A", "apn='second'"));
    }
    void anEditLosesNothing() {
        shipConfig(section("Function", {"ENCRYPT=true"}));
        setUser(profile("A", "password='orbis1:AAAA' encrypttype='2'") + cell<QByteArray>("second"));
        restart();
        const auto store = [](const DialupProfile& edited) {
            return cell<bool>("isOurs") ? logic()->ReplaceDialUpProfile("A", edited)
                                        : logic()->OverwriteDialUpProfile(edited);
        };
        DialupProfile edited = fetch("A");
        edited.apn = "changed";
        QCOMPARE(store(edited), 0);
        const QByteArray stored = read(userFile());
        QVERIFY2(stored.contains("password=\"orbis1:AAAA\"") && stored.contains("apn=\"changed\""), stored);
        QCOMPARE(stored.contains("apn=\"second\""), !cell<QByteArray>("second").isEmpty());
        edited.password = "typed";
        QCOMPARE(store(edited), 0);
        QCOMPARE(fetch("A").password, QString("typed"));
    }

    void deletedPresetsStayAwayUntilTheNextLoad() {
        shipConfig(section("Function", {"IMSIAPN=true"}) + section("IMSIProfileList imsi='31026'", {"One", "Two"}) +
                   section("ProfileList", {"One", "Generic"}));
        restart();
        QCOMPARE(names(), QStringList({"One", "Two"}));
        QCOMPARE(logic()->DelDialUpProfile("One"), 0);
        QCOMPARE(names(), QStringList({"Two"}));
        QCOMPARE(logic()->DelDialUpProfile("Two"), 0);
        QCOMPARE(names(), QStringList({"Generic"}));
        QVERIFY(!QFile::exists(userFile()));
        logic()->Init();
        QCOMPARE(names(), QStringList({"One", "Two"}));
    }

    void newProfileNames() {
        shipConfig(section("ProfileTemplate", {"name=IDS_NO_SUCH_TEXT", "phonenumber=*99#"}));
        restart();
        DialupProfile profile;
        for (const char* name : {"New Profile1", "New Profile2", "New Profile3"}) {
            QCOMPARE(logic()->NewDialUpProfileTemplate(&profile), 0);
            QCOMPARE(profile.name, QString(name));
            QCOMPARE(profile.phonenumber, QString("*99#"));
            logic()->SaveDialUpProfile(profile);
        }
        shipConfig("");
        QFile::remove(pluginDir() + "/SysProfile.prof");
        QCOMPARE(restart()->NewDialUpProfileTemplate(&profile), 23);
    }

    void deviceCredentials() {
        shipConfig(section("Function", {"Auto Get Profile=true"}) + section("ProfileTemplate", {"apn=x"}));
        shipLibrary(profile("Bare") + profile("Own", "user='own'"));
        setDevice("DS_USER", QString(300, 'u'));
        setDevice("DS_PASSWORD", "device");
        restart();
        QCOMPARE(fetch("Bare").password, QString("device"));
        QVERIFY(fetch("Bare").user.size() <= 256);
        QCOMPARE(fetch("Own").user, QString("own"));
        QCOMPARE(fetch("nobody").user, QString());
        DialupProfile profile;
        QCOMPARE(logic()->NewDialUpProfileTemplate(&profile), 0);
        QCOMPARE(profile.password, QString("device"));
    }

    // What becomes of the stored default when the profiles are listed, and when the plug-in ends.
    void defaults_data() {
        const Rows<QString, bool, QString, QString, QString, QString> row("stored", "isUserSet", "fromIMSI", "fromAPN",
                                                                          "listed", "atEnd");
        row("chosen stays", "Mine", true, "", "Apn", "Mine", "Mine");
        row("not chosen is replaced", "Mine", false, "", "Apn", "Apn", "");
        row("no proposal", "Gone", true, "", "", "Gone", "Gone");
        row("IMSI, chosen stays", "Mine", true, "Imsi", "", "Mine", "Mine");
        row("IMSI, not chosen is replaced", "Mine", false, "Imsi", "", "Imsi", "");
        row("IMSI, gone is replaced", "Gone", true, "Imsi", "", "Imsi", "");
        row("IMSI, the APN proposal does not count as chosen", "Mine", true, "Imsi", "Mine", "Imsi", "");
        row("IMSI of one character is none", "", false, "I", "", "", "");
        row("IMSI in force keeps an APN proposal", "Apn", true, "", "Apn:imsi", "Apn", "Apn");
    }
    void defaults() {
        QFETCH(QString, fromIMSI);
        QFETCH(QString, fromAPN);
        const bool alsoByIMSI = fromAPN.endsWith(":imsi");
        const QByteArray apn = fromAPN.section(':', 0, 0).toUtf8();
        QList<QByteArray> imsiRows;
        if (alsoByIMSI || !fromIMSI.isEmpty()) imsiRows << "Other";
        if (alsoByIMSI) imsiRows << apn;
        if (!fromIMSI.isEmpty()) imsiRows << fromIMSI.toUtf8() + "=default";
        shipConfig(section("Function", {"IMSIAPN=true"}) + section("IMSIProfileList imsi='31026'", imsiRows) +
                   section("ProfileList", apn.isEmpty() ? QList<QByteArray>() : QList<QByteArray>{apn + "=default"}));
        setUser(profile("Mine"), "<Default name='" + cell("stored").toUtf8() + "'" +
                                     (cell<bool>("isUserSet") ? " IsUserSet='1'" : "") + "/>");
        restart();
        names();
        QTEST(defaultName(), "listed");
        NetConnectSettingUILogic::Destroy();
        QTEST(storedDefault(), "atEnd");
    }

    void choosingTheProposalIsNoChoice_data() {
        const Rows<QString, bool, bool> row("chosen", "withIMSIList", "flag");
        row("APN proposal", "Apn", false, false);
        row("IMSI proposal", "Imsi", true, false);
        row("APN proposal beside an IMSI list", "Apn", true, true);
    }
    void choosingTheProposalIsNoChoice() {
        QFETCH(QString, chosen);
        shipConfig(
            section("Function", {"IMSIAPN=true"}) + section("ProfileList", {"Apn=default"}) +
            (cell<bool>("withIMSIList") ? section("IMSIProfileList imsi='31026'", {"Imsi=default"}) : QByteArray()));
        restart();
        QCOMPARE(logic()->SetDefaultDialUpProfileName(chosen, true), 0);
        QTEST(logic()->IsDefaultUserSet(), "flag");
        QTEST(user().contains("IsUserSet=\"1\""), "flag");
        QCOMPARE(storedDefault(), chosen);
    }

    void replacing() {
        setUser(profile("Old", "apn='a' langid='IDS_X'") + profile("Taken"), "<Default name='Old' IsUserSet='1'/>");
        restart();
        DialupProfile edited = fetch("Old");
        edited.name = "Taken";
        const QByteArray before = user();
        QCOMPARE(logic()->ReplaceDialUpProfile("Old", edited), 114);
        QCOMPARE(user(), before);
        QCOMPARE(defaultName(), QString("Old"));

        edited.name = "New";
        QCOMPARE(logic()->ReplaceDialUpProfile("Old", edited), 0);
        QCOMPARE(names(), QStringList({"New", "Taken"}));
        QCOMPARE(defaultName(), QString("New"));
        QVERIFY(logic()->IsDefaultUserSet());
        QVERIFY(fetch("New").langid.isEmpty());

        edited.apn = "b";
        edited.langid = "IDS_X";
        QCOMPARE(logic()->ReplaceDialUpProfile("New", edited), 0);
        QCOMPARE(fetch("New").langid + fetch("New").apn, QString("IDS_Xb"));
    }

    void gatheredWrites() {
        restart();
        QCOMPARE(logic()->SaveDialUpProfile(named("First")), 0);
        const QByteArray before = user();
        {
            NetConnectStoreAction action;
            QCOMPARE(logic()->DelDialUpProfile("First"), 0);
            QCOMPARE(logic()->SaveDialUpProfile(named("Second")), 0);
            QCOMPARE(user(), before);
        }  // neither committed nor dropped: dropped
        QVERIFY(logic()->HasUserProfile("First") && !logic()->HasUserProfile("Second"));
        {
            NetConnectStoreAction action;
            logic()->DelDialUpProfile("First");
            logic()->SaveDialUpProfile(named("Second"));
            QCOMPARE(action.commit(), 0);
        }
        QCOMPARE(names(), QStringList({"Second"}));
        QVERIFY(user().contains("Second"));
    }

    void anActionMayOutliveTheLogic() {
        restart();
        QCOMPARE(logic()->SaveDialUpProfile(named("First")), 0);
        const QByteArray before = user();
        NetConnectStoreAction action;
        QCOMPARE(logic()->DelDialUpProfile("First"), 0);
        restart();
        QCOMPARE(action.commit(), 25);  // the list that it was about is gone
        QCOMPARE(user(), before);
        QCOMPARE(names(), QStringList({"First"}));
        NetConnectStoreAction later;
        QCOMPARE(logic()->DelDialUpProfile("First"), 0);
        NetConnectSettingUILogic::Destroy();
        later.drop();
        QCOMPARE(user(), before);
    }

    void nullsAreRefused() {
        restart();
        const QStringList one("A");
        QCOMPARE(logic()->GetAllDialUpProfile(nullptr), 23);
        QCOMPARE(logic()->sortProfileNames(nullptr), 23);
        QCOMPARE(logic()->GetDialUpProfile("A", nullptr), 23);
        QCOMPARE(logic()->NewDialUpProfileTemplate(nullptr), 23);
        QCOMPARE(logic()->GetDefaultDialUpProfileName(nullptr), 23);
        QCOMPARE(logic()->GetFunctionConfigValue("A", nullptr), 23);
        QCOMPARE(logic()->GetFunctionConfigStringValues("A", nullptr), 23);
        QCOMPARE(logic()->GetDialUpProfileFromFile(nullptr, QString()), 23);
        QCOMPARE(logic()->ImportChosenProfiles(one, nullptr), 23);
        QCOMPARE(logic()->ExportSelectedProfilesToFile(nullptr, path("export.prof")), 23);
    }

    void browsingStoresNothing() {
        shipConfig(section("ProfileList", {"Preset=default"}));
        setUser(profile("Mine"), "<Default name='Preset'/>");
        const QByteArray before = user();
        {
            NetConnectStoreAction browse(NetConnectStoreAction::Browse);
            restart();
            QCOMPARE(names(), QStringList({"Mine", "Preset"}));
            QCOMPARE(defaultName(), QString("Preset"));
            NetConnectSettingUILogic::Destroy();
        }
        QCOMPARE(user(), before);
        QVERIFY(!QFile::exists(userFile() + ".lock"));
    }

private:
    static QString storedDefault() {
        QList<DialupProfile> profiles;
        QString name;
        NetConnectXMLParse::GetInstance()->GetAllProfileFromUserDataXML(&profiles, &name, QString(), nullptr);
        return name;
    }
};

QTEST_MAIN(tst_store)
#include "tst_store.moc"

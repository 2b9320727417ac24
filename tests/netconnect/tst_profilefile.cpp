// Profile files: what is read, what is written, and what broken ones do.

#include <sys/stat.h>

#include <QXmlStreamReader>
#include <QtTest>

#include "LogicFixture.h"

// Written by hand, so that a wrong table of fields can't agree with itself.
static const char Golden[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<vrksdoc type=\"Profile\">\n"
    "    <ProfileGroup type=\"Dailup\">\n"
    "        <Profile name=\"a\" type=\"b\" readonly=\"c\" device=\"d\" user=\"e\" password=\"f\" phonenumber=\"g\""
    " autoapn=\"h\" apn=\"i\" chap=\"j\" pap=\"k\" ip=\"l\" dns=\"m\" dnsalt=\"n\" wins=\"o\" winsalt=\"p\""
    " popusername=\"q\" Remember=\"r\" langid=\"s\" encrypttype=\"t\"/>\n"
    "    </ProfileGroup>\n"
    "    <Default name=\"a\" IsUserSet=\"1\"/>\n"
    "    <MultiModeDefaultProfile>\n"
    "        <item name=\"w\" value=\"WCDMA\"/>\n"
    "        <item name=\"a\" value=\"CDMA\" IsUserSet=\"1\"/>\n"
    "    </MultiModeDefaultProfile>\n"
    "</vrksdoc>\n";

class tst_profilefile : public LogicTest {
    Q_OBJECT

private slots:
    void readsAndWritesTheGoldenFile() {
        m_pFixture->setUserFile(Golden);
        useCard("1", "2");
        QList<DialupProfile> profiles;
        QString defaultName;
        bool isUserSet = false;
        QCOMPARE(xml()->GetAllProfileFromUserDataXML(&profiles, &defaultName, QString(), &isUserSet), 0);
        QCOMPARE(profiles.size(), 1);
        QCOMPARE(profiles[0].name, QString("a"));
        QCOMPARE(profiles[0].apn, QString("i"));
        QCOMPARE(profiles[0].chap, QString("j"));
        QCOMPARE(profiles[0].pap, QString("k"));
        QCOMPARE(profiles[0].Remember, QString("r"));
        QCOMPARE(profiles[0].encrypttype, QString("t"));

        QCOMPARE(xml()->SaveProfileToXML(profiles, defaultName, QString(), isUserSet), 0);
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), QByteArray(Golden));
    }

    void defaults_data() {
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("multiMode");
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isUserSet");

        const QByteArray modes =
            "<MultiModeDefaultProfile><item name='W' value='LTE' IsUserSet='1'/><item name='C' value='CDMA'/>"
            "</MultiModeDefaultProfile><item name='stray' value='CDMA'/>";
        const QByteArray plain = "<Default name='P' IsUserSet='1'/>";
        QTest::newRow("user set") << plain << QByteArray("0") << QByteArray("0") << "P" << true;
        QTest::newRow("only 1 counts") << QByteArray("<Default name='P' IsUserSet='true'/>") << QByteArray("0")
                                       << QByteArray("0") << "P" << false;
        QTest::newRow("no flag") << QByteArray("<Default name='P'/>") << QByteArray("0") << QByteArray("0") << "P"
                                 << false;
        QTest::newRow("CDMA mode") << plain + modes << QByteArray("1") << QByteArray("2") << "C" << false;
        QTest::newRow("WCDMA mode") << plain + modes << QByteArray("1") << QByteArray("1") << "W" << true;
        QTest::newRow("no mode keeps the flag") << plain + modes << QByteArray("1") << QByteArray("0") << "P" << false;
        QTest::newRow("single mode") << plain + modes << QByteArray("0") << QByteArray("2") << "P" << true;
        QTest::newRow("failing query") << plain + modes << QByteArray() << QByteArray("2") << "P" << true;
        QTest::newRow("none") << QByteArray() << QByteArray("0") << QByteArray("0") << "before" << false;
    }
    void defaults() {
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, multiMode);
        QFETCH(QByteArray, mode);
        m_pFixture->setUserFile(LogicFixture::profiles("", after));
        settle();
        useCard(multiMode, mode);
        for (int pass = 0; pass < 2; ++pass) {  // the second time nothing is parsed, and all is as if it were
            xml()->setRememberedDefaults(NetConnectRememberedDefaults());
            QList<DialupProfile> profiles;
            QString name = "before";
            bool isUserSet = true;
            QCOMPARE(xml()->GetAllProfileFromUserDataXML(&profiles, &name, QString(), &isUserSet), 0);
            QTEST(name, "name");
            QTEST(isUserSet, "isUserSet");
            QCOMPARE(xml()->rememberedDefaults().cdma.name, after.contains("CDMA") ? QString("C") : QString());
        }
    }

    void anotherCardModeChangesWhatAnUnchangedFileSays() {
        m_pFixture->setUserFile(Golden);
        settle();
        QString name;
        for (const char* mode : {"2", "1", "2"}) {
            useCard("1", mode);
            QList<DialupProfile> profiles;
            xml()->GetAllProfileFromUserDataXML(&profiles, &name, QString(), nullptr);
            QCOMPARE(name, QString(qstrcmp(mode, "2") == 0 ? "a" : "w"));
        }
    }

    void brokenFiles_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("count");

        const QByteArray whole =
            LogicFixture::profiles(LogicFixture::profile("name='A'") + LogicFixture::profile("name='B'"));
        QTest::newRow("whole") << whole << 0 << 2;
        QTest::newRow("other group type") << QByteArray(whole).replace("Dailup", "DialUp") << 0 << 2;
        QTest::newRow("other root and unknown elements")
            << QByteArray("<x><y z='1'/><Profile name='A' future='1'/></x>") << 0 << 1;
        QTest::newRow("empty") << QByteArray() << 6 << 0;
        QTest::newRow("cut in the second") << whole.left(whole.indexOf("'B'")) << 6 << 1;
        QTest::newRow("no XML") << QByteArray("name = A\n") << 6 << 0;
        QTest::newRow("binary") << QByteArray("\x00\x01\x02\xff\xfe", 5) << 6 << 0;
        QTest::newRow("wrongly encoded") << QByteArray(whole).replace("'B'", "'\xff\xc3'") << 6 << -1;
        QTest::newRow("control character") << QByteArray(whole).replace("'B'", "'\x01'") << 6 << 1;
        QTest::newRow("UTF-16") << utf16(whole) << 0 << 2;
        QTest::newRow("entity bomb") << bomb() << 6 << 0;
        QTest::newRow("million attributes") << manyAttributes() << 6 << 0;
        QTest::newRow("50 MB attribute") << LogicFixture::profiles("<Profile name='" + QByteArray(50 << 20, 'x') +
                                                                   "'/>")
                                         << 0 << 1;
    }
    void brokenFiles() {
        QFETCH(QByteArray, content);
        QFETCH(int, status);
        QFETCH(int, count);
        m_pFixture->setUserFile(content);
        QList<DialupProfile> profiles;
        QString name;
        QCOMPARE(xml()->GetAllProfileFromUserDataXML(&profiles, &name, QString(), nullptr), status);
        if (count >= 0) QCOMPARE(profiles.size(), count);
        QCOMPARE(!xml()->lastProblem().isNull(), status != 0);
        if (status != 0) QCOMPARE(xml()->lastProblem().file, m_pFixture->folder.userFile());
        QCOMPARE(TestFolder::read(m_pFixture->folder.userFile()), content);

        settle();  // from now on the file is not parsed again, and still says the same
        for (int pass = 0; pass < 2; ++pass) {
            QList<DialupProfile> again;
            QCOMPARE(xml()->GetAllProfileFromUserDataXML(&again, &name, QString(), nullptr), status);
            QCOMPARE(again.size(), profiles.size());
            QCOMPARE(!xml()->lastProblem().isNull(), status != 0);
        }
    }

    void placesThatAreNoFile_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("readStatus");
        QTest::addColumn<int>("writeStatus");
        QTest::newRow("missing") << "new.prof" << 23 << 0;
        QTest::newRow("missing folder") << "nowhere/new.prof" << 23 << 25;
        QTest::newRow("folder") << "folder" << 25 << 25;
        QTest::newRow("pipe") << "pipe" << 25 << 25;
        QTest::newRow("below a file") << "file/x.prof" << 23 << 25;
    }
    void placesThatAreNoFile() {
        QFETCH(QString, name);
        QDir().mkpath(m_pFixture->folder.path("folder"));
        TestFolder::write(m_pFixture->folder.path("file"), "x");
        QCOMPARE(::mkfifo(QFile::encodeName(m_pFixture->folder.path("pipe")).constData(), 0600), 0);
        const QString path = m_pFixture->folder.path(name);
        QList<DialupProfile> profiles;
        QString defaultName;
        QTEST(xml()->GetAllProfileFromUserDataXML(&profiles, &defaultName, path, nullptr), "readStatus");
        QTEST(xml()->SaveProfileToXML(profiles, defaultName, path, false), "writeStatus");
    }

    void noUserDataDirectory() {
        TestFolder::write(m_pFixture->folder.path("data"), "a file in the way");
        QList<DialupProfile> profiles;
        QString name;
        QCOMPARE(xml()->GetAllProfileFromUserDataXML(&profiles, &name, QString(), nullptr), 23);
        QCOMPARE(xml()->SaveProfileToXML(profiles, name, QString(), false), 25);
        QVERIFY(!QFile::exists("UserProfile.prof"));
    }

    void exportsHoldProfilesAlone() {
        useCard("1", "2");
        const QString path = m_pFixture->folder.path("export.prof");
        QCOMPARE(xml()->SaveProfileToXML({LogicFixture::named("A")}, "A", path, true), 0);
        QVERIFY(!TestFolder::read(path).contains("Default"));
        QVERIFY(xml()->rememberedDefaults().cdma.name.isEmpty());
    }

    void aFailedSaveRemembersNothing() {
        useCard("1", "2");
        TestFolder::write(m_pFixture->folder.path("data"), "a file in the way");
        QCOMPARE(xml()->SaveProfileToXML({}, "A", QString(), true), 25);
        QVERIFY(xml()->rememberedDefaults().cdma.name.isEmpty());
    }

    void writtenTextIsCleaned_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kept");
        const QString emoji = QString::fromUtf8("\xf0\x9f\x98\x80");
        QTest::newRow("plain") << "a\"<&>'b"
                               << "a\"<&>'b";
        QTest::newRow("control") << QString("a\x01\x1f\u000b") + "b"
                                 << "ab";
        QTest::newRow("null") << QString("a") + QChar(0) + "b"
                              << "ab";
        QTest::newRow("white space") << "a\tb\nc\rd"
                                     << "a\tb\nc\rd";
        QTest::newRow("pair") << emoji << emoji;
        QTest::newRow("first half") << emoji.left(1) + "x"
                                    << "x";
        QTest::newRow("second half") << "x" + emoji.mid(1) << "x";
        QTest::newRow("half before a pair") << emoji.left(1) + emoji << emoji;
        QTest::newRow("not a character") << QString(QChar(0xffff)) + QChar(0xfffe) + "x"
                                         << "x";
    }
    void writtenTextIsCleaned() {
        QFETCH(QString, name);
        QCOMPARE(xml()->SaveProfileToXML({LogicFixture::named(name)}, name, QString(), false), 0);
        QList<DialupProfile> profiles;
        QString defaultName;
        QCOMPARE(xml()->GetAllProfileFromUserDataXML(&profiles, &defaultName, QString(), nullptr), 0);
        QTEST(profiles.value(0).name, "kept");
        QTEST(defaultName, "kept");
    }

    void templates_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("apn");
        QTest::newRow("first of two") << QByteArray("<v><Template apn='1' device='d'/><Template apn='2'/></v>") << 0
                                      << "1";
        QTest::newRow("none") << QByteArray("<v/>") << 0 << "before";
        QTest::newRow("broken before") << QByteArray("<v><x></v>") << 6 << "before";
        QTest::newRow("empty") << QByteArray() << 6 << "before";
        QTest::newRow("missing") << QByteArray("-") << 23 << "before";
    }
    void templates() {
        QFETCH(QByteArray, content);
        if (content != "-") m_pFixture->folder.ship("SysProfile.prof", content);
        DialupProfile profile;
        profile.apn = profile.langid = "before";
        QTEST(xml()->GetProfileTemplateFromSysXML(&profile), "status");
        QTEST(profile.apn, "apn");
        QCOMPARE(profile.langid, QString("before"));
    }

    void templateIsRewrittenReadableForOthers() {
        QHash<QString, NetConnectXML> items;
        QCOMPARE(xml()->ModifyProfileTemplateToSysXML(nullptr), 23);
        QCOMPARE(xml()->ModifyProfileTemplateToSysXML(&items), 23);
        items["apn"].value = "internet";
        items["device"].value = "never written";
        items["unknown"].value = "never written";
        QCOMPARE(xml()->ModifyProfileTemplateToSysXML(&items), 0);
        const QString path = m_pFixture->folder.pluginDir() + "/SysProfile.prof";
        QCOMPARE(
            TestFolder::read(path),
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<vrksdoc type=\"Profile\">\n"
                       "    <Default Default=\"kestra\" type=\"DialUp\"/>\n    <ProfileGroup type=\"Dailup\">\n"
                       "        <Template name=\"\" type=\"\" readonly=\"\" user=\"\" password=\"\" phonenumber=\"\""
                       " autoapn=\"\" apn=\"internet\" chap=\"\" pap=\"\" ip=\"\" dns=\"\" dnsalt=\"\" wins=\"\""
                       " winsalt=\"\" popusername=\"\" Remember=\"\"/>\n    </ProfileGroup>\n</vrksdoc>\n"));
        QVERIFY(QFile::permissions(path) & QFile::ReadOther);
    }

private:
    static NetConnectXMLParse* xml() { return NetConnectXMLParse::GetInstance(); }
    static void useCard(const QByteArray& multiMode, const QByteArray& mode) {
        QCOMPARE(vrks_simulated_set("MULTI_MODE", multiMode.isNull() ? nullptr : multiMode.constData()), 0L);
        QCOMPARE(vrks_simulated_set("CARD_MODE", mode.constData()), 0L);
    }
    // A file that has just changed is read again whatever its times say.
    static void settle() { QTest::qWait(130); }

    static QByteArray utf16(const QByteArray& text) {
        const QString wide = QString::fromLatin1(text).replace("UTF-8", "UTF-16").prepend(QChar(0xfeff));
        return QByteArray(reinterpret_cast<const char*>(wide.utf16()), wide.size() * 2);
    }
    static QByteArray bomb() {
        QByteArray type = "<!DOCTYPE v [<!ENTITY a0 \"lol\">";
        for (int i = 1; i < 20; ++i) {
            const QByteArray earlier = "&a" + QByteArray::number(i - 1) + ";";
            type += "<!ENTITY a" + QByteArray::number(i) + " \"" + earlier.repeated(10) + "\">";
        }
        return type + "]><v><Profile name=\"&a19;\"/></v>";
    }
    static QByteArray manyAttributes() {
        QByteArray content = "<v><Profile";
        for (int i = 0; i < 1000000; ++i) content += " a" + QByteArray::number(i) + "='='";
        return content + "/></v>";
    }
};

QTEST_MAIN(tst_profilefile)
#include "tst_profilefile.moc"

// What orbisctl shows, and what it says when it can't.

#include "OrbisctlFixture.h"

class TestOrbisctlReading : public QObject {
    Q_OBJECT

private slots:
    void rightCommandLine_data();
    void rightCommandLine();
    void json_data();
    void json();
    void listTellsSourcesAndDefault();
    void explainGoesOnAfterNonsense();
    void explainAnswersManyAtOnce();
    void customisedConfigurationWithoutPresets();
    void readingLeavesTheFile_data();
    void readingLeavesTheFile();
    void badFile_data();
    void badFile();
    void missingFile();
    void folderInTheWay();
    void secretsStayHidden();
    void completion_data();
    void completion();
};

void TestOrbisctlReading::rightCommandLine_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("help") << QStringList{"--help"} << QByteArray("explain");
    QTest::newRow("help of a command") << QStringList{"show", "--help"} << QByteArray("--secrets");
    QTest::newRow("version") << QStringList{"--version"} << QByteArray("orbisctl ");
    QTest::newRow("options first") << QStringList{"--json", "--device", "none", "list"} << QByteArray("Generic");
    QTest::newRow("options last") << QStringList{"list", "--device", "none", "--json"} << QByteArray("Generic");
    QTest::newRow("after hyphens") << QStringList{"--json", "show", "--", "Beta"} << QByteArray("beta.example");
}

void TestOrbisctlReading::rightCommandLine() {
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, words);
    const OrbisctlFixture fixture;
    const Outcome outcome = fixture.run(arguments);
    COMPARE_DONE(outcome);
    QVERIFY2(outcome.out.contains(words), outcome.out);
}

void TestOrbisctlReading::json_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("list") << QStringList{"list"}
                          << QByteArray(R"({"profiles":[{"default":true,"name":"Alpha","source":"preset"},)"
                                        R"({"default":false,"name":"Beta","source":"preset"},)"
                                        R"({"default":false,"name":"Own","source":"user"}]})");
    QTest::newRow("show") << QStringList{"show", "Alpha"}
                          << QByteArray(R"({"Remember":"","apn":"alpha.example","autoapn":"false","chap":"true",)"
                                        R"("device":"","dns":"","dnsalt":"","encrypttype":"2","ip":"","langid":"",)"
                                        R"("name":"Alpha","pap":"true","password":null,"phonenumber":"*99#",)"
                                        R"("popusername":"false","readonly":"false","type":"","user":"alpha",)"
                                        R"("wins":"","winsalt":""})");
    QTest::newRow("default") << QStringList{"default"} << QByteArray(R"({"name":"Alpha","userSet":false})");
    QTest::newRow("explain") << QStringList{"explain", "262010000000001"}
                             << QByteArray(R"({"default":"Alpha","imsi":"262010000000001","offered":[)"
                                           R"({"apn":"beta.example","name":"Beta"},)"
                                           R"({"apn":"alpha.example","name":"Alpha"}],"prefix":"26201"})");
    QTest::newRow("explain, no proposal") << QStringList{"explain", "26299"}
                                          << QByteArray(R"({"default":null,"imsi":"26299","offered":[)"
                                                        R"({"apn":"wide.example","name":"Wide"}],"prefix":"262"})");
    QTest::newRow("explain, no match") << QStringList{"explain", "310260"}
                                       << QByteArray(R"({"default":"Generic","imsi":"310260","offered":[)"
                                                     R"({"apn":"","name":"Generic"}],"prefix":null})");
    QTest::newRow("config") << QStringList{"config", "ENCRYPT"} << QByteArray(R"({"ENCRYPT":"true"})");
    QTest::newRow("all config") << QStringList{"config"}
                                << QByteArray(R"({"ENCRYPT":"true","IMSIAPN":"true","ProfileNameLength":"20"})");
    QTest::newRow("no device") << QStringList{"--device", "none", "device"}
                               << QByteArray(R"({"backend":"none","cardMode":null,"customizeName":null,"imsi":null,)"
                                             R"("multiMode":null,"note":null,"prefix":null,"productType":null,)"
                                             R"("proposedDefault":"Generic","simulated":false,"status":null,)"
                                             R"("systemMode":null,"systemSubMode":null,"user":null})");
}

void TestOrbisctlReading::json() {
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, expected);
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Own' phonenumber='*99#'/>");
    const Outcome outcome = fixture.run(QStringList{"--json"} + arguments);
    COMPARE_DONE(outcome);
    QCOMPARE(outcome.out, expected + '\n');
}

void TestOrbisctlReading::listTellsSourcesAndDefault() {
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Gr\xc3\xbc\xc3\x9f&#x9b;2J'/>");  // a control sequence for terminals
    const Outcome outcome = fixture.run({"list"});
    QCOMPARE(outcome.out, QByteArray("* preset Alpha\n  preset Beta\n  user   Gr\xc3\xbc\xc3\x9f\xef\xbf\xbd"
                                     "2J\n"));
    const Outcome device = fixture.run({"device"});
    QVERIFY2(device.out.contains("simulated modem"), device.out);
}

void TestOrbisctlReading::explainGoesOnAfterNonsense() {
    const OrbisctlFixture fixture;
    const Outcome outcome =
        fixture.run({"--json", "explain", "-"}, "2620a\r\n\n1234\n1234567890123456\n 26201 \n26201");
    COMPARE_REFUSED(outcome, 1, "3 of 5");
    const QList<QByteArray> lines = outcome.out.split('\n');
    QCOMPARE(lines.size(), 6);
    for (int i = 0; i < 3; ++i) QVERIFY2(lines.at(i).contains("\"note\":\"not an IMSI\""), lines.at(i));
    for (int i = 3; i < 5; ++i) QVERIFY2(lines.at(i).contains("\"prefix\":\"26201\""), lines.at(i));
}

void TestOrbisctlReading::explainAnswersManyAtOnce() {
    const OrbisctlFixture fixture;
    QByteArray imsis;
    for (int i = 0; i < 20000; ++i) imsis += "26201" + QByteArray::number(1000000000 + i) + '\n';
    QElapsedTimer timer;
    timer.start();
    const Outcome outcome = fixture.run({"--json", "explain", "-"}, imsis);
    COMPARE_DONE(outcome);
    QCOMPARE(outcome.out.count("\"prefix\":\"26201\""), 20000);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString("took %1 ms").arg(timer.elapsed())));
}

void TestOrbisctlReading::customisedConfigurationWithoutPresets() {
    const OrbisctlFixture fixture;
    qputenv("ORBISDIAL_SIM_CUSTOMIZE_NAME", "bare");
    const Outcome explained = fixture.run({"--json", "explain", "26201"});
    QCOMPARE(explained.status, 0);
    QVERIFY2(explained.err.contains("\"bare\""), explained.err);
    QCOMPARE(explained.json().value("default").toString(), QString("Generic"));
    QVERIFY(fixture.run({"--json", "device"}).json().value("note").toString().contains("\"bare\""));
}

void TestOrbisctlReading::readingLeavesTheFile_data() {
    QTest::addColumn<QByteArray>("profiles");
    QTest::addColumn<QByteArray>("defaults");
    const QByteArray own = "<Profile name='Own' phonenumber='*99#'/>";
    const QByteArray translated = "<Profile name='Own' langid='IDS_NETCONNECT_NEW_PROFILE'/>";
    QTest::newRow("translated name") << translated << QByteArray("<Default name='Own' IsUserSet='1'/>");
    QTest::newRow("automatic default") << own << QByteArray("<Default name='Alpha'/>");
    QTest::newRow("lost default") << own << QByteArray("<Default name='Gone' IsUserSet='1'/>");
    QTest::newRow("no file") << QByteArray() << QByteArray();
}

void TestOrbisctlReading::readingLeavesTheFile() {
    QFETCH(QByteArray, profiles);
    QFETCH(QByteArray, defaults);
    const OrbisctlFixture fixture;
    if (!profiles.isEmpty()) fixture.writeUser(profiles, defaults);
    const QByteArray before = TestFolder::read(fixture.userFile());
    const QString name = profiles.contains("langid") ? "New Profile" : "Alpha";
    const QString target = fixture.path("out.prof");
    const QList<QStringList> commands = {
        {"list"}, {"show", name}, {"default"}, {"explain", "26201"}, {"config"}, {"device"}, {"export", target, name}};
    for (const QStringList& command : commands) {
        COMPARE_DONE(fixture.run(command));
        QCOMPARE(TestFolder::read(fixture.userFile()), before);
        QCOMPARE(QFile::exists(fixture.userFile()), !profiles.isEmpty());
    }
    QVERIFY(TestFolder::read(target).contains("name=\"" + name.toUtf8() + '"'));
}

void TestOrbisctlReading::badFile_data() {
    QTest::addColumn<QByteArray>("content");
    const QByteArray start = "<?xml version='1.0'?><vrksdoc><ProfileGroup><Profile name='Own'/>";
    QByteArray attributes;
    for (int i = 0; i < 1000000; ++i) attributes += " a" + QByteArray::number(i) + "=''";
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("truncated") << start + "<Profile na";
    QTest::newRow("not XML") << QByteArray(
        "\x7f"
        "ELF\0\0\1",
        7);
    QTest::newRow("wrong encoding") << start +
                                           "<Profile name='Gr\xfc\xdf"
                                           "e'/></ProfileGroup></vrksdoc>";
    QTest::newRow("control character") << start + "<Profile name='a&#1;'/></ProfileGroup></vrksdoc>";
    QTest::newRow("entity bomb") << QByteArray(
        "<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>"
        "<!ENTITY c '&b;&b;&b;'>]><vrksdoc n='&c;'>&c;</vrksdoc>");
    QTest::newRow("a million attributes") << start + "<Profile" + attributes + "/></ProfileGroup></vrksdoc>";
}

// Each of the three files in turn is bad: what is readable is shown, and one line names the file.
void TestOrbisctlReading::badFile() {
    QFETCH(QByteArray, content);
    for (const QString name : {"UserProfile.prof", "NetConnectConfig.xml", "ProfileLib.prof"}) {
        const OrbisctlFixture fixture;
        const QString file = name.startsWith("User") ? fixture.userFile() : fixture.pluginDir() + '/' + name;
        TestFolder::write(file, content);
        COMPARE_REFUSED(fixture.run({"list"}), 1, QFile::encodeName(file));
        QCOMPARE(TestFolder::read(file), content);
        if (!name.startsWith("Net")) continue;
        COMPARE_REFUSED(fixture.run({"add", "New", "password=open"}), 1, QFile::encodeName(file));
        QVERIFY(!QFile::exists(fixture.userFile()));
    }
}

void TestOrbisctlReading::missingFile() {
    for (const QByteArray name : {"NetConnectConfig.xml", "ProfileLib.prof"}) {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own'/>");
        QVERIFY(QFile::remove(fixture.pluginDir() + '/' + name));
        const Outcome outcome = fixture.run({"list"});
        COMPARE_REFUSED(outcome, 1, name + ": does not exist");
        QVERIFY2(outcome.out.contains("user   Own"), outcome.out);
    }
}

void TestOrbisctlReading::folderInTheWay() {
    const OrbisctlFixture fixture;
    TestFolder::write(fixture.path("blocked"), "a file");
    for (const QString& folder : {fixture.path("blocked"), fixture.path("blocked/deeper")})
        for (const QStringList& command : {QStringList{"list"}, QStringList{"add", "New"}})
            COMPARE_REFUSED(fixture.run(command + QStringList{"--data-dir", folder}), 1, QFile::encodeName(folder));
    QCOMPARE(TestFolder::read(fixture.path("blocked")), QByteArray("a file"));

    const QString fresh = fixture.path("a b/c");
    COMPARE_DONE(fixture.run({"list", "--data-dir", fresh}));
    QCOMPARE(QFile::permissions(fresh) & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther), QFile::Permissions());
}

void TestOrbisctlReading::secretsStayHidden() {
    const OrbisctlFixture fixture;
    qputenv("ORBISDIAL_SIM_DS_USER", "device");
    qputenv("ORBISDIAL_SIM_DS_PASSWORD", "top-secret");
    const QList<QStringList> commands = {{"add", "Own", "password=top-secret"},
                                         {"show", "Own"},
                                         {"show", "Alpha"},
                                         {"set", "Own", "user=x"},
                                         {"device"},
                                         {"list"},
                                         {"export", fixture.path("out.prof"), "Own"},
                                         {"import", fixture.path("out.prof"), "--replace"},
                                         {"add", "X", "apn=top-secret="},
                                         {"add", "X", "top-secret"}};
    for (const QStringList& command : commands) {
        const Outcome outcome = fixture.run(command + QStringList{"--trace"});
        QVERIFY2(!(outcome.out + outcome.err).contains("-secret"), qPrintable(command.join(' ')));
        QVERIFY(outcome.err.count('\n') > 0);  // traces, or a refusal
    }
    QCOMPARE(fixture.show("Own").value("password").toString(), QString("top-secret"));
    QCOMPARE(fixture.show("Alpha").value("password").toString(), QString("alpha-secret"));
    qunsetenv("ORBISDIAL_SIM_DS_USER");
    qunsetenv("ORBISDIAL_SIM_DS_PASSWORD");
}

void TestOrbisctlReading::completion_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("command") << QStringList{"ex"} << QByteArray("export explain");
    QTest::newRow("name with a blank") << QStringList{"show", "My\\ o"} << QByteArray("My\\ own");
    QTest::newRow("name in quotes") << QStringList{"show", "\"My o"} << QByteArray("My own");
    QTest::newRow("name after a folder") << QStringList{"--data-dir", "/dev/null/nowhere",
                                                        "--device",   "none",
                                                        "show",       ""}
                                         << QByteArray("");
    QTest::newRow("field") << QStringList{"set", "X", "dn"} << QByteArray("dns= dnsalt=");
    QTest::newRow("flag") << QStringList{"set", "X", "chap", "=", "f"} << QByteArray("false");
    QTest::newRow("key") << QStringList{"config", "E"} << QByteArray("ENCRYPT");
    QTest::newRow("device") << QStringList{"--device", "s"} << QByteArray("simulated");
    QTest::newRow("preset") << QStringList{"add", "X", "--like", "Al"} << QByteArray("Alpha");
}

void TestOrbisctlReading::completion() {
    QFETCH(QStringList, words);
    QFETCH(QByteArray, expected);
    if (!QFileInfo::exists("/dev/fd/0")) QSKIP("bash redirects from a command through /dev/fd, which is not there");
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='My own'/>");
    QProcess bash;
    bash.start("bash", QStringList{"-c",
                                   "source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _orbisctl;"
                                   "echo \"${COMPREPLY[*]}\"",
                                   ORBISDIAL_SOURCE_DIR "/data/completions/orbisctl", ORBISCTL} +
                           words);
    QVERIFY(bash.waitForFinished());
    QCOMPARE(bash.readAllStandardOutput().trimmed(), expected);
}

QTEST_GUILESS_MAIN(TestOrbisctlReading)
#include "tst_orbisctl_reading.moc"

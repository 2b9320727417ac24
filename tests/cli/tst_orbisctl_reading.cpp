// What orbisctl shows, and what it says when it can't.

#include "OrbisctlFixture.h"
#include "Rows.h"

class TestOrbisctlReading : public QObject {
    Q_OBJECT

private slots:
    void rightCommandLine_data() {
        const Rows<QStringList, QByteArray> row("arguments", "words");
        row("help", {"--help"}, "explain");
        row("help of a command", {"show", "--help"}, "--secrets");
        row("version", {"--version"}, "orbisctl ");
        row("options first", {"--json", "--device", "none", "list"}, "Generic");
        row("options last", {"list", "--device", "none", "--json"}, "Generic");
        row("after hyphens", {"--json", "show", "--", "Beta"}, "beta.example");
        row("simulated modem", {"device"}, "simulated modem");
    }

    void rightCommandLine() {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, words);
        const Outcome outcome = OrbisctlFixture().run(arguments);
        COMPARE_DONE(outcome);
        QVERIFY2(outcome.out.contains(words), outcome.out);
    }

    void json_data() {
        const Rows<QStringList, QByteArray> row("arguments", "expected");
        row("list", {"list"},
            R"({"profiles":[{"default":true,"name":"Alpha","source":"preset"},)"
            R"({"default":false,"name":"Beta","source":"preset"},{"default":false,"name":"Own","source":"user"}]})");
        row("show", {"show", "Alpha"},
            R"({"Remember":"","apn":"alpha.example","autoapn":"false","chap":"true","device":"","dns":"","dnsalt":"",)"
            R"("encrypttype":"2","ip":"","langid":"","name":"Alpha","pap":"true","password":null,)"
            R"("phonenumber":"*99#","popusername":"false","readonly":"false","type":"","user":"alpha","wins":"",)"
            R"("winsalt":""})");
        row("default", {"default"}, R"({"name":"Alpha","userSet":false})");
        row("explain", {"explain", "262010000000001"},
            R"({"default":"Alpha","imsi":"262010000000001","offered":[{"apn":"beta.example","name":"Beta"},)"
            R"({"apn":"alpha.example","name":"Alpha"}],"prefix":"26201"})");
        row("explain, no proposal", {"explain", "26299"},
            R"({"default":null,"imsi":"26299","offered":[{"apn":"wide.example","name":"Wide"}],"prefix":"262"})");
        row("explain, no match", {"explain", "310260"},
            R"({"default":"Generic","imsi":"310260","offered":[{"apn":"","name":"Generic"}],"prefix":null})");
        row("config", {"config", "ENCRYPT"}, R"({"ENCRYPT":"true"})");
        row("all config", {"config"}, R"({"ENCRYPT":"true","IMSIAPN":"true","ProfileNameLength":"20"})");
        row("no device", {"--device", "none", "device"},
            R"({"backend":"none","cardMode":null,"customizeName":null,"imsi":null,"multiMode":null,"note":null,)"
            R"("prefix":null,"productType":null,"proposedDefault":"Generic","simulated":false,"status":null,)"
            R"("systemMode":null,"systemSubMode":null,"user":null})");
    }

    void json() {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, expected);
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='*99#'/>");
        const Outcome outcome = fixture.run(QStringList{"--json"} + arguments);
        COMPARE_DONE(outcome);
        QCOMPARE(outcome.out, expected + '\n');
    }

    void listTellsSourcesAndDefault() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Gr\u00fc\u00df&#x9b;2J'/>");  // a control sequence for terminals
        const QByteArray expected = "* preset Alpha\n  preset Beta\n  user   Gr\u00fc\u00df\ufffd2J\n";
        QCOMPARE(fixture.run({"list"}).out, expected);
    }

    void explainGoesOnAfterNonsense() {
        const Outcome outcome =
            OrbisctlFixture().run({"--json", "explain", "-"}, "2620a\r\n\n1234\n1234567890123456\n 26201 \n26201");
        COMPARE_REFUSED(outcome, 1, "3 of 5");
        const QList<QByteArray> lines = outcome.out.split('\n');
        QCOMPARE(lines.size(), 6);
        for (int i = 0; i < 5; ++i)
            QVERIFY2(lines.at(i).contains(i < 3 ? R"("note":"not an IMSI")" : R"("prefix":"26201")"), lines.at(i));
    }

    // In less than the half minute that a program is given.
    void explainAnswersManyAtOnce() {
        const int count = 20000;
        const Outcome outcome =
            OrbisctlFixture().run({"explain", "-"}, QByteArray("262011000000000\n").repeated(count));
        COMPARE_DONE(outcome);
        QCOMPARE(outcome.out.count(": prefix 26201"), count);
    }

    void customisedConfigurationWithoutPresets() {
        const OrbisctlFixture fixture;
        qputenv("ORBISDIAL_SIM_CUSTOMIZE_NAME", "bare");
        const Outcome explained = fixture.run({"--json", "explain", "26201"});
        QCOMPARE(explained.status, 0);
        QVERIFY2(explained.err.contains("\"bare\""), explained.err);
        QCOMPARE(explained.json()["default"].toString(), QString("Generic"));
        QVERIFY(fixture.run({"--json", "device"}).json()["note"].toString().contains("\"bare\""));
    }

    void readingLeavesTheFile_data() {
        const Rows<QByteArray> row("defaults");
        row("translated name", "<Default name='Own' IsUserSet='1'/>");
        row("automatic default", "<Default name='Alpha'/>");
        row("lost default", "<Default name='Gone' IsUserSet='1'/>");
        row("no file", {});
    }

    void readingLeavesTheFile() {
        QFETCH(QByteArray, defaults);
        const OrbisctlFixture fixture;
        const bool hasFile = !defaults.isNull();
        if (hasFile) fixture.writeUser("<Profile name='Own' langid='IDS_NETCONNECT_NEW_PROFILE'/>", defaults);
        const QByteArray before = TestFolder::read(fixture.userFile());
        const QString name = hasFile ? "New Profile" : "Alpha", target = fixture.path("out.prof");
        const QList<QStringList> commands = {
            {"list"},   {"show", name},          {"default"}, {"explain", "26201"}, {"config"},
            {"device"}, {"export", target, name}};
        for (const QStringList& command : commands) {
            COMPARE_DONE(fixture.run(command));
            QCOMPARE(TestFolder::read(fixture.userFile()), before);
            QCOMPARE(QFile::exists(fixture.userFile()), hasFile);
        }
        QVERIFY(TestFolder::read(target).contains("name=\"" + name.toUtf8() + '"'));
    }

    void badFile_data() {
        const Rows<QByteArray> row("content");
        const QByteArray start = "<?xml version='1.0'?><vrksdoc><ProfileGroup><Profile name='Own'/>";
        QByteArray attributes;
        for (int i = 0; i < 1000000; ++i) attributes += " a" + QByteArray::number(i) + "=''";
        row("missing", {});
        row("empty", "");
        row("truncated", start + "<Profile na");
        row("wrong encoding", start + "<Profile name='Gr\xfc\xdf'/></ProfileGroup></vrksdoc>");
        row("a million attributes", start + "<Profile" + attributes + "/></ProfileGroup></vrksdoc>");
    }

    // Each of the three files in turn is bad: what is readable is shown, and one line names the file.
    void badFile() {
        QFETCH(QByteArray, content);
        for (const QString name : {"NetConnectConfig.xml", "ProfileLib.prof", "UserProfile.prof"}) {
            const OrbisctlFixture fixture;
            const bool isUsers = name.startsWith("User");
            const QString file = isUsers ? fixture.userFile() : fixture.pluginDir() + '/' + name;
            fixture.writeUser("<Profile name='Own'/>");
            const QByteArray before = isUsers ? content : TestFolder::read(fixture.userFile());
            TestFolder::write(file, content);
            if (content.isNull()) QFile::remove(file);
            if (content.isNull() && isUsers) continue;  // nobody has profiles at first
            const QByteArray words = QFile::encodeName(file) + (content.isNull() ? ": does not exist" : "");
            const Outcome outcome = fixture.run({"list"});
            COMPARE_REFUSED(outcome, 1, words);
            QVERIFY2(isUsers || outcome.out.contains("user   Own"), outcome.out);
            if (name.startsWith("Net")) COMPARE_REFUSED(fixture.run({"add", "New", "password=open"}), 1, words);
            QCOMPARE(TestFolder::read(file), content);
            QCOMPARE(TestFolder::read(fixture.userFile()), before);
        }
    }

    void folderInTheWay() {
        const OrbisctlFixture fixture;
        TestFolder::write(fixture.path("blocked"), "a file");
        for (const QString& folder : {fixture.path("blocked"), fixture.path("blocked/deeper")})
            for (const QStringList& command : {QStringList{"list"}, QStringList{"add", "New"}})
                COMPARE_REFUSED(fixture.run(command + QStringList{"--data-dir", folder}), 1, QFile::encodeName(folder));
        QCOMPARE(TestFolder::read(fixture.path("blocked")), QByteArray("a file"));
        COMPARE_DONE(fixture.run({"list", "--data-dir", fixture.path("a b/c")}));
    }

    void secretsStayHidden() {
        const OrbisctlFixture fixture;
        qputenv("ORBISDIAL_SIM_DS_USER", "device");
        qputenv("ORBISDIAL_SIM_DS_PASSWORD", "top-secret");
        for (const QStringList& command :
             {QStringList{"add", "Own", "password=top-secret"}, QStringList{"show", "Alpha"}, QStringList{"device"},
              QStringList{"add", "X", "apn=top-secret="}, QStringList{"add", "X", "top-secret"}}) {
            const Outcome outcome = fixture.run(command + QStringList{"--trace"});
            QVERIFY2(!(outcome.out + outcome.err).contains("-secret"), qPrintable(command.join(' ')));
            QVERIFY(outcome.err.count('\n') > 0);  // traces, or a refusal
        }
        QCOMPARE(fixture.show("Alpha")["password"].toString(), QString("alpha-secret"));
        qunsetenv("ORBISDIAL_SIM_DS_USER");
        qunsetenv("ORBISDIAL_SIM_DS_PASSWORD");
    }

    void completion_data() {
        const Rows<QStringList, QByteArray> row("words", "expected");
        row("command", {"ex"}, "export explain");
        row("name with a blank", {"show", "My\\ o"}, "My\\ own");
        row("name in quotes", {"show", "\"My o"}, "My own");
        row("name after a folder", {"--data-dir", "/dev/null/nowhere", "--device", "none", "show", ""}, "");
        row("field", {"set", "X", "dn"}, "dns= dnsalt=");
        row("flag", {"set", "X", "chap", "=", "f"}, "false");
        row("key", {"config", "E"}, "ENCRYPT");
        row("device", {"--device", "s"}, "simulated");
        row("preset", {"add", "X", "--like", "Al"}, "Alpha");
    }

    void completion() {
        QFETCH(QStringList, words);
        if (!QFileInfo::exists("/dev/fd/0")) QSKIP("bash redirects from a command through /dev/fd, which is not there");
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='My own'/>");
        const QString script =
            "source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _orbisctl; echo \"${COMPREPLY[*]}\"";
        QProcess bash;
        bash.start("bash",
                   QStringList{"-c", script, ORBISDIAL_SOURCE_DIR "/data/completions/orbisctl", ORBISCTL} + words);
        QVERIFY(bash.waitForFinished());
        QTEST(bash.readAllStandardOutput().trimmed(), "expected");
    }
};

QTEST_GUILESS_MAIN(TestOrbisctlReading)
#include "tst_orbisctl_reading.moc"

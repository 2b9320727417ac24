// SPDX-License-Identifier: MIT
// How orbisctl changes the user's profiles, and what it refuses.

#include "OrbisctlFixture.h"
#include "Rows.h"

static QByteArray document(const QByteArray& profiles, const QByteArray& rest = QByteArray()) {
    return "<vrksdoc><ProfileGroup>" + profiles + "</ProfileGroup>" + rest + "</vrksdoc>";
}

class tst_orbisctl_changing : public QObject {
    Q_OBJECT

private slots:
    void roundTrip() {
        const OrbisctlFixture fixture;
        const QString name = "Gr\u00fc\u00dfe 1", file = fixture.path("out.prof");
        const Outcome added = fixture.run(
            {"add", name, "type=t", "device=d", "user=a <&> \"b\"", "password=-", "phonenumber=*99***1#", "apn=a.b-c",
             "autoapn=false", "chap=true", "pap=false", "ip=10.0.0.1", "dns=9.9.9.9", "dnsalt=223.255.255.255",
             "wins=1.2.3.4", "winsalt=0.0.0.0", "popusername=true", "Remember=false"},
            "s3cr=\u00e9'\"");
        QCOMPARE(added.status, 0);
        QVERIFY2(
            added.err.count('\n') == 2 && added.err.contains("IP address has no effect") && added.err.contains("WINS"),
            added.err);
        const QJsonObject before = fixture.show(name);
        QCOMPARE(before.size(), 20);
        QCOMPARE(before["password"].toString(), QString("s3cr=\u00e9'\""));
        QCOMPARE(before["user"].toString(), QString("a <&> \"b\""));
        QCOMPARE(before["winsalt"].toString(), QString(""));

        COMPARE_REFUSED(fixture.run({"export", fixture.path("data/../data/UserProfile.prof"), "Alpha"}), 1, "export");
        COMPARE_DONE(fixture.run({"export", file, name}));
        for (const QString& path : {file, fixture.userFile()}) {
            QCOMPARE(QFile::permissions(path) & 0x7777, QFile::Permissions(0x6600));
            QVERIFY(!TestFolder::read(path).contains("s3cr"));
            QVERIFY(TestFolder::read(path).contains("encrypttype=\"2\""));
        }
        COMPARE_DONE(fixture.run({"delete", name}));
        QCOMPARE(fixture.run({"show", name}).status, 3);
        COMPARE_DONE(fixture.run({"import", file}));
        QCOMPARE(fixture.show(name), before);
    }

    // Neither the listing's proposal nor its end writes beside it.
    void aCommandReadsOnceAndWritesOnce() {
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run({"add", "Mine", "apn=a", "phonenumber=*99#"}));
        QVERIFY(TestFolder::read(fixture.userFile()).contains("<Default name=\"\"/>"));
        const Outcome outcome = fixture.run({"--trace", "set", "Mine", "apn=b"});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err.count(" SaveProfileToXML: Entered"), 1);
        QCOMPARE(outcome.err.count(" GetSettingsFromXML: Entered"), 1);
        QVERIFY(TestFolder::read(fixture.userFile()).contains("<Default name=\"\"/>"));
    }

    void refusal_data() {
        const Rows<QStringList, int, QByteArray> row("arguments", "status", "words");
        row("no command", {}, 2, "--help");
        row("unknown command", {"frob"}, 2, "\"frob\"");
        row("too few arguments", {"show"}, 2, "show NAME");
        row("unknown profile", {"show", "own"}, 3, "\"own\"");
        row("unknown field", {"set", "Own", "colour=red"}, 2,
            "name type device user password phonenumber autoapn apn chap pap ip dns dnsalt wins winsalt popusername "
            "Remember\n");
        row("preset's name", {"add", "Beta"}, 4, "already");
        row("forbidden character", {"add", "a:b"}, 1, "\\/:*?[]()<>|");
        row("long name", {"add", "123456789012345678901"}, 1, "20");
        row("wrong APN", {"add", "New", "apn=a_b"}, 1, "apn");
        row("multicast address", {"add", "New", "dns=224.0.0.1"}, 1, "IPv4");
        row("password beyond Latin-1", {"add", "New", "password=\u20ac"}, 1, "Latin-1");
        row("change of a preset", {"set", "Alpha", "user=a"}, 4, "--like \"Alpha\"");
        row("change of a read-only one", {"set", "Fixed", "user=a"}, 4, "--like \"Fixed\"");
        row("name of another", {"set", "Own", "name=Fixed"}, 4, "already");
        row("deletion of a preset", {"delete", "Alpha"}, 4, "preset");
        row("unknown default", {"default", "Nope"}, 3, "\"Nope\"");
        row("import of no file", {"import", "/dev/null/nowhere/x"}, 3, "/dev/null/nowhere/x: does not exist");
        row("export to no folder", {"export", "/dev/null/nowhere/x", "Own"}, 1, "/dev/null/nowhere/x");
    }

    void refusal() {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, words);
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='1' langid=''/><Profile name='Fixed' readonly='true'/>",
                          "<Default name='Alpha'/>");
        const QByteArray before = TestFolder::read(fixture.userFile());
        const Outcome outcome = fixture.run(arguments);
        COMPARE_REFUSED(outcome, status, words);
        QCOMPARE(outcome.out, QByteArray());
        QCOMPARE(TestFolder::read(fixture.userFile()), before);
    }

    void acceptance_data() {
        const Rows<QStringList, QJsonObject> row("fields", "expected");
        row("an APN is used", {"apn=x"}, {{"apn", "x"}, {"autoapn", "false"}});
        row("an APN is kept", {"apn=x", "autoapn=true"}, {{"apn", "x"}, {"autoapn", "true"}});
        row("copy of a preset", {"user=me", "--like=Alpha"},
            {{"apn", "alpha.example"}, {"user", "me"}, {"password", "alpha-secret"}});
    }

    void acceptance() {
        QFETCH(QStringList, fields);
        QFETCH(QJsonObject, expected);
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run(QStringList{"add", "x y"} + fields));
        const QJsonObject shown = fixture.show("x y");
        for (const QString& field : expected.keys()) QCOMPARE(shown[field], expected[field]);
    }

    void passwordFromStandardInput_data() {
        const Rows<QByteArray, QString> row("input", "password");
        row("line", "se cret\nrest\n", "se cret");
        row("line end of another system", "x\r\n", "x");
        row("nothing", "", QString());
        row("not UTF-8", "\xff\n", QString());
    }

    void passwordFromStandardInput() {
        QFETCH(QByteArray, input);
        QFETCH(QString, password);
        const OrbisctlFixture fixture;
        const Outcome outcome = fixture.run({"add", "New", "password=-"}, input);
        if (password.isNull()) {
            COMPARE_REFUSED(outcome, 1, "standard input");
            return;
        }
        COMPARE_DONE(outcome);
        QCOMPARE(fixture.show("New")["password"].toString(), password);
    }

    // Others see it in the list of processes.
    void passwordOnTheCommandLineIsWarnedAbout() {
        const OrbisctlFixture fixture;
        for (const QByteArray command : {"add", "set"}) {
            const Outcome outcome = fixture.run({command, "New", "password=secret"});
            QCOMPARE(outcome.status, 0);
            QVERIFY2(outcome.err.startsWith("orbisctl: warning: ") && outcome.err.contains("password=-"), outcome.err);
            QVERIFY2(!outcome.err.contains("secret"), outcome.err);
            COMPARE_DONE(fixture.run({"set", "New", "password="}));
        }
    }

    // What can't be changed, or hardly be named, can still be deleted.
    void deletion_data() { nameRows("name", {"Fixed", ""}); }
    void deletion() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Fixed' readonly='true'/><Profile name=''/>", "<Default name='Alpha'/>");
        COMPARE_DONE(fixture.run({"delete", cell("name")}));
        const QByteArray left = TestFolder::read(fixture.userFile());
        QVERIFY2(!left.contains("<Profile name=\"" + cell("name").toUtf8() + '"'), left);
        QCOMPARE(left.count("<Profile name"), 1);
        COMPARE_REFUSED(fixture.run({"delete", cell("name")}), 3, "there is no profile");
    }

    void deletesAllOrNone() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='A'/><Profile name='-B'/><Profile name='C'/>", "<Default name='A'/>");
        const QByteArray before = TestFolder::read(fixture.userFile());
        COMPARE_REFUSED(fixture.run({"delete", "A", "Nope"}), 3, "Nope");
        COMPARE_REFUSED(fixture.run({"delete", "A", "Alpha"}), 4, "preset");
        QCOMPARE(TestFolder::read(fixture.userFile()), before);
        const Outcome deleted = fixture.run({"--json", "delete", "--", "A", "-B", "A"});
        COMPARE_DONE(deleted);
        QCOMPARE(deleted.out, QByteArray("{\"deleted\":\"A\"}\n{\"deleted\":\"-B\"}\n"));
        QCOMPARE(TestFolder::read(fixture.userFile()).count("<Profile name"), 1);
    }

    void configurationIsReadOnce_data() {
        const Rows<QStringList> row("command");
        row("add", {"add", "New"});
        row("set", {"set", "Own", "user=x"});
        row("delete", {"delete", "Own"});
        row("default", {"default", "Beta"});
        row("import", {"import", "in.prof"});
    }
    void configurationIsReadOnce() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='1'/>");
        QStringList command = cell<QStringList>("command");
        if (command.last() == "in.prof") command.last() = fixture.path("in.prof");
        TestFolder::write(fixture.path("in.prof"), document("<Profile name='New'/>"));
        const Outcome outcome = fixture.run(QStringList("--trace") + command);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err.count(": getConfigData: \n"), 1);
    }

    // Renamed, deleted, chosen, cleared.
    void defaultFollows() {
        const OrbisctlFixture fixture;
        const auto isDefault = [&](const QString& name, bool isUserSet) {
            QCOMPARE(fixture.run({"default", "--json"}).json(), (QJsonObject{{"name", name}, {"userSet", isUserSet}}));
        };
        fixture.writeUser("<Profile name='Own' phonenumber='1'/>", "<Default name='Own' IsUserSet='1'/>");
        COMPARE_DONE(fixture.run({"set", "Own", "name=Renamed", "password=-"}, "new"));
        isDefault("Renamed", true);
        QCOMPARE(fixture.show("Renamed")["password"].toString(), QString("new"));
        COMPARE_DONE(fixture.run({"delete", "Renamed"}));
        QVERIFY(TestFolder::read(fixture.userFile()).contains("<Default name=\"\"/>"));
        COMPARE_DONE(fixture.run({"default", "Beta"}));
        isDefault("Beta", true);
        COMPARE_DONE(fixture.run({"default", "--clear"}));
        isDefault("Alpha", false);
    }

    void importing_data() {
        const Rows<QStringList, int, QByteArray, QString> row("arguments", "status", "out", "user");
        const QByteArray skipped = "skipped  Own (exists; see --replace)\n";
        row("all", {}, 0, "imported New\n" + skipped, "old");
        row("replace", {"--replace"}, 0, "imported New\nreplaced Own\n", "new");
        row("one, twice", {"New", "New"}, 0, "imported New\n", "old");
        row("there already", {"Own"}, 0, skipped, "old");
        row("not in the file", {"Nope"}, 3, "", "old");
    }

    // The file's default is nobody's here.
    void importing() {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' user='old'/>", "<Default name='Own' IsUserSet='1'/>");
        const QString file = fixture.path("in.prof");
        TestFolder::write(file, document("<Profile name='Own' user='new'/><Profile name='New' user='new'/>",
                                         "<Default name='New' IsUserSet='1'/>"));
        const Outcome outcome = fixture.run(QStringList{"import", file} + arguments);
        QTEST(outcome.out, "out");
        QCOMPARE(outcome.status, status);
        QVERIFY2(!arguments.contains("Nope") || outcome.err.contains("\"Nope\""), outcome.err);
        QTEST(fixture.show("Own")["user"].toString(), "user");
        QCOMPARE(TestFolder::read(fixture.userFile()).count("<Profile name"), outcome.out.contains("imported") ? 2 : 1);
        QCOMPARE(fixture.run({"default", "--json"}).json(), (QJsonObject{{"name", "Own"}, {"userSet", true}}));
    }

    // Twice the same, sealed anew or plain; nothing is written for it.
    void importingWhatIsThere() {
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run({"add", "Same", "password=-"}, "secret"));
        const QByteArray exported = fixture.run({"export", "--all", "-"}).out;
        COMPARE_DONE(fixture.run({"set", "Same", "password=-"}, "secret"));
        const QByteArray before = TestFolder::read(fixture.userFile());
        QVERIFY(before != exported);
        const Outcome outcome = fixture.run({"import", "-", "--replace"}, exported);
        COMPARE_DONE(outcome);
        QCOMPARE(outcome.out, QByteArray("same     Same\n"));
        QCOMPARE(TestFolder::read(fixture.userFile()), before);
        COMPARE_DONE(fixture.run({"set", "Same", "password=-"}, "another"));
        QCOMPARE(fixture.run({"import", "-", "--replace"}, exported).out, QByteArray("replaced Same\n"));
        QCOMPARE(fixture.show("Same")["password"].toString(), QString("secret"));
    }

    // Kept as it came, with a word about what nobody could have entered.
    void importJudges_data() {
        const Rows<QByteArray, QByteArray> row("profile", "words");
        row("name", "name='a/b' phonenumber='1'", "must not contain");
        row("long name", "name='a name of 21 letters.' phonenumber='1'", "at most 20");
        row("number", "name='New'", "access number");
        row("apn", "name='New' phonenumber='1' apn='a_b'", "apn: may hold");
        row("flag", "name='New' phonenumber='1' chap='True'", "chap: must be");
        row("good", "name='New' phonenumber='1' chap='true' dns='0.0.0.0'", "");
    }
    void importJudges() {
        const OrbisctlFixture fixture;
        const QByteArray words = cell<QByteArray>("words");
        const Outcome outcome =
            fixture.run({"import", "-"}, document("<Profile " + cell<QByteArray>("profile") + "/>"));
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.err.startsWith("orbisctl: warning: ") == !words.isEmpty(), outcome.err);
        QVERIFY2(outcome.err.contains(words) && outcome.err.count('\n') == (words.isEmpty() ? 0 : 1), outcome.err);
        QCOMPARE(TestFolder::read(fixture.userFile()).count("<Profile name"), 1);
    }

    void importWarnsOfUnreadablePasswords() {
        const OrbisctlFixture fixture;
        TestFolder::write(fixture.path("in.prof"),
                          document("<Profile name='Coded' password='n0t b64' encrypttype='1'/>"
                                   "<Profile name='Text' password='password'/>"
                                   "<Profile name='Good' password='c2VjcmV0'/>"
                                   "<Profile name='Plain' password='n0t b64' encrypttype='2'/>"));
        const Outcome outcome = fixture.run({"import", fixture.path("in.prof")});
        QCOMPARE(outcome.status, 0);
        for (const QByteArray name : {"Coded", "Text", "Good", "Plain"})
            QVERIFY2(outcome.err.contains("password of \"" + name + '"') == (name == "Coded" || name == "Text"),
                     outcome.err);
    }

    void backup_data() {
        const Rows<QByteArray, QString> row("defaults", "default");
        row("own", "<Default name='Own' IsUserSet='1'/>", "Own");
        row("preset", "<Default name='Beta' IsUserSet='1'/>", "Beta");
        row("proposed", "<Default name='Alpha'/>", "Alpha");
    }
    // Once into another user's folder, and once more.
    void backup() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='1' langid=''/>", cell<QByteArray>("defaults"));
        COMPARE_DONE(fixture.run({"add", "Other", "password=-"}, "secret"));
        const QString file = fixture.path("backup.prof");
        COMPARE_DONE(fixture.run({"backup", file}));
        QVERIFY(!TestFolder::read(file).contains("secret"));
        QCOMPARE(QFile::permissions(file) & QFile::Permissions(0x77), QFile::Permissions());
        QCOMPARE(fixture.run({"backup", "-"}).out, TestFolder::read(file));

        qputenv("ORBISDIAL_DATA_DIR", QFile::encodeName(fixture.path("elsewhere")));
        COMPARE_DONE(fixture.run({"add", "Kept"}));
        COMPARE_DONE(fixture.run({"restore", file}));
        const QByteArray restored = TestFolder::read(fixture.path("elsewhere/UserProfile.prof"));
        COMPARE_DONE(fixture.run({"restore", "-"}, TestFolder::read(file)));
        QCOMPARE(TestFolder::read(fixture.path("elsewhere/UserProfile.prof")).size(), restored.size());
        QCOMPARE(fixture.run({"-f", "name", "default"}).out.trimmed(), cell("default").toUtf8());
        QCOMPARE(fixture.show("Other")["password"].toString(), QString("secret"));
        for (const QString name : {"Own", "Kept"}) QCOMPARE(fixture.show(name)["name"].toString(), name);
    }

    void backupRefuses_data() {
        const Rows<QStringList, int, QByteArray> row("arguments", "status", "words");
        row("own file", {"backup", "data/UserProfile.prof"}, 4, "itself");
        row("another's file", {"backup", "letter.txt"}, 4, "--force");
        row("export", {"export", "letter.txt", "Own"}, 4, "--force");
        row("nothing there", {"restore", "nowhere"}, 3, "does not exist");
        row("cut", {"restore", "cut.prof"}, 1, "line ");
        row("names and all", {"export", "--all", "out.prof", "Own"}, 2, "--all");
        row("neither", {"export", "out.prof"}, 2, "--all");
    }
    void backupRefuses() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Own' phonenumber='1' langid=''/>");
        TestFolder::write(fixture.path("letter.txt"), "Dear all,\n");
        TestFolder::write(fixture.path("cut.prof"), "<vrksdoc><ProfileGroup><Profile name='Own' user='x'/>");
        const QByteArray before = TestFolder::read(fixture.userFile());
        QStringList arguments = cell<QStringList>("arguments");
        arguments[arguments.contains("--all") ? 2 : 1].prepend(fixture.path(""));
        const Outcome outcome = fixture.run(arguments);
        COMPARE_REFUSED(outcome, cell<int>("status"), cell<QByteArray>("words"));
        QCOMPARE(TestFolder::read(fixture.userFile()), before);
        QCOMPARE(TestFolder::read(fixture.path("letter.txt")), QByteArray("Dear all,\n"));
        if (cell<int>("status") != 4 || !arguments.last().endsWith("letter.txt")) return;
        COMPARE_DONE(fixture.run(arguments << "--force"));
        QVERIFY(TestFolder::read(fixture.path("letter.txt")).contains("name=\"Own\""));
    }

    void streams() {
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run({"add", "Own", "user=me"}));
        COMPARE_DONE(fixture.run({"add", "Other", "password=-"}, "secret"));
        const Outcome exported = fixture.run({"export", "--all", "-"});
        COMPARE_DONE(exported);
        COMPARE_DONE(fixture.run({"delete", "Own", "Other"}));
        QCOMPARE(fixture.run({"import", "-"}, exported.out).out, QByteArray("imported Other\nimported Own\n"));
        QCOMPARE(fixture.show("Other")["password"].toString(), QString("secret"));
        COMPARE_REFUSED(fixture.run({"import", "-"}, "Dear all,"), 1, "standard input");
    }

    void tamperedPasswordIsNotLost() {
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run({"add", "Own", "password=-"}, "secret"));
        QByteArray content = TestFolder::read(fixture.userFile());
        const int place = content.indexOf("password=\"orbis1:") + 40;
        content[place] = content.at(place) == 'A' ? 'B' : 'A';
        TestFolder::write(fixture.userFile(), content);
        COMPARE_REFUSED(fixture.run({"show", "Own"}), 1, "\"Own\"");
        COMPARE_REFUSED(fixture.run({"set", "Own", "user=x"}), 1, "password=");
        COMPARE_REFUSED(fixture.run({"add", "New", "--like", "Own"}), 1, "password=");
        QCOMPARE(TestFolder::read(fixture.userFile()), content);
        COMPARE_DONE(fixture.run({"set", "Own", "password=-"}, "again"));
        QCOMPARE(fixture.show("Own")["password"].toString(), QString("again"));
    }

    // Two shells add profiles, two others each change a field of their own of one profile and look whether it stays.
    void shellsAtOnceLoseNothing() {
        const OrbisctlFixture fixture;
        COMPARE_DONE(fixture.run({"add", "Shared"}));
        const int rounds = 25;
        const QString loop = "for i in $(seq %1); do %2 || exit 1; done";
        const QString change = "\"$0\" set Shared %1=$i && \"$0\" show Shared | grep -qx \"%1  *$i\"";
        QList<QProcess*> shells;
        for (const QString& command : {QString("\"$0\" add \"A $i\""), QString("\"$0\" add \"B $i\""),
                                       change.arg("user"), change.arg("device")}) {
            shells.append(new QProcess(this));
            shells.last()->start("sh", {"-c", loop.arg(rounds).arg(command), ORBISCTL});
        }
        for (QProcess* shell : shells) {
            QVERIFY(shell->waitForFinished(120000));
            QVERIFY2(shell->exitCode() == 0, shell->arguments().at(1).toUtf8() + shell->readAllStandardError());
        }
        QCOMPARE(TestFolder::read(fixture.userFile()).count("<Profile name"), 2 * rounds + 1);
    }

    // Whatever figures the locale has.
    void damagedFileIsKeptUnderItsTime() {
        const OrbisctlFixture fixture;
        TestFolder::write(fixture.userFile(), "<vrksdoc>");
        const QByteArray locale = qgetenv("LC_ALL");
        qputenv("LC_ALL", "ar_EG.UTF-8");
        fixture.run({"add", "X", "phonenumber=*99#"});
        qputenv("LC_ALL", locale);
        const QStringList kept = QFileInfo(fixture.userFile()).dir().entryList({"UserProfile.prof.damaged-*"});
        QCOMPARE(kept.filter(QRegularExpression("-[0-9]{8}T[0-9]{6}Z$")).size(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_orbisctl_changing)
#include "tst_orbisctl_changing.moc"

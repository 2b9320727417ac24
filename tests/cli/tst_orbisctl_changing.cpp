// How orbisctl changes the user's profiles, and what it refuses.

#include "OrbisctlFixture.h"

class TestOrbisctlChanging : public QObject {
    Q_OBJECT

private slots:
    void roundTrip();
    void refusal_data();
    void refusal();
    void acceptance_data();
    void acceptance();
    void passwordFromStandardInput_data();
    void passwordFromStandardInput();
    void likeCopiesAPreset();
    void renamingKeepsTheDefault();
    void deletingTheDefaultClearsIt();
    void choosingTheProposalIsNoChoice();
    void importClash_data();
    void importClash();
    void importChecksNamesAndKeepsTheDefault();
    void importWarnsOfUnreadablePasswords_data();
    void importWarnsOfUnreadablePasswords();
    void exportRefusesTheUsersFile();
    void exportKeepsADamagedTarget();
    void damagedUserFileIsKept();
    void tamperedPasswordIsNotLost();
    void shellsAtOnceLoseNothing();
};

static bool isPrivate(const QString& file) {
    return (QFile::permissions(file) & 0x7777) ==
           (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
}

void TestOrbisctlChanging::roundTrip() {
    const OrbisctlFixture fixture;
    const QString file = fixture.path("out.prof");
    COMPARE_DONE(fixture.run({"add", "Gr\u00fc\u00dfe 1", "type=t", "device=d", "user=a <&> \"b\"",
                              "password=s3cr=\u00e9'\"", "phonenumber=*99***1#", "apn=a.b-c", "autoapn=false",
                              "chap=true", "pap=false", "ip=10.0.0.1", "dns=9.9.9.9", "dnsalt=223.255.255.255",
                              "wins=1.2.3.4", "winsalt=0.0.0.0", "popusername=true", "Remember=false"}));
    const QJsonObject before = fixture.show("Gr\u00fc\u00dfe 1");
    QCOMPARE(before.size(), 20);
    QCOMPARE(before.value("password").toString(), QString("s3cr=\u00e9'\""));
    QCOMPARE(before.value("user").toString(), QString("a <&> \"b\""));
    QCOMPARE(before.value("winsalt").toString(), QString(""));

    COMPARE_DONE(fixture.run({"export", file, "Gr\u00fc\u00dfe 1"}));
    for (const QString& path : {file, fixture.userFile()}) {
        QVERIFY(isPrivate(path));
        QVERIFY(!TestFolder::read(path).contains("s3cr"));
        QVERIFY(TestFolder::read(path).contains("encrypttype=\"2\""));
    }
    COMPARE_DONE(fixture.run({"delete", "Gr\u00fc\u00dfe 1"}));
    QCOMPARE(fixture.run({"show", "Gr\u00fc\u00dfe 1"}).status, 1);
    COMPARE_DONE(fixture.run({"import", file}));
    QCOMPARE(fixture.show("Gr\u00fc\u00dfe 1"), before);
}

void TestOrbisctlChanging::refusal_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("words");
    const auto row = [](const char* name, const QStringList& arguments, int status, const char* words) {
        QTest::newRow(name) << arguments << status << QByteArray(words);
    };
    row("no command", {}, 2, "--help");
    row("unknown command", {"frob"}, 2, "\"frob\"");
    row("unknown option", {"list", "--frob"}, 2, "frob");
    row("another command's option", {"list", "--secrets"}, 2, "secrets");
    row("too few arguments", {"show"}, 2, "show NAME");
    row("too many arguments", {"list", "x"}, 2, "list");
    row("option without value", {"list", "--device"}, 2, "device");
    row("unknown device", {"--device", "tin", "list"}, 2, "\"tin\"");
    row("empty folder", {"--data-dir", "", "list"}, 2, "empty");
    row("two defaults", {"default", "--clear", "Own"}, 2, "--clear");
    row("unknown profile", {"show", "own"}, 1, "\"own\"");
    row("line break in a name", {"show", "a\nb"}, 1, "\"a");
    row("unknown key", {"config", "FROB"}, 1, "\"FROB\"");
    row("no assignment", {"set", "Own", "user"}, 2, "phonenumber");
    row("unknown field", {"set", "Own", "colour=red"}, 2, "phonenumber");
    row("field twice", {"set", "Own", "user=a", "user=b"}, 2, "twice");
    row("name as field", {"add", "New", "name=Other"}, 2, "argument");
    row("read-only mark", {"set", "Own", "readonly=true"}, 2, "readonly");
    row("langid", {"set", "Own", "langid=IDS_YES"}, 2, "langid");
    row("method", {"set", "Own", "encrypttype=1"}, 2, "encrypttype");
    row("empty name", {"add", "", "user=a"}, 1, "name");
    row("blank name", {"add", "  ", "user=a"}, 1, "name");
    row("user's name", {"add", "Own"}, 1, "already");
    row("preset's name", {"add", "Beta"}, 1, "already");
    row("forbidden character", {"add", "a:b"}, 1, "\\/:*?[]()<>|");
    row("control character in a name", {"add", "a\tb"}, 1, "control");
    row("long name", {"add", "123456789012345678901"}, 1, "20");
    row("no number, wrong APN", {"add", "New", "phonenumber=", "apn=x."}, 1, "number");
    row("long number", {"add", "New", "phonenumber=1234567890123456789012345"}, 1, "24");
    row("wrong APN", {"add", "New", "apn=x."}, 1, "apn");
    row("underscore in APN", {"add", "New", "apn=a_b"}, 1, "apn");
    row("long APN", {"add", "New", "apn=" + QString(101, 'a')}, 1, "100");
    row("long user", {"add", "New", "user=" + QString(49, 'a')}, 1, "48");
    row("flag", {"add", "New", "chap=yes"}, 1, "true or false");
    row("short address", {"add", "New", "ip=10.1"}, 1, "IPv4");
    row("multicast address", {"add", "New", "dns=224.0.0.1"}, 1, "IPv4");
    row("address and line break", {"add", "New", "dns=9.9.9.9\n"}, 1, "control");
    row("password beyond Latin-1", {"add", "New", "password=\u20ac"}, 1, "Latin-1");
    row("unknown template", {"add", "New", "--like", "Nope"}, 1, "\"Nope\"");
    row("change of a preset", {"set", "Alpha", "user=a"}, 1, "--like \"Alpha\"");
    row("change of nothing", {"set", "Nope", "user=a"}, 1, "\"Nope\"");
    row("change of a read-only one", {"set", "Fixed", "user=a"}, 1, "read-only");
    row("name of another", {"set", "Own", "name=Fixed"}, 1, "already");
    row("name of a preset", {"set", "Own", "name=Alpha"}, 1, "already");
    row("deletion of a preset", {"delete", "Alpha"}, 1, "preset");
    row("deletion of a read-only one", {"delete", "Fixed"}, 1, "read-only");
    row("deletion of nothing", {"delete", "Nope"}, 1, "\"Nope\"");
    row("unknown default", {"default", "Nope"}, 1, "\"Nope\"");
    row("import of no file", {"import", "/dev/null/nowhere/x.prof"}, 1, "/dev/null/nowhere/x.prof: does not exist");
    row("import of nothing", {"import", ""}, 2, "empty");
    row("import by a bare name", {"import", "ProfileLib.prof"}, 1, "does not exist");
    row("export to nothing", {"export", "", "Own"}, 2, "empty");
    row("export of unknown ones", {"export", "/dev/null/nowhere/x", "Own", "Nope", "Never"}, 1, "\"Nope\", \"Never\"");
    row("export to no folder", {"export", "/dev/null/nowhere/x", "Own"}, 1, "/dev/null/nowhere/x");
}

void TestOrbisctlChanging::refusal() {
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

void TestOrbisctlChanging::acceptance_data() {
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QJsonObject>("expected");
    QTest::newRow("template") << QStringList{} << QJsonObject{{"phonenumber", "*99#"}, {"autoapn", "true"}};
    QTest::newRow("an APN is used") << QStringList{"apn=x"} << QJsonObject{{"apn", "x"}, {"autoapn", "false"}};
    QTest::newRow("an APN is kept") << QStringList{"apn=x", "autoapn=true"}
                                    << QJsonObject{{"apn", "x"}, {"autoapn", "true"}};
    QTest::newRow("no APN") << QStringList{"apn="} << QJsonObject{{"apn", ""}, {"autoapn", "true"}};
    QTest::newRow("value with signs") << QStringList{"user=a=b= "} << QJsonObject{{"user", "a=b= "}};
    QTest::newRow("longest") << QStringList{"user=" + QString(48, 'u'), "apn=" + QString(100, 'a')}
                             << QJsonObject{{"user", QString(48, 'u')}, {"apn", QString(100, 'a')}};
}

void TestOrbisctlChanging::acceptance() {
    QFETCH(QStringList, fields);
    QFETCH(QJsonObject, expected);
    const OrbisctlFixture fixture;
    COMPARE_DONE(fixture.run(QStringList{"add", "--", "-x y"} + fields));
    const QJsonObject shown = fixture.show("-x y");
    for (const QString& field : expected.keys()) QCOMPARE(shown.value(field), expected.value(field));
}

void TestOrbisctlChanging::passwordFromStandardInput_data() {
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("password");
    QTest::newRow("line") << QByteArray("se cret\nrest\n") << "se cret";
    QTest::newRow("no line end") << QByteArray("-") << "-";
    QTest::newRow("line end of another system") << QByteArray("x\r\n") << "x";
    QTest::newRow("empty line") << QByteArray("\n") << "";
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("not UTF-8") << QByteArray("\xff\n") << QString();
}

void TestOrbisctlChanging::passwordFromStandardInput() {
    QFETCH(QByteArray, input);
    QFETCH(QString, password);
    const OrbisctlFixture fixture;
    const Outcome outcome = fixture.run({"add", "New", "password=-"}, input);
    if (password.isNull()) {
        COMPARE_REFUSED(outcome, 1, "standard input");
        return;
    }
    COMPARE_DONE(outcome);
    QCOMPARE(fixture.show("New").value("password").toString(), password);
}

void TestOrbisctlChanging::likeCopiesAPreset() {
    const OrbisctlFixture fixture;
    COMPARE_DONE(fixture.run({"add", "Mine", "--like", "Alpha", "user=me"}));
    const QJsonObject mine = fixture.show("Mine");
    QCOMPARE(mine.value("apn").toString(), QString("alpha.example"));
    QCOMPARE(mine.value("user").toString(), QString("me"));
    QCOMPARE(mine.value("password").toString(), QString("alpha-secret"));
    COMPARE_DONE(fixture.run({"add", "Free", "--like", "Beta"}));  // a read-only one
    COMPARE_DONE(fixture.run({"delete", "Free"}));
}

void TestOrbisctlChanging::renamingKeepsTheDefault() {
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Own' phonenumber='1'/><Profile name='Last' phonenumber='1'/>",
                      "<Default name='Own' IsUserSet='1'/>");
    COMPARE_DONE(fixture.run({"set", "Own", "name=Renamed", "password=new"}));
    QCOMPARE(fixture.run({"default", "--json"}).json(), (QJsonObject{{"name", "Renamed"}, {"userSet", true}}));
    QCOMPARE(fixture.show("Renamed").value("password").toString(), QString("new"));
    QCOMPARE(fixture.run({"show", "Own"}).status, 1);
}

void TestOrbisctlChanging::deletingTheDefaultClearsIt() {
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Own'/>", "<Default name='Own' IsUserSet='1'/>");
    COMPARE_DONE(fixture.run({"delete", "Own"}));
    QVERIFY(TestFolder::read(fixture.userFile()).contains("<Default name=\"\"/>"));
}

void TestOrbisctlChanging::choosingTheProposalIsNoChoice() {
    const OrbisctlFixture fixture;
    COMPARE_DONE(fixture.run({"default", "Beta"}));
    QCOMPARE(fixture.run({"default", "--json"}).json(), (QJsonObject{{"name", "Beta"}, {"userSet", true}}));
    COMPARE_DONE(fixture.run({"default", "--clear"}));
    QCOMPARE(fixture.run({"default", "--json"}).json(), (QJsonObject{{"name", "Alpha"}, {"userSet", false}}));
    COMPARE_DONE(fixture.run({"default", "Alpha"}));
    QVERIFY(TestFolder::read(fixture.userFile()).contains("<Default name=\"\"/>"));
}

static QByteArray document(const QByteArray& profiles, const QByteArray& rest = QByteArray()) {
    return "<vrksdoc><ProfileGroup>" + profiles + "</ProfileGroup>" + rest + "</vrksdoc>";
}

void TestOrbisctlChanging::importClash_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QString>("user");
    const QByteArray skipped = "skipped  Own (exists; see --replace)\n";
    QTest::newRow("all") << QStringList{} << 0 << "imported New\n" + skipped << "old";
    QTest::newRow("replace") << QStringList{"--replace"} << 0 << QByteArray("imported New\nreplaced Own\n") << "new";
    QTest::newRow("one, twice") << QStringList{"New", "New"} << 0 << QByteArray("imported New\n") << "old";
    QTest::newRow("none") << QStringList{"Own"} << 1 << skipped << "old";
}

void TestOrbisctlChanging::importClash() {
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QByteArray, out);
    QFETCH(QString, user);
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Own' user='old'/>");
    const QString file = fixture.path("in.prof");
    TestFolder::write(file, document("<Profile name='Own' user='new'/><Profile name='New' user='new'/>"));
    const Outcome outcome = fixture.run(QStringList{"import", file} + arguments);
    QCOMPARE(outcome.out, out);
    QCOMPARE(outcome.status, status);
    QCOMPARE(fixture.show("Own").value("user").toString(), user);
    QCOMPARE(TestFolder::read(fixture.userFile()).count("<Profile name"), status == 0 ? 2 : 1);
}

void TestOrbisctlChanging::importChecksNamesAndKeepsTheDefault() {
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Own'/>", "<Default name='Own' IsUserSet='1'/>");
    const QString file = fixture.path("in.prof");
    TestFolder::write(file, document("<Profile name='New'/>", "<Default name='New' IsUserSet='1'/>"));
    const QByteArray before = TestFolder::read(fixture.userFile());
    COMPARE_REFUSED(fixture.run({"import", file, "New", "Nope"}), 1, "\"Nope\"");
    QCOMPARE(TestFolder::read(fixture.userFile()), before);
    COMPARE_DONE(fixture.run({"import", file}));
    QCOMPARE(fixture.run({"default", "--json"}).json(), (QJsonObject{{"name", "Own"}, {"userSet", true}}));
}

void TestOrbisctlChanging::importWarnsOfUnreadablePasswords_data() {
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<bool>("warns");
    QTest::newRow("plain under base64") << QByteArray("password='n0t b64' encrypttype='1'") << true;
    QTest::newRow("plain without method") << QByteArray("password='password'") << true;  // decodes, but to no text
    QTest::newRow("base64") << QByteArray("password='c2VjcmV0' encrypttype='0'") << false;
    QTest::newRow("plain under the keyed method") << QByteArray("password='n0t b64' encrypttype='2'") << false;
    QTest::newRow("none") << QByteArray("encrypttype='1'") << false;
}

void TestOrbisctlChanging::importWarnsOfUnreadablePasswords() {
    QFETCH(QByteArray, attributes);
    QFETCH(bool, warns);
    const OrbisctlFixture fixture;
    TestFolder::write(fixture.path("in.prof"), document("<Profile name='New' " + attributes + "/>"));
    const Outcome outcome = fixture.run({"import", fixture.path("in.prof")});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.err.contains("\"New\""), warns);
}

void TestOrbisctlChanging::exportRefusesTheUsersFile() {
    const OrbisctlFixture fixture;
    fixture.writeUser("<Profile name='Own'/>", "<Default name='Own' IsUserSet='1'/>");
    const QByteArray before = TestFolder::read(fixture.userFile());
    QVERIFY(QFile::link(fixture.userFile(), fixture.path("link")));
    for (const QString& file :
         {fixture.userFile(), fixture.path("data/../data/UserProfile.prof"), fixture.path("link")})
        COMPARE_REFUSED(fixture.run({"export", file, "Alpha"}), 1, "export");
    QCOMPARE(TestFolder::read(fixture.userFile()), before);
}

static QStringList damagedCopies(const QString& folder) { return QDir(folder).entryList({"*.damaged-*"}, QDir::Files); }

void TestOrbisctlChanging::exportKeepsADamagedTarget() {
    const OrbisctlFixture fixture;
    const QString file = fixture.path("out/x.prof");
    TestFolder::write(file, "<vrksdoc><Profile name='Kept'/><Prof");
    const Outcome outcome = fixture.run({"export", file, "Alpha"});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(isOneDiagnostic(outcome.err) && outcome.err.contains("damaged"), outcome.err);
    QCOMPARE(damagedCopies(fixture.path("out")).size(), 1);
    QVERIFY(TestFolder::read(file).contains("Kept"));
}

void TestOrbisctlChanging::damagedUserFileIsKept() {
    const OrbisctlFixture fixture;
    const QByteArray damaged = "<vrksdoc><Profile name='Kept'/><Prof";
    TestFolder::write(fixture.userFile(), damaged);
    const Outcome outcome = fixture.run({"add", "New"});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(isOneDiagnostic(outcome.err) && outcome.err.contains("damaged"), outcome.err);
    const QStringList copies = damagedCopies(fixture.path("data"));
    QCOMPARE(copies.size(), 1);
    QCOMPARE(TestFolder::read(fixture.path("data/") + copies.first()), damaged);
    QCOMPARE(fixture.run({"show", "Kept"}).status, 0);
}

void TestOrbisctlChanging::tamperedPasswordIsNotLost() {
    const OrbisctlFixture fixture;
    COMPARE_DONE(fixture.run({"add", "Own", "password=secret"}));
    QByteArray content = TestFolder::read(fixture.userFile());
    const int place = content.indexOf("password=\"orbis1:") + 40;
    content[place] = content.at(place) == 'A' ? 'B' : 'A';
    TestFolder::write(fixture.userFile(), content);
    COMPARE_REFUSED(fixture.run({"show", "Own"}), 1, "\"Own\"");
    COMPARE_REFUSED(fixture.run({"set", "Own", "user=x"}), 1, "password=");
    COMPARE_REFUSED(fixture.run({"add", "New", "--like", "Own"}), 1, "password=");
    QCOMPARE(TestFolder::read(fixture.userFile()), content);
    COMPARE_DONE(fixture.run({"set", "Own", "password=again"}));
    QCOMPARE(fixture.show("Own").value("password").toString(), QString("again"));
}

// Two shells add profiles, two others each change a field of their own of one profile and look whether it stays.
void TestOrbisctlChanging::shellsAtOnceLoseNothing() {
    const OrbisctlFixture fixture;
    COMPARE_DONE(fixture.run({"add", "Shared"}));
    const int rounds = 25;
    const QString loop = "for i in $(seq %1); do %2 || exit 1; done";
    const QString change = "\"$0\" set Shared %1=$i && \"$0\" show Shared | grep -qx \"%1  *$i\"";
    QList<QProcess*> shells;
    for (const QString& command :
         {QString("\"$0\" add \"A $i\""), QString("\"$0\" add \"B $i\""), change.arg("user"), change.arg("device")}) {
        shells.append(new QProcess(this));
        shells.last()->start("sh", {"-c", loop.arg(rounds).arg(command), ORBISCTL});
    }
    for (QProcess* shell : shells) {
        QVERIFY(shell->waitForFinished(120000));
        QVERIFY2(shell->exitCode() == 0, shell->arguments().at(1).toUtf8() + shell->readAllStandardError());
    }
    QCOMPARE(TestFolder::read(fixture.userFile()).count("<Profile name"), 2 * rounds + 1);
}

QTEST_GUILESS_MAIN(TestOrbisctlChanging)
#include "tst_orbisctl_changing.moc"

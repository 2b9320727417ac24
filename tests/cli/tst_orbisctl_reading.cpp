// SPDX-License-Identifier: MIT
// What orbisctl shows, and what it says when it can't.

#include "OrbisctlFixture.h"
#include "Rows.h"
#include "Terminal.h"

class tst_orbisctl_reading : public QObject {
    Q_OBJECT

private slots:
    void rightCommandLine() {
        const OrbisctlFixture fixture;
        for (const QStringList& arguments :
             {QStringList{"--help"}, QStringList{"--version"}, QStringList{"list", "--device", "none", "--json"}})
            COMPARE_DONE(fixture.run(arguments));
    }

    void helpIsACommandToo() {
        for (const QStringList& command : {QStringList{}, QStringList{"show"}}) {
            const Outcome help = OrbisctlFixture::run(QStringList("help") + command);
            COMPARE_DONE(help);
            QCOMPARE(help.out, OrbisctlFixture::run(command + QStringList("--help")).out);
        }
        COMPARE_REFUSED(OrbisctlFixture::run({"help", "frob"}), 2, "frob");
    }

    void severalProfiles() {
        const OrbisctlFixture fixture;
        const Outcome shown = fixture.run({"--json", "show", "Beta", "Alpha"});
        COMPARE_DONE(shown);
        const QList<QByteArray> lines = shown.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.first().contains("Beta") && lines.last().contains("Alpha"));
        const Outcome unknown = fixture.run({"show", "Beta", "Nope"});
        COMPARE_REFUSED(unknown, 3, "Nope");
        QCOMPARE(unknown.out, QByteArray());
    }

    // People are spoken to in the language of their locale, scripts never.
    void language_data() {
        const Rows<QByteArray, QByteArray, QByteArray, QByteArray, QByteArray> row("LC_ALL", "LANG", "LANGUAGE",
                                                                                   "not connected", "Commands");
        row("POSIX", "", "POSIX", "de", "not connected", "Commands:");
        row("C with an encoding", "C.UTF-8", "de_DE.UTF-8", "de", "not connected", "Commands:");
        row("none of ours", "", "ja_JP.UTF-8", "", "not connected", "Commands:");
        row("LANG", "", "de_AT.UTF-8", "", "nicht verbunden", "Befehle:");
        row("LANGUAGE first", "", "ja_JP.UTF-8", "xx:es:de", "sin conexi\u00f3n", "\u00d3rdenes:");
        row("English wanted first", "", "de_DE.UTF-8", "en_GB:de", "not connected", "Commands:");
        row("from right to left", "ar_EG.UTF-8", "", "", "\u063a\u064a\u0631 \u0645\u062a\u0635\u0644",
            "\u0627\u0644\u0623\u0648\u0627\u0645\u0631:");
    }
    void language() {
        const OrbisctlFixture fixture;
        for (const char* code : {"ar", "de", "es"}) {
            const QString file = QString("/lang/orbisdial_%1.qm").arg(code);
            QFile::copy(ORBISDIAL_LIBRARY_DIR + file, fixture.path("library" + file));
        }
        const auto inEnglish = [&fixture] {
            return QList<Outcome>{fixture.run({"--json", "device"}), fixture.run({"--json", "show", "Nope"}),
                                  fixture.run({"-t", "list"})};
        };
        const QList<Outcome> before = inEnglish();
        const QByteArray locale = qgetenv("LC_ALL");
        for (const char* name : {"LC_ALL", "LANG", "LANGUAGE"}) qputenv(name, cell<QByteArray>(name));
        const Outcome status = fixture.run({"status"});
        const Outcome help = fixture.run({"--help"});
        const Outcome unknown = fixture.run({"show", "Nope"});
        const QList<Outcome> now = inEnglish();
        qputenv("LC_ALL", locale);
        COMPARE_DONE(status);
        QVERIFY2(status.out.startsWith(cell<QByteArray>("not connected")), status.out);
        QVERIFY2(help.out.contains('\n' + cell<QByteArray>("Commands") + '\n'), help.out);
        COMPARE_REFUSED(unknown, 3, "Nope");
        for (int i = 0; i < now.size(); ++i) {
            QCOMPARE(now.at(i).out, before.at(i).out);
            QCOMPARE(now.at(i).err, before.at(i).err);
            QCOMPARE(now.at(i).status, before.at(i).status);
        }
    }

    // What the libraries below say comes in the language, too.
    void reasons_data() {
        const Rows<QStringList, QByteArray, int, QByteArray> row("arguments", "device", "status", "reason");
        row("file", {"export", "/nope/x", "Alpha"}, "simulated", 1, "kein Zugang zum Ordner");
        row("value", {"add", "X", "autoapn=maybe"}, "simulated", 1, "autoapn: muss true oder false sein");
        row("value, for a script", {"--json", "add", "X", "autoapn=maybe"}, "simulated", 1, "must be true or false");
        row("device", {"status"}, "nonsense", 1, "ORBISDIAL_DEVICE nennt kein Backend");
        row("findings", {"config", "--check"}, "simulated", 1, "fault");
    }
    void reasons() {
        const OrbisctlFixture fixture;
        QFile::copy(ORBISDIAL_LIBRARY_DIR "/lang/orbisdial_de.qm", fixture.path("library/lang/orbisdial_de.qm"));
        const QByteArray locale = qgetenv("LC_ALL");
        qputenv("LC_ALL", "de_DE.UTF-8");
        qputenv("ORBISDIAL_DEVICE", cell<QByteArray>("device"));
        const Outcome outcome = fixture.run(cell<QStringList>("arguments"));
        qputenv("LC_ALL", locale);
        COMPARE_REFUSED(outcome, cell<int>("status"), cell<QByteArray>("reason"));
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
        row("explain, no match", {"explain", "310260"},
            R"({"default":"Generic","imsi":"310260","offered":[{"apn":"","name":"Generic"}],"prefix":null})");
        row("explain, operator", {"explain", "--operator", "beta", "26201"},
            R"({"default":"Beta","imsi":"26201","offered":[{"apn":"beta.example","name":"Beta"},)"
            R"({"apn":"alpha.example","name":"Alpha"}],"operator":"Beta Mobile","prefix":"26201"})");
        row("explain, strange operator", {"explain", "26201", "--operator", "Gamma"},
            R"({"default":"Alpha","imsi":"26201","offered":[{"apn":"beta.example","name":"Beta"},)"
            R"({"apn":"alpha.example","name":"Alpha"}],"operator":null,"prefix":"26201"})");
        row("config", {"config", "ENCRYPT"}, R"({"ENCRYPT":"true"})");
        row("no device", {"--device", "none", "device"},
            R"({"backend":"none","cardMode":null,"connection":null,"customizeName":null,"imsi":null,"modem":null,)"
            R"("multiMode":null,"note":null,)"
            R"("prefix":null,"productType":null,"proposedDefault":"Generic","proposedFor":null,"simulated":false,"status":null,)"
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

    void fields_data() {
        const Rows<QStringList, int, QByteArray> row("arguments", "status", "expected");
        row("list", {"list", "-t"}, 0, "true\tAlpha\tpreset\nfalse\tBeta\tpreset\nfalse\tO\\\\n\tuser\n");
        row("chosen", {"list", "-f", "name,source"}, 0, "Alpha\tpreset\nBeta\tpreset\nO\\\\n\tuser\n");
        row("no password", {"-f", "name,password,chap", "show", "Alpha"}, 0, "Alpha\t\ttrue\n");
        row("several", {"-f", "name", "show", "Alpha", "Beta"}, 0, "Alpha\nBeta\n");
        row("of a field", {"-f", "modem.signal,modem.gid1", "device"}, 0, "70\t\n");
        row("list of texts", {"-f", "state,dns", "status"}, 0, "down\t\n");
        row("no such", {"-f", "nam", "list"}, 2, "default name source");
        row("both", {"-t", "--json", "list"}, 2, "--json");
    }
    void fields() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='O\\n' phonenumber='*99#'/>");
        const Outcome outcome = fixture.run(cell<QStringList>("arguments"));
        if (cell<int>("status") != 0) {
            COMPARE_REFUSED(outcome, cell<int>("status"), cell<QByteArray>("expected"));
        } else {
            COMPARE_DONE(outcome);
            QCOMPARE(outcome.out, cell<QByteArray>("expected"));
        }
    }

    void abbreviations() {
        const OrbisctlFixture fixture;
        QCOMPARE(fixture.run({"li"}).out, fixture.run({"list"}).out);
        QCOMPARE(fixture.run({"modem", "--json"}).json()["id"].toString(), QString("/simulated/1"));  // not modems
        COMPARE_REFUSED(fixture.run({"de"}), 2, "more than one");
        COMPARE_REFUSED(fixture.run({""}), 2, "unknown command");
    }

    void helpListsFields() {
        const QByteArray help = OrbisctlFixture::run({"add", "--help"}).out;
        QVERIFY2(help.contains("\n  apn          letters, digits, dots and hyphens, at most 100 characters\n"), help);
        QVERIFY2(!help.contains("langid"), help);
    }

    void check() {
        const OrbisctlFixture fixture;
        const Outcome found = fixture.run({"config", "--check"});  // 26201 hides 262, and the system file is a stub
        QVERIFY2(found.out.contains("NetConnectConfig.xml:21:13: ") && found.out.count('\n') == 1, found.out);
        COMPARE_REFUSED(found, 1, "1 fault");
        const QJsonObject json = fixture.run({"--json", "config", "--check"}).json();
        QCOMPARE(json["findings"].toArray().at(0).toObject()["line"].toInt(), 21);
        QCOMPARE(fixture.run({"-f", "line,column", "config", "--check"}).out, QByteArray("21\t13\n"));

        TestFolder::write(fixture.path("ok.prof"), "<vrksdoc/>");
        COMPARE_DONE(fixture.run({"config", "--check", fixture.path("ok.prof")}));
        COMPARE_REFUSED(fixture.run({"config", "--check", fixture.path("none")}), 1, "1 fault");
        COMPARE_REFUSED(fixture.run({"config", "IMSIAPN", "ENCRYPT"}), 2, "one key");
    }

    // As they are built and will be installed.
    void whatWeShipIsClean() {
        QStringList files;
        for (const char* name : {"NetConnectConfig.xml", "ProfileLib.prof", "SysProfile.prof", "Operators.xml"})
            files.append(QString(ORBISDIAL_LIBRARY_DIR "/plugins/NetConnectPlugin/") + name);
        const OrbisctlFixture fixture;
        const Outcome outcome = fixture.run(QStringList{"config", "--check"} + files);
        QVERIFY2(outcome.status == 0, outcome.out);
    }

    void listTellsSourcesAndDefault() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='Gr\u00fc\u00df&#x9b;2J'/>");  // a control sequence for terminals
        const QByteArray expected = "* preset Alpha\n  preset Beta\n  user   Gr\u00fc\u00df\ufffd2J\n";
        QCOMPARE(fixture.run({"list"}).out, expected);
    }

    void explainTakesThePresentCardsOperator() {
        const OrbisctlFixture fixture;
        qputenv("ORBISDIAL_SIM_CARD_OPERATOR", "ALPHA net");
        const Outcome present = fixture.run({"explain", "262019876543210"}), other = fixture.run({"explain", "26201"});
        qunsetenv("ORBISDIAL_SIM_CARD_OPERATOR");
        COMPARE_DONE(present);
        QCOMPARE(present.out, QByteArray("262019876543210: prefix 26201\n"
                                         "  by the card's operator name \"ALPHA net\": Alpha Net\n"
                                         "  * Alpha [alpha.example]\n    Beta [beta.example]\n"));
        QCOMPARE(other.out, QByteArray("26201: prefix 26201\n    Beta [beta.example]\n  * Alpha [alpha.example]\n"));
    }

    void explainGoesOnAfterNonsense() {
        const Outcome outcome = OrbisctlFixture().run({"--json", "explain", "-"}, "2620a\r\n\n 26201 \n26201");
        COMPARE_REFUSED(outcome, 1, "1 of 3");
        QCOMPARE(outcome.out.count(R"("prefix":"26201")"), 2);
    }

    void readingLeavesTheFile_data() {
        const Rows<QByteArray> row("defaults");
        row("translated name", "<Default name='Own' IsUserSet='1'/>");
        row("automatic default", "<Default name='Alpha'/>");
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

    // A folder that can't even be made holds nothing; of one that can't be looked into nobody knows.
    void readsWithoutAFolder_data() {
        const Rows<QString, bool> row("folder", "isMissing");
        row("can't be made", "/proc/nowhere/data", true);
        row("can't be entered", "/dev/null/data", false);
    }
    void readsWithoutAFolder() {
        const OrbisctlFixture fixture;
        const bool isMissing = cell<bool>("isMissing");
        qputenv("ORBISDIAL_DATA_DIR", QFile::encodeName(cell("folder")));
        const QStringList commands[] = {{"list"},   {"show", "Alpha"}, {"default"},           {"explain", "26201"},
                                        {"device"}, {"status"},        {"config", "IMSIAPN"}, {"export", "-", "Alpha"},
                                        {"modems"}, {"backup", "-"}};
        for (const QStringList& command : commands) {
            const Outcome outcome = fixture.run(command);
            QCOMPARE(outcome.out.isEmpty(), !isMissing && command.first() == "backup");
            if (isMissing || outcome.status == 0) {
                COMPARE_DONE(outcome);
            } else {
                COMPARE_REFUSED(outcome, 1, "can't be made or entered");
            }
        }
        COMPARE_REFUSED(fixture.run({"add", "New"}), 1, "can't be made or entered");
    }

    // Each of the three files in turn is bad: what is readable is shown, and one line names the file.
    void badFile() {
        const QByteArray cut = "<?xml version='1.0'?><vrksdoc><ProfileGroup><Profile name='Own'/><Profile na";
        for (const QString name : {"NetConnectConfig.xml", "ProfileLib.prof", "UserProfile.prof"}) {
            const bool isUsers = name.startsWith("User");
            for (const QByteArray& content : {cut, QByteArray()}) {
                if (content.isNull() && isUsers) continue;  // nobody has profiles at first
                const OrbisctlFixture fixture;
                const QString file = isUsers ? fixture.userFile() : fixture.pluginDir() + '/' + name;
                fixture.writeUser("<Profile name='Own'/>");
                const QByteArray before = isUsers ? content : TestFolder::read(fixture.userFile());
                TestFolder::write(file, content);
                if (content.isNull()) QFile::remove(file);
                const QByteArray words = QFile::encodeName(file) + (content.isNull() ? ": does not exist" : "");
                const Outcome outcome = fixture.run({"list"});
                COMPARE_REFUSED(outcome, 1, words);
                QVERIFY2(outcome.out.contains("user   Own"), outcome.out);
                if (name.startsWith("Net")) COMPARE_REFUSED(fixture.run({"add", "New", "password=open"}), 1, words);
                QCOMPARE(TestFolder::read(file), content);
                QCOMPARE(TestFolder::read(fixture.userFile()), before);
            }
        }
    }

    // What the program answers: a line for the kind, and a word a line.
    void completes_data() {
        const Rows<QByteArray, QByteArray> row("line", "answer");
        row("command", "orbisctl ex", "words export explain");
        row("command of help", "orbisctl help stat", "words status");
        row("behind options", "orbisctl -f name --json stat", "words status");
        row("another command before", "true; orbisctl stat", "words status");
        row("option", "orbisctl show --se", "words --secrets");
        row("option of another", "orbisctl list --se", "words");
        row("value", "orbisctl --device n", "words none");
        row("value behind =", "orbisctl --device=n", "words none");
        row("names", "orbisctl show My", "words My\\ own");
        row("escaped", "orbisctl show My\\ o", "words My\\ own");
        row("quoted", "orbisctl show \"My o", "words My own");
        row("quotes in it", "orbisctl delete X Bob\\'", "words Bob\\'s\\ \\$1");
        row("quotes in quotes", "orbisctl delete 'Bob", "words Bob'\\''s $1");
        row("like an option", "orbisctl show -- -", "words -dash");
        row("new name", "orbisctl add My", "words");
        row("like", "orbisctl add X --like Al", "words Alpha");
        row("field", "orbisctl set X pa", "nospace password= pap=");
        row("flag", "orbisctl set X chap=f", "words false");
        row("on", "orbisctl autoconnect X o", "words on off");
        row("modem", "orbisctl modem ", "words /simulated/1");
        row("key", "orbisctl config IMSI", "words IMSIAPN");
        row("check", "orbisctl config --check ", "files");
        row("file", "orbisctl import ", "files");
        row("folder", "orbisctl --data-dir ", "directories");
        row("too many", "orbisctl modem a ", "words");
        row("unreadable", "orbisctl --data-dir /dev/null show My", "words");
    }
    void completes() {
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='My own'/><Profile name='-dash'/><Profile name=\"Bob's $1\"/>");
        const Outcome outcome = fixture.run({"complete", "bash", cell<QByteArray>("line")});
        COMPARE_DONE(outcome);
        QTEST(outcome.out.trimmed().replace('\n', ' '), "answer");
    }

    // The shells themselves, as far as they are here, at a terminal; then what stands in the line.
    void shellsComplete_data() {
        const Rows<QByteArrayList, QByteArray> row("shell", "setUp");
        const QByteArray scripts = ORBISDIAL_SOURCE_DIR "/data/completions/";
        row("bash", {"/usr/bin/bash", "--norc", "--noprofile", "-i"}, "source " + scripts + "bash/orbisctl");
        row("zsh", {"/usr/bin/zsh", "-f", "-i"},
            "fpath=(" + scripts + "zsh $fpath); autoload -U compinit; compinit -u -D");
        row("fish", {"/usr/bin/fish", "--no-config", "-i"}, "source " + scripts + "fish/orbisctl.fish");
    }
    void shellsComplete() {
        const QByteArrayList shell = cell<QByteArrayList>("shell");
        if (!QFileInfo::exists(shell.first()) || !QFileInfo::exists("/dev/fd/0")) QSKIP("no such shell here");
        const OrbisctlFixture fixture;
        fixture.writeUser("<Profile name='My own'/>");
        qputenv("PATH", QFileInfo(ORBISCTL).path().toUtf8() + ':' + qgetenv("PATH"));
        qputenv("INPUTRC", "/dev/null");
        qputenv("HOME", QFile::encodeName(fixture.path("")));
        qputenv("TERM", "dumb");
        Terminal terminal(shell);
        terminal.type(cell<QByteArray>("setUp") + "; echo se''t\n");
        QTRY_VERIFY2(terminal.screen().contains("set\r\n"), terminal.screen());
        terminal.type("orbisctl -f name sho\tMy\t > " + fixture.path("out").toUtf8() + '\n');
        QTRY_VERIFY2(TestFolder::read(fixture.path("out")) == "My own\n", terminal.screen());
    }
};

QTEST_GUILESS_MAIN(tst_orbisctl_reading)
#include "tst_orbisctl_reading.moc"

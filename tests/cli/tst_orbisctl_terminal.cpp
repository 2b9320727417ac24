// SPDX-License-Identifier: MIT
// What orbisctl lets a terminal see, and how it leaves one behind.

#include "OrbisctlFixture.h"
#include "Rows.h"
#include "Terminal.h"

class tst_orbisctl_terminal : public QObject {
    Q_OBJECT

private slots:
    void hiddenCharacters_data() {
        const Rows<QString> row("text");
        row("control character", "\u009b");
        row("delete", "\u007f");
        row("direction override", "\u202e");
        row("direction isolate", "\u2066");
        row("joiner", "\u200d");
        row("byte order mark", QString(QChar(0xfeff)));
        row("soft hyphen", "\u00ad");
        row("line separator", "\u2028");
        row("blank letter", "\u3164");
        row("variant of a letter", "\ufe0f");
        row("tag, two units", "\U000e0041");
        row("half of a pair", QString(QChar(0xd800)));
    }
    // On a terminal a mark stands in their place; JSON escapes them, so that scripts get what is there.
    void hiddenCharacters() {
        const QString text = cell("text"), name = "a" + text + "b";
        const bool isHalf = text[0].isSurrogate() && text.size() == 1;
        const OrbisctlFixture fixture;
        QString document =
            QString("<vrksdoc><ProfileGroup><Profile name='%1'/></ProfileGroup></vrksdoc>").arg(name.toHtmlEscaped());
        QByteArray utf16("\xff\xfe");
        for (const QChar unit : document) utf16.append(char(unit.cell())).append(char(unit.row()));
        TestFolder::write(fixture.userFile(), utf16);

        const Outcome shown = fixture.run({"list"});
        QVERIFY2(shown.out.contains("  user   a\ufffd"
                                    "b\n"),
                 shown.out);

        QByteArray escaped;
        for (const QChar unit : text) escaped += "\\u" + QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
        const Outcome json = fixture.run({"--json", "list"});
        QVERIFY2(json.out.contains("\"a" + escaped + "b\""), json.out);
        if (isHalf) return;  // neither Qt nor the command line takes one
        QCOMPARE(json.json()["profiles"].toArray().at(1).toObject()["name"].toString(), name);

        const QString file = fixture.path("no" + text + "file");
        for (const QStringList& arguments :
             {QStringList{"show", name + 'c'}, {"import", file}, {"--" + name}, {name}}) {
            const Outcome refused = fixture.run(QStringList{"--trace"} + arguments);
            QVERIFY2(!refused.err.contains(text.toUtf8()), refused.err);
            QVERIFY2(refused.err.contains("\ufffd"), refused.err);
        }
    }

    void signalAtThePrompt_data() {
        const Rows<int> row("signal");
        row("INT", SIGINT);
        row("TERM", SIGTERM);
        row("HUP", SIGHUP);
        row("QUIT", SIGQUIT);
        row("ABRT", SIGABRT);
        row("real time", SIGRTMIN);
    }
    void signalAtThePrompt() {
        const OrbisctlFixture fixture;
        Terminal terminal({ORBISCTL, "add", "New", "password=-"});
        QTRY_VERIFY2(terminal.screen().contains("Password: "), terminal.screen());
        QVERIFY(!terminal.hasEcho());
        terminal.type("half a sec");
        terminal.send(cell<int>("signal"));
        QTRY_COMPARE(terminal.status(), 128 + cell<int>("signal"));
        QVERIFY(terminal.hasEcho());
        QVERIFY(!QFile::exists(fixture.userFile()));
    }

    void stopAtThePrompt_data() {
        const Rows<int, bool> row("signal", "showsEcho");
        row("by the terminal", SIGTSTP, true);
        row("at once", SIGSTOP, false);  // of that a program hears nothing
    }
    void stopAtThePrompt() {
        QFETCH(bool, showsEcho);
        const OrbisctlFixture fixture;
        Terminal terminal({ORBISCTL, "add", "New", "password=-"});
        for (int asked = 1; asked <= 2; ++asked) {
            QTRY_COMPARE(terminal.screen().count("Password: "), asked);
            QVERIFY(!terminal.hasEcho());
            terminal.send(cell<int>("signal"));
            QTRY_VERIFY(terminal.isStopped());
            QCOMPARE(terminal.hasEcho(), showsEcho);
            terminal.send(SIGCONT);
        }
        QTRY_COMPARE(terminal.screen().count("Password: "), 3);
        QVERIFY(!terminal.hasEcho());
        terminal.type("secret\n");
        QTRY_COMPARE(terminal.status(), 0);
        QVERIFY(terminal.hasEcho());
        QVERIFY2(!terminal.screen().contains("secret"), terminal.screen());
        QCOMPARE(fixture.show("New")["password"].toString(), QString("secret"));
    }
};

QTEST_GUILESS_MAIN(tst_orbisctl_terminal)
#include "tst_orbisctl_terminal.moc"

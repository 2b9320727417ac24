// SPDX-License-Identifier: MIT
// Profile files: what is read, what is written, and what broken ones do.

#include <sys/stat.h>

#include "Encoded.h"
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
        write(userFile(), Golden);
        useCard("1", "2");
        QCOMPARE(load(), 0);
        QCOMPARE(m_Profiles.size(), 1);
        const DialupProfile& only = m_Profiles[0];
        QCOMPARE(only.name + only.apn + only.chap + only.pap + only.Remember + only.encrypttype, QString("aijkrt"));
        QCOMPARE(save(m_Profiles, m_Default, QString(), m_IsUserSet), 0);
        QCOMPARE(user(), QByteArray(Golden));
        QCOMPARE(save(m_Profiles, "new", QString(), false), 0);  // the card's mode has a default of its own
        const QByteArray items = "<item name=\"w\" value=\"WCDMA\"/>\n        <item name=\"new\" value=\"CDMA\"/>\n";
        QVERIFY2(user().contains(items), user());
    }

    void defaults_data() {
        const Rows<QString, QString, QString, QString, bool> row("after", "multiMode", "mode", "name", "isUserSet");
        const char* const failing = nullptr;
        const QString plain = "<Default name='P' IsUserSet='1'/>";
        const QString all = plain +
                            "<MultiModeDefaultProfile><item name='W' value='LTE' IsUserSet='1'/><item name='C' "
                            "value='CDMA'/></MultiModeDefaultProfile><item name='stray' value='CDMA'/>";
        row("user set", plain, "0", "0", "P", true);
        row("only 1 counts", "<Default name='P' IsUserSet='true'/>", "0", "0", "P", false);
        row("CDMA mode", all, "1", "2", "C", false);
        row("WCDMA mode", all, "1", "1", "W", true);
        row("no mode keeps the flag", all, "1", "0", "P", true);
        row("failing query", all, failing, "2", "P", true);
        row("none", "", "0", "0", "before", true);
    }
    void defaults() {
        QFETCH(QString, after);
        setUser("", after.toUtf8());
        settle();
        useCard(cell("multiMode"), cell("mode"));
        for (int pass = 0; pass < 2; ++pass) {  // the second time nothing is parsed, and all is as if it were
            xml()->setRememberedDefaults(NetConnectRememberedDefaults());
            m_Default = "before";
            m_IsUserSet = true;
            QCOMPARE(load(), 0);
            QTEST(m_Default, "name");
            QTEST(m_IsUserSet, "isUserSet");
            QCOMPARE(xml()->rememberedDefaults().cdma.name, after.contains("CDMA") ? QString("C") : QString());
        }
    }

    void anotherCardModeChangesWhatAnUnchangedFileSays() {
        write(userFile(), Golden);
        settle();
        for (const char* mode : {"2", "1", "2"}) {
            useCard("1", mode);
            load();
            QCOMPARE(m_Default, QString(*mode == '2' ? "a" : "w"));
        }
    }

    void brokenFiles_data() {
        const Rows<QByteArray, int, int> row("content", "status", "count");
        const QByteArray whole = document(profile("A") + profile("B"));
        row("whole", whole, 0, 2);
        row("other root and elements", QByteArray("<x><y z='1'/><Profile name='A' future='1'/></x>"), 0, 1);
        row("empty", QByteArray(), 6, 0);
        row("cut in the second", whole.left(whole.indexOf("'B'")), 6, 1);
        row("wrongly encoded", QByteArray(whole).replace("'B'", "'\xff\xc3'"), 6, -1);
        row("entity bomb", bomb(), 6, 0);
        row("many attributes", manyAttributes(1000), 6, 0);
    }
    void brokenFiles() {
        QFETCH(QByteArray, content);
        QFETCH(int, status);
        QFETCH(int, count);
        write(userFile(), content);
        QCOMPARE(load(), status);
        if (count >= 0) QCOMPARE(m_Profiles.size(), count);
        QCOMPARE(xml()->lastProblem().file, status != 0 ? userFile() : QString());
        QCOMPARE(user(), content);

        settle();  // from now on the file is not parsed again, and still says the same
        const int found = m_Profiles.size();
        for (int pass = 0; pass < 2; ++pass) {
            QCOMPARE(load(), status);
            QCOMPARE(m_Profiles.size(), found);
            QCOMPARE(!xml()->lastProblem().isNull(), status != 0);
        }
    }

    // Every encoding that a file can be in, as its byte order mark, its declaration or its first bytes tell.
    void encodings_data() {
        nameRows("encoding", {"UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", "UTF-32", "UTF-32LE", "UTF-32BE", "ISO-8859-1",
                              "windows-1252", "UTF-16LE undeclared", "UTF-16BE undeclared", "UTF-32LE undeclared",
                              "UTF-32BE undeclared"});
    }
    void encodings() {
        const auto load = [this](const QByteArray& text) {
            write(userFile(), inEncoding(cell("encoding"), text));
            return tst_profilefile::load();
        };
        // A thousand equals signs, and what would nest too deep, where they count as nothing.
        const QByteArray equals(1001, '=');
        const QByteArray harmless = "<!DOCTYPE v [<!ELEMENT v ANY> <!-- <!ELEMENT '> --> <?x <a?>]><!--<a " + equals +
                                    QByteArray("<a>").repeated(1001) + "--><?pi <a " + equals + "?><v a='=>" + equals +
                                    "'><![CDATA[<a " + equals + "]]]]>" + QByteArray("<a/><b></b>").repeated(1001);
        QCOMPARE(load(harmless + profile("\xc3\xa9", "apn='" + equals + "'") + "</v>"), 0);
        QCOMPARE(m_Profiles.value(0).name, QString(QChar(0xe9)));
        QCOMPARE(m_Profiles.value(0).apn, QString(equals));
        const QPair<QByteArray, const char*> hostile[] = {
            {manyAttributes(400000), "attributes"},
            {"<!--\"--><v>" + manyAttributes(101), "attributes"},
            {QByteArray("<a>").repeated(1000000), "deep"},
            {"<v>" + QByteArray("<a xmlns:b=''/>").repeated(101), "namespaces"},
            {"<v>" + QByteArray("<a/>").repeated(1000001), "elements"},
            {"<!DOCTYPE v [<!ELEMENT v ANY><!ENTITY % a ''>" + QByteArray("%a;").repeated(1000000) + "]><v/>",
             "entities"},
        };
        for (const auto& attempt : hostile) {
            QCOMPARE(load(attempt.first), 6);
            QVERIFY2(xml()->lastProblem().reason.text().contains(attempt.second),
                     qPrintable(xml()->lastProblem().reason.text()));
        }
    }

    // The declaration is read in one encoding, and what follows in another.
    void anEncodingThatChanges() {
        const auto wide = [](const QByteArray& text) {
            return encoded(QString::fromLatin1(text), "UTF-16BE", ByteOrderMark::None);
        };
        const QByteArray declaration = "<?xml version=\"1.0\" encoding=\"UTF-16BE\" ?>";
        const QByteArray skipped = wide(QByteArray("<!--").leftJustified(declaration.size() / 2, ' '));
        write(userFile(), declaration + skipped + wide(manyAttributes(400000)));
        QCOMPARE(load(), 6);
        QVERIFY(xml()->lastProblem().reason.text().contains("attributes"));
        write(userFile(), "<?xml " + QByteArray(5000, ' ') + "version='1.0'?><v/>");
        QCOMPARE(load(), 6);
        QVERIFY(xml()->lastProblem().reason.text().contains("declaration"));
    }

    // What stands before a mistake is read, whatever the mistake makes of what follows.
    void nothingCountsAfterAMistake() {
        QByteArray profiles = profile("A") + "<Profile name='B type=''/>";
        for (int i = 0; i < 200; ++i) profiles += profile("C", "password='QUJD=='");
        setUser(profiles);
        QCOMPARE(load(), 6);
        QCOMPARE(m_Profiles.size(), 1);
    }

    void placesThatAreNoFile_data() {
        const Rows<QString, int, int> row("name", "readStatus", "writeStatus");
        row("missing", "new.prof", 23, 0);
        row("folder", "folder", 25, 25);
        row("pipe", "pipe", 25, 25);
        row("a link to itself", "loop", 25, 25);
    }
    void placesThatAreNoFile() {
        QFETCH(QString, name);
        QDir().mkpath(path("folder"));
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        QFile::link(path("loop"), path("loop"));
        QTEST(load(path(name)), "readStatus");
        QTEST(save({}, QString(), path(name), false), "writeStatus");
    }

    void noUserDataDirectory() {
        useCard("1", "2");
        write(path("data"), "a file in the way");
        QCOMPARE(load(), 23);
        QCOMPARE(save({}, "A", QString(), true), 25);
        QVERIFY(!QFile::exists("UserProfile.prof"));
        QVERIFY(xml()->rememberedDefaults().cdma.name.isEmpty());
    }

    void exportsHoldProfilesAlone() {
        useCard("1", "2");
        QCOMPARE(save({named("A")}, "A", path("export.prof"), true), 0);
        QVERIFY(!read(path("export.prof")).contains("Default"));
        QVERIFY(xml()->rememberedDefaults().cdma.name.isEmpty());
    }

    void writtenTextIsCleaned_data() {
        const Rows<QString, QString> row("name", "kept");
        const QString emoji = QString::fromUtf8("\xf0\x9f\x98\x80");
        row("control", "a\x01\x1f\u000bb", "ab");
        row("white space", "a\tb\nc\rd", "a\tb\nc\rd");
        row("pair", emoji, emoji);
        row("first half", emoji.left(1) + "x", "x");
        row("not a character", QString(QChar(0xffff)) + QChar(0xfffe) + "x", "x");
    }
    void writtenTextIsCleaned() {
        QFETCH(QString, name);
        QCOMPARE(save({named(name)}, name, QString(), false), 0);
        QCOMPARE(load(), 0);
        QTEST(m_Profiles.value(0).name, "kept");
        QTEST(m_Default, "kept");
    }

    void templates_data() {
        const Rows<QString, int, QString> row("content", "status", "apn");
        const char* const missing = nullptr;
        row("first of two", "<v><Template apn='1' device='d'/><Template apn='2'/></v>", 0, "1");
        row("none", "<v/>", 0, "before");
        row("empty", "", 6, "before");
        row("missing", missing, 23, "before");
    }
    void templates() {
        QFETCH(QString, content);
        if (!content.isNull()) ship("SysProfile.prof", content.toUtf8());
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
        const QString path = pluginDir() + "/SysProfile.prof";
        QCOMPARE(
            read(path),
            QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<vrksdoc type=\"Profile\">\n"
                       "    <Default Default=\"kestra\" type=\"DialUp\"/>\n    <ProfileGroup type=\"Dailup\">\n"
                       "        <Template name=\"\" type=\"\" readonly=\"\" user=\"\" password=\"\" phonenumber=\"\""
                       " autoapn=\"\" apn=\"internet\" chap=\"\" pap=\"\" ip=\"\" dns=\"\" dnsalt=\"\" wins=\"\""
                       " winsalt=\"\" popusername=\"\" Remember=\"\"/>\n    </ProfileGroup>\n</vrksdoc>\n"));
        QVERIFY(QFile::permissions(path) & QFile::ReadOther);
    }

    // A packaged file says the same in other bytes: root must not rewrite it.
    void aTemplateThatSaysTheSameStays_data() {
        const Rows<QByteArray, bool> row("attributes", "stays");
        row("other order, empty ones left out", "phonenumber='*99#' name='N' type=''", true);
        row("another value", "phonenumber='*98#' name='N'", false);
        row("a value that is never written", "phonenumber='*99#' name='N' device='d'", false);
        row("a profile besides", "phonenumber='*99#' name='N'/><Profile name='P'", false);
        row("damaged", "phonenumber='*99#' name='N'><", false);
    }
    void aTemplateThatSaysTheSameStays() {
        const QByteArray content =
            "<vrksdoc type='Profile'><!-- packaged --><Default Default='kestra' type='DialUp'/>"
            "<ProfileGroup type='Dailup'><Template " +
            cell<QByteArray>("attributes") + "/></ProfileGroup></vrksdoc>";
        ship("SysProfile.prof", content);
        QHash<QString, NetConnectXML> items;
        items["name"].value = "N";
        items["phonenumber"].value = "*99#";
        QCOMPARE(xml()->ModifyProfileTemplateToSysXML(&items), 0);
        QCOMPARE(read(pluginDir() + "/SysProfile.prof") == content, cell<bool>("stays"));
    }

    void nullsAreRefused() {
        QHash<QString, NetConnectXML> items;
        QMultiHash<QString, IMSIINFO> rows;
        QString text = "common";
        m_Profiles.clear();
        QXmlStreamReader reader(QByteArray("<x/>"));
        QCOMPARE(xml()->GetAllProfileFromUserDataXML(nullptr, &m_Default, QString(), nullptr), 23);
        QCOMPARE(xml()->GetAllProfileFromUserDataXML(&m_Profiles, nullptr, QString(), nullptr), 23);
        QCOMPARE(xml()->readXML(reader, nullptr, &m_Default, nullptr), 23);
        QCOMPARE(xml()->readXML(reader, &m_Profiles, nullptr, nullptr), 23);
        QCOMPARE(xml()->GetProfileTemplateFromSysXML(nullptr), 23);
        shipConfig(section("Function", {"A=true"}));
        for (int missing = 0; missing < 6; ++missing) {
            const auto given = [&](int place, auto* value) { return place == missing ? nullptr : value; };
            QCOMPARE(xml()->GetSettingsFromXML(given(0, &text), given(1, &text), given(2, &items), given(3, &items),
                                               given(4, &items), given(5, &rows), nullptr),
                     23);
            if (missing < 2) continue;
            QCOMPARE(
                xml()->getConfigData(reader, given(2, &items), given(3, &items), given(4, &items), given(5, &rows)),
                23);
        }
        QCOMPARE(xml()->getUserPasswdPromptInfo(reader, nullptr), 23);
        QCOMPARE(m_Profiles.size() + items.size() + rows.size(), 0);
    }

    // The card is asked before the walk, the error comes where the walk meets it.
    void anErrorIsTracedWhereItIsMet() {
        useCard("1", "2");
        write(userFile(), document(profile("A"), "<MultiModeDefaultProfile><item name='C' value='CDMA'/><"));
        shipConfig("<MultiModeDefaultProfile/><");
        QHash<QString, NetConnectXML> items;
        QMultiHash<QString, IMSIINFO> rows;
        QString common = "common";
        QStringList expected{"Entered", "Get MultiMode", "Using Multi Mode", "Read Error", "Exit. Default", "Exit"};
        QCOMPARE(traced(expected, [&] { load(); }), expected);
        expected = QStringList{"Entered", "Get MultiMode", "Found MultiMode", "Read Error", "Exit"};
        const auto readConfig = [&] {
            xml()->GetSettingsFromXML(&common, &common, &items, &items, &items, &rows, nullptr);
        };
        QCOMPARE(traced(expected, readConfig), expected);
        QFile::remove(pluginDir() + "/NetConnectConfig.xml");
        expected = QStringList{"Entered", "does not exist", "Exit"};
        QCOMPARE(traced(expected, readConfig), QStringList({"Entered", "Exit"}));
    }

private:
    // Which of the texts the traces of an operation held, in their order.
    template <class Operation>
    static QStringList traced(const QStringList& texts, Operation operation) {
        static QStringList lines;
        lines.clear();
        const QtMessageHandler handler = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& line) { lines.append(line); });
        operation();
        qInstallMessageHandler(handler);
        QStringList found;
        for (const QString& line : lines)
            for (const QString& text : texts)
                if (line.contains(text)) {
                    found.append(text);
                    break;
                }
        return found;
    }

    static NetConnectXMLParse* xml() { return NetConnectXMLParse::GetInstance(); }
    int load(const QString& path = QString()) {
        m_Profiles.clear();
        return xml()->GetAllProfileFromUserDataXML(&m_Profiles, &m_Default, path, &m_IsUserSet);
    }
    static int save(const QList<DialupProfile>& profiles, const QString& name, const QString& path, bool isUserSet) {
        return xml()->SaveProfileToXML(profiles, name, path, isUserSet);
    }
    static void useCard(const QString& multiMode, const QString& mode) {
        setDevice("MULTI_MODE", multiMode);
        setDevice("CARD_MODE", mode);
    }
    // A file that has just changed is read again whatever its times say.
    static void settle() { QTest::qWait(130); }

    static QByteArray bomb() {
        QByteArray type = "<!DOCTYPE v [<!ENTITY a0 \"lol\">";
        for (int i = 1; i < 20; ++i) {
            const QByteArray earlier = "&a" + QByteArray::number(i - 1) + ";";
            type += "<!ENTITY a" + QByteArray::number(i) + " \"" + earlier.repeated(10) + "\">";
        }
        return type + "]><v><Profile name=\"&a19;\"/></v>";
    }
    static QByteArray manyAttributes(int count) {
        QByteArray content = "<v><Profile";
        for (int i = 0; i < count; ++i) content += " a" + QByteArray::number(i) + "='='";
        return content + "/></v>";
    }
    // The text with a declaration of its encoding, or a byte order mark where that is what tells; neither,
    // "undeclared".
    static QByteArray inEncoding(const QString& row, const QByteArray& text) {
        const QString encoding = row.section(' ', 0, 0);
        const bool isBare = row != encoding;
        const bool isMarked = encoding == "UTF-16" || encoding == "UTF-32";
        const QString declaration = "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
        return encoded((isMarked || isBare ? QString() : declaration) + QString::fromUtf8(text), encoding.toLatin1(),
                       isBare ? ByteOrderMark::None : ByteOrderMark::AsUsual);
    }
    QList<DialupProfile> m_Profiles;
    QString m_Default;
    bool m_IsUserSet = false;
};

QTEST_MAIN(tst_profilefile)
#include "tst_profilefile.moc"

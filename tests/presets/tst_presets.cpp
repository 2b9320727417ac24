// The preset tool, run as a program on small databases, and the files that it made of the real one.
#include <QProcess>
#include <QXmlStreamReader>
#include <QtTest>

#include "TestFolder.h"

using Record = QMap<QString, QString>;

namespace {

const QString Data = ORBISDIAL_SOURCE_DIR "/tests/presets/data/";
const QString Shipped = SHIPPED_DIR "/";
const QByteArray EmptyLibrary = "<vrksdoc type='Profile'/>";
const QByteArray BareTemplate = "<settings><PresetSections/></settings>";

struct Elements {
    QStringList names;
    QList<Record> attributes;
};

Elements elementsOf(const QByteArray& document) {
    Elements elements;
    QXmlStreamReader xml(document);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        Record record;
        for (const auto& attribute : xml.attributes())
            record[attribute.name().toString()] = attribute.value().toString();
        elements.names.append(xml.name().toString());
        elements.attributes.append(record);
    }
    return xml.hasError() ? Elements() : elements;
}

QList<Record> elementsNamed(const QString& name, const QByteArray& document) {
    QList<Record> found;
    const Elements all = elementsOf(document);
    for (int i = 0; i < all.names.size(); ++i)
        if (all.names.at(i) == name) found.append(all.attributes.at(i));
    return found;
}

QStringList namesIn(const QByteArray& library) {
    QStringList names;
    for (const Record& profile : elementsNamed("Profile", library)) names.append(profile["name"]);
    return names;
}

// One line a section: its code and its rows, the default one with a star.
QStringList sectionsIn(const QByteArray& config) {
    QStringList sections;
    bool open = false;
    const Elements all = elementsOf(config);
    for (int i = 0; i < all.names.size(); ++i) {
        const Record& element = all.attributes.at(i);
        open = all.names.at(i) == "IMSIProfileList" || (open && all.names.at(i) == "item");
        if (all.names.at(i) == "IMSIProfileList")
            sections.append(element["imsi"]);
        else if (open)
            sections.last() += '|' + element["name"] + (element["value"] == "default" ? "*" : "");
    }
    return sections;
}

QByteArray database(const QByteArray& providers) {
    return "<serviceproviders format='2.0'><country code='xy'>" + providers + "</country></serviceproviders>";
}

QByteArray provider(const QByteArray& name, const QByteArray& gsm) {
    return "<provider><name>" + name + "</name><gsm>" + gsm + "</gsm></provider>";
}

QByteArray primary(const QByteArray& name, const QByteArray& gsm) {
    return provider(name, gsm).replace("<provider>", "<provider primary='true'>");
}

QByteArray apn(const QByteArray& value, const QByteArray& details = {}) {
    return "<apn value='" + value + "'>" + details + "</apn>";
}

QByteArray named(const QByteArray& name) { return "<name>" + name + "</name>"; }
QByteArray usage(const QByteArray& type) { return "<usage type='" + type + "'/>"; }

const QByteArray Code = "<network-id mcc='999' mnc='01'/>";

class Tool {
public:
    QByteArray library() const { return TestFolder::read(m_Folder.path("out/ProfileLib.prof")); }
    QByteArray config() const { return TestFolder::read(m_Folder.path("out/NetConnectConfig.xml")); }
    QString out(const QString& name) const { return m_Folder.path("out/" + name); }
    QString error;

    int run(const QStringList& arguments) {
        QDir().mkpath(m_Folder.path("out"));
        QProcess process;
        process.start(PRESET_TOOL, arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return -1;
        error = QString::fromUtf8(process.readAllStandardError());
        return process.exitCode();
    }

    int runOnFiles(const QString& operators, const QString& config, const QString& library) {
        return run({"--database", operators, "--template", config, "--library-template", library, "--output-dir",
                    m_Folder.path("out")});
    }

    int runOn(const QByteArray& operators, const QByteArray& config = BareTemplate,
              const QByteArray& library = EmptyLibrary) {
        TestFolder::write(m_Folder.path("operators.xml"), operators);
        TestFolder::write(m_Folder.path("config.xml"), config);
        TestFolder::write(m_Folder.path("library.prof"), library);
        return runOnFiles(m_Folder.path("operators.xml"), m_Folder.path("config.xml"), m_Folder.path("library.prof"));
    }

private:
    TestFolder m_Folder;
};

}  // namespace

class PresetsTest : public QObject {
    Q_OBJECT

private slots:
    void writesExactlyTheExpectedFiles() {
        Tool tool;
        QCOMPARE(tool.runOnFiles(Data + "operators.xml", Data + "config.template.xml", Data + "library.template.prof"),
                 0);
        QCOMPARE(tool.library(), TestFolder::read(Data + "expected.prof"));
        QCOMPARE(tool.config(), TestFolder::read(Data + "expected.xml"));
        QCOMPARE(int(QFile::permissions(tool.out("ProfileLib.prof")) & 0xf0ff), 0x6044);
        QCOMPARE(tool.error, QString());
    }

    void namesProfiles_data() {
        QTest::addColumn<QByteArray>("providers");
        QTest::addColumn<QStringList>("names");
        const QByteArray longName(60, 'p');
        const QByteArray longLabel = "Label with very many words in front of the ";
        const QByteArray plans = "<plan type='prepaid'/>";
        const auto row = [](const char* title, const QByteArray& providers, const QStringList& names) {
            QTest::newRow(title) << providers << names;
        };
        row("APN without a label", provider("P", apn("a1")), {"XY P - a1"});
        row("label", provider("P", apn("a1", named("L"))), {"XY P - L"});
        row("label that is the provider", provider("P Q", apn("a1", named("p q"))), {"XY P Q"});
        row("label that repeats words", provider("P Q", apn("a1", named("Q Flat"))), {"XY P Q - Flat"});
        row("country in the provider", provider("XY Mobile", apn("a1")), {"XY Mobile - a1"});
        row("label in English",
            provider("P", apn("a1", "<name xml:lang='ru'>R</name><name xml:lang='en'>E</name><name>N</name>")),
            {"XY P - E"});
        row("forbidden characters and blanks", provider("P:&lt;1&gt;|?*(2)", apn("a1", named(" [x]/y\\ \n z "))),
            {"XY P 1-2 - x-y-z"});
        row("nothing left of the provider", provider("???", apn("a1")), {"XY a1"});
        row("unprintable characters", provider("P&#x202e;Q&#x200b;", apn("a1")), {"XY PQ - a1"});
        row("case alone differs", provider("P", apn("a1", named("L")) + apn("a2", named("l"))),
            {"XY P - L - a1", "XY P - l - a2"});
        row("plans tell apart", provider("P", apn("a1", named("L") + plans) + apn("a2", named("L"))),
            {"XY P - L Prepaid", "XY P - L"});
        row("users tell apart",
            provider("P", apn("a1", "<username>u</username>") + apn("a1", "<username>v</username>")),
            {"XY P - a1 - u", "XY P - a1 - v"});
        row("passwords are not told",
            provider("P", apn("a1", "<password>u</password>") + apn("a1", "<password>v</password>")),
            {"XY P - a1", "XY P - a1 2"});
        row("one identity twice",
            provider("P", apn("a1", usage("wap") + named("W")) + apn(" a1 ", usage("internet") + named("I"))),
            {"XY P - I"});
        row("two providers of one name", provider("P", apn("a1")) + provider("P", apn("a1")),
            {"XY P - a1", "XY P - a1 2"});
        row("long provider gives way",
            provider(longName, apn("a1", named("First label")) + apn("a2", named("Other label"))),
            {"XY " + QString(31, 'p') + " - First label", "XY " + QString(31, 'p') + " - Other label"});
        row("long labels that differ at their end",
            provider("P", apn("a1", named(longLabel + "one")) + apn("a2", named(longLabel + "two"))),
            {"XY P - Label with very many words in front - a1", "XY P - Label with very many words in front - a2"});
        row("no half of a surrogate pair", provider(QByteArray("\xf0\x9f\x98\x80").repeated(40), apn("abcd")),
            {"XY " + QString::fromUtf8("\xf0\x9f\x98\x80").repeated(19) + " - abcd"});
        row("messages alone are left out", provider("P", apn("a1") + apn("mms", usage("mms"))), {"XY P - a1"});
        row("messages and internet stay", provider("P", apn("a1", usage("mms-internet-hipri"))), {"XY P - a1"});
        row("APNs that cannot be saved are left out",
            provider("P", apn("a1") + apn("http://x") + apn("-a") + apn(" ") + apn(QByteArray(101, 'a'))),
            {"XY P - a1"});
        row("CDMA without anything", "<provider><name>P</name><cdma/></provider>", {"XY P - CDMA"});
    }

    void namesProfiles() {
        QFETCH(QByteArray, providers);
        Tool tool;
        QCOMPARE(tool.runOn(database(providers)), 0);
        QTEST(namesIn(tool.library()), "names");
    }

    void avoidsTheNamesOfTheTemplate() {
        Tool tool;
        QCOMPARE(tool.runOn(database(provider("P", apn("a1"))), BareTemplate,
                            "<vrksdoc><Profile name='xy p - A1'/></vrksdoc>"),
                 0);
        QCOMPARE(namesIn(tool.library()), QStringList({"xy p - A1", "XY P - a1 - a1"}));
    }

    void fillsFields_data() {
        QTest::addColumn<QByteArray>("details");
        QTest::addColumn<QString>("expected");  // user, password, chap, pap, popusername
        const auto row = [](const char* title, const QByteArray& details, const char* expected) {
            QTest::newRow(title) << details << QString(expected);
        };
        row("no credentials", "", "||false|false|false");
        row("user alone", "<username>u</username>", "u||true|true|false");
        row("password alone", "<password> s </password>", "|s|true|true|false");
        row("CHAP given", "<username>u</username><authentication method='chap'/>", "u||true|false|false");
        row("PAP given without credentials", "<authentication method='pap'/>", "||false|true|false");
        row("phone number as user", "<username>MSISDN</username>", "MSISDN||true|true|true");
        row("phone number as password", "<password>your_phone_number</password>", "|your_phone_number|true|true|true");
        row("calling code", "<username>+65</username>", "+65||true|true|true");
        row("digits that are a user", "<username>38591</username>", "38591||true|true|false");
        row("realm alone", "<username>@r.example</username>", "@r.example||true|true|false");
    }

    void fillsFields() {
        QFETCH(QByteArray, details);
        Tool tool;
        QCOMPARE(tool.runOn(database(provider("P", apn("a1", details)))), 0);
        const Record profile = elementsNamed("Profile", tool.library()).value(0);
        QStringList fields;
        for (const char* field : {"user", "password", "chap", "pap", "popusername"}) fields.append(profile[field]);
        QTEST(fields.join('|'), "expected");
    }

    void choosesDefaults_data() {
        QTest::addColumn<QByteArray>("providers");
        QTest::addColumn<QStringList>("sections");
        const QByteArray badCodes =
            "<network-id mcc='99a' mnc='01'/><network-id mcc='' mnc=''/><network-id mcc='99' mnc='901'/>";
        const QByteArray wapFirst = Code + apn("w", usage("wap")) + apn("n");
        const auto row = [](const char* title, const QByteArray& providers, const QStringList& sections) {
            QTest::newRow(title) << providers << sections;
        };
        row("internet first", provider("P", wapFirst + apn("i", usage("internet"))),
            {"99901|XY P - w|XY P - n|XY P - i*"});
        row("no usage before WAP", provider("P", wapFirst), {"99901|XY P - w|XY P - n*"});
        row("file order", provider("P", Code + apn("b")) + provider("Q", Code + apn("a")),
            {"99901|XY P - b*|XY Q - a"});
        row("primary provider", provider("P", Code + apn("a")) + primary("Q", Code + apn("b")),
            {"99901|XY P - a|XY Q - b*"});
        row("usage before primary", provider("P", Code + apn("a", usage("internet"))) + primary("Q", Code + apn("b")),
            {"99901|XY P - a*|XY Q - b"});
        row("code given twice", provider("P", Code + Code + apn("a")), {"99901|XY P - a*"});
        row("code that begins another, leading zeros kept",
            provider("P", "<network-id mcc='001' mnc='010'/><network-id mcc='001' mnc='01'/>" + apn("a")),
            {"00101|XY P - a*", "001010|XY P - a*"});
        row("no usable APN", provider("P", Code + apn("m", usage("mms"))) + provider("Q", apn("a")), {});
        row("not a code", provider("P", badCodes + apn("a")), {});
    }

    void choosesDefaults() {
        QFETCH(QByteArray, providers);
        Tool tool;
        QCOMPARE(tool.runOn(database(providers)), 0);
        QTEST(sectionsIn(tool.config()), "sections");
    }

    void warnsOfWhatItSkips() {
        Tool tool;
        QCOMPARE(tool.runOn(database(provider("P", "\n<network-id mcc='x' mnc='1'/>\n" + apn("-a") + apn("a1")))), 0);
        QCOMPARE(tool.error.count('\n'), 2);
        for (const char* place : {"operators.xml:2:", "operators.xml:3:"}) QVERIFY(tool.error.contains(place));
    }

    void refusesBadInput_data() {
        QTest::addColumn<QByteArray>("operators");
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<QByteArray>("library");
        QTest::addColumn<QString>("error");
        const QByteArray good = database(provider("P", apn("a1")));
        QByteArray bomb = "<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'>";
        for (char c = 'b'; c < 'l'; ++c)
            bomb += QByteArray("<!ENTITY ") + c + " '" + ('&' + QByteArray(1, char(c - 1)) + ';').repeated(10) + "'>";
        const auto row = [](const char* name, const QByteArray& operators, const char* error) {
            QTest::newRow(name) << operators << BareTemplate << EmptyLibrary << error;
        };
        row("empty", "", "operators.xml:1:0: ");
        row("truncated", good.left(good.size() / 2), "operators.xml:1:");
        row("truncated at the end", good.left(good.size() - 3), "operators.xml:1:");
        row("junk after the end", good + "<x/>", "operators.xml:1:");
        row("not XML", "GIF89a", "operators.xml:1:");
        row("wrong encoding", database(provider("\xff\xfe", apn("a1"))), "operators.xml:1:");
        row("entity bomb", bomb + "]>" + database(provider("&k;", apn("a1"))), "operators.xml:1:");
        row("very many attributes", "<a" + QByteArray(" a=''").repeated(2000) + "/>", "more than 1000 attributes");
        row("other root", "<a format='2.0'/>", "operators.xml:1:");
        row("other format", "<serviceproviders format='3.0'/>", "format 2.0");
        row("country without a code", "<serviceproviders format='2.0'>\n<country/></serviceproviders>", ".xml:2:");
        row("no provider", database(""), "no provider has a usable access point");
        row("messages alone", database(provider("P", apn("mms", usage("mms")))), "no provider has a usable");
        QTest::newRow("template without a place") << good << QByteArray("<a/>") << EmptyLibrary << "config.xml:1:";
        QTest::newRow("template with two places")
            << good << QByteArray("<a>\n<PresetSections/>\n<PresetSections/></a>") << EmptyLibrary << "config.xml:3:";
        QTest::newRow("truncated template") << good << BareTemplate.left(30) << EmptyLibrary << "config.xml:1:";
        QTest::newRow("truncated library") << good << BareTemplate << QByteArray("<vrksdoc>") << "library.prof:1:";
        QTest::newRow("other library") << good << BareTemplate << QByteArray("<a/>") << "library.prof:1:";
    }

    void refusesBadInput() {
        QFETCH(QByteArray, operators);
        QFETCH(QByteArray, config);
        QFETCH(QByteArray, library);
        QFETCH(QString, error);
        Tool tool;
        TestFolder::write(tool.out("ProfileLib.prof"), "old");
        QCOMPARE(tool.runOn(operators, config, library), 1);
        QCOMPARE(tool.error.count('\n'), 1);
        QVERIFY2(tool.error.contains(error), qPrintable(tool.error));
        QCOMPARE(tool.library(), QByteArray("old"));
        QCOMPARE(tool.config(), QByteArray());
    }

    void replacesBothFilesOrNone() {
        Tool tool;
        TestFolder::write(tool.out("NetConnectConfig.xml"), "old");
        QDir().mkpath(tool.out("ProfileLib.prof"));
        QCOMPARE(tool.runOn(database(provider("P", apn("a1")))), 1);
        QCOMPARE(tool.config(), QByteArray("old"));
        QCOMPARE(QDir(tool.out("")).entryList(QDir::Files), QStringList{"NetConnectConfig.xml"});
    }

    void judgesTheCommandLine_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::newRow("help") << QStringList{"--help"} << 0;
        QTest::newRow("version") << QStringList{"--version"} << 0;
        QTest::newRow("nothing") << QStringList{} << 2;
        QTest::newRow("unknown option") << QStringList{"--nothing"} << 2;
        QTest::newRow("missing value") << QStringList{"--output-dir"} << 2;
        QTest::newRow("argument too many") << QStringList{"--output-dir", "x", "y"} << 2;
        QTest::newRow("missing file") << QStringList{"--output-dir", "x", "--database", "/nonexistent"} << 1;
    }

    void judgesTheCommandLine() {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        Tool tool;
        QCOMPARE(tool.run(arguments), status);
        QCOMPARE(tool.error.count('\n'), status == 0 ? 0 : 1);
    }

    void shippedNamesAreValidAndUnique() {
        const QStringList names = namesIn(TestFolder::read(Shipped + "ProfileLib.prof"));
        QVERIFY2(names.size() > 900 && names.size() < 1200, qPrintable(QString::number(names.size())));
        QSet<QString> seen;
        const QRegularExpression forbidden("[:<>|?*()\\[\\]/\\\\]|^ | $|  ");
        for (const QString& name : names) {
            QVERIFY2(!name.isEmpty() && name.size() <= 48 && !name.contains(forbidden), qPrintable(name));
            QVERIFY2(!seen.contains(name.toCaseFolded()), qPrintable(name));
            seen.insert(name.toCaseFolded());
        }
    }

    void shippedSectionsNameProfilesOfTheLibrary() {
        const QStringList names = namesIn(TestFolder::read(Shipped + "ProfileLib.prof"));
        const QStringList sections = sectionsIn(TestFolder::read(Shipped + "NetConnectConfig.xml"));
        QVERIFY2(sections.size() > 700 && sections.size() < 950, qPrintable(QString::number(sections.size())));
        QSet<QString> codes;
        for (QString section : sections) {
            QVERIFY2(section.count('*') == 1, qPrintable(section));
            QStringList rows = section.remove('*').split('|');
            codes.insert(rows.takeFirst());
            for (const QString& name : rows) QVERIFY2(names.contains(name), qPrintable(name));
        }
        QCOMPARE(codes.size(), sections.size());
        for (const char* name : {"Generic GSM", "Generic CDMA"}) QVERIFY(names.contains(name));
    }

    // An item before the first section of a pair would join the section that an earlier reading left open.
    void shippedPairsBeginWithASection() {
        const Elements all = elementsOf(TestFolder::read(Shipped + "NetConnectConfig.xml"));
        const QStringList prompts = {"PromptPwd", "UserCheck", "CheckNamePwd", "DisableNamePwd"};
        QString group;
        QStringList firstItems;
        for (int i = 0; i < all.names.size(); ++i) {
            const QString name = all.attributes.at(i)["name"];
            if (all.names.at(i) == "group") group = name;
            if (all.names.at(i) == "item" && firstItems.size() < 4) firstItems.append(name);
            if (prompts.contains(name)) QCOMPARE(group, QString("prompt"));
            if (all.names.at(i) == "module" && group != "prompt") QVERIFY(all.names.at(i + 1) != "item");
        }
        QCOMPARE(firstItems, prompts);
    }

    void shippedTemplateIsTheConfiguredOne() {
        const Record shipped = elementsNamed("Template", TestFolder::read(Shipped + "SysProfile.prof")).value(0);
        const Elements all = elementsOf(TestFolder::read(Shipped + "NetConnectConfig.xml"));
        Record configured;
        for (int i = all.names.indexOf("ProfileTemplate") + 1; all.names.at(i) == "item"; ++i)
            configured[all.attributes.at(i)["name"]] = all.attributes.at(i)["value"];
        QCOMPARE(shipped.size(), 17);
        QCOMPARE(configured, shipped);
    }

    void shippedFilesAreMadeAlikeAgain() {
        Tool tool;
        QCOMPARE(
            tool.run({"--template", ORBISDIAL_SOURCE_DIR "/data/NetConnectConfig.template.xml", "--library-template",
                      ORBISDIAL_SOURCE_DIR "/data/ProfileLib.template.prof", "--output-dir", tool.out("")}),
            0);
        for (const char* name : {"ProfileLib.prof", "NetConnectConfig.xml"})
            QCOMPARE(TestFolder::read(tool.out(name)), TestFolder::read(Shipped + name));
    }
};

QTEST_GUILESS_MAIN(PresetsTest)
#include "tst_presets.moc"

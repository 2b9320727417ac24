// SPDX-License-Identifier: MIT
// The preset tool, run as a program on small databases, and the files that it made of the real one.
#include <QXmlStreamReader>

#include "Program.h"
#include "Rows.h"
#include "TestFolder.h"

using Record = QMap<QString, QString>;

namespace {

const QString Data = ORBISDIAL_SOURCE_DIR "/tests/presets/data/";
const QString Shipped = SHIPPED_DIR "/";
const QByteArray EmptyLibrary = "<vrksdoc type='Profile'/>";
const QByteArray BareTemplate = "<settings><PresetSections/></settings>";

struct Element {
    QString tag;
    Record attributes;
};

QList<Element> elementsOf(const QByteArray& document) {
    QList<Element> elements;
    QXmlStreamReader xml(document);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        elements.append({xml.name().toString(), {}});
        for (const auto& attribute : xml.attributes())
            elements.last().attributes[attribute.name().toString()] = attribute.value().toString();
    }
    return xml.hasError() ? QList<Element>() : elements;
}

Record firstElement(const QString& tag, const QByteArray& document) {
    for (const Element& element : elementsOf(document))
        if (element.tag == tag) return element.attributes;
    return Record();
}

QStringList namesIn(const QByteArray& library) {
    QStringList names;
    for (const Element& element : elementsOf(library))
        if (element.tag == "Profile") names.append(element.attributes["name"]);
    return names;
}

// One line a section: its code and its rows, the default one with a star.
QStringList sectionsIn(const QByteArray& config) {
    QStringList sections;
    bool open = false;
    for (const Element& element : elementsOf(config)) {
        const bool begins = element.tag == "IMSIProfileList";
        open = begins || (open && element.tag == "item");
        if (begins) sections.append(element.attributes["imsi"]);
        if (open && !begins)
            sections.last() += '|' + element.attributes["name"] + (element.attributes["value"].isEmpty() ? "" : "*");
    }
    return sections;
}

QByteArray database(const QByteArray& providers) {
    return "<serviceproviders format='2.0'><country code='xy'>" + providers + "</country></serviceproviders>";
}

QByteArray provider(const QByteArray& name, const QByteArray& gsm) {
    return "<provider><name>" + name + "</name><gsm>" + gsm + "</gsm></provider>";
}

QByteArray provider(const QByteArray& gsm) { return provider("P", gsm); }

QByteArray apn(const QByteArray& value, const QByteArray& details = {}) {
    return "<apn value='" + value + "'>" + details + "</apn>";
}

QByteArray named(const QByteArray& name) { return "<name>" + name + "</name>"; }
QByteArray user(const QByteArray& name) { return "<username>" + name + "</username>"; }
QByteArray usage(const QByteArray& type) { return "<usage type='" + type + "'/>"; }

const QByteArray Code = "<network-id mcc='999' mnc='01'/>";

class Tool {
public:
    QByteArray library() const { return TestFolder::read(out("ProfileLib.prof")); }
    QByteArray index() const { return TestFolder::read(out("Operators.xml")); }
    QByteArray config() const { return TestFolder::read(out("NetConnectConfig.xml")); }
    QString out(const QString& name) const { return m_Folder.path("out/" + name); }
    QByteArray error;

    int run(const QStringList& arguments) {
        QDir().mkpath(out(""));
        const Outcome outcome = runProgram(PRESET_TOOL, arguments);
        error = outcome.err;
        return outcome.status;
    }

    int runOn(const QByteArray& operators, const QByteArray& config = BareTemplate,
              const QByteArray& library = EmptyLibrary) {
        const auto write = [this](const QString& name, const QByteArray& content) {
            TestFolder::write(m_Folder.path(name), content);
            return m_Folder.path(name);
        };
        return run({"--database", write("operators.xml", operators), "--template", write("config.xml", config),
                    "--library-template", write("library.prof", library), "--output-dir", out("")});
    }

private:
    TestFolder m_Folder;
};

}  // namespace

class tst_presets : public QObject {
    Q_OBJECT

private slots:
    // Templates name what the library will have; what they became is judged as it is.
    void checks() {
        const TestFolder folder;
        const QString data = ORBISDIAL_SOURCE_DIR "/data/";
        const QStringList ours{"--check", "--template", data + "NetConnectConfig.template.xml", "--library-template",
                               data + "ProfileLib.template.prof"};
        const Outcome clean = runProgram(PRESET_TOOL, ours);
        QVERIFY2(clean.status == 0 && clean.err.isEmpty(), clean.out + clean.err);
        const QByteArray wrong = TestFolder::read(ours.at(2)).replace("Generic GSM", "Generic LTE");
        TestFolder::write(folder.path("wrong.xml"), wrong);
        const Outcome found =
            runProgram(PRESET_TOOL, ours.mid(0, 2) + QStringList{folder.path("wrong.xml")} + ours.mid(3));
        QVERIFY2(found.out.contains("wrong.xml:81:17: the library has no profile \"Generic LTE\""), found.out);
        QCOMPARE(found.status, 1);
        QCOMPARE(runProgram(PRESET_TOOL, {"--check", Shipped + "NetConnectConfig.xml", Shipped + "ProfileLib.prof",
                                          Shipped + "Operators.xml"})
                     .status,
                 0);
        QCOMPARE(runProgram(PRESET_TOOL, {"--check", "--output-dir", folder.path("")}).status, 2);
    }

    void writesExactlyTheExpectedFiles() {
        Tool tool;
        QCOMPARE(tool.runOn(TestFolder::read(Data + "operators.xml"), TestFolder::read(Data + "config.template.xml"),
                            TestFolder::read(Data + "library.template.prof")),
                 0);
        QCOMPARE(tool.library(), TestFolder::read(Data + "expected.prof"));
        QCOMPARE(tool.config(), TestFolder::read(Data + "expected.xml"));
        QCOMPARE(tool.index(), TestFolder::read(Data + "expected.operators.xml"));
        QCOMPARE(int(QFile::permissions(tool.out("ProfileLib.prof")) & 0xf0ff), 0x6044);
        QCOMPARE(tool.error, QByteArray());
    }

    void namesProfiles_data() {
        const Rows<QByteArray, QString> row("providers", "names");
        const QByteArray longLabel = "Label with very many words in front of the ";
        const QByteArray plan = "<plan type='prepaid'/>";
        row("label that repeats words", provider("P Q", apn("a1", named("Q Flat"))), "XY P Q - Flat");
        row("forbidden characters and blanks", provider("P:&lt;1&gt;|?*(2)", apn("a1", named(" [x]/y\\ \n z "))),
            "XY P 1-2 - x-y-z");
        row("case alone differs", provider(apn("a1", named("L")) + apn("a2", named("l"))),
            "XY P - L - a1|XY P - l - a2");
        row("plans tell apart", provider(apn("a1", named("L") + plan) + apn("a2", named("L"))),
            "XY P - L Prepaid|XY P - L");
        row("passwords are not told", provider(apn("a1") + apn("a1", "<password>v</password>")),
            "XY P - a1|XY P - a1 2");
        row("one identity twice",
            provider(apn("a1", usage("wap") + named("W")) + apn(" a1 ", usage("internet") + named("I"))), "XY P - I");
        row("long labels that differ at their end",
            provider(apn("a1", named(longLabel + "one")) + apn("a2", named(longLabel + "two"))),
            "XY P - Label with very many words in front - a1|XY P - Label with very many words in front - a2");
        row("APNs that cannot be saved are left out",
            provider(apn("a1") + apn("http://x") + apn("-a") + apn(" ") + apn(QByteArray(101, 'a'))), "XY P - a1");
        row("CDMA without anything", "<provider><name>P</name><cdma/></provider>", "XY P - CDMA");
    }

    void namesProfiles() {
        QFETCH(QByteArray, providers);
        Tool tool;
        QCOMPARE(tool.runOn(database(providers)), 0);
        QTEST(namesIn(tool.library()).join('|'), "names");
    }

    void avoidsTheNamesOfTheTemplate() {
        Tool tool;
        const QByteArray library = "<vrksdoc><Profile name='xy p - A1'/></vrksdoc>";
        QCOMPARE(tool.runOn(database(provider(apn("a1"))), BareTemplate, library), 0);
        QCOMPARE(namesIn(tool.library()), QStringList({"xy p - A1", "XY P - a1 - a1"}));
    }

    void fillsFields_data() {
        const Rows<QByteArray, QString> row("details", "expected");  // user, password, chap, pap, popusername
        row("user alone", user("u"), "u||true|true|false");
        row("phone number as user", user("MSISDN"), "MSISDN||true|true|true");
        row("phone number as password", "<password>your_phone_number</password>", "|your_phone_number|true|true|true");
        row("digits that are a user", user("38591"), "38591||true|true|false");
    }

    void fillsFields() {
        QFETCH(QByteArray, details);
        Tool tool;
        QCOMPARE(tool.runOn(database(provider(apn("a1", details)))), 0);
        const Record profile = firstElement("Profile", tool.library());
        QStringList fields;
        for (const char* field : {"user", "password", "chap", "pap", "popusername"}) fields.append(profile[field]);
        QTEST(fields.join('|'), "expected");
    }

    void choosesDefaults_data() {
        const Rows<QByteArray, QString> row("providers", "sections");
        const QByteArray badCodes =
            "<network-id mcc='99a' mnc='01'/><network-id mcc='' mnc=''/><network-id mcc='99' mnc='901'/>";
        const QByteArray twoCodes = "<network-id mcc='001' mnc='010'/><network-id mcc='001' mnc='01'/>";
        const QByteArray wapFirst = Code + apn("w", usage("wap")) + apn("n"), internet = usage("internet");
        const QByteArray primary = provider("Q", Code + apn("b")).replace("<provider>", "<provider primary='true'>");
        row("internet first", provider(wapFirst + apn("i", internet)), "99901|XY P - w|XY P - n|XY P - i*");
        row("not the one for calls", provider(Code + apn("xims", internet) + apn("n")), "99901|XY P - xims|XY P - n*");
        row("primary provider", provider(Code + apn("a")) + primary, "99901|XY P - a|XY Q - b*");
        row("usage before primary", provider(Code + apn("a", internet)) + primary, "99901|XY P - a*|XY Q - b");
        row("code that begins another, leading zeros kept", provider(twoCodes + apn("a")),
            "00101|XY P - a* 001010|XY P - a*");
        row("no usable APN", provider(Code + apn("m", usage("mms"))) + provider("Q", apn("a")), "");
        row("not a code", provider(badCodes + apn("a")), "");
    }

    void choosesDefaults() {
        QFETCH(QByteArray, providers);
        Tool tool;
        QCOMPARE(tool.runOn(database(providers)), 0);
        QTEST(sectionsIn(tool.config()).join(' '), "sections");
    }

    void asksForTheBalance_data() {
        const Rows<QByteArray, QString, int> row("queries", "kept", "warnings");
        row("all ways in their order", "<dtmf>*22</dtmf><sms text=''>1150</sms><ussd> *544# </ussd>",
            "dtmf *22|sms 1150|ussd *544#", 0);
        row("text of a message", "<sms text='EASY SALDO'>15400</sms>", "sms 15400 EASY SALDO", 0);
        row("not a dialogue", "<ussd>#124#</ussd><ussd-response>4</ussd-response>", "ussd #124#", 0);
        row("what can't be sent", "<ussd>100</ussd><ussd>*1#;2</ussd><sms>a</sms><dtmf/><ussd>*1#</ussd>", "ussd *1#",
            4);
    }
    void asksForTheBalance() {
        QFETCH(QByteArray, queries);
        Tool tool;
        QCOMPARE(tool.runOn(database(provider("<balance-check>" + queries + "</balance-check>" + apn("a1")))), 0);
        QStringList kept;
        for (const Element& element : elementsOf(tool.index()))
            if (element.tag == "balance")
                kept.append(
                    (element.attributes["way"] + ' ' + element.attributes["number"] + ' ' + element.attributes["text"])
                        .trimmed());
        QTEST(kept.join('|'), "kept");
        QTEST(int(tool.error.count('\n')), "warnings");
    }

    void indexesOperators_data() {
        const Rows<QByteArray, QString> row("providers", "index");
        row("likeliest preset first",
            provider(apn("w", usage("wap")) + apn("n") + apn("i", usage("internet")) + apn("j", usage("internet"))),
            "P|XY P - i|XY P - j|XY P - n|XY P - w");
        row("each has its own",
            provider("P", apn("i")) + provider("P", apn("j")) + provider("Q", apn("mms", usage("mms"))),
            "P|XY P - i P|XY P - j");
        row("other names",
            "<provider><name xml:lang='ru'>R</name><name>P</name><name xml:lang='zh'>Z</name>" + QByteArray("<gsm>") +
                apn("i") + "</gsm></provider>",
            "P|R|Z|XY P - i");
    }
    void indexesOperators() {
        QFETCH(QByteArray, providers);
        Tool tool;
        QCOMPARE(tool.runOn(database(providers)), 0);
        QString index;
        for (const Element& element : elementsOf(tool.index()).mid(1))
            index += (element.tag == "operator" ? ' ' : '|') + element.attributes["name"];
        QTEST(index.trimmed(), "index");
    }

    void refusesBadInput_data() {
        const Rows<QByteArray, QByteArray, QByteArray, QByteArray> row("operators", "config", "library", "error");
        const QByteArray good = database(provider(apn("a1")));
        const QByteArray mms = database(provider(apn("mms", usage("mms"))));
        const auto operators = [&](const char* name, const QByteArray& content, const char* error) {
            row(name, content, BareTemplate, EmptyLibrary, error);
        };
        operators("no code", "<serviceproviders format='2.0'>\n<country/></serviceproviders>", ".xml:2:");
        operators("messages alone", mms, "no provider has a usable access point");
        row("template without a place", good, "<a/>", EmptyLibrary, "config.xml:1:");
        row("template with two places", good, "<a>\n<PresetSections/>\n<PresetSections/></a>", EmptyLibrary,
            "config.xml:3:");
        row("other library", good, BareTemplate, "<a/>", "library.prof:1:");
    }

    void refusesBadInput() {
        QFETCH(QByteArray, operators);
        QFETCH(QByteArray, config);
        QFETCH(QByteArray, library);
        QFETCH(QByteArray, error);
        Tool tool;
        TestFolder::write(tool.out("ProfileLib.prof"), "old");
        QCOMPARE(tool.runOn(operators, config, library), 1);
        QCOMPARE(tool.error.count('\n'), 1);
        QVERIFY2(tool.error.contains(error), tool.error);
        QCOMPARE(tool.library(), QByteArray("old"));
        QCOMPARE(tool.config() + tool.index(), QByteArray());
    }

    void replacesBothFilesOrNone() {
        Tool tool;
        TestFolder::write(tool.out("NetConnectConfig.xml"), "old");
        QDir().mkpath(tool.out("ProfileLib.prof"));
        QCOMPARE(tool.runOn(database(provider(apn("a1")))), 1);
        QCOMPARE(tool.config(), QByteArray("old"));
        QCOMPARE(QDir(tool.out("")).entryList(QDir::Files), QStringList{"NetConnectConfig.xml"});
    }

    void judgesTheCommandLine() {
        Tool tool;
        QCOMPARE(tool.run({"--help"}), 0);
        QCOMPARE(tool.run({}), 2);
        QCOMPARE(tool.run({"--output-dir", "x", "--database", "/nonexistent"}), 1);
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
        QVERIFY(names.contains("Generic GSM") && names.contains("Generic CDMA"));
    }

    void shippedPresetsHaveOneOperatorEach() {
        QStringList names = namesIn(TestFolder::read(Shipped + "ProfileLib.prof"));
        int balances = 0;
        for (const Element& element : elementsOf(TestFolder::read(Shipped + "Operators.xml"))) {
            if (element.tag == "preset") QVERIFY2(names.removeOne(element.attributes["name"]), "a preset of two");
            balances += element.tag == "balance";
        }
        QCOMPARE(names, QStringList({"Generic GSM", "Generic CDMA"}));
        QVERIFY2(balances > 120 && balances < 300, qPrintable(QString::number(balances)));
    }

    void shippedTemplateIsTheConfiguredOne() {
        const Record shipped = firstElement("Template", TestFolder::read(Shipped + "SysProfile.prof"));
        Record configured;
        bool open = false;
        for (const Element& element : elementsOf(TestFolder::read(Shipped + "NetConnectConfig.xml"))) {
            const bool isItem = element.tag == "item";
            if (!isItem) open = element.tag == "ProfileTemplate" && configured.isEmpty();
            if (isItem && open) configured[element.attributes["name"]] = element.attributes["value"];
        }
        QCOMPARE(shipped.size(), 17);
        QCOMPARE(configured, shipped);
    }
};

QTEST_GUILESS_MAIN(tst_presets)
#include "tst_presets.moc"

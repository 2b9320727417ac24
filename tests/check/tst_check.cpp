// SPDX-License-Identifier: MIT
// What is found in files that integrators ship.
#include <QtTest>

#include "FilesCheck.h"
#include "Rows.h"
#include "TestFolder.h"

namespace {

QByteArray library(const QByteArray& attributes = {}) {
    return "<vrksdoc>\n<ProfileGroup>\n<Profile name='One' phonenumber='*99#' encrypttype='2' " + attributes +
           "/>\n<Profile name='Two' phonenumber='1' encrypttype='2'/>\n</ProfileGroup>\n</vrksdoc>\n";
}

// A module in a group, whose content begins in line 3.
QByteArray module(const QByteArray& group, const QByteArray& name, const QByteArray& content) {
    return "<group name='" + group + "'>\n<module name='" + name + "'>\n" + content + "\n</module></group>\n";
}

QByteArray config(const QByteArray& modules) { return "<NetConnectConfig>" + modules + "</NetConnectConfig>"; }
QByteArray common(const QByteArray& content) { return config(module("common", "common", content)); }

QByteArray item(const QByteArray& name, const QByteArray& value = {}) {
    return "<item name='" + name + "' value='" + value + "'/>\n";
}
QByteArray section(const QByteArray& tag, const QByteArray& items) {
    return '<' + tag + ">\n" + items + "</" + tag.split(' ').first() + ">\n";
}

}  // namespace

class tst_check : public QObject {
    Q_OBJECT

private slots:
    // The file is checked beside a library of One and Two; "place: words of the finding and its remedy" for each
    // finding.
    void finds_data() {
        const Rows<QByteArray, QStringList> row("content", "findings");
        const QByteArray list = "IMSIProfileList imsi='26201'";
        const QByteArray on = section("Function", item("IMSIAPN", "true"));
        row("nothing", common(on + section("ProfileList", item("One", "default") + item("Two"))), {});

        // the configuration's elements
        row("no end", config("<group name='common'><module name='common'>\n<Function>\n</module>"),
            {"3:10 mismatch <Function> of line 2"});
        row("unknown element", common("<function/>"), {"3:1 <function> write Function"});
        row("unknown attribute", common("<IMSIProfileList  imis='26201'>\n" + item("One") + "</IMSIProfileList>"),
            {"3:1 imis write imsi", "3:1 no imsi"});
        row("text", common("<Function>IMSIAPN=true</Function>"), {"3:11 nothing reads"});
        row("pair", config(module("common", "common", "") + module("Common", "common", "\n <ProfileList/>")),
            {"8:2 never read common with common"});
        row("none common", config(""), {"0:0 no module common"});
        row("behind a section", common("<Function></Function>" + item("One")),
            {"3:22 counts for <Function> of line 3"});
        row("before any", common(item("One")), {"3:1 not read"});
        row("prompt", common(on + item("UserCheck", "True")), {"6:1 off write \"true\"", "6:1 never read"});
        row("sections left", common("<PresetSections/>"), {"3:1 orbis-presets"});
        row("foreign root", "<html/>", {"0:0 <html> NetConnectConfig"});

        // its values
        row("switch", common(section("Function", item("ENCRYPT", "True"))),
            {"4:1 ENCRYPT counts as off write \"true\""});
        row("unknown key", common(section("Function", item("IMSIAPM", "true") + item("acme.key", "x"))),
            {"4:1 IMSIAPM write IMSIAPN"});
        row("twice", common(section("Function", item("APN", "true") + item("APN", "true"))), {"5:1 APN line 4"});
        row("length", common(section("Function", item("ProfileNameLength", "many"))), {"4:1 counts as 48"});
        row("template", common(section("ProfileTemplate", item("apm") + item("apn", "a b") + item("chap", "1"))),
            {"4:1 apm write apn", "5:1 apn: may hold", "6:1 chap: must be"});
        row("lacking", common(section("ProfileList", item("Tow"))), {"4:1 \"Tow\" write \"Two\""});
        row("two defaults", common(section("ProfileList", item("One", "default") + item("Two", "default"))),
            {"5:1 second default line 4"});
        row("value", common(section("ProfileList", item("One", "Default"))), {"4:1 \"Default\" says nothing"});
        row("merged defaults",
            config(module("common", "common", section("ProfileList", item("One", "default"))) +
                   module("common", "CDMA", section("ProfileList", item("Two", "default")))),
            {"11:1 \"One\" two defaults common/CDMA"});
        row("mode",
            common(section("ProfileList", item("One", "mine")) +
                   section("MultiModeDefaultProfile", item("One", "GSM") + item("Two", "CDMA"))),
            {"4:1 \"mine\" says nothing", "7:1 value of its own", "7:1 counts as WCDMA", "8:1 in no <ProfileList>"});

        // presets by SIM card
        row("no digits", common(section("IMSIProfileList imsi='262-01'", item("One"))), {"3:1 more than digits"});
        row("list twice", common(section(list, item("One")) + section(list, item("Two"))), {"6:1 second list line 3"});
        row("empty list", common(section(list, "")), {"3:1 is empty"});
        row("shadow",
            common(section("IMSIProfileList imsi='262'", item("One") + item("Two")) + section(list, item("One"))),
            {"7:1 in place of that of 262 \"Two\""});
        row("whole shadow", common(section("IMSIProfileList imsi='262'", item("One")) + section(list, item("One"))),
            {});
        row("networks' codes",
            common(section(list, item("One")) + section("IMSIProfileList imsi='262011'", item("Two"))), {});
        row("customised away",
            config(module("common", "common", on + section(list, item("One"))) + module("customize", "ACME", on)),
            {"12:1 without presets"});
        row("customised off",
            config(module("common", "common", on + section(list, item("One"))) +
                   module("customize", "ACME", section("Function", item("IMSIAPN", "false")))),
            {});

        // profiles
        row("library", library(), {});
        row("values", library("apn='-x.' chap='yes' dns='1.2.3' readonly='True' user='" + QByteArray(49, 'u') + "'"),
            {"3:1 at most 48", "3:1 chap:", "3:1 dns:", "3:1 readonly:", "3:1 apn: must begin"});
        row("name", library().replace("'Two'", "'One'"), {"4:1 line 3"});
        row("bad name", library().replace("One", "a/b"), {"3:1 must not contain"});
        row("long name", library().replace("One", QByteArray(49, 'n')), {"3:1 at most 48"});
        row("method", library().replace("'2'", "'3'"), {"3:1 no method", "4:1 no method"});
        row("base64", library("password='c2VjcmV0'").replace("'2' p", "'1' p"), {"3:1 as it stands until an import"});
        row("sealed", library("password='orbis1:AAAA'"), {"3:1 is sealed encrypttype=\"2\""});
        row("unkept", library("password='\xd0\xbf'"), {"3:1 Latin-1"});
        row("field", library("anp='x'"), {"3:1 anp write apn"});
        row("default", library().replace("</vrksdoc>", "<Default name='One'/></vrksdoc>"), {"6:1 nothing reads it"});

        // operators
        row("operators",
            "<Operators>\n<operator country='DE' name=''>\n<preset name='Three'/><preset name='One'/>\n"
            "<preset name='One'/>\n<balance way='USSD'/>\n</operator></Operators>",
            {"2:1 empty name", "2:1 country", "3:1 \"Three\"", "4:1 line 3", "5:1 no number", "5:1 write ussd"});

        // broken and hostile ones
        row("empty", "", {"1:1 end"});
        row("entities", "<!DOCTYPE a [<!ENTITY b 'c'>]><NetConnectConfig/>", {"0:0 declares entities"});
        row("deep", QByteArray("<a>").repeated(200), {"0:0 deep"});
        row("binary", QByteArray("\x00\xff\x01<", 4), {"1:2 nothing is read"});
    }
    void finds() {
        QFETCH(QStringList, findings);
        const TestFolder folder;
        const QByteArray content = cell<QByteArray>("content");
        const QString file = folder.path("file");
        TestFolder::write(file, content);
        TestFolder::write(folder.path("beside"), library());
        QStringList found;
        for (const Finding& finding : checkFiles({{file}, {folder.path("beside")}, {}}))
            found.append(QString("%1:%2 %3; %4")
                             .arg(finding.place.line)
                             .arg(finding.place.column)
                             .arg(finding.text, finding.remedy));
        QVERIFY2(found.size() == findings.size(), qPrintable(found.join('\n')));
        for (int i = 0; i < found.size(); ++i)
            for (const QString& words : findings.at(i).split(QRegularExpression(" (?=\\S)")))
                QVERIFY2(found.at(i).contains(words), qPrintable(found.at(i) + " lacks " + words));
    }

    void unreadable() {
        const TestFolder folder;
        const QList<Finding> findings = checkFiles({{folder.path("none"), folder.path("")}, {}, {}});
        QCOMPARE(findings.size(), 2);
        QVERIFY(findings.at(0).text.contains("does not exist"));
        QVERIFY(findings.at(1).text.contains("no regular file"));
    }

    // A library that is cut short may have held the name; passwords show nowhere.
    void brokenLibraryAccusesNobody() {
        const TestFolder folder;
        const QStringList files{folder.path("config"), folder.path("beside")};
        TestFolder::write(files.at(0), common(section("ProfileList", item("Three"))));
        TestFolder::write(files.at(1), library("password='hidden\xd0\xbf'").chopped(12));
        QString all;
        for (const Finding& finding : checkFiles({files, {}, {}})) all += finding.asLine() + '\n';
        QVERIFY2(!all.contains("Three") && !all.contains("hidden") && all.contains("Latin-1"), qPrintable(all));
    }

    // The time would grow with the square of the elements where a check compared each with each.
    void manyFaults() {
        const TestFolder folder;
        const int count = 100000;
        QByteArray rows;
        for (int i = 0; i < count; ++i) rows += item("No profile", "default");
        TestFolder::write(folder.path("config"), common(section("ProfileList", rows)));
        TestFolder::write(folder.path("beside"), library());
        const QList<Finding> findings = checkFiles({{folder.path("config")}, {folder.path("beside")}, {}});
        QCOMPARE(findings.size(), 201);
        QVERIFY(findings.last().text.contains("may be more"));
    }
};

QTEST_GUILESS_MAIN(tst_check)
#include "tst_check.moc"

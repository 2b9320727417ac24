// SPDX-License-Identifier: MIT
// The writer and the scanner of our own documents do what Qt's writer and reader do; the index of the operators.

#include <QRandomGenerator>
#include <QXmlStreamWriter>
#include <algorithm>

#include "OperatorIndex.h"
#include "ProfileDocumentWriter.h"
#include "Rows.h"
#include "ScannerOracle.h"

class tst_format : public QObject {
    Q_OBJECT

private slots:
    void writesWhatQtWrites() {
        QRandomGenerator random(1);
        for (int round = 0; round < 300; ++round) {
            const ProfileDocument document = randomDocument(&random);
            QCOMPARE(document.write(), writtenByQt(document));
            ProfileDocument cleaned = document;
            cleaned.clean();
            ProfileDocument own = document;
            QCOMPARE(own.writeClean(), writtenByQt(cleaned));
            QVERIFY(ScannerOracle::isSame(own, cleaned));
        }
    }

    void everyCharacterIsWrittenAsQtDoes() {
        ProfileDocument document;
        document.profiles.append(DialupProfile());
        QString& name = document.profiles.first().name;
        for (uint row = 0; row <= 0xff; ++row) {
            QString whole;
            for (uint cell = 0; cell <= 0xff; ++cell) {
                whole += QChar(ushort(row << 8 | cell));
                const bool isBesideAnEdge = row == 0 || (row == 0xff && cell > 0xf0) || cell == 0xff;
                name = isBesideAnEdge ? QString("a") + whole.right(1) + "b" : QString();
                if (isBesideAnEdge) QCOMPARE(document.write(), writtenByQt(document));
            }
            name = whole;
            QCOMPARE(document.write(), writtenByQt(document));
        }
        name = QString::fromUtf8("\xf0\x90\x80\x80\xf4\x8f\xbf\xbd");
        QCOMPARE(document.write(), writtenByQt(document));
    }

    void moreElementsThanAreReadAreNotWritten() {
        for (int count : {999999, 1000000}) {  // and the root
            ProfileDocumentWriter writer;
            for (int i = 0; i < count; ++i) writer.emptyElement("x");
            QCOMPARE(writer.finish().isEmpty(), count == 1000000);
        }
    }

    void scansWhatOurToolsWrite() {
        QRandomGenerator random(2);
        for (int round = 0; round < 300; ++round) {
            ProfileDocument document = randomDocument(&random);
            document.clean();
            const QByteArray content = document.write();
            QCOMPARE(ScannerOracle::answer<ProfileDocument>(content), ScannerOracle::Agrees);
            ProfileDocument looked;
            QVERIFY(looked.look(content) && looked.profiles.isEmpty());
            for (const DialupProfile& profile : document.profiles) {
                DialupProfile found;
                QVERIFY(looked.unread->find(profile.name, &found));
                QVERIFY(ScannerOracle::isSame(found, firstOf(document.profiles, profile.name)));
            }
            looked.readRest();
            QVERIFY(ScannerOracle::isSame(looked, document));
        }
        for (const char* name : {"ProfileLib.prof", "NetConnectConfig.xml", "SysProfile.prof"}) {
            const QByteArray content = shipped(name);
            QVERIFY2(!content.isEmpty(), name);
            QCOMPARE(ScannerOracle::answer<ProfileDocument>(content), ScannerOracle::Agrees);
            QCOMPARE(ScannerOracle::answer<NetConnectConfigDocument>(content), ScannerOracle::Agrees);
        }
    }

    // Each is well-formed or nearly so, and easily taken for our own form.
    void leavesToTheReader_data() {
        nameRows("content", {"",
                             "<a/><b/>",
                             "<a>text</a>",
                             "<a></b>",
                             "<a",
                             "<a/",
                             "<a><!-- -- --></a>",
                             "<a><!-- --->",
                             "<a b=\"1\" b=\"2\"/>",
                             "<a><b c=\"1\" d=\"2\"/><b d=\"1\"/><b d=\"1\" d=\"2\"/></a>",
                             "<a b='1'/>",
                             "<a b=\"<\"/>",
                             "<a b=\"&apos;\"/>",
                             "<a b=\"&#0;\"/>",
                             "<a b=\"\t\"/>",
                             "<a b=\"\t/>\"/>",
                             "<a b=\"\x01\"/>",
                             "<a b=\"\xff\"/>",
                             "<a b=\"\xc0\xbc\"/>",
                             "<a b=\"\xed\xa0\x80\"/>",
                             "<a b=\"\xef\xbf\xbe\"/>",
                             "<a b=\"\xef\xbf\xbf\"/>",
                             "<a b=\"\xf4\x90\x80\x80\"/>",
                             "<a xmlns=\"n\"/>",
                             "<n:a xmlns:n=\"n\"/>",
                             "<!DOCTYPE a><a/>",
                             "<?pi?><a/>",
                             "<a/><![CDATA[]]>",
                             "<?xml version=\"1.0\" encoding=\"latin1\"?><a/>",
                             "\n<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>",
                             "\xef\xbb\xbf<a/>"});
    }
    void leavesToTheReader() {
        const QByteArray content = QTest::currentDataTag();
        QCOMPARE(ScannerOracle::answer<ProfileDocument>(content), ScannerOracle::Unknown);
        QCOMPARE(ScannerOracle::answer<NetConnectConfigDocument>(content), ScannerOracle::Unknown);
    }

    // Elements with attributes of which the former ones had some, at other places and with other values; some are of
    // another name between them.
    void scansAttributesInAnyOrder() {
        QRandomGenerator random(4);
        for (int round = 0; round < 300; ++round) {
            QByteArray content = "<a>";
            bool isWellFormed = true;
            for (int elements = random.bounded(1, 6); elements > 0; --elements) {
                QByteArrayList attributes{"name", "apn", "user", "userx", "use"};
                std::shuffle(attributes.begin(), attributes.end(), random);
                attributes = attributes.mid(random.bounded(4));
                if (random.bounded(20) == 0) attributes.append(attributes.first());
                isWellFormed = isWellFormed && !attributes.mid(1).contains(attributes.first());
                content += random.bounded(4) ? "<Profile" : random.bounded(2) ? "<Default" : "<item";
                for (const QByteArray& name : attributes)
                    content += ' ' + name + "=\"" + QByteArray::number(random.bounded(3)) + '"';
                content += "/>";
            }
            content += "</a>";
            const ScannerOracle::Answer wanted = isWellFormed ? ScannerOracle::Agrees : ScannerOracle::Unknown;
            QVERIFY2(ScannerOracle::answer<ProfileDocument>(content) == wanted, content);
        }
    }

    void neverDiffersFromTheReader() {
        QRandomGenerator random(3);
        int agreed = 0;
        for (int round = 0; round < 3000; ++round) {
            ProfileDocument document = randomDocument(&random);
            document.clean();
            QByteArray content = document.write();
            for (int edits = random.bounded(4); edits > 0; --edits) edit(&content, &random);
            const ScannerOracle::Answer answer = ScannerOracle::answer<ProfileDocument>(content);
            QVERIFY2(answer != ScannerOracle::Differs, content);
            agreed += answer == ScannerOracle::Agrees;
        }
        QVERIFY(agreed > 1000);
    }

    void tellsOperators_data() {
        const Rows<QString, QString> row("operators",
                                         "told");  // the card's name is the row's; two-letter country first
        row("ALDI TALK", "de AldiTalk/MedionMobile|de blau.de", "AldiTalk/MedionMobile");
        row("blau", "de AldiTalk/MedionMobile|de blau.de", "blau.de");
        row("tuenti movil", QString::fromUtf8("es Movistar|es Tuenti M\xc3\xb3vil"),
            QString::fromUtf8("Tuenti M\xc3\xb3vil"));
        row("Telekom.de", "de T-Mobile(Telekom)|de Congstar", "T-Mobile(Telekom)");
        row("TESCO", "gb O2|gb Tesco Mobile", "Tesco Mobile");
        row("Tesco Mobile Ltd.", "gb O2|gb Tesco", "Tesco");
        row("O2 - de", "de O2|de FONIC", "O2");
        row("3 UK", "gb Superdrug|gb 3", "3");
        row("Orange F", "fr Orange|fr Prixtel", "Orange");
        row("F SFR", "fr SFR|fr Prixtel", "SFR");
        row("Orange UK", "fr Orange|fr Prixtel", "");
        row("T-Mobile", "pl T|pl T-Mobile", "T-Mobile");
        row("Sunday", "hk PCCW (Sunday)|hk Sunday", "Sunday");
        row("Virgin", "pl Virgin Mobile|pl Virgin Internet", "");
        row("Sure", "gb Sure (A)|gb Sure (B)", "");
        row("Other", "de O2|de FONIC", "");
        row("Mobile", "de Mobil|de O2 Mobile", "");
        row("-- ", "de O2|de ()", "");
    }
    void tellsOperators() {
        QFETCH(QString, operators);
        QByteArray content = "<Operators>";
        QStringList offered;
        for (const QString& text : operators.split('|')) {
            const QByteArray name = text.mid(3).toUtf8();
            content += "<operator country='" + text.left(2).toUtf8() + "' name='" + name + "'><preset name='" + name +
                       "'/></operator>";
            offered.append(text.mid(3));
        }
        QXmlStreamReader reader;
        OperatorIndex index;
        index.read(content + "</Operators>", &reader);
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QTEST(index.proposalFor(QTest::currentDataTag(), offered, QString()).operatorName, "told");
    }

    void proposesAnOperatorsPreset_data() {
        const Rows<QStringList, QString, QString> row("offered", "marked", "proposal");
        row("its likeliest one", {"X", "B2", "B1"}, "", "B1");
        row("in the place of another operator's", {"A", "B2", "B1"}, "A", "B1");
        row("of those offered alone", {"A", "B2"}, "A", "B2");
        row("not in the place of one of its own", {"A", "B2", "B1"}, "B2", "B2");
        row("not in the place of one that nobody has", {"X", "B1"}, "X", "");
        row("none when its own are not offered", {"A", "X"}, "A", "");
    }
    void proposesAnOperatorsPreset() {
        QFETCH(QStringList, offered);
        QFETCH(QString, marked);
        const QByteArray operators =
            "<operator country=\"de\" name=\"Host\"><preset name=\"A\"/></operator>"
            "<operator country=\"de\" name=\"Guest\"><alias name=\"Gast\"/><preset name=\"B1\"/>"
            "<preset name=\"B2\" plan=\"Flat &gt; 5\" billing=\"prepaid\"/><balance way=\"ussd\" "
            "number=\"*100#\"/><balance way=\"pigeon\" number=\"1\"/>"
            "<balance way=\"sms\" number=\"123\" text=\"a &amp; b\"/></operator>";
        for (const char* before : {"<Operators>", "<!-- x --><Operators xmlns='x'>"}) {  // the second is Qt's
            QXmlStreamReader reader;
            OperatorIndex index;
            index.read(before + operators + "</Operators>", &reader);
            QTEST(index.proposalFor("gast", offered, marked).preset, "proposal");
            const OperatorEntry* entry = index.operatorOf("B2");
            QVERIFY(entry && index.operatorOf("A") != entry && !index.operatorOf("X"));
            QCOMPARE(entry->plans.last().name + entry->plans.last().billing, QString("Flat > 5prepaid"));
            QCOMPARE(entry->plans.size(), entry->presets.size());
            QCOMPARE(entry->balanceQueries.size(), 2);
            QCOMPARE(entry->balanceQueries.first().way, BalanceQuery::Ussd);
            QCOMPARE(entry->balanceQueries.last().text, QString("a & b"));
        }
    }

    void aDamagedIndexTellsNothing() {
        for (const char* content : {"<Operators><operator name=\"a\"/>", "<!DOCTYPE a [<!ENTITY b 'c'>]><a/>"}) {
            QXmlStreamReader reader;
            OperatorIndex index;
            index.read(content, &reader);
            QVERIFY(reader.hasError());
            QVERIFY(index.operators().isEmpty());
        }
    }

private:
    static QByteArray shipped(const QString& name) {
        QFile file(ORBISDIAL_BUILD_DIR "/lib/orbisdial/plugins/NetConnectPlugin/" + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void edit(QByteArray* content, QRandomGenerator* random) {
        static const char Bytes[] = "<>/\"'&;= \n\tanx\x01\x7f\xc3\xa9\xef\xff";
        const int at = random->bounded(content->size());
        const int length = random->bounded(3);
        content->replace(at, length, QByteArray(random->bounded(2), Bytes[random->bounded(int(sizeof(Bytes)))]));
    }

    static QString randomText(QRandomGenerator* random) {
        static const QString edges = QString::fromUtf8(
            "\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbd\xf0\x90\x80\x80\xf4\x8f\xbf\xbd");
        static const QString kinds[] = {"",   "plain", "<",  ">", "&",  "\"",  "'",
                                        "\t", "\n",    "\r", "=", "/>", "-->", edges};
        QString text;
        for (int parts = random->bounded(4); parts > 0; --parts) text += kinds[random->bounded(int(std::size(kinds)))];
        return text;
    }

    static DialupProfile firstOf(const QList<DialupProfile>& profiles, const QString& name) {
        const auto isNamed = [&name](const DialupProfile& profile) { return profile.name == name; };
        return *std::find_if(profiles.begin(), profiles.end(), isNamed);
    }

    static ProfileDocument randomDocument(QRandomGenerator* random) {
        ProfileDocument document;
        for (int count = random->bounded(5); count > 0; --count) {
            const bool isLikeFormer = !document.profiles.isEmpty() && random->bounded(2);
            document.profiles.append(isLikeFormer ? DialupProfile(document.profiles.last()) : DialupProfile());
            for (const DialupProfileField& field : DialupProfileFields)
                if (!isLikeFormer || random->bounded(4) == 0)
                    document.profiles.last().*field.member = randomText(random);
        }
        const ProfileDefaultEntry::Kind kinds[] = {ProfileDefaultEntry::Plain, ProfileDefaultEntry::WCDMA,
                                                   ProfileDefaultEntry::CDMA};
        for (int i = random->bounded(4) - 1; i >= 0; --i)
            document.defaults.prepend({kinds[i], {randomText(random), random->bounded(2) == 1}});
        return document;
    }

    static QByteArray writtenByQt(const ProfileDocument& document) {
        QString text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
        QXmlStreamWriter xml(&text);
        xml.setAutoFormatting(true);
        xml.writeStartElement("vrksdoc");
        xml.writeAttribute("type", "Profile");
        xml.writeStartElement("ProfileGroup");
        xml.writeAttribute("type", "Dailup");
        for (const DialupProfile& profile : document.profiles) {
            xml.writeEmptyElement("Profile");
            for (const DialupProfileField& field : DialupProfileFields)
                xml.writeAttribute(field.attribute, profile.*field.member);
        }
        xml.writeEndElement();
        for (const ProfileDefaultEntry& entry : document.defaults) writeDefault(xml, entry);
        xml.writeEndDocument();
        return xml.hasError() ? QByteArray() : text.toUtf8();
    }

    static void writeDefault(QXmlStreamWriter& xml, const ProfileDefaultEntry& entry) {
        const char* const modes[] = {nullptr, "CDMA", "WCDMA"};
        if (entry.kind == ProfileDefaultEntry::WCDMA) xml.writeStartElement("MultiModeDefaultProfile");
        xml.writeEmptyElement(entry.kind == ProfileDefaultEntry::Plain ? "Default" : "item");
        xml.writeAttribute("name", entry.value.name);
        if (modes[entry.kind]) xml.writeAttribute("value", modes[entry.kind]);
        if (entry.value.isUserSet) xml.writeAttribute("IsUserSet", "1");
    }
};

QTEST_GUILESS_MAIN(tst_format)
#include "tst_format.moc"

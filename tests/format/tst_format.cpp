// The writer and the scanner of our own documents do what Qt's writer and reader do.

#include <QRandomGenerator>
#include <QXmlStreamWriter>

#include "ProfileDocument.h"
#include "ProfileDocumentWriter.h"
#include "Rows.h"

class tst_format : public QObject {
    Q_OBJECT

private slots:
    void writesWhatQtWrites() {
        QRandomGenerator random(1);
        for (int round = 0; round < 300; ++round) {
            const ProfileDocument document = randomDocument(&random);
            QCOMPARE(document.write(), writtenByQt(document));
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

private:
    static QString randomText(QRandomGenerator* random) {
        static const QString kinds[] = {
            "",   "plain", "<",  ">", "&",  "\"",  "'",
            "\t", "\n",    "\r", "=", "/>", "-->", QString::fromUtf8("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80")};
        QString text;
        for (int parts = random->bounded(4); parts > 0; --parts) text += kinds[random->bounded(int(std::size(kinds)))];
        return text;
    }

    static ProfileDocument randomDocument(QRandomGenerator* random) {
        ProfileDocument document;
        for (int count = random->bounded(5); count > 0; --count) {
            document.profiles.append(DialupProfile());
            for (const DialupProfileField& field : DialupProfileFields)
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

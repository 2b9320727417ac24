// SPDX-License-Identifier: MIT
// Holds the texts of all languages against the code that shows them and against each other.
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include "Rows.h"

namespace {

const QStringList Languages = {"ar", "de", "en", "es", "fr", "ru", "zh_CN"};

struct Text {
    QString translation;
    bool finished = false;
};

// Keyed by "context/ID".
using Texts = QMap<QString, Text>;

Texts readTexts(const QString& language) {
    QFile file(ORBISDIAL_SOURCE_DIR "/data/lang/orbisdial_" + language + ".ts");
    if (!file.open(QIODevice::ReadOnly)) return {};
    Texts texts;
    QString context, key;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            key = context + '/' + xml.readElementText();
            if (texts.contains(key)) xml.raiseError(key + " is there twice");
        } else if (xml.name() == QLatin1String("translation")) {
            texts[key].finished = !xml.attributes().hasAttribute("type");
            texts[key].translation = xml.readElementText();
        }
    }
    if (xml.hasError()) qWarning() << file.fileName() << xml.lineNumber() << xml.errorString();
    return xml.hasError() ? Texts() : texts;
}

QSet<QString> keysOf(const Texts& texts) { return {texts.keyBegin(), texts.keyEnd()}; }

QString joined(const QSet<QString>& keys) { return QStringList(keys.values()).join(", "); }

// The character after a single "&", in lower case; null when there is none.
QChar mnemonicOf(const QString& text) {
    static const QRegularExpression mark("(?<!&)&([^&\\s])");
    const QString character = mark.match(text).captured(1);
    return character.isEmpty() ? QChar() : character.at(0).toLower();
}

const char Plugin[] = "NetConnectPlugin/";

// What is shown together and may carry mnemonics. Every other text is shown as it stands, "&" included, or stands
// beside pages whose mnemonics its window cannot know, as the host's own do. An ID stands here as often as the page
// has widgets with it.
const QMap<QString, QStringList> Pages = {
    {"settings page",
     {"IDS_SETTING_STATIC_GROUP_NETWORK_CONNECT_SELECT", "IDS_SETTING_STATIC_APN_NAME", "IDS_SETTING_STATIC_NUMBER",
      "IDS_SETTING_STATIC_USENAME", "IDS_SETTING_STATIC_PASSWORD", "IDS_SETTING_RADIO_APN_IP_DYNAMIC",
      "IDS_SETTING_RADIO_APN_IP_STATIC", "IDS_USERNAME_AND_PASSWORD", "IDS_SETTING_CHECK_CHAP", "IDS_SETTING_CHECK_PAP",
      "IDS_SETTING_BUTTON_HIGH", "IDS_SETTING_BUTTON_NEW", "IDS_SETTING_BUTTON_DELETE", "IDS_SETTING_BUTTON_EDIT",
      "IDS_SETTING_BUTTON_SAVE", "IDS_SETTING_BUTTON_NO_SAVE", "IDS_BTN_NETCONNECTSETTINGDLG_DEFAULT",
      "IDS_BTN_NETCONNECTSETTINGDLG_INPUT", "IDS_BTN_NETCONNECTSETTINGDLG_OUTPUT"}},
    {"import/export dialog", {"IDS_SETTING_BROWSE_TELEPHLONE", "IDS_OK", "IDS_CANCEL"}},
    {"advanced dialog",
     {"IDS_SETTING_STATIC_IP", "IDS_SETTING_STATIC_DNS", "IDS_SETTING_STATIC_DNS_SECOND", "IDS_SETTING_STATIC_WINS1",
      "IDS_SETTING_STATIC_WINS_SECOND", "IDS_SETTING_RADIO_APN_IP_DYNAMIC", "IDS_SETTING_RADIO_APN_IP_DYNAMIC",
      "IDS_SETTING_RADIO_APN_IP_DYNAMIC", "IDS_SETTING_RADIO_APN_IP_STATIC", "IDS_SETTING_RADIO_APN_IP_STATIC",
      "IDS_SETTING_RADIO_APN_IP_STATIC", "IDS_SETTING_CHECK_CHAP", "IDS_SETTING_CHECK_PAP", "IDS_OK", "IDS_CANCEL"}},
    {"question", {"IDS_YES", "IDS_NO"}},
};

// Where quoted IDs are looked for, and the context in which they are translated.
const QMap<QString, QString> CodeFolders = {
    {"src/NetConnectPlugin", "NetConnectPlugin"},
    {"src/presets", "NetConnectPlugin"},
    {"src/core/common", "NetConnectPlugin"},
    {"data", "NetConnectPlugin"},
    {"src/host", "OrbisDial"},
    {"src/DialupPlugin", "DialupPlugin"},
    {"src/connection", "DialupPlugin"},
    {"interfaces", "DialupPlugin"},
    {"src/cli", "NetConnectPlugin"},
};

// Message boxes translate their own buttons, whoever names them.
const QStringList MessageButtons = {"IDS_OK", "IDS_CANCEL", "IDS_YES", "IDS_NO"};

// The keys of all quoted IDs, each with a file that has it.
QMap<QString, QString> usedKeys() {
    static const QRegularExpression quoted("[\"'](IDS_\\w+)[\"']");
    QMap<QString, QString> used;
    for (const QString& folder : CodeFolders.keys()) {
        QDirIterator files(ORBISDIAL_SOURCE_DIR "/" + folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.fileName().endsWith(".ts") || !file.open(QIODevice::ReadOnly)) continue;
            for (auto match = quoted.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();) {
                const QString id = match.next().captured(1);
                used[(MessageButtons.contains(id) ? Plugin : CodeFolders[folder] + "/") + id] = file.fileName();
            }
        }
    }
    return used;
}

// What a pattern's first group captures in the sources of a folder.
QStringList captured(const QString& folder, const QString& pattern) {
    const QRegularExpression expression(pattern);
    QStringList texts;
    QDirIterator files(ORBISDIAL_SOURCE_DIR "/" + folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) continue;
        for (auto match = expression.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();)
            texts.append(match.next().captured(1));
    }
    return texts;
}

// Texts that stand in English in the code, as keys.
QStringList keysOfTexts(const QString& context, const QString& folder, const QString& pattern) {
    QStringList keys;
    for (QString text : captured(folder, pattern)) keys.append(context + text.replace("\\\"", "\""));
    return keys;
}

// What the programs say on a terminal, and why libraries say that something is wrong.
QStringList usedMessages() {
    const QString literal = "\\s*\"((?:[^\"\\\\]|\\\\.)*)\"";
    return keysOfTexts("Programs/", "src", "(?:\\bmessage\\(|QT_TRANSLATE_NOOP\\(\"Programs\",)" + literal) +
           keysOfTexts("Reasons/", "src", "(?:\\b(?:reasonText|Reason)\\(|\"Reasons\",)" + literal) +
           keysOfTexts("Reasons/", "src/NetConnectPlugin", "\\b(?:refuse|systemFailure|fail)\\(" + literal);
}

QString placeholders(const QString& text) {
    static const QRegularExpression placeholder("%\\d");
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();) found += match.next().captured();
    found.sort();
    return found.join(' ');
}

void addLanguageRows() {
    const Rows<QString> row("language");
    for (const QString& language : Languages) row(qPrintable(language), language);
}

}  // namespace

class tst_texts : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        for (const QString& language : Languages) {
            m_Texts.insert(language, readTexts(language));
            QVERIFY2(!m_Texts[language].isEmpty(), qPrintable(language));
        }
        for (const QString& key : usedMessages()) m_Texts["en"].insert(key, {key.section('/', 1), true});
        QVERIFY(m_Texts["en"].contains("Programs/not connected") && m_Texts["en"].contains("Reasons/can't write"));
    }

    void everyUsedIdHasAnEnglishTextAndNoOtherDoes() {
        const QMap<QString, QString> used = usedKeys();
        for (const QString& key : used.keys())
            QVERIFY2(m_Texts["en"].contains(key), qPrintable(used[key] + ": " + key));
        QSet<QString> unused = keysOf(m_Texts["en"]) - QSet<QString>(used.keyBegin(), used.keyEnd());
        for (const QString& key : usedMessages()) unused.remove(key);
        QCOMPARE(joined(unused), QString());
    }

    void nothingIsSaidPastTheTranslator() {
        const QString words =
            "\\b(?:failed|usage|notFound|refused|timedOut|printWarning|printDiagnostic)\\(\\s*(?:QString\\()?\"([^\"]*"
            ")";
        QCOMPARE(captured("src/cli", words).join('\n'), QString());
    }

    void languageIsComplete_data() { addLanguageRows(); }
    void languageIsComplete() {
        QFETCH(QString, language);
        const QSet<QString> english = keysOf(m_Texts["en"]), own = keysOf(m_Texts[language]);
        QCOMPARE(joined(english - own), QString());
        QCOMPARE(joined(own - english), QString());
        for (const QString& key : own) {
            QVERIFY2(m_Texts[language][key].finished && !text(language, key).trimmed().isEmpty(), qPrintable(key));
            QVERIFY2(placeholders(text(language, key)) == placeholders(text("en", key)), qPrintable(key));
            QVERIFY2(mnemonicOf(text(language, key)).isNull() == mnemonicOf(text("en", key)).isNull(), qPrintable(key));
        }
    }

    void partsOfNamesAreAllowed_data() { addLanguageRows(); }
    void partsOfNamesAreAllowed() {
        QFETCH(QString, language);
        const QString name = text(language, Plugin + QString("IDS_NETCONNECT_NEW_PROFILE"));
        QVERIFY2(!name.contains(QRegularExpression("[\\\\/:*?\\[\\]()<>|]")), qPrintable(name));
        const QString mark = text(language, Plugin + QString("IDS_STC_NETCONNECTSETTINGDLG_DEFAULT"));  // is taken off
        QVERIFY2(QRegularExpression("^\\([^()&\\s]([^()&]*[^()&\\s])?\\)$").match(mark).hasMatch(), qPrintable(mark));
    }

    void mnemonicsAreDistinct_data() { addLanguageRows(); }
    void mnemonicsAreDistinct() {
        QFETCH(QString, language);
        for (const QStringList& page : Pages) {
            QMap<QChar, QString> taken;
            for (const QString& id : page) {
                QVERIFY2(m_Texts[language].contains(Plugin + id), qPrintable(id));
                const QChar mnemonic = mnemonicOf(text(language, Plugin + id));
                if (mnemonic.isNull()) continue;
                QVERIFY2(!taken.contains(mnemonic), qPrintable(taken[mnemonic] + " and " + id + " share " + mnemonic));
                taken.insert(mnemonic, id);
            }
        }
    }

private:
    QString text(const QString& language, const QString& key) const { return m_Texts[language][key].translation; }

    QMap<QString, Texts> m_Texts;  // by language
};

QTEST_MAIN(tst_texts)
#include "tst_texts.moc"

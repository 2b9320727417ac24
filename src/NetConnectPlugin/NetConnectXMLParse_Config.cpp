// Reading of NetConnectConfig.xml.

#include <algorithm>

#include "NetConnectXMLParse.h"
#include "Trace.h"
#include "XmlText.h"

namespace {

const char ModeDefaultSection[] = "MultiModeDefaultProfile";
const char IMSISection[] = "IMSIProfileList";
const char DefaultValue[] = "default";

NetConnectXML readItem(const QXmlStreamAttributes& attributes) {
    NetConnectXML item;
    item.value = attributes.value(QLatin1String("value")).toString();
    item.type = attributes.value(QLatin1String("type")).toString();
    return item;
}

IMSIINFO readIMSIRow(const QXmlStreamAttributes& attributes) {
    IMSIINFO row;
    row.name = attributes.value(QLatin1String("name")).toString();
    row.value = attributes.value(QLatin1String("value")).toString();
    row.type = attributes.value(QLatin1String("type")).toString();
    return row;
}

// Whether an item of the mode default section is meant for the card's mode.
bool isForCard(const QXmlStreamAttributes& attributes, const NetConnectCardMode& card) {
    const bool isCDMA = attributes.value(QLatin1String("value")) == QLatin1String("CDMA");
    return isCDMA ? card.isCDMA() : card.isWCDMA();
}

// Makes the chosen profile the only configured default, unless the file gave it a value of its own.
void markModeDefault(const QString& chosen, QHash<QString, NetConnectXML>* profileList) {
    if (chosen.isEmpty() || !profileList->contains(chosen)) return;
    QList<QString> names = profileList->keys();
    std::sort(names.begin(), names.end());
    for (int i = 0; i < names.size(); ++i) {
        NetConnectXML& item = (*profileList)[names.at(i)];
        const bool isChosen = names.at(i) == chosen;
        if (item.value == QLatin1String(DefaultValue) && !isChosen) {
            item.value.clear();
            qDebug("%s : %s: %s: Set %s as non-default config profile.", traceTime().constData(), __FILE__,
                   "GetSettingsFromXML", qPrintable(names.at(i)));
        } else if (item.value.isEmpty() && isChosen) {
            item.value = QLatin1String(DefaultValue);
            qDebug("%s : %s: %s: Set %s as default config profile.", traceTime().constData(), __FILE__,
                   "GetSettingsFromXML", qPrintable(names.at(i)));
        }
    }
}

}  // namespace

int NetConnectXMLParse::GetSettingsFromXML(QString* group, QString* module, QHash<QString, NetConnectXML>* templates,
                                           QHash<QString, NetConnectXML>* functions,
                                           QHash<QString, NetConnectXML>* profileList,
                                           QMultiHash<QString, IMSIINFO>* imsiProfiles, UserPrompt* prompt) {
    const TraceScope trace(__FILE__, "GetSettingsFromXML");
    m_strCurrentIMSI = QLatin1String("");
    if (!group || !module) {
        qDebug("Error in xml parsing");
        return 23;
    }
    const QString path = shippedPath("NetConnectConfig.xml");
    QByteArray content;
    if (readFile(path, &content) != 0) return 23;

    bool answered = false;
    const NetConnectCardMode card = NetConnectCardMode::current(&answered);
    if (answered && card.mode != NetConnectCardMode::None)
        qDebug("%s : %s: %s: Get MultiMode Status Success! dwCardMode: %d", traceTime().constData(), __FILE__,
               "GetSettingsFromXML", int(card.mode));

    QXmlStreamReader reader(content);
    const QString refusal = XmlText::refusal(content);
    if (!refusal.isEmpty()) reader.raiseError(refusal);
    QString currentGroup;
    QString currentModule;
    QString modeDefault;
    while (!reader.atEnd()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
        if (reader.hasError()) break;
        if (reader.isEndElement() && reader.name() == QLatin1String("module")) currentModule.clear();
        if (!reader.isStartElement()) continue;
        if (prompt) getUserPasswdPromptInfo(reader, prompt);

        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == QLatin1String("group")) currentGroup = attributes.value(QLatin1String("name")).toString();
        if (reader.name() == QLatin1String("module"))
            currentModule = attributes.value(QLatin1String("name")).toString();
        if (currentGroup != *group || currentModule != *module) continue;

        if (reader.name() == QLatin1String(ModeDefaultSection)) {
            m_strSection = QLatin1String(ModeDefaultSection);
            qDebug("%s : %s: %s: Found MultiModeDefaultProfile label in NetConnectConfig.xml.", traceTime().constData(),
                   __FILE__, "GetSettingsFromXML");
        }
        getConfigData(reader, templates, functions, profileList, imsiProfiles);
        if (m_strSection == QLatin1String(ModeDefaultSection) && reader.name() == QLatin1String("item") &&
            isForCard(attributes, card)) {
            modeDefault = attributes.value(QLatin1String("name")).toString();
            qDebug("%s : %s: %s: Current CardMode is %d. Read MultiModeDefaultProfile: %s.", traceTime().constData(),
                   __FILE__, "GetSettingsFromXML", int(card.mode), qPrintable(modeDefault));
        }
    }
    const int status = reader.hasError() ? readError(reader, path, "GetSettingsFromXML") : 0;
    if (status == 0) clearProblem(path);
    if (card.isMultiMode) markModeDefault(modeDefault, profileList);
    return status;
}

int NetConnectXMLParse::getConfigData(QXmlStreamReader& reader, QHash<QString, NetConnectXML>* templates,
                                      QHash<QString, NetConnectXML>* functions,
                                      QHash<QString, NetConnectXML>* profileList,
                                      QMultiHash<QString, IMSIINFO>* imsiProfiles) {
    const struct {
        QLatin1String section;
        QHash<QString, NetConnectXML>* items;
    } targets[] = {
        {QLatin1String("ProfileTemplate"), templates},
        {QLatin1String("Function"), functions},
        {QLatin1String("ProfileList"), profileList},
    };

    if (reader.isEndElement() && reader.name() == QLatin1String(IMSISection)) m_strSpare.clear();
    if (!reader.isStartElement()) return 0;
    const QXmlStreamAttributes attributes = reader.attributes();
    const QString name = attributes.value(QLatin1String("name")).toString();
    const bool isItem = reader.name() == QLatin1String("item");
    for (size_t i = 0; i < sizeof(targets) / sizeof(targets[0]); ++i) {
        if (reader.name() == targets[i].section) m_strSection = targets[i].section;
        if (isItem && m_strSection == targets[i].section) targets[i].items->insert(name, readItem(attributes));
    }
    if (reader.name() == QLatin1String(IMSISection)) {
        m_strSection = QLatin1String(IMSISection);
        m_strCurrentIMSI = attributes.value(QLatin1String("imsi")).toString();
    }
    if (isItem && m_strSection == QLatin1String(IMSISection))
        imsiProfiles->insert(m_strCurrentIMSI, readIMSIRow(attributes));
    return 0;
}

int NetConnectXMLParse::getUserPasswdPromptInfo(QXmlStreamReader& reader, UserPrompt* prompt) {
    const struct {
        const char* name;
        QString UserPrompt::*member;
    } items[] = {
        {"PromptPwd", &UserPrompt::promptPwd},
        {"UserCheck", &UserPrompt::userCheck},
        {"CheckNamePwd", &UserPrompt::checkNamePwd},
        {"DisableNamePwd", &UserPrompt::disableNamePwd},
    };
    if (!reader.isStartElement()) return 0;
    const QXmlStreamAttributes attributes = reader.attributes();
    const QStringRef name = attributes.value(QLatin1String("name"));
    for (size_t i = 0; i < sizeof(items) / sizeof(items[0]); ++i)
        if (name == QLatin1String(items[i].name))
            prompt->*items[i].member = attributes.value(QLatin1String("value")).toString();
    return 0;
}

// SPDX-License-Identifier: MIT
// Reading of NetConnectConfig.xml and Operators.xml.

#include <algorithm>

#include "NetConnectXMLParse.h"
#include "ReasonText.h"
#include "Trace.h"
#include "XmlText.h"

namespace {

const char DefaultValue[] = "default";
const char* const IMSISection = "IMSIProfileList";

NetConnectXML readItem(const NetConnectConfigElement& element) {
    const NetConnectXML item = {element.value, element.type};
    return item;
}

IMSIINFO readIMSIRow(const NetConnectConfigElement& element) {
    const IMSIINFO row = {element.name, element.value, element.type};
    return row;
}

// Whether an item of the mode default section is meant for the card's mode.
bool isForCard(const NetConnectConfigElement& element, const NetConnectCardMode& card) {
    return element.value == QLatin1String("CDMA") ? card.isCDMA() : card.isWCDMA();
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
    if (!group || !module || !templates || !functions || !profileList || !imsiProfiles) {
        qDebug("Error in xml parsing");
        return NetConnectStatus::FileMissing;
    }
    NetConnectConfigDocument document;
    const int status = loadConfig(&document);
    if (status == NetConnectStatus::FileMissing) return status;

    const NetConnectDevice::Caller caller = {__FILE__, "GetSettingsFromXML"};
    const NetConnectCardMode card = NetConnectDevice::cardMode(caller);

    for (int i = 0; prompt && i < document.promptItems.size(); ++i)
        prompt->*document.promptItems.at(i).first = document.promptItems.at(i).second;
    const ConfigTargets targets = {templates, functions, profileList, imsiProfiles};
    QString modeDefault;
    for (int i = 0; i < document.stretches.size(); ++i) {
        const NetConnectConfigDocument::Stretch& stretch = document.stretches.at(i);
        if (stretch.group != *group || stretch.module != *module) continue;
        for (int j = 0; j < stretch.elements.size(); ++j)
            fileModeElement(stretch.elements.at(j), targets, card, &modeDefault);
    }
    if (status != 0) traceReadError("GetSettingsFromXML");
    if (card.isMultiMode) markModeDefault(modeDefault, profileList);
    return status;
}

// Parses the file, or takes what is kept of it when it has not changed: 0, 6 or 23.
int NetConnectXMLParse::loadConfig(NetConnectConfigDocument* document) {
    const QString path = configurationPath();
    const FileStamp stamp = FileStamp::of(path);
    if (m_Config.path == path && m_Config.stamp.settled && m_Config.stamp == stamp) {
        *document = m_Config.document;
        return 0;
    }
    m_Config = KeptConfig();
    if (m_Ahead.take(path, stamp, document)) return keepConfig(path, stamp, *document);
    QByteArray content;
    if (!stamp.exists() && path != shippedPath(NetConnectFileNames::Configuration))
        reportProblem(path, Reason("leads to no file"));
    if (!stamp.exists() || readFile(path, &content) != 0) return NetConnectStatus::FileMissing;

    if (!document->scan(content)) {
        QXmlStreamReader reader(content);
        const QString refusal = XmlText::refusal(content);
        if (!refusal.isEmpty()) reader.raiseError(refusal);
        document->read(reader);
        if (reader.hasError()) return reportReadError(reader, path);
    }
    return keepConfig(path, stamp, *document);
}

int NetConnectXMLParse::keepConfig(const QString& path, const FileStamp& stamp,
                                   const NetConnectConfigDocument& document) {
    clearProblem(path);
    m_Config.path = path;
    m_Config.stamp = stamp;
    m_Config.document = document;
    return 0;
}

OperatorIndex NetConnectXMLParse::operatorIndex() {
    const QString path = shippedPath(NetConnectFileNames::Operators);
    const FileStamp stamp = FileStamp::of(path);
    if (m_Operators.path == path && m_Operators.stamp.settled && m_Operators.stamp == stamp) return m_Operators.index;
    m_Operators = KeptOperators();
    QByteArray content;
    if (!stamp.exists() || readFile(path, &content) != 0) return OperatorIndex();

    QXmlStreamReader reader;
    OperatorIndex index;
    index.read(content, &reader);
    if (reader.hasError()) {
        reportReadError(reader, path);
        return OperatorIndex();
    }
    clearProblem(path);
    m_Operators.path = path;
    m_Operators.stamp = stamp;
    m_Operators.index = index;
    return index;
}

// Files an element, and takes an item of the mode default section when it is meant for the card.
void NetConnectXMLParse::fileModeElement(const NetConnectConfigElement& element, const ConfigTargets& targets,
                                         const NetConnectCardMode& card, QString* modeDefault) {
    if (element.kind == NetConnectConfigElement::ModeDefaultSection) {
        m_Section = element.kind;
        qDebug("%s : %s: %s: Found MultiModeDefaultProfile label in NetConnectConfig.xml.", traceTime().constData(),
               __FILE__, "GetSettingsFromXML");
    }
    fileElement(element, targets);
    if (element.kind != NetConnectConfigElement::Item || m_Section != NetConnectConfigElement::ModeDefaultSection ||
        !isForCard(element, card))
        return;
    *modeDefault = element.name;
    qDebug("%s : %s: %s: Current CardMode is %d. Read MultiModeDefaultProfile: %s.", traceTime().constData(), __FILE__,
           "GetSettingsFromXML", int(card.mode), qPrintable(*modeDefault));
}

int NetConnectXMLParse::getConfigData(QXmlStreamReader& reader, QHash<QString, NetConnectXML>* templates,
                                      QHash<QString, NetConnectXML>* functions,
                                      QHash<QString, NetConnectXML>* profileList,
                                      QMultiHash<QString, IMSIINFO>* imsiProfiles) {
    if (!templates || !functions || !profileList || !imsiProfiles) return NetConnectStatus::FileMissing;
    const ConfigTargets targets = {templates, functions, profileList, imsiProfiles};
    if (reader.isEndElement() && reader.name() == QLatin1String(IMSISection)) m_strSpare.clear();
    if (reader.isStartElement()) fileElement(NetConnectConfigElement::of(reader), targets);
    return 0;
}

void NetConnectXMLParse::fileElement(const NetConnectConfigElement& element, const ConfigTargets& targets) {
    if (element.kind == NetConnectConfigElement::Item) return fileItem(element, targets);
    if (element.kind == NetConnectConfigElement::IMSISection) m_strCurrentIMSI = element.name;
    const bool isIgnored =
        element.kind == NetConnectConfigElement::Other || element.kind == NetConnectConfigElement::ModeDefaultSection;
    if (!isIgnored) m_Section = element.kind;
}

void NetConnectXMLParse::fileItem(const NetConnectConfigElement& item, const ConfigTargets& targets) {
    switch (m_Section) {
        case NetConnectConfigElement::TemplateSection:
            targets.templates->insert(item.name, readItem(item));
            break;
        case NetConnectConfigElement::FunctionSection:
            targets.functions->insert(item.name, readItem(item));
            break;
        case NetConnectConfigElement::ProfileListSection:
            targets.profileList->insert(item.name, readItem(item));
            break;
        case NetConnectConfigElement::IMSISection:
            targets.imsiProfiles->insert(m_strCurrentIMSI, readIMSIRow(item));
            break;
        default:  // in no section, or in the one that the card's mode picks from
            break;
    }
}

int NetConnectXMLParse::getUserPasswdPromptInfo(QXmlStreamReader& reader, UserPrompt* prompt) {
    if (!prompt) return NetConnectStatus::FileMissing;
    if (!reader.isStartElement()) return 0;
    const QXmlStreamAttributes attributes = reader.attributes();
    if (QString UserPrompt::*const field =
            NetConnectConfigDocument::promptField(attributes.value(QLatin1String("name"))))
        prompt->*field = attributes.value(QLatin1String("value")).toString();
    return 0;
}

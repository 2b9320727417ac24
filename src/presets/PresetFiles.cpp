// SPDX-License-Identifier: MIT
#include "PresetFiles.h"

#include <QSaveFile>
#include <QXmlStreamWriter>
#include <memory>
#include <vector>

#include "ProfileDocumentWriter.h"
#include "XmlInput.h"

namespace {

DialupProfile profileFrom(const XmlInput& in) {
    DialupProfile profile;
    for (const DialupProfileField& field : DialupProfileFields) profile.*field.member = in.attribute(field.attribute);
    return profile;
}

// Copies a configuration and puts the preset sections in, indented as the place where they go.
class ConfigMerger {
public:
    ConfigMerger(const QString& templatePath, const QMap<QString, QList<IMSIINFO>>& imsiLists)
        : m_In(templatePath), m_ImsiLists(imsiLists), m_Out(&m_Result) {}

    QByteArray merge() {
        while (!m_In.xml.atEnd()) {
            m_In.xml.readNext();
            m_In.checkForError();
            copyToken();
        }
        if (!m_Merged) m_In.fail("no <PresetSections/> element says where the preset sections go");
        return m_Result;
    }

private:
    void copyToken() {
        if (m_In.xml.isStartElement() && m_In.xml.name() == QLatin1String("PresetSections")) return mergeSections();
        m_Out.writeCurrentToken(m_In.xml);
        if (m_In.xml.isWhitespace()) m_LineBreak = m_In.xml.text().toString();
        if (m_In.xml.isStartDocument()) m_Out.writeCharacters("\n");
    }

    void mergeSections() {
        if (m_Merged) m_In.fail("a second <PresetSections/> element");
        m_Merged = true;
        for (auto list = m_ImsiLists.cbegin(); list != m_ImsiLists.cend(); ++list) {
            if (list != m_ImsiLists.cbegin()) m_Out.writeCharacters(m_LineBreak);
            writeSection(list.key(), list.value());
        }
        m_In.xml.skipCurrentElement();
        m_In.checkForError();
    }

    void writeSection(const QString& code, const QList<IMSIINFO>& rows) {
        m_Out.writeStartElement("IMSIProfileList");
        m_Out.writeAttribute("imsi", code);
        for (const IMSIINFO& row : rows) {
            m_Out.writeCharacters(m_LineBreak + "    ");
            m_Out.writeEmptyElement("item");
            m_Out.writeAttribute("name", row.name);
            m_Out.writeAttribute("value", row.value);
            m_Out.writeAttribute("type", row.type);
        }
        m_Out.writeCharacters(m_LineBreak);
        m_Out.writeEndElement();
    }

    XmlInput m_In;
    const QMap<QString, QList<IMSIINFO>>& m_ImsiLists;
    QByteArray m_Result;
    QXmlStreamWriter m_Out;
    QString m_LineBreak = "\n";
    bool m_Merged = false;
};

void writeBalanceQuery(const BalanceQuery& query, QXmlStreamWriter* out) {
    out->writeEmptyElement("balance");
    out->writeAttribute("way", BalanceQuery::wordOf(query.way));
    out->writeAttribute("number", query.number);
    if (!query.text.isEmpty()) out->writeAttribute("text", query.text);
}

void writeAlias(const QString& name, QXmlStreamWriter* out) {
    out->writeEmptyElement("alias");
    out->writeAttribute("name", name);
}

void writePreset(const QString& name, const PresetPlan& plan, QXmlStreamWriter* out) {
    out->writeEmptyElement("preset");
    out->writeAttribute("name", name);
    if (!plan.name.isEmpty()) out->writeAttribute("plan", plan.name);
    if (!plan.billing.isEmpty()) out->writeAttribute("billing", plan.billing);
}

void writeOperator(const OperatorEntry& entry, QXmlStreamWriter* out) {
    out->writeStartElement("operator");
    out->writeAttribute("country", entry.country);
    out->writeAttribute("name", entry.names.first());
    for (const QString& alias : entry.names.mid(1)) writeAlias(alias, out);
    for (int i = 0; i < entry.presets.size(); ++i) writePreset(entry.presets.at(i), entry.plans.at(i), out);
    for (const BalanceQuery& query : entry.balanceQueries) writeBalanceQuery(query, out);
    out->writeEndElement();
}

}  // namespace

QList<DialupProfile> PresetFiles::readProfiles(const QString& path) {
    XmlInput in(path);
    QList<DialupProfile> profiles;
    in.enterRoot("vrksdoc");
    while (!in.xml.atEnd())
        if (in.xml.readNext() == QXmlStreamReader::StartElement && in.xml.name() == QLatin1String("Profile"))
            profiles.append(profileFrom(in));
    in.checkForError();
    return profiles;
}

QByteArray PresetFiles::profileFile(const QList<DialupProfile>& profiles) {
    ProfileDocumentWriter out;
    out.startGroup();
    out.writeProfiles(profiles);
    return out.finish();
}

QByteArray PresetFiles::configFile(const QString& templatePath, const QMap<QString, QList<IMSIINFO>>& imsiLists) {
    return ConfigMerger(templatePath, imsiLists).merge();
}

QByteArray PresetFiles::operatorFile(const QList<OperatorEntry>& operators) {
    QByteArray result;
    QXmlStreamWriter out(&result);
    out.setAutoFormatting(true);
    out.writeStartDocument();
    out.writeStartElement("Operators");
    for (const OperatorEntry& entry : operators) writeOperator(entry, &out);
    out.writeEndDocument();
    return result;
}

void PresetFiles::write(const QMap<QString, QByteArray>& files) {
    const QFile::Permissions ForEveryone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    const auto fail = [](const QSaveFile& file) { throw PresetError(file.fileName() + ": " + file.errorString()); };
    std::vector<std::unique_ptr<QSaveFile>> open;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        open.push_back(std::make_unique<QSaveFile>(file.key()));
        QSaveFile& out = *open.back();
        if (!out.open(QIODevice::WriteOnly) || out.write(file.value()) != file.value().size() || !out.flush() ||
            !out.setPermissions(ForEveryone))
            fail(out);
    }
    for (const auto& file : open)
        if (!file->commit()) fail(*file);
}

// SPDX-License-Identifier: MIT
#include "FilesCheck.h"

#include <QFile>
#include <QFileInfo>

#include "ConfigurationCheck.h"
#include "NetConnectFileNames.h"
#include "OperatorsCheck.h"
#include "ProfilesCheck.h"
#include "XmlText.h"

namespace {

enum class Kind { Configuration, Profiles, Operators, Unknown };

// Null, and the content, when a file can be read.
QString readProblem(const QString& path, QByteArray* content) {
    QFile file(path);
    const QFileInfo info(path);
    if (!info.exists()) return "does not exist";
    if (!info.isFile()) return "is no regular file";  // a pipe would be waited for
    if (info.size() > XmlText::LargestDocument) return "is too large; no program of OrbisDial reads it";
    if (!file.open(QIODevice::ReadOnly)) return "can't be read: " + file.errorString();
    *content = file.read(XmlText::LargestDocument);
    return QString();
}

// Null for a document that breaks off before, or that no reader may have.
QString rootOf(const QByteArray& content) {
    if (!XmlText::refusal(content).isNull()) return QString();
    QXmlStreamReader reader(content);
    while (!reader.atEnd() && !reader.isStartElement()) {
        reader.readNext();
        XmlText::refuseDeclarations(reader);
    }
    return reader.isStartElement() ? reader.name().toString() : QString();
}

Kind kindOf(const QByteArray& content) {
    const QString root = rootOf(content);
    if (root == "vrksdoc") return Kind::Profiles;
    if (root == "Operators") return Kind::Operators;
    return root == "NetConnectConfig" || root.isNull() ? Kind::Configuration : Kind::Unknown;
}

bool isUsersFile(const QString& path) { return QFileInfo(path).fileName() == NetConnectFileNames::User; }

// Goes over the files twice, since the names that profile files have are looked for in all others.
class Run {
public:
    explicit Run(const FilesToCheck& what) : m_What(what) {}

    QList<Finding> findings() {
        gatherNames();
        for (const QString& path : m_What.files) check(path);
        return m_Findings;
    }

private:
    void gatherNames() {
        bool isKnown = false;
        m_Presets.add(m_What.presets);
        for (const QString& path : m_What.files) isKnown |= takeNames(path);
        for (int i = 0; i < m_What.libraries.size() && !isKnown; ++i) isKnown = takeNames(m_What.libraries.at(i));
        if (!isKnown) m_Presets.giveUp();
    }

    // False for what holds no profiles.
    bool takeNames(const QString& path) {
        QByteArray content;
        if (!readProblem(path, &content).isNull() || kindOf(content) != Kind::Profiles || isUsersFile(path))
            return false;
        FileFindings ignored(path);
        ProfilesCheck check(&ignored, false);
        check.check(content);
        if (!check.isWhole()) m_Presets.giveUp();
        m_Presets.add(check.names());
        return !check.names().isEmpty();
    }

    void check(const QString& path) {
        FileFindings findings(path);
        QByteArray content;
        const QString problem = readProblem(path, &content);
        if (!problem.isNull())
            findings.add({}, problem, "put a file there that can be read");
        else
            checkContent(path, content, &findings);
        m_Findings += findings.inOrder();
    }

    void checkContent(const QString& path, const QByteArray& content, FileFindings* findings) {
        switch (kindOf(content)) {
            case Kind::Profiles:
                return ProfilesCheck(findings, isUsersFile(path)).check(content);
            case Kind::Operators:
                return OperatorsCheck(findings, m_Presets).check(content);
            case Kind::Unknown:
                return findings->add({}, "<" + rootOf(content) + "> is no root of a file of OrbisDial's",
                                     "known are NetConnectConfig, vrksdoc and Operators");
            case Kind::Configuration:
                return ConfigurationCheck(findings, m_Presets, m_What.presetSections).check(content);
        }
    }

    const FilesToCheck& m_What;
    KnownPresets m_Presets;
    QList<Finding> m_Findings;
};

}  // namespace

QList<Finding> checkFiles(const FilesToCheck& what) { return Run(what).findings(); }

// SPDX-License-Identifier: MIT
// What is wrong with NetConnectConfig.xml, or with the template that orbis-presets merges into one.
#ifndef ORBISDIAL_CHECK_CONFIGURATIONCHECK_H
#define ORBISDIAL_CHECK_CONFIGURATIONCHECK_H

#include <QMap>

#include "DocumentCheck.h"
#include "FilesCheck.h"
#include "KnownPresets.h"

class ConfigurationCheck : public DocumentCheck {
public:
    ConfigurationCheck(FileFindings* findings, const KnownPresets& presets, PresetSections sections);

private:
    struct Row {
        QString name;
        QString value;
        XmlPlace place;
    };
    using Rows = QList<Row>;

    struct ImsiList {
        QString code;
        XmlPlace place;
        Rows rows;
    };

    // What one pair of group and module holds.
    struct Pair {
        XmlPlace place;
        Rows functions;
        Rows fields;  // of new profiles
        Rows profiles;
        Rows modeDefaults;
        QList<ImsiList> imsiLists;
        bool hasPresetSections = false;
    };

    void start(const XmlElement& element) override;
    void end(const QString& name) override;
    void finish() override;

    void startSection(const XmlElement& element);
    void startItem(const XmlElement& element);
    void startPrompt(const XmlElement& element, const Row& row);
    void tellStray(const Row& row);
    void startPresetSections(const XmlElement& element);
    Pair& pair() { return m_Pairs[m_Group + '/' + m_Module]; }
    Rows* sectionRows();
    bool isPairRead() const;

    void checkFunctions(const Rows& rows);
    void checkFields(const Rows& rows);
    void checkOffer(const Rows& rows, const QString& list);
    void checkModeDefaults(const Pair& pair);
    void checkImsiLists(const QList<ImsiList>& lists);
    void checkCode(const ImsiList& list);
    void checkNesting(const QList<ImsiList>& lists);
    void checkMergedDefaults(const QString& name, const Rows& profiles);
    void checkLostPresets(const Pair& pair);
    void tellTwice(const Rows& rows, const QString& what);

    const KnownPresets& m_Presets;
    const PresetSections m_Allowed;
    QString m_Group;
    QString m_Module;
    QString m_Section;  // the element that began last
    XmlPlace m_SectionPlace;
    QMap<QString, Pair> m_Pairs;  // by "group/module"
    Pair m_Common;
    QHash<QString, Row> m_CommonProfiles;
    FirstPlaces m_Prompts;
    FirstPlaces m_SectionPlaces;
};

#endif

// SPDX-License-Identifier: MIT
#include "ConfigurationCheck.h"

#include <algorithm>

#include "NetConnectConfigDocument.h"
#include "NetConnectProfileRules.h"
#include "ProfilesCheck.h"
#include "Spelling.h"

namespace {

constexpr char CommonPair[] = "common/common";
constexpr char DefaultValue[] = "default";
constexpr char ItemAttributes[] = "name value type";

std::vector<ElementRule> rules() {
    return {{"", "NetConnectConfig", ""},
            {"NetConnectConfig", "group", "name"},
            {"group", "module", "name"},
            {"module", "item", ItemAttributes},
            {"module", "PresetSections", ""},
            {"module", "Function", ""},
            {"module", "ProfileTemplate", ""},
            {"module", "ProfileList", ""},
            {"module", "IMSIProfileList", "imsi"},
            {"module", "MultiModeDefaultProfile", ""},
            {"Function", "item", ItemAttributes},
            {"ProfileTemplate", "item", ItemAttributes},
            {"ProfileList", "item", ItemAttributes},
            {"IMSIProfileList", "item", ItemAttributes},
            {"MultiModeDefaultProfile", "item", ItemAttributes}};
}

struct FunctionKey {
    const char* name;
    bool isSwitch;
};

constexpr FunctionKey FunctionKeys[] = {
    {"IMSIAPN", true}, {"IMSIROAM", true},           {"ENCRYPT", true},         {"APN", true}, {"IMPORT", true},
    {"ALLLIB", true},  {"ProfileNameLength", false}, {"Auto Get Profile", true}};

const FunctionKey* findKey(const QString& name) {
    for (const FunctionKey& key : FunctionKeys)
        if (name == QLatin1String(key.name)) return &key;
    return nullptr;
}

QStringList functionNames() {
    QStringList names;
    for (const FunctionKey& key : FunctionKeys) names.append(key.name);
    return names;
}

bool isFlag(const QString& value) { return value == "true" || value == "false"; }

QString flagRemedy(const QString& value) {
    return isFlag(value.toLower()) ? "write " + inQuotes(value.toLower()) : QString("write \"true\" or \"false\"");
}

// Not of the template: who made the profile, and how its password is stored.
const DialupProfileField* findTemplateField(const QString& name) {
    for (const DialupProfileField& field : DialupProfileFields)
        if (name == field.attribute && name != "device" && name != "langid" && name != "encrypttype") return &field;
    return nullptr;
}

QStringList templateFields() {
    QStringList names;
    for (const DialupProfileField& field : DialupProfileFields)
        if (findTemplateField(field.attribute)) names.append(field.attribute);
    return names;
}

bool isPrompt(const QString& name) { return NetConnectConfigDocument::promptField(wholeOf(name)); }

bool isDefault(const QString& value) { return value == DefaultValue; }

// A network's own code (3GPP TS 23.003, clause 2.2: country and network code).
bool isNetworkCode(const QString& code) { return code.size() == 5 || code.size() == 6; }

bool isDigits(const QString& code) {
    return std::all_of(code.begin(), code.end(), [](QChar c) { return c >= '0' && c <= '9'; });
}

}  // namespace

ConfigurationCheck::ConfigurationCheck(FileFindings* findings, const KnownPresets& presets, PresetSections sections)
    : DocumentCheck(findings, rules()), m_Presets(presets), m_Allowed(sections) {}

// --- the walk ---

void ConfigurationCheck::start(const XmlElement& element) {
    if (element.name == "group") m_Group = required(element, "name");
    if (element.name == "module") {
        m_Module = required(element, "name");
        if (pair().place.line == 0) pair().place = element.place;
    }
    if (element.name == "item") return startItem(element);
    if (element.name == "PresetSections") return startPresetSections(element);
    if (element.parent == "module") startSection(element);
}

void ConfigurationCheck::end(const QString& name) {
    if (name == "module") m_Module.clear();
    if (name == "group") m_Group.clear();
}

void ConfigurationCheck::startSection(const XmlElement& element) {
    m_Section = element.name;
    m_SectionPlace = element.place;
    if (!isPairRead())
        find(element.place,
             QString("<%1> in group %2, module %3, a pair that is never read")
                 .arg(element.name, inQuotes(m_Group), inQuotes(m_Module)),
             "read are common with common, customize with a device's customise name, and common with CDMA");
    if (element.name == "IMSIProfileList") pair().imsiLists.append({required(element, "imsi"), element.place, {}});
}

void ConfigurationCheck::startItem(const XmlElement& element) {
    const Row row{required(element, "name"), element.value("value"), element.place};
    if (row.name.isEmpty()) return;
    const bool isStray = element.parent == "module";
    if (isPrompt(row.name)) startPrompt(element, row);
    if (isStray && (isPairRead() || !isPrompt(row.name))) return tellStray(row);
    if (!isStray && isPairRead())
        if (Rows* rows = sectionRows()) rows->append(row);
}

// Sections do not end by themselves.
void ConfigurationCheck::tellStray(const Row& row) {
    const QString stray = "item " + inQuotes(row.name) + " stands in no section";
    const QString remedy = isPrompt(row.name) ? "put it into a group and module that are never read, such as prompt"
                                              : "put it into the section that it is meant for";
    if (m_Section.isEmpty()) return find(row.place, stray + ", and is not read", remedy);
    find(row.place, QString("%1, and counts for <%2> of %3").arg(stray, m_Section, lineText(m_SectionPlace)), remedy);
}

void ConfigurationCheck::startPrompt(const XmlElement& element, const Row& row) {
    if (!isFlag(row.value))
        find(row.place, row.name + " is " + inQuotes(row.value) + ", which counts as off", flagRemedy(row.value));
    if (const XmlPlace* first = m_Prompts.meet(row.name, row.place))
        find(row.place, row.name + " was set in " + lineText(*first) + "; this one counts", "keep one of them");
    if (element.parent != "module" && isPairRead())
        find(row.place, QString("%1 counts for <%2>, too").arg(row.name, element.parent),
             "put it into a group and module that are never read, such as prompt");
}

void ConfigurationCheck::startPresetSections(const XmlElement& element) {
    pair().hasPresetSections = true;
    if (m_Allowed == PresetSections::Forbidden)
        return find(element.place, "<PresetSections> is still there, so no presets by SIM card stand in its place",
                    "run orbis-presets with this file as --template");
    if (const XmlPlace* first = m_SectionPlaces.meet(QString(), element.place))
        find(element.place, "a second <PresetSections>; the first is in " + lineText(*first), "keep one of them");
}

bool ConfigurationCheck::isPairRead() const {
    if (m_Group == "customize") return !m_Module.isEmpty() && m_Module != "common";
    return m_Group == "common" && (m_Module == "common" || m_Module == "CDMA");
}

ConfigurationCheck::Rows* ConfigurationCheck::sectionRows() {
    const QPair<const char*, Rows Pair::*> sections[] = {{"Function", &Pair::functions},
                                                         {"ProfileTemplate", &Pair::fields},
                                                         {"ProfileList", &Pair::profiles},
                                                         {"MultiModeDefaultProfile", &Pair::modeDefaults}};
    for (const auto& section : sections)
        if (m_Section == QLatin1String(section.first)) return &(pair().*section.second);
    return pair().imsiLists.isEmpty() ? nullptr : &pair().imsiLists.last().rows;
}

// --- what was gathered ---

void ConfigurationCheck::finish() {
    if (isWhole() && !m_Pairs.contains(CommonPair))
        find({}, "there is no module common in a group common, which is read always", "put the sections into one");
    if (isWhole() && m_Allowed == PresetSections::Required && !m_SectionPlaces.meet(QString(), {}))
        find({}, "there is no <PresetSections/>, so orbis-presets has no place for the presets",
             "put it into the module common");
    m_Common = m_Pairs.value(CommonPair);
    for (const Row& row : m_Common.profiles) m_CommonProfiles.insert(row.name, row);
    for (auto pair = m_Pairs.constBegin(); pair != m_Pairs.constEnd() && !isFull(); ++pair) {
        checkFunctions(pair->functions);
        checkFields(pair->fields);
        checkOffer(pair->profiles, "<ProfileList>");
        checkModeDefaults(*pair);
        checkImsiLists(pair->imsiLists);
        if (pair.key() == CommonPair) continue;
        checkMergedDefaults(pair.key(), pair->profiles);
        if (isWhole() && pair.key().startsWith("customize/")) checkLostPresets(*pair);
    }
}

void ConfigurationCheck::tellTwice(const Rows& rows, const QString& what) {
    FirstPlaces places;
    for (const Row& row : rows)
        if (const XmlPlace* first = places.meet(row.name, row.place))
            find(row.place, QString("%1 %2 is there already, in %3").arg(what, inQuotes(row.name), lineText(*first)),
                 "keep one of them");
}

// A key with a dot is another plug-in's.
void ConfigurationCheck::checkFunctions(const Rows& rows) {
    tellTwice(rows, "key");
    for (const Row& row : rows) {
        const FunctionKey* const key = findKey(row.name);
        bool isNumber = false;
        if (!key && !row.name.contains('.'))
            find(row.place, "unknown key " + inQuotes(row.name),
                 Spelling::advice(row.name, functionNames()) + "; a key of another plug-in's has a dot in its name");
        if (key && key->isSwitch && !isFlag(row.value))
            find(row.place, row.name + " is " + inQuotes(row.value) + ", which counts as off", flagRemedy(row.value));
        if (key && !key->isSwitch && (row.value.toInt(&isNumber) < 1 || !isNumber))
            find(row.place,
                 QString("%1 is %2, which counts as %3")
                     .arg(row.name, inQuotes(row.value))
                     .arg(NetConnectProfileRules::DefaultNameLength),
                 "write a number from 1");
    }
}

void ConfigurationCheck::checkFields(const Rows& rows) {
    tellTwice(rows, "field");
    for (const Row& row : rows) {
        const DialupProfileField* const field = findTemplateField(row.name);
        if (!field) {
            find(row.place, "a new profile has no field " + inQuotes(row.name),
                 Spelling::advice(row.name, templateFields()));
            continue;
        }
        const QString problem = templateFieldProblem(*field, row.value);
        if (!problem.isNull()) find(row.place, problem, "write a value that a new profile may have");
    }
}

// Of the profiles on offer one may be proposed.
void ConfigurationCheck::checkOffer(const Rows& rows, const QString& list) {
    tellTwice(rows, "profile");
    const Row* first = nullptr;
    for (const Row& row : rows) {
        if (isFull()) return;
        if (m_Presets.lacks(row.name))
            find(row.place, "the library has no profile " + inQuotes(row.name), m_Presets.adviceFor(row.name));
        if (!row.value.isEmpty() && !isDefault(row.value))
            find(row.place, "value " + inQuotes(row.value) + " says nothing in " + list,
                 "write \"default\" to propose the profile, or \"\"");
        if (!isDefault(row.value)) continue;
        if (first)
            find(row.place, QString("a second default of %1; the first is in %2").arg(list, lineText(first->place)),
                 "keep one of them");
        first = first ? first : &row;
    }
}

void ConfigurationCheck::checkModeDefaults(const Pair& pair) {
    if (pair.modeDefaults.isEmpty()) return;
    QHash<QString, Row> own;
    for (const Row& row : pair.profiles) own.insert(row.name, row);
    for (const Row& row : pair.modeDefaults) {
        const Row profile = own.value(row.name, m_CommonProfiles.value(row.name));
        if (profile.name.isEmpty())
            find(row.place, "the default of a mode, " + inQuotes(row.name) + ", is in no <ProfileList>",
                 "put it there, with an empty value");
        else if (!profile.value.isEmpty() && !isDefault(profile.value))
            find(row.place,
                 inQuotes(row.name) + " has a value of its own in " + lineText(profile.place) + ", and keeps it",
                 "make that one empty");
        if (row.value != "CDMA" && row.value != "WCDMA")
            find(row.place, "value " + inQuotes(row.value) + " counts as WCDMA", "write \"CDMA\" or \"WCDMA\"");
    }
}

void ConfigurationCheck::checkImsiLists(const QList<ImsiList>& lists) {
    FirstPlaces places;
    for (const ImsiList& list : lists) {
        checkCode(list);
        checkOffer(list.rows, "the list of " + list.code);
        if (list.rows.isEmpty())
            find(list.place, "the list of " + list.code + " is empty",
                 "name the profiles that it offers, or take it out");
        if (const XmlPlace* first = places.meet(list.code, list.place))
            find(list.place, QString("a second list of %1; the first is in %2").arg(list.code, lineText(*first)),
                 "put all rows into one");
    }
    checkNesting(lists);
}

void ConfigurationCheck::checkCode(const ImsiList& list) {
    constexpr int longest = 15;  // digits of an IMSI
    if (!isDigits(list.code))
        find(list.place, "imsi " + inQuotes(list.code) + " is more than digits, and fits no SIM card",
             "write the first five or six digits of the IMSI");
    else if (list.code.size() > longest)
        find(list.place, "imsi " + inQuotes(list.code) + " is longer than any IMSI",
             "write the first five or six digits of the IMSI");
}

// The longest code that fits is used alone. That networks' own codes nest is nobody's mistake: a list for more or less
// than one network was meant to go on offering what it has.
void ConfigurationCheck::checkNesting(const QList<ImsiList>& lists) {
    struct Offer {
        XmlPlace place;
        QSet<QString> names;
    };
    QHash<QString, Offer> offers;
    for (const ImsiList& list : lists) {
        Offer& offer = offers[list.code];
        if (offer.place.line == 0) offer.place = list.place;
        for (const Row& row : list.rows) offer.names.insert(row.name);
    }
    for (auto offer = offers.constBegin(); offer != offers.constEnd() && !isFull(); ++offer) {
        const QString& code = offer.key();
        for (int size = qMin(code.size(), 15) - 1; size > 0; --size) {
            const auto wider = offers.constFind(code.left(size));
            if (wider == offers.constEnd() || (isNetworkCode(code) && isNetworkCode(wider.key()))) continue;
            const auto lost = std::find_if(wider->names.begin(), wider->names.end(),
                                           [&](const QString& name) { return !offer->names.contains(name); });
            if (lost == wider->names.end()) continue;
            find(offer->place,
                 QString("cards of %1 get this list in place of that of %2, %3, and lose %4")
                     .arg(code, wider.key(), lineText(wider->place), inQuotes(*lost)),
                 "repeat here what they shall be offered, or give the lists codes of which none begins another");
        }
    }
}

// The lists of a pair are put over those of the common one, row by row.
void ConfigurationCheck::checkMergedDefaults(const QString& name, const Rows& profiles) {
    const auto proposed = [](const Row& row) { return isDefault(row.value); };
    const auto own = std::find_if(profiles.begin(), profiles.end(), proposed);
    const auto common = std::find_if(m_Common.profiles.begin(), m_Common.profiles.end(), proposed);
    if (own == profiles.end() || common == m_Common.profiles.end()) return;
    const auto isSame = [&](const Row& row) { return row.name == common->name; };
    if (std::any_of(profiles.begin(), profiles.end(), isSame)) return;
    find(own->place,
         QString("with %1 of common/common, %2, there are two defaults in %3")
             .arg(inQuotes(common->name), lineText(common->place), name),
         QString("put %1 here, too, with an empty value").arg(inQuotes(common->name)));
}

// A customised pair forgets the common lists as a whole.
void ConfigurationCheck::checkLostPresets(const Pair& pair) {
    if (!pair.imsiLists.isEmpty() || pair.hasPresetSections) return;
    if (m_Common.imsiLists.isEmpty() && !m_Common.hasPresetSections) return;
    const auto valueOf = [](const Rows& rows, const QString& otherwise) {
        for (const Row& row : rows)
            if (row.name == "IMSIAPN") return row.value;
        return otherwise;
    };
    if (valueOf(pair.functions, valueOf(m_Common.functions, QString())) != "true") return;
    find(pair.place, "this module leaves its devices without presets by SIM card, since it has no <IMSIProfileList>",
         "copy the lists that they need, or switch IMSIAPN off in its <Function>");
}

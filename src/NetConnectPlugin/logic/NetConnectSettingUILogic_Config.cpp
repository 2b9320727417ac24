// SPDX-License-Identifier: MIT
// Queries of the function configuration.

#include "NetConnectSettingUILogic.h"

int NetConnectSettingUILogic::GetFunctionConfigValue(QString key, bool* on) {
    if (!on || !m_pFunctionHash) return FileMissing;
    *on = m_pFunctionHash->value(key).value == QLatin1String("true");
    return Success;
}

bool NetConnectSettingUILogic::isOn(const char* key) {
    bool on = false;
    GetFunctionConfigValue(QLatin1String(key), &on);
    return on;
}

int NetConnectSettingUILogic::GetFunctionConfigValue(QString key, int& value, int defaultValue) {
    const int configured = m_pFunctionHash ? m_pFunctionHash->value(key).value.toInt() : 0;
    value = configured != 0 ? configured : defaultValue;
    return Success;
}

int NetConnectSettingUILogic::GetFunctionConfigStringValues(QString key, QString* value) {
    qDebug("%s: %s: ", __FILE__, "GetFunctionConfigStringValues");
    if (!value) return FileMissing;
    *value = m_pFunctionHash ? m_pFunctionHash->value(key).value : QString();
    if (value->isNull()) *value = QLatin1String("");
    return Success;
}

UserPrompt NetConnectSettingUILogic::GetUserNamePasswdPromptInfo() { return m_UserPrompt; }

QStringList NetConnectSettingUILogic::FunctionConfigKeys() const {
    QStringList keys = m_pFunctionHash ? QStringList(m_pFunctionHash->keys()) : QStringList();
    keys.sort();
    return keys;
}

QString NetConnectSettingUILogic::isLangidDefine(QString name) {
    if (!m_pXMLParse) return QLatin1String("");
    refreshLibraryNames();
    return translatedLibraryName(name);
}

// Collects the langids of the shipped library anew when that was read anew.
void NetConnectSettingUILogic::refreshLibraryNames() {
    if (!m_pXMLParse || m_bLoading) return;
    QList<DialupProfile> library;
    QString ignoredDefault;
    const int status = readForeignFile(&library, &ignoredDefault, QLatin1String(NetConnectFileNames::Library));
    if (status == Success || !m_bLibraryWhole) collectLangids(library);
}

void NetConnectSettingUILogic::collectLangids(const QList<DialupProfile>& library) {
    if (m_nLibraryRevision == m_pXMLParse->libraryRevision()) return;
    m_nLibraryRevision = m_pXMLParse->libraryRevision();
    m_LibraryLangids.clear();
    for (int i = 0; i < library.size(); ++i) {
        const DialupProfile& profile = library.at(i);
        if (!profile.langid.isEmpty() && !m_LibraryLangids.contains(profile.name))
            m_LibraryLangids.insert(profile.name, profile.langid);
    }
}

// The name under which a library profile is shown; empty when it has no langid or no translation.
QString NetConnectSettingUILogic::translatedLibraryName(const QString& name) {
    if (!m_LibraryLangids.contains(name)) return QLatin1String("");
    const QString shown = translated(m_LibraryLangids.value(name));
    m_StoredNames.remove(m_ProfileMap.value(name));
    m_ProfileMap.insert(name, shown);
    // Of several profiles shown under one name the first in sorted order counts.
    const QString known = m_StoredNames.value(shown);
    if (!shown.isEmpty() && (known.isNull() || name < known)) m_StoredNames.insert(shown, name);
    return shown;
}

// SPDX-License-Identifier: MIT
// Edits that meet what other programs stored while they were open.

#include "NetConnectSettingUILogic.h"
#include "NetConnectStoreAction.h"
#include "TruthText.h"
#include "UserStore.h"

namespace {

typedef QString DialupProfile::*Field;

// Fields that make sense only together count as one.
const Field Pairs[][2] = {{&DialupProfile::autoapn, &DialupProfile::apn},
                          {&DialupProfile::password, &DialupProfile::encrypttype}};

Field partnerOf(Field field) {
    for (const auto& pair : Pairs) {
        if (pair[0] == field) return pair[1];
        if (pair[1] == field) return pair[0];
    }
    return field;
}

bool differ(const DialupProfile& one, const DialupProfile& other, Field field) {
    const Field partner = partnerOf(field);
    return one.*field != other.*field || one.*partner != other.*partner;
}

// Whether the form in which a window writes a field loses nothing: a default where nothing was stored, a truth value.
bool isTidied(const NetConnectProfileEdit& edit, Field field) {
    const QString& entered = edit.entered.*field;
    const QString& begun = edit.begun.*field;
    return entered == begun || begun.isEmpty() || entered == boolText(true) || entered == boolText(false);
}

DialupProfile merged(const NetConnectProfileEdit& edit, const DialupProfile& stored) {
    DialupProfile result = edit.entered;
    for (const DialupProfileField& row : DialupProfileFields) {
        const Field field = row.member;
        if (field == &DialupProfile::name || differ(edit.entered, edit.shown, field)) continue;
        const bool isWrittenAlike = isTidied(edit, field) && isTidied(edit, partnerOf(field));
        if (differ(stored, edit.begun, field) || !isWrittenAlike) result.*field = stored.*field;
    }
    return result;
}

}  // namespace

int NetConnectSettingUILogic::MergeDialUpProfile(const QString& name, const NetConnectProfileEdit& edit) {
    NetConnectStoreAction action;
    const int locked = action.lock();  // from here on the lists hold what the file holds
    if (locked != Success) return locked;
    DialupProfile stored = edit.begun;
    if (HasUserProfile(name)) GetDialUpProfile(name, &stored);
    const int status = ReplaceDialUpProfile(name, merged(edit, stored));
    return status == Success ? action.commit() : status;
}

int NetConnectSettingUILogic::UserFileRevision() const { return m_Store.revision(); }

bool NetConnectSettingUILogic::IsUserFileNewer(int revision) {
    return revision != m_Store.revision() || !m_Store.isUpToDate();
}

QString NetConnectSettingUILogic::UserFilePath() const {
    return m_pXMLParse ? m_pXMLParse->userProfilePath() : QString();
}

// SPDX-License-Identifier: MIT
#include "NetConnectProfileRules.h"

#include "QtCompat.h"

namespace NetConnectProfileRules {

const char NamePattern[] = "[^:<>|?*()\\[\\]\\/\\\\]+";
const char APNPattern[] = "^[\\w]+[\\w\\.-]*[\\w]+$";
const char APNTypingPattern[] = "([-.]*[A-Z]*[a-z]*[0-9]*)*";
const char ForbiddenNameCharacters[] = "\\/:*?[]()<>|";

bool isNamePresent(const QString& name) {
    for (int i = 0; i < name.size(); ++i)
        if (!name.at(i).isSpace()) return true;
    return false;
}

bool isNameAcceptable(const QString& name) { return matchesWhole(NamePattern, name); }

bool isAccessNumberPresent(const QString& number) { return !number.isEmpty(); }

bool isAPNAcceptable(const QString& apn) { return apn.size() <= 1 || matchesWhole(APNPattern, apn); }

bool isAPNTypeable(const QString& apn) {
    // Said by hand: the typing pattern's nested repetition takes QRegExp exponential time on long texts.
    for (int i = 0; i < apn.size(); ++i) {
        const ushort c = apn.at(i).unicode();
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!letter && !(c >= '0' && c <= '9') && c != '-' && c != '.') return false;
    }
    return true;
}

bool isPasswordKeepable(const QString& password) {
    for (int i = 0; i < password.size(); ++i)
        if (password.at(i).unicode() == 0 || password.at(i).unicode() > 0xff) return false;
    return true;
}

QString cutToLength(const QString& text, int length) {
    if (length < 0 || text.size() <= length) return text;
    return text.left(length > 0 && text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}

}  // namespace NetConnectProfileRules

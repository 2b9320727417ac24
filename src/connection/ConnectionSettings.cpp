// SPDX-License-Identifier: MIT
#include "ConnectionSettings.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include "CommonUtilsBase.h"
#include "CredentialsMark.h"

namespace {

const QString Group = QStringLiteral("Connection");
const QString StaysKey = QStringLiteral("staysAfterExit");
const QString AutomaticKey = QStringLiteral("automatic");
const QString True = QStringLiteral("true");

const QString RoamsKey = QStringLiteral("roams");
const QString RefusedKey = QStringLiteral("refused");

using AutoConnectSettings::Rule;
using AutoConnectSettings::Rules;

// Names may hold what the keys of a settings file may not; hence one value for all.
bool store(const Rules& rules) {
    QJsonObject all;
    for (auto rule = rules.begin(); rule != rules.end(); ++rule)
        all.insert(rule.key(), QJsonObject{{RoamsKey, rule->mayRoam}, {RefusedKey, rule->refused}});
    const QByteArray text = rules.isEmpty() ? QByteArray() : QJsonDocument(all).toJson(QJsonDocument::Compact);
    return CommonUtilsBase::SetSettings(Group, AutomaticKey, QString::fromUtf8(text));
}

QSet<QString> setOf(const QStringList& names) { return {names.begin(), names.end()}; }

}  // namespace

bool ConnectionSettings::staysAfterExit() { return CommonUtilsBase::GetSettings(Group, StaysKey) == True; }

bool ConnectionSettings::setStaysAfterExit(bool stays) {
    return CommonUtilsBase::SetSettings(Group, StaysKey, stays ? True : QStringLiteral("false"));
}

Rules AutoConnectSettings::rules() {
    const QByteArray text = CommonUtilsBase::GetSettings(Group, AutomaticKey).toUtf8();
    const QJsonObject all = QJsonDocument::fromJson(text).object();
    Rules rules;
    for (auto rule = all.begin(); rule != all.end(); ++rule) {
        const QJsonObject values = rule->toObject();
        rules.insert(rule.key(), {values.value(RoamsKey).toBool(), values.value(RefusedKey).toString()});
    }
    return rules;
}

bool AutoConnectSettings::isOn(const QString& profileName) { return rules().contains(profileName); }

bool AutoConnectSettings::set(const QString& profileName, bool on, bool mayRoam) {
    if (!on) return forget(profileName);
    Rules all = rules();
    all.insert(profileName, {mayRoam});
    return store(all);
}

bool Rule::isRefused(const DialupProfile& profile) const {
    return !refused.isEmpty() && refused == CredentialsMark::of(profile);
}

bool AutoConnectSettings::setRefused(const QString& profileName, const QString& mark) {
    Rules all = rules();
    const auto rule = all.find(profileName);
    if (rule == all.end() || rule->refused == mark) return true;
    rule->refused = mark;
    return store(all);
}

bool AutoConnectSettings::rename(const QString& from, const QString& to) {
    Rules all = rules();
    if (from == to || !all.contains(from)) return true;
    all.insert(to, all.take(from));
    return store(all);
}

bool AutoConnectSettings::forget(const QString& profileName) {
    Rules all = rules();
    return all.remove(profileName) == 0 || store(all);
}

bool AutoConnectSettings::follow(const QStringList& before, const QStringList& after) {
    const QSet<QString> gone = setOf(before) - setOf(after);
    const QSet<QString> come = setOf(after) - setOf(before);
    if (gone.size() != 1 || come.size() > 1) return true;
    return come.isEmpty() ? forget(*gone.begin()) : rename(*gone.begin(), *come.begin());
}

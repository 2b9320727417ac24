// SPDX-License-Identifier: MIT
#include "PresetCatalogue.h"

#include <QRegularExpression>
#include <QVector>
#include <algorithm>
#include <tuple>
#include <utility>

#include "PresetNames.h"

namespace {

struct Preset {
    const Provider* provider;
    AccessPoint point;
    QString name;
};

const QString& flag(bool on) {
    static const QString True("true");
    static const QString False("false");
    return on ? True : False;
}

auto identity(const AccessPoint& point) {
    return std::tie(point.cdma, point.apn, point.user, point.password, point.method);
}

// A provider's access points, each once; of several with one identity the likeliest usage describes it.
QList<AccessPoint> distinctPoints(const Provider& provider) {
    QList<AccessPoint> distinct;
    for (const AccessPoint& point : provider.accessPoints) {
        const auto same = std::find_if(distinct.begin(), distinct.end(),
                                       [&](const AccessPoint& other) { return identity(other) == identity(point); });
        if (same == distinct.end())
            distinct.append(point);
        else if (point.usage < same->usage)
            *same = point;
    }
    return distinct;
}

// Credentials that the subscriber must complete with a phone number: one that says so, a bare country calling code,
// or a CDMA network access identifier (RFC 4282) without its user part.
bool isPlaceholder(const AccessPoint& point) {
    static const QRegularExpression Asking("number|msisdn", QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression CallingCode("^(\\+[0-9]*|[0-9]{1,3})\\z");
    return point.user.contains(Asking) || point.password.contains(Asking) || point.user.contains(CallingCode) ||
           (point.cdma && point.user.startsWith('@'));
}

DialupProfile profileOf(const Preset& preset) {
    const AccessPoint& point = preset.point;
    const bool credentials = !point.user.isEmpty() || !point.password.isEmpty();
    DialupProfile profile;
    profile.name = preset.name;
    profile.readonly = flag(false);
    profile.user = point.user;
    profile.password = point.password;
    profile.phonenumber = point.cdma ? "#777" : "*99#";
    profile.autoapn = flag(point.cdma);
    profile.apn = point.apn;
    profile.chap = flag(point.method.isEmpty() ? credentials : point.method == "chap");
    profile.pap = flag(point.method.isEmpty() ? credentials : point.method == "pap");
    profile.popusername = flag(isPlaceholder(point));
    // A password in plain text under the keyed method is used as it stands, and is sealed when a user imports it.
    profile.encrypttype = "2";
    return profile;
}

NameParts partsOf(const Preset& preset) {
    const AccessPoint& point = preset.point;
    const QString way = point.cdma ? QString("CDMA") : point.apn;
    return {preset.provider->country, preset.provider->name, point.label, point.plan, way, point.user};
}

QVector<Preset> presetsOf(const QList<Provider>& providers, const QStringList& reservedNames) {
    QVector<Preset> presets;
    QVector<NameParts> parts;
    for (const Provider& provider : providers)
        for (const AccessPoint& point : distinctPoints(provider)) {
            presets.append({&provider, point, QString()});
            parts.append(partsOf(presets.last()));
        }
    const QStringList names = uniqueNames(parts, reservedNames);
    for (int i = 0; i < presets.size(); ++i) presets[i].name = names.at(i);
    return presets;
}

bool isLikelier(const Preset* a, const Preset* b) {
    return std::make_tuple(a->point.usage, !a->provider->primary) <
           std::make_tuple(b->point.usage, !b->provider->primary);
}

QList<IMSIINFO> rowsOf(const QVector<const Preset*>& offered) {
    const Preset* proposed = *std::min_element(offered.begin(), offered.end(), isLikelier);
    QList<IMSIINFO> rows;
    for (const Preset* preset : offered)
        rows.append({preset->name, preset == proposed ? QString("default") : QString(), QString()});
    return rows;
}

OperatorEntry entryOf(const Provider& provider) {
    OperatorEntry entry;
    entry.country = provider.country.toLower();
    entry.names = QStringList(provider.name) + provider.otherNames;
    entry.balanceQueries = provider.balanceQueries;
    return entry;
}

// The providers that have presets, each one's from the likeliest on.
QList<OperatorEntry> operatorsOf(const QVector<Preset>& presets) {
    QList<OperatorEntry> operators;
    for (auto first = presets.begin(), next = first; first != presets.end(); first = next) {
        next = std::find_if(first, presets.end(), [&](const Preset& p) { return p.provider != first->provider; });
        QVector<Preset> own(int(next - first));
        std::copy(first, next, own.begin());
        std::stable_sort(own.begin(), own.end(),
                         [](const Preset& a, const Preset& b) { return a.point.usage < b.point.usage; });
        operators.append(entryOf(*first->provider));
        for (const Preset& preset : std::as_const(own)) {
            operators.last().presets.append(preset.name);
            operators.last().plans.append({preset.point.label, preset.point.plan});
        }
    }
    return operators;
}

}  // namespace

PresetCatalogue buildCatalogue(const QList<Provider>& providers, const QStringList& reservedNames) {
    const QVector<Preset> presets = presetsOf(providers, reservedNames);
    PresetCatalogue catalogue;
    QMap<QString, QVector<const Preset*>> offers;
    for (const Preset& preset : presets) {
        catalogue.profiles.append(profileOf(preset));
        if (preset.point.cdma) continue;  // network codes stand for the GSM side of a provider
        for (const QString& code : preset.provider->networkCodes) offers[code].append(&preset);
    }
    for (auto offer = offers.cbegin(); offer != offers.cend(); ++offer)
        catalogue.imsiLists.insert(offer.key(), rowsOf(offer.value()));
    catalogue.operators = operatorsOf(presets);
    return catalogue;
}

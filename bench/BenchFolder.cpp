// SPDX-License-Identifier: MIT
#include "BenchFolder.h"

#include "Measure.h"
#include "Reference.h"
#include "vrks_simulated.h"

namespace {

// Presets that one section by IMSI holds.
const int SectionSize = 10;

DialupProfile makeProfile(int number, const QString& prefix) {
    const auto oneOf = [number](const char* stem, int kinds) {
        return QString(stem) + QString::number(number % kinds);
    };
    DialupProfile profile;
    for (const DialupProfileField& field : DialupProfileFields) profile.*field.member = "";
    profile.name = QString("%1 %2 Network %3").arg(prefix, number % 2 ? "northern" : "Southern").arg(number);
    profile.user = oneOf("user", 37);
    profile.password = oneOf("secret", 37);
    profile.phonenumber = "*99#";
    profile.apn = oneOf("internet.operator", 211);
    profile.encrypttype = "2";
    for (const auto flag : {&DialupProfile::readonly, &DialupProfile::autoapn, &DialupProfile::popusername})
        profile.*flag = "false";
    profile.chap = profile.pap = "true";
    return profile;
}

}  // namespace

BenchFolder::BenchFolder() {
    vrks_simulated_reset();
    ship("SysProfile.prof", "<vrksdoc><Template name='' phonenumber='*99#'/></vrksdoc>");
    shipLibrary({});
    shipConfiguration(0, {});
}

BenchFolder::~BenchFolder() {
    NetConnectSettingUILogic::Destroy();
    NetConnectXMLParse::Destroy();
}

QList<DialupProfile> BenchFolder::profiles(int count, const QString& prefix) {
    const int stride = 7919;  // a prime: every number comes once
    QList<DialupProfile> result;
    for (int i = 0; i < count; ++i) result.append(makeProfile(int(qint64(i) * stride % count), prefix));
    return result;
}

QByteArray BenchFolder::configuration(int presets, const QList<DialupProfile>& library) {
    QByteArray result =
        "<NetConnect><group name=\"common\"><module name=\"common\"><Function>"
        "<item name=\"IMSIAPN\" value=\"true\" type=\"\"/><item name=\"APN\" value=\"true\" type=\"\"/></Function>\n";
    for (int i = 0; i < presets; ++i) {
        if (i % SectionSize == 0)
            result += "<IMSIProfileList imsi=\"" + QByteArray::number(20000 + i / SectionSize) + "\">\n";
        result += "<item name=\"" + library.at(i).name.toUtf8() + "\" value=\"\" type=\"\"/>\n";
        if (i % SectionSize == SectionSize - 1 || i == presets - 1) result += "</IMSIProfileList>\n";
    }
    return result + "</module></group></NetConnect>";
}

void BenchFolder::shipPresets() const {
    for (const char* name : {"NetConnectConfig.xml", "Operators.xml", "ProfileLib.prof", "SysProfile.prof"}) {
        const QByteArray content = read(QString(SHIPPED_DIR "/") + name);
        Measure::require(!content.isEmpty(), name);
        ship(name, content);
    }
}

void BenchFolder::writeUser(const QList<DialupProfile>& profiles) const {
    write(userFile(), Reference::write(profiles));
}

void BenchFolder::shipLibrary(const QList<DialupProfile>& profiles) const {
    ship("ProfileLib.prof", Reference::write(profiles));
}

void BenchFolder::shipConfiguration(int presets, const QList<DialupProfile>& library) const {
    ship("NetConnectConfig.xml", configuration(presets, library));
}

NetConnectSettingUILogic* BenchFolder::restart() {
    NetConnectSettingUILogic::Destroy();
    NetConnectXMLParse::Destroy();
    Measure::settle();
    return NetConnectSettingUILogic::GetInstance();
}

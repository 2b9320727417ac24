// SPDX-License-Identifier: MIT
// autoconnect.

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionSettings.h"
#include "Output.h"
#include "ProfileSession.h"

namespace {

QString wordOf(bool isOn, const AutoConnectSettings::Rule& rule) {
    if (!isOn) return "off";
    const QString word = rule.mayRoam ? "on, roaming too" : "on";
    return rule.isRefused ? word + "; waits, since the network refused user name or password" : word;
}

void show(const QString& name, Output& output) {
    const AutoConnectSettings::Rules rules = AutoConnectSettings::rules();
    const bool isOn = rules.contains(name);
    const AutoConnectSettings::Rule rule = rules.value(name);
    output.result({{"name", name}, {"autoconnect", isOn}, {"roaming", rule.mayRoam}, {"refused", rule.isRefused}},
                  {wordOf(isOn, rule)});
}

bool isOn(const QString& word) {
    if (word == "on" || word == "off") return word == "on";
    throw CommandError::usage("say on or off, not " + quoted(word));
}

void requireProfile(const QString& name) {
    ProfileSession session(ProfileSession::Reading);
    session.profile(name);
}

}  // namespace

void setAutoConnect(const Invocation& invocation, Output& output) {
    const QString name = invocation.arguments().first();
    const QString word = invocation.arguments().value(1);
    const bool roams = invocation.isSet("roaming");
    const bool on = word.isEmpty() ? false : isOn(word);
    if (roams && !on) throw CommandError::usage("--roaming goes with on");
    // What is switched off may be gone already.
    if (on || word.isEmpty()) requireProfile(name);
    if (!word.isEmpty() && !AutoConnectSettings::set(name, on, roams))
        throw CommandError::failed("the settings can't be stored");
    show(name, output);
}

// SPDX-License-Identifier: MIT
// autoconnect.

#include "Command.h"
#include "CommandError.h"
#include "Commands.h"
#include "ConnectionSettings.h"
#include "Message.h"
#include "Output.h"
#include "ProfileSession.h"

namespace {

// Of a profile that is on.
bool isRefused(const QString& name, const AutoConnectSettings::Rule& rule) {
    if (rule.refused.isEmpty()) return false;
    ProfileSession session(ProfileSession::Reading);
    return rule.isRefused(session.profile(name));
}

QString sentence(bool isOn, bool waits, const AutoConnectSettings::Rule& rule) {
    if (!isOn) return message("off");
    const QString on = rule.mayRoam ? message("on, roaming too") : message("on");
    return waits ? message("%1; waits, since the network refused user name or password", {on}) : on;
}

void show(const QString& name, Output& output) {
    const AutoConnectSettings::Rules rules = AutoConnectSettings::rules();
    const bool isOn = rules.contains(name);
    const AutoConnectSettings::Rule rule = rules.value(name);
    const bool waits = isRefused(name, rule);
    output.result({{"name", name}, {"autoconnect", isOn}, {"roaming", rule.mayRoam}, {"refused", waits}},
                  {sentence(isOn, waits, rule)});
}

bool isOn(const QString& word) {
    if (word == "on" || word == "off") return word == "on";
    throw CommandError::usage(message("say on or off, not %1", {quoted(word)}));
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
    if (roams && !on) throw CommandError::usage(message("--roaming goes with on"));
    // What is switched off may be gone already.
    if (on || word.isEmpty()) requireProfile(name);
    if (!word.isEmpty() && !AutoConnectSettings::set(name, on, roams))
        throw CommandError::failed(message("the settings can't be stored"));
    show(name, output);
}

// SPDX-License-Identifier: MIT
#include "ConnectionPicture.h"

#include "HostText.h"
#include "TextValues.h"

namespace {

using Picture = ConnectionPicture;

QString utf8(const char* text) { return QString::fromUtf8(text); }

// Why there is nothing to dial with: the first row that holds.
struct Obstacle {
    bool (*holds)(const ConnectionFacts&);
    Picture::Sign sign;
    const char* headline;
    const char* detail;
};

bool isStatus(const ConnectionFacts& facts, int status) { return facts.isModemKnown && facts.modem.status == status; }

const Obstacle Obstacles[] = {
    {[](const ConnectionFacts& facts) { return facts.isStarting; }, Picture::Busy, "IDS_HOST_LOOKING",
     "IDS_HOST_LOOKING_DETAIL"},
    {[](const ConnectionFacts& facts) { return !facts.hasDialer; }, Picture::Missing, "IDS_HOST_NO_DIALER",
     "IDS_HOST_NO_DIALER_DETAIL"},
    {[](const ConnectionFacts& facts) { return !facts.isModemKnown && facts.isSettling; }, Picture::Busy,
     "IDS_HOST_LOOKING", "IDS_HOST_LOOKING_DETAIL"},
    {[](const ConnectionFacts& facts) { return !facts.isModemKnown; }, Picture::Missing, "IDS_HOST_NO_SERVICE",
     "IDS_HOST_NO_SERVICE_DETAIL"},
    {[](const ConnectionFacts& facts) { return isStatus(facts, VRKS_DEV_STATUS_NO_MODEM); }, Picture::Missing,
     "IDS_HOST_NO_MODEM", "IDS_HOST_NO_MODEM_DETAIL"},
    {[](const ConnectionFacts& facts) { return facts.modem.card == VRKS_CARD_NONE; }, Picture::Missing,
     "IDS_HOST_NO_CARD", "IDS_HOST_NO_CARD_DETAIL"},
    {[](const ConnectionFacts& facts) { return facts.modem.lock == VRKS_LOCK_PIN; }, Picture::Attention,
     "IDS_HOST_LOCKED", "IDS_HOST_LOCKED_PIN_DETAIL"},
    {[](const ConnectionFacts& facts) { return facts.modem.lock == VRKS_LOCK_PUK; }, Picture::Attention,
     "IDS_HOST_LOCKED", "IDS_HOST_LOCKED_PUK_DETAIL"},
    {[](const ConnectionFacts& facts) {
         return facts.modem.lock == VRKS_LOCK_OTHER || isStatus(facts, VRKS_DEV_STATUS_LOCKED);
     },
     Picture::Attention, "IDS_HOST_LOCKED", "IDS_HOST_LOCKED_OTHER_DETAIL"},
    {[](const ConnectionFacts& facts) { return isStatus(facts, VRKS_DEV_STATUS_STARTING); }, Picture::Busy,
     "IDS_HOST_STARTING", "IDS_HOST_STARTING_DETAIL"},
    {[](const ConnectionFacts& facts) { return facts.modem.status != VRKS_DEV_STATUS_READY; }, Picture::Failed,
     "IDS_HOST_MODEM_FAILED", "IDS_HOST_MODEM_FAILED_DETAIL"},
    {[](const ConnectionFacts& facts) { return !facts.connection.isKnown && !facts.isSettling; }, Picture::Missing,
     "IDS_HOST_NO_NETWORK_SERVICE", "IDS_HOST_NO_NETWORK_SERVICE_DETAIL"},
};

const Obstacle* obstacleOf(const ConnectionFacts& facts) {
    for (const Obstacle& obstacle : Obstacles) {
        if (obstacle.holds(facts)) return &obstacle;
    }
    return nullptr;
}

bool wantsCode(const ConnectionFacts& facts) {
    return facts.isModemKnown && (facts.modem.lock == VRKS_LOCK_PIN || facts.modem.lock == VRKS_LOCK_PUK);
}

// What the network is to the modem: operator, technology, roaming, or that there is none.
QString networkText(const ConnectionFacts& facts) {
    const VRKS_ModemInfo& modem = facts.modem;
    switch (modem.registration) {
        case VRKS_REGISTRATION_IDLE:
            return hostText("IDS_HOST_NOT_REGISTERED");
        case VRKS_REGISTRATION_SEARCHING:
            return hostText("IDS_HOST_SEARCHING");
        case VRKS_REGISTRATION_DENIED:
            return hostText("IDS_HOST_DENIED");
        default:
            break;
    }
    const QString name = utf8(modem.operatorName[0] ? modem.operatorName : modem.operatorCode);
    QStringList parts = {name, utf8(modem.technology)};
    if (modem.signal >= 0) parts.append(hostText("IDS_HOST_SIGNAL", {QString::number(modem.signal)}));
    if (modem.registration == VRKS_REGISTRATION_ROAMING) parts.append(hostText("IDS_HOST_ROAMING"));
    parts.removeAll(QString());
    for (QString& part : parts) part = TextValues::isolated(part);
    return directed(parts.join(QStringLiteral(" \u00b7 ")));
}

bool isRegistered(const ConnectionFacts& facts) {
    return facts.modem.registration == VRKS_REGISTRATION_HOME || facts.modem.registration == VRKS_REGISTRATION_ROAMING;
}

void describeDown(const ConnectionFacts& facts, Picture* picture) {
    picture->action = wantsCode(facts) ? Picture::Unlock : Picture::Connect;
    if (const Obstacle* const obstacle = obstacleOf(facts)) {
        picture->sign = obstacle->sign;
        picture->headline = hostText(obstacle->headline);
        picture->detail = hostText(obstacle->detail);
        picture->isActionAllowed = picture->action == Picture::Unlock;
        return;
    }
    picture->headline = hostText("IDS_HOST_STATE_DISCONNECTED");
    picture->isActionAllowed = facts.usedBy.isEmpty();
    picture->detail = facts.usedBy.isEmpty() ? networkText(facts) : facts.usedBy;
    if (!facts.usedBy.isEmpty()) picture->sign = Picture::Attention;
    if (!facts.wantsOperator || !picture->isActionAllowed) return;
    picture->action = Picture::ChooseOperator;
    picture->sign = Picture::Attention;
    picture->detail = hostText("IDS_HOST_CHOOSE_OPERATOR_DETAIL");
}

void describeUp(const ConnectionFacts& facts, Picture* picture) {
    picture->isActionAllowed = true;
    picture->detail = networkText(facts);
    switch (facts.state) {
        case IDialupUIService::Connecting:
            picture->sign = Picture::Busy;
            picture->action = Picture::Cancel;
            picture->headline = facts.profile.isEmpty() ? hostText("IDS_HOST_STATE_CONNECTING")
                                                        : hostText("IDS_HOST_STATE_CONNECTING_TO", {facts.profile});
            picture->detail = facts.step.isEmpty() ? networkText(facts) : facts.step;
            return;
        case IDialupUIService::Connected:
            picture->sign = Picture::Online;
            picture->action = Picture::Disconnect;
            picture->headline = hostText("IDS_HOST_STATE_CONNECTED", {facts.profile});
            picture->isUp = true;
            return;
        default:
            picture->sign = Picture::Busy;
            picture->action = Picture::Disconnect;
            picture->headline = hostText("IDS_HOST_STATE_DISCONNECTING");
            picture->isActionAllowed = false;
            picture->whyNot = picture->headline;
    }
}

// What was tried or had, by the failure: some befall a connection that is up, and hardly one that is only dialled.
const char* titleOf(int failure) {
    switch (failure) {
        case VRKS_FAILURE_DROPPED:
        case VRKS_FAILURE_SUSPENDED:
        case VRKS_FAILURE_MODEM_GONE:
            return "IDS_HOST_FAILED_UP";
        case VRKS_FAILURE_ENDED_OUTSIDE:
        case VRKS_FAILURE_TAKEN:
            return "IDS_HOST_FAILED_ENDED";
        default:
            return "IDS_HOST_FAILED_WITH";
    }
}

// The user ended it.
bool wasWanted(int failure) { return failure == VRKS_FAILURE_CANCELLED || failure == VRKS_FAILURE_HUNG_UP; }

void describeFailure(const ConnectionFacts& facts, Picture* picture) {
    picture->hasFailed = facts.isDown() && !facts.failure.isEmpty() && !wasWanted(facts.connection.failure);
    if (!picture->hasFailed) return;
    const QString& profile = facts.connection.name;
    picture->failedProfile = profile;
    picture->failureText = facts.failure;
    picture->failureTitle =
        profile.isEmpty() ? hostText("IDS_HOST_FAILED") : hostText(titleOf(facts.connection.failure), {profile});
    QStringList details;
    const char* name = nullptr;
    if (facts.connection.failure != VRKS_FAILURE_NONE &&
        VRKS_NetConnectSrv_GetFailureName(facts.connection.failure, &name) == 0)
        details.append(QLatin1String(name));
    details.append(facts.failureDetails);
    details.removeAll(QString());
    picture->failureDetails = details.join(QLatin1Char('\n'));
    if (!picture->canUnlock && picture->sign == Picture::Idle) picture->sign = Picture::Failed;
}

QString cardText(const ConnectionFacts& facts) {
    const QString& imsi = facts.imsi;
    if (imsi.isEmpty()) return QString();
    if (!facts.matchedPrefix) return hostText("IDS_HOST_SIM", {imsi});
    const QString& prefix = *facts.matchedPrefix;
    if (prefix.isEmpty()) return hostText("IDS_HOST_SIM_NO_MATCH", {imsi});
    if (facts.proposedPreset.isEmpty()) return hostText("IDS_HOST_SIM_PREFIX", {imsi, prefix});
    if (facts.proposedOperator.isEmpty()) return hostText("IDS_HOST_SIM_PRESET", {imsi, facts.proposedPreset, prefix});
    return hostText("IDS_HOST_SIM_OPERATOR", {imsi, facts.proposedPreset, prefix, facts.proposedOperator});
}

// Sentences that matter only at times.
QString notesText(const ConnectionFacts& facts) {
    const bool wasElsewhere = facts.isDown() && facts.connection.failure == VRKS_FAILURE_HUNG_UP;
    const bool isStillUp = facts.state == IDialupUIService::Connected;  // though it was to end
    QStringList notes = {wasElsewhere || isStillUp ? facts.failure : QString(),
                         facts.isDown() ? facts.automaticHold : facts.notes, facts.usageWarning};
    notes.removeAll(QString());
    return notes.join(QLatin1Char('\n'));
}

}  // namespace

ConnectionPicture ConnectionPicture::of(const ConnectionFacts& facts) {
    ConnectionPicture picture;
    facts.isDown() ? describeDown(facts, &picture) : describeUp(facts, &picture);
    picture.signal = isRegistered(facts) ? facts.modem.signal : -1;
    picture.canUnlock = facts.isDown() && wantsCode(facts);
    describeFailure(facts, &picture);
    picture.card = cardText(facts);
    picture.notes = notesText(facts);
    picture.usageWarning = facts.usageWarning;
    if (!facts.storageProblem.isEmpty())
        picture.storageProblem = hostText("IDS_HOST_STORAGE_PROBLEM", {facts.storageProblem});
    return picture;
}

QString ConnectionPicture::actionText(Action action) {
    static const char* const Texts[] = {"IDS_HOST_CONNECT", "IDS_HOST_CANCEL", "IDS_HOST_DISCONNECT", "IDS_HOST_UNLOCK",
                                        "IDS_HOST_CHOOSE_OPERATOR"};
    return hostText(Texts[action]);
}

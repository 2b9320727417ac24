#include "ConnectionBar.h"

#include <vrks.h>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

#include "HostText.h"
#include "IDialupUIService.h"
#include "INetConnectSetting.h"
#include "Startup.h"

namespace {

IDialupUIService* dialer() { return findPeer<IDialupUIService>(ORBISDIAL_DIALUP_CLSID, DialupPluginKind); }

QObject* profilesObject() { return findPeer<QObject>(ORBISDIAL_NETCONNECT_CLSID, NetConnectSettingKind); }

QString cardImsi() {
    char imsi[VRKS_IMSI_SIZE] = "";
    return VRKS_DevSrv_GetImsiInfo(imsi) == 0 ? QString::fromLatin1(imsi) : QString();
}

QString profileText(QObject* profiles) {
    // The answer would take long just now; the property's change brings the bar back here.
    if (profiles && profiles->property(ORBISDIAL_PROFILES_AWAITED).toBool()) return QString(QChar::Nbsp);
    QString name;
    if (auto* settings = qobject_cast<INetConnectSetting*>(profiles)) settings->GetDefaultDialUpProfileName(&name);
    return name.isEmpty() ? hostText("IDS_HOST_NO_DEFAULT_PROFILE") : hostText("IDS_HOST_DEFAULT_PROFILE", {name});
}

QString simText(QObject* profiles) {
    const QString imsi = cardImsi();
    if (imsi.isEmpty()) return hostText("IDS_HOST_SIM_NONE");
    const QVariant prefix = profiles ? profiles->property(ORBISDIAL_MATCHED_IMSI_PREFIX) : QVariant();
    if (!prefix.isValid()) return hostText("IDS_HOST_SIM", {imsi});
    if (prefix.toString().isEmpty()) return hostText("IDS_HOST_SIM_NO_MATCH", {imsi});
    const QString preset = profiles->property(ORBISDIAL_PROPOSED_DEFAULT).toString();
    if (preset.isEmpty()) return hostText("IDS_HOST_SIM_PREFIX", {imsi, prefix.toString()});
    return hostText("IDS_HOST_SIM_PRESET", {imsi, preset, prefix.toString()});
}

QString stateText(IDialupUIService* service) {
    if (!service) return hostText("IDS_HOST_NO_DIALER");
    QString profile;
    switch (service->GetConnectionState()) {
        case IDialupUIService::Connecting:
            return hostText("IDS_HOST_STATE_CONNECTING");
        case IDialupUIService::Connected:
            service->GetConnectedProfileName(&profile);
            return hostText("IDS_HOST_STATE_CONNECTED", {profile});
        case IDialupUIService::Disconnecting:
            return hostText("IDS_HOST_STATE_DISCONNECTING");
        case IDialupUIService::Disconnected:
            break;
    }
    const QString failure = service->GetLastFailure();
    return failure.isEmpty() ? hostText("IDS_HOST_STATE_DISCONNECTED") : hostText("IDS_HOST_STATE_FAILED", {failure});
}

QLabel* makeLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}  // namespace

ConnectionBar::ConnectionBar(QWidget* parent)
    : QWidget(parent),
      m_Profile(makeLabel("Host_DefaultProfile")),
      m_State(makeLabel("Host_ConnectionState")),
      m_Connect(new QPushButton),
      m_Sim(makeLabel("Host_SimSummary")),
      m_StorageProblem(makeLabel("Host_StorageProblem")) {
    setObjectName(QStringLiteral("Host_ConnectionBar"));
    m_Connect->setObjectName(QStringLiteral("Host_ConnectButton"));
    connect(m_Connect, &QPushButton::clicked, this, &ConnectionBar::onClickConnect);
    QFont bold = font();
    bold.setBold(true);
    m_Profile->setFont(bold);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_Profile, 0, 0);
    grid->addWidget(m_Connect, 0, 1, 2, 1, Qt::AlignVCenter);
    grid->addWidget(m_State, 1, 0);
    grid->addWidget(m_Sim, 2, 0, 1, 2);
    grid->addWidget(m_StorageProblem, 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
}

void ConnectionBar::refresh() {
    refreshConnection();
    refreshProfiles();
}

void ConnectionBar::onClickConnect() {
    IDialupUIService* service = dialer();
    if (!service) return;
    if (service->GetConnectionState() == IDialupUIService::Disconnected) {
        service->Connect(QString());
    } else {
        service->Disconnect();
    }
    refresh();
}

void ConnectionBar::refreshConnection() {
    IDialupUIService* service = dialer();
    const auto state = service ? service->GetConnectionState() : IDialupUIService::Disconnected;
    const bool isDown = state == IDialupUIService::Disconnected;
    m_State->setText(stateText(service));
    m_Connect->setText(hostText(isDown ? "IDS_HOST_CONNECT" : "IDS_HOST_DISCONNECT"));
    m_Connect->setEnabled(service && state != IDialupUIService::Disconnecting);
}

void ConnectionBar::refreshProfiles() {
    QObject* profiles = profilesObject();
    m_Profile->setText(profileText(profiles));
    m_Sim->setText(simText(profiles));
    const QString problem = profiles ? profiles->property(ORBISDIAL_LAST_STORAGE_PROBLEM).toString() : QString();
    m_StorageProblem->setText(hostText("IDS_HOST_STORAGE_PROBLEM", {problem}));
    m_StorageProblem->setVisible(!problem.isEmpty());
}

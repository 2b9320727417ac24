// SPDX-License-Identifier: MIT
#include "ConnectionView.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "Amounts.h"
#include "DataUsage.h"
#include "FailurePanel.h"
#include "HostText.h"
#include "Plugins.h"
#include "ProfileChooser.h"
#include "RateCurve.h"
#include "StateSign.h"

namespace {

constexpr int SecondMs = 1000;

QLabel* makeLabel(const char* name, bool wraps = true) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(wraps);
    return label;
}

QPushButton* makeButton(const char* name) {
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    return button;
}

void showOrHide(QLabel* label, const QString& text) {
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

void enlarge(QWidget* widget, qreal times) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * times);
    font.setBold(true);
    widget->setFont(font);
}

}  // namespace

ConnectionView::ConnectionView(QWidget* parent)
    : QWidget(parent),
      m_Sign(new StateSign),
      m_State(makeLabel("Host_ConnectionState")),
      m_Signal(new SignalBars),
      m_Detail(makeLabel("Host_ConnectionDetail")),
      m_Action(makeButton("Host_ConnectButton")),
      m_Time(makeLabel("Host_ConnectionTime", false)),
      m_Curve(new RateCurve),
      m_Rates(makeLabel("Host_Rates", false)),
      m_Volumes(makeLabel("Host_Volumes", false)),
      m_Month(makeLabel("Host_Month")),
      m_Transfer(buildTransfer()),
      m_Failure(new FailurePanel),
      m_ProfileLabel(makeLabel("Host_ProfileLabel", false)),
      m_Chooser(new ProfileChooser),
      m_Copy(new QToolButton),
      m_Presets(makeButton("Host_PresetsButton")),
      m_Settings(makeButton("Host_SettingsButton")),
      m_Notes(makeLabel("Host_ConnectionNotes")),
      m_Card(makeLabel("Host_SimSummary")),
      m_StorageProblem(makeLabel("Host_StorageProblem")) {
    setObjectName(QStringLiteral("Host_ConnectionView"));
    buildState();
    m_ProfileLabel->setBuddy(m_Chooser);
    m_Copy->setObjectName(QStringLiteral("Host_CopyButton"));
    m_Copy->setText(QStringLiteral("+"));
    m_EachSecond.setInterval(SecondMs);
    connect(&m_EachSecond, &QTimer::timeout, this, &ConnectionView::count);
    connect(m_Action, &QPushButton::clicked, this, &ConnectionView::act);
    connect(m_Settings, &QPushButton::clicked, this, &ConnectionView::settingsWanted);
    connect(m_Presets, &QPushButton::clicked, this, &ConnectionView::presetsWanted);
    connect(m_Copy, &QToolButton::clicked, this, &ConnectionView::copyWanted);
    connect(m_Chooser, &ProfileChooser::copyWanted, this, &ConnectionView::copyWanted);
    connect(m_Chooser, &ProfileChooser::chosenByUser, this, &ConnectionView::acted);
    connect(m_Failure, &FailurePanel::unlockWanted, this, &ConnectionView::unlockWanted);
    connect(m_Failure, &FailurePanel::triedAgain, this, [this] { connectWith(m_Picture.failedProfile); });
}

void ConnectionView::buildState() {
    enlarge(m_State, 1.4);
    enlarge(m_Action, 1.1);
    m_Action->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* detail = new QHBoxLayout;
    detail->addWidget(m_Signal);
    detail->addWidget(m_Detail, 1);
    detail->addWidget(m_Time);
    auto* profile = new QHBoxLayout;
    profile->addWidget(m_ProfileLabel);
    profile->addWidget(m_Chooser, 1);
    profile->addWidget(m_Copy);
    profile->addWidget(m_Presets);
    profile->addWidget(m_Settings);

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_Sign, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(m_State, 0, 1);
    grid->addWidget(m_Action, 0, 2, Qt::AlignTop);
    grid->addLayout(detail, 1, 1, 1, 2);
    grid->addWidget(m_Transfer, 2, 1, 1, 2);
    grid->addWidget(m_Failure, 3, 0, 1, 3);
    grid->addWidget(m_Notes, 4, 0, 1, 3);
    grid->addLayout(profile, 5, 0, 1, 3);
    grid->addWidget(m_Card, 6, 0, 1, 3);
    grid->addWidget(m_StorageProblem, 7, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(8, 1);
}

QWidget* ConnectionView::buildTransfer() {
    auto* box = new QWidget;
    box->setObjectName(QStringLiteral("Host_Transfer"));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_Curve, 0, 0, 2, 1);
    grid->addWidget(m_Rates, 0, 1);
    grid->addWidget(m_Volumes, 1, 1);
    grid->addWidget(m_Month, 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    box->hide();
    return box;
}

void ConnectionView::refresh(const ConnectionFacts& facts, const ConnectionPicture& picture) {
    const bool cameUp = picture.isUp && !m_Picture.isUp;
    m_Picture = picture;
    m_Sign->setSign(picture.sign);
    refreshSaying(m_State, picture.headline);
    m_Detail->setText(picture.detail);
    m_Signal->setPercent(picture.signal);
    refreshButton();
    m_Failure->show(picture);
    const bool mayChoose = facts.isDown() && !facts.areProfilesAwaited;
    if (!mayChoose && m_Chooser->hasFocus()) m_Action->setFocus();  // which now cancels, instead of the next one
    m_Chooser->setEnabled(mayChoose);
    m_Chooser->refresh(facts.areProfilesAwaited ? std::nullopt : std::optional(facts.defaultProfile));
    showOrHide(m_Notes, picture.notes);
    showOrHide(m_Card, picture.card);
    showOrHide(m_StorageProblem, picture.storageProblem);
    m_Transfer->setVisible(picture.isUp);
    m_Time->setVisible(picture.isUp);
    if (cameUp) {
        m_Curve->clear();
        m_Received = m_Sent = TransferRate();
    }
    followTransfer();
}

void ConnectionView::retranslate() {
    m_Failure->retranslate();
    m_ProfileLabel->setText(hostText("IDS_HOST_PROFILE_LABEL"));
    m_Chooser->retranslate();
    m_Copy->setToolTip(hostText("IDS_HOST_NEW_FROM"));
    m_Copy->setAccessibleName(hostText("IDS_HOST_NEW_FROM"));
    m_Presets->setText(hostText("IDS_HOST_PRESETS"));
    m_Settings->setText(hostText("IDS_HOST_SETTINGS"));
    m_Curve->setAccessibleName(hostText("IDS_HOST_CURVE"));
    m_Curve->setToolTip(hostText("IDS_HOST_CURVE"));
}

void ConnectionView::act() {
    if (!m_Picture.isActionAllowed) return;
    switch (m_Picture.action) {
        case ConnectionPicture::Unlock:
            emit unlockWanted();
            return;
        case ConnectionPicture::ChooseOperator:
            if (m_Chooser->chosen().isEmpty()) {
                emit presetsWanted();
                return;
            }
            [[fallthrough]];
        case ConnectionPicture::Connect:
            connectWith(m_Chooser->chosen());
            return;
        default:
            if (IDialupUIService* const dialer = Plugins::dialer()) dialer->Disconnect();
            emit acted();
    }
}

void ConnectionView::connectWith(const QString& profile) {
    if (IDialupUIService* const dialer = Plugins::dialer()) dialer->Connect(profile);
    emit acted();
}

void ConnectionView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    followTransfer();
}

void ConnectionView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    followTransfer();
}

void ConnectionView::refreshButton() {
    m_Action->setText(ConnectionPicture::actionText(m_Picture.action));
    m_Action->setEnabled(m_Picture.isActionAllowed);
    const QString whyNot = m_Picture.whyNot.isEmpty() ? m_Picture.detail : m_Picture.whyNot;
    m_Action->setToolTip(m_Picture.isActionAllowed ? QString() : whyNot);
    m_Action->setAccessibleDescription(m_Action->toolTip());
}

// A screen reader tells of the change.
void ConnectionView::refreshSaying(QLabel* label, const QString& text) {
    if (label->text() == text) return;
    label->setText(text);
    QAccessibleEvent alert(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ConnectionView::followTransfer() {
    const bool isSeen = m_Picture.isUp && isVisible();
    if (isSeen == m_EachSecond.isActive()) return;
    if (!isSeen) return m_EachSecond.stop();
    m_Clock.start();
    m_EachSecond.start();
    count();
}

void ConnectionView::count() {
    const DataConnection connection = DataConnection::current();
    showMonth(connection);
    m_Received.add(connection.received, m_Clock.elapsed());
    m_Sent.add(connection.sent, m_Clock.elapsed());
    m_Curve->add(m_Received.bytesPerSecond(), m_Sent.bytesPerSecond());
    m_Time->setText(connection.seconds < 0 ? QString() : Amounts::duration(connection.seconds));
    m_Rates->setText(hostText("IDS_HOST_DOWN_UP",
                              {Amounts::rate(m_Received.bytesPerSecond()), Amounts::rate(m_Sent.bytesPerSecond())}));
    m_Volumes->setText(
        hostText("IDS_HOST_DOWN_UP", {Amounts::volume(connection.received), Amounts::volume(connection.sent)}));
}

void ConnectionView::showMonth(const DataConnection& connection) {
    const QString imsi = connection.card();
    const DataUsage usage;
    const quint64 all = usage.monthWith(connection, imsi).all();
    const quint64 limit = usage.limit(imsi);
    const QString used = Amounts::volume(all);
    m_Month->setVisible(all > 0 || limit > 0);
    m_Month->setText(limit ? hostText("IDS_HOST_MONTH_OF", {used, Amounts::volume(limit)})
                           : hostText("IDS_HOST_MONTH", {used}));
}

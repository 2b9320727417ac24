// SPDX-License-Identifier: MIT
#include "FailurePanel.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "HostText.h"

namespace {

QLabel* makeLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    return label;
}

}  // namespace

FailurePanel::FailurePanel(QWidget* parent)
    : QFrame(parent),
      m_Title(makeLabel("Host_FailureTitle")),
      m_Text(makeLabel("Host_FailureText")),
      m_Details(makeLabel("Host_FailureDetails")),
      m_ShowDetails(new QToolButton),
      m_TryAgain(new QPushButton),
      m_Unlock(new QPushButton) {
    setObjectName(QStringLiteral("Host_FailurePanel"));
    setFrameShape(StyledPanel);
    QFont bold = font();
    bold.setBold(true);
    m_Title->setFont(bold);
    m_ShowDetails->setObjectName(QStringLiteral("Host_FailureShowDetails"));
    m_ShowDetails->setCheckable(true);
    m_ShowDetails->setAutoRaise(true);
    m_ShowDetails->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_ShowDetails->setArrowType(Qt::RightArrow);
    m_TryAgain->setObjectName(QStringLiteral("Host_TryAgainButton"));
    m_Unlock->setObjectName(QStringLiteral("Host_UnlockButton"));
    m_Details->hide();

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_ShowDetails);
    buttons->addStretch();
    buttons->addWidget(m_Unlock);
    buttons->addWidget(m_TryAgain);
    auto* layout = new QVBoxLayout(this);
    for (QLabel* label : {m_Title, m_Text, m_Details}) layout->addWidget(label);
    layout->addLayout(buttons);

    connect(m_ShowDetails, &QToolButton::toggled, this, &FailurePanel::showDetails);
    connect(m_TryAgain, &QPushButton::clicked, this, &FailurePanel::triedAgain);
    connect(m_Unlock, &QPushButton::clicked, this, &FailurePanel::unlockWanted);
}

void FailurePanel::show(const ConnectionPicture& picture) {
    const bool isNew = picture.hasFailed && (isHidden() || m_Text->text() != picture.failureText);
    if (!picture.hasFailed || isNew) m_ShowDetails->setChecked(false);
    m_Title->setText(picture.failureTitle);
    m_Text->setText(picture.failureText);
    m_Details->setText(picture.failureDetails);
    m_ShowDetails->setVisible(!picture.failureDetails.isEmpty());
    m_Unlock->setVisible(picture.canUnlock);
    m_TryAgain->setEnabled(picture.mayConnect());
    m_TryAgain->setToolTip(m_TryAgain->isEnabled() ? QString() : picture.headline);
    setVisible(picture.hasFailed);
    if (!isNew) return;
    setAccessibleName(picture.failureTitle);
    setAccessibleDescription(picture.failureText);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void FailurePanel::retranslate() {
    m_ShowDetails->setText(hostText("IDS_HOST_DETAILS"));
    showDetails(m_ShowDetails->isChecked());
    m_TryAgain->setText(hostText("IDS_HOST_TRY_AGAIN"));
    m_Unlock->setText(hostText("IDS_HOST_UNLOCK"));
}

void FailurePanel::showDetails(bool on) {
    const Qt::ArrowType closed = isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
    m_ShowDetails->setArrowType(on ? Qt::DownArrow : closed);
    m_Details->setVisible(on);
}

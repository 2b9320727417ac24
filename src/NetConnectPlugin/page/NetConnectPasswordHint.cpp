// SPDX-License-Identifier: MIT
#include "NetConnectPasswordHint.h"

#include "NetConnectProfileRules.h"

NetConnectPasswordHint::NetConnectPasswordHint(QLineEdit* field, QWidget* parent)
    : QLabel(parent), m_pField(field), m_bKeyedMethod(false) {
    setWordWrap(true);
    hide();
    connect(field, SIGNAL(textChanged(QString)), this, SLOT(refresh()));
}

void NetConnectPasswordHint::setKeyedMethod(bool on) {
    m_bKeyedMethod = on;
    refresh();
}

void NetConnectPasswordHint::refresh() {
    const bool lost = !NetConnectProfileRules::isPasswordKeepable(m_pField->text());
    const bool warn = m_bKeyedMethod && lost && m_pField->isEnabled();
    setVisible(warn);
    m_pField->setAccessibleDescription(warn ? text() : QString());
}

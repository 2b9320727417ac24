// SPDX-License-Identifier: MIT
#include "LimitBox.h"

#include "Amounts.h"
#include "DataConnection.h"
#include "DataUsage.h"
#include "HostText.h"

namespace {

using Amounts::Gigabyte;

constexpr double Largest = 99999;
constexpr double Step = 0.5;

}  // namespace

LimitBox::LimitBox() : m_Label(new QLabel) {
    setObjectName(QStringLiteral("Host_LimitBox"));
    m_Label->setBuddy(this);
    setRange(0, Largest);
    setSingleStep(Step);
}

void LimitBox::load() {
    m_Imsi = DataConnection::current().card();
    m_Label->setVisible(!m_Imsi.isEmpty());
    setVisible(!m_Imsi.isEmpty());
    setValue(double(DataUsage().limit(m_Imsi)) / double(Gigabyte));
    m_Stored = value();
}

// What another program stored meanwhile, or more exactly, stays where nothing else was chosen.
bool LimitBox::store() {
    if (m_Imsi.isEmpty() || value() == m_Stored) return true;
    return DataUsage().setLimit(m_Imsi, quint64(qRound64(value() * double(Gigabyte))));
}

void LimitBox::retranslate() {
    m_Label->setText(hostText("IDS_HOST_LIMIT"));
    setSpecialValueText(hostText("IDS_HOST_NO_LIMIT"));
    setSuffix(Amounts::gigabytesSuffix());
    setLocale(Amounts::locale());
}

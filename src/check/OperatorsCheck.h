// SPDX-License-Identifier: MIT
// What is wrong with Operators.xml.
#ifndef ORBISDIAL_CHECK_OPERATORSCHECK_H
#define ORBISDIAL_CHECK_OPERATORSCHECK_H

#include "DocumentCheck.h"
#include "KnownPresets.h"

class OperatorsCheck : public DocumentCheck {
public:
    OperatorsCheck(FileFindings* findings, const KnownPresets& presets);

private:
    void start(const XmlElement& element) override;
    void checkPreset(const XmlElement& element);
    void checkBalance(const XmlElement& element);

    const KnownPresets& m_Presets;
    FirstPlaces m_Owned;
};

#endif

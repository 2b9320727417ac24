// SPDX-License-Identifier: MIT
#include "KnownPresets.h"

#include "Spelling.h"

QString KnownPresets::adviceFor(const QString& name) const {
    const QString meant = Spelling::nearest(name, m_Names.values());
    return meant.isNull() ? QString("add it to the library, or take the row out")
                          : QString("write \"%1\", or add it to the library").arg(meant);
}

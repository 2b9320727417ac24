// SPDX-License-Identifier: MIT
// Which known word somebody may have meant.
#ifndef ORBISDIAL_CHECK_SPELLING_H
#define ORBISDIAL_CHECK_SPELLING_H

#include <QStringList>

namespace Spelling {

// The known word that differs in case alone or in up to two letters; null when there is none.
QString nearest(const QString& word, const QStringList& known);

// "write X" for the nearest known word, else what is known.
QString advice(const QString& word, const QStringList& known);

}  // namespace Spelling

#endif

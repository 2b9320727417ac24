// SPDX-License-Identifier: MIT
// Volumes, rates and times for a person, in the current language's figures.
#ifndef ORBISDIAL_AMOUNTS_H
#define ORBISDIAL_AMOUNTS_H

#include <QLocale>
#include <QString>

namespace Amounts {

QLocale locale();                     // with the digits of the times and the card's numbers beside them
QString volume(quint64 bytes);        // "34.2 MB"
QString rate(double bytesPerSecond);  // "1.2 Mbit/s"
QString duration(qint64 seconds);     // "12:41", "3:12:41"

}  // namespace Amounts

#endif

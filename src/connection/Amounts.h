// SPDX-License-Identifier: MIT
// Volumes, rates and times for a person, in the current language's figures and decimal units, and volumes that he
// wrote.
//
// For the thread that Change is for.
#ifndef ORBISDIAL_AMOUNTS_H
#define ORBISDIAL_AMOUNTS_H

#include <QLocale>
#include <QString>
#include <optional>

namespace Amounts {

constexpr quint64 Gigabyte = 1000000000;  // bytes, as operators count

QLocale locale();                     // with the digits of the times and the card's numbers beside them
QString volume(quint64 bytes);        // "34.2 MB"
QString rate(double bytesPerSecond);  // "1.2 Mbit/s"
QString duration(qint64 seconds);     // "12:41", "3:12:41"
QString gigabytesSuffix();            // " GB"

// The bytes of "5GB", "500 MB" or "1,5 GB", with units in English or the current language, whatever their case.
// Nothing for anything else, no unit and binary ones included.
std::optional<quint64> bytesIn(const QString& volume);

}  // namespace Amounts

#endif

// SPDX-License-Identifier: MIT
#include "Amounts.h"

#include <iterator>

#include "HostText.h"

namespace {

QString withUnit(double value, const char* const (&units)[4]) {
    size_t unit = 0;
    for (; value >= 999.5 && unit + 1 < std::size(units); ++unit) value /= 1000;
    const int decimals = unit > 0 && value < 99.95 ? 1 : 0;
    return hostText(units[unit], {Amounts::locale().toString(value, 'f', decimals)});
}

}  // namespace

QLocale Amounts::locale() {
    const QLocale own(Change::GetLangName());
    return own.zeroDigit() == QLatin1Char('0') ? own : QLocale::c();
}

QString Amounts::volume(quint64 bytes) {
    return withUnit(double(bytes),
                    {"IDS_HOST_BYTES", "IDS_HOST_KILOBYTES", "IDS_HOST_MEGABYTES", "IDS_HOST_GIGABYTES"});
}

QString Amounts::rate(double bytesPerSecond) {
    return withUnit(bytesPerSecond * 8, {"IDS_HOST_BITS_PER_SECOND", "IDS_HOST_KILOBITS_PER_SECOND",
                                         "IDS_HOST_MEGABITS_PER_SECOND", "IDS_HOST_GIGABITS_PER_SECOND"});
}

QString Amounts::duration(qint64 seconds) {
    const QLatin1Char zero('0');
    const QString tail = QStringLiteral("%1:%2").arg(seconds / 60 % 60, 2, 10, zero).arg(seconds % 60, 2, 10, zero);
    if (seconds >= 3600) return QString::number(seconds / 3600) + QLatin1Char(':') + tail;
    return tail;
}

// SPDX-License-Identifier: MIT
#include "Amounts.h"

#include <QRegularExpression>
#include <iterator>

#include "Change.h"
#include "TextValues.h"

namespace {

// Each a thousand times the one before.
using Units = const char* const[4];

constexpr Units Volumes = {"IDS_DIALUP_BYTES", "IDS_DIALUP_KILOBYTES", "IDS_DIALUP_MEGABYTES", "IDS_DIALUP_GIGABYTES"};
constexpr Units Rates = {"IDS_DIALUP_BITS_PER_SECOND", "IDS_DIALUP_KILOBITS_PER_SECOND",
                         "IDS_DIALUP_MEGABITS_PER_SECOND", "IDS_DIALUP_GIGABITS_PER_SECOND"};
constexpr const char* EnglishVolumes[] = {"B", "kB", "MB", "GB"};

constexpr double Largest = 9e15;  // bytes; up to here every whole number has its double

QString text(const char* id) { return Change::tr(QLatin1String(id), QStringLiteral("DialupPlugin")); }

QString withUnit(double value, const Units& units) {
    size_t unit = 0;
    for (; value >= 999.5 && unit + 1 < std::size(units); ++unit) value /= 1000;
    const int decimals = unit > 0 && value < 99.95 ? 1 : 0;
    return TextValues::filled(text(units[unit]), {Amounts::locale().toString(value, 'f', decimals)});
}

QString suffix(const char* id) { return text(id).remove(QLatin1String("%1")); }

// How many bytes the unit has; 0: it is none.
double bytesOf(const QString& unit) {
    double bytes = 1;
    for (size_t i = 0; i < std::size(Volumes); ++i, bytes *= 1000)
        for (const QString& name : {QString(QLatin1String(EnglishVolumes[i])), suffix(Volumes[i]).trimmed()})
            if (unit.compare(name, Qt::CaseInsensitive) == 0) return bytes;
    return 0;
}

}  // namespace

QLocale Amounts::locale() {
    const QLocale own(Change::GetLangName());
    return own.zeroDigit() == QLatin1Char('0') ? own : QLocale::c();
}

QString Amounts::volume(quint64 bytes) { return withUnit(double(bytes), Volumes); }

QString Amounts::rate(double bytesPerSecond) { return withUnit(bytesPerSecond * 8, Rates); }

QString Amounts::duration(qint64 seconds) {
    const QLatin1Char zero('0');
    const QString tail = QStringLiteral("%1:%2").arg(seconds / 60 % 60, 2, 10, zero).arg(seconds % 60, 2, 10, zero);
    if (seconds >= 3600) return QString::number(seconds / 3600) + QLatin1Char(':') + tail;
    return tail;
}

QString Amounts::gigabytesSuffix() { return suffix(Volumes[3]); }

std::optional<quint64> Amounts::bytesIn(const QString& volume) {
    static const QRegularExpression form(QStringLiteral("^\\s*([0-9]+(?:[.,][0-9]+)?)\\s*(\\D+?)\\s*$"));
    const QRegularExpressionMatch match = form.match(volume);
    const double bytes = match.captured(1).replace(',', '.').toDouble() * bytesOf(match.captured(2));
    if (!match.hasMatch() || bytes < 1 || bytes > Largest) return std::nullopt;
    return quint64(qRound64(bytes));
}

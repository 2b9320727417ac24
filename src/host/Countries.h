// SPDX-License-Identifier: MIT
// The names of countries.
#ifndef ORBISDIAL_COUNTRIES_H
#define ORBISDIAL_COUNTRIES_H

#include <QString>

// From Unicode's Common Locale Data Repository, which comes with ICU: QLocale names a country in English or in its own
// language alone. The code is ISO 3166-1 alpha-2, in any case; one that is not known names itself.
namespace Countries {

// In the current language.
QString name(const QString& code);

QString englishName(const QString& code);

}  // namespace Countries

#endif

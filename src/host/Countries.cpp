// SPDX-License-Identifier: MIT
#include "Countries.h"

#include <unicode/uloc.h>

#include "Change.h"

namespace {

constexpr int LongestName = 128;

QString nameIn(const QString& language, const QString& code) {
    const QByteArray country = "und_" + code.toUpper().toLatin1();
    UChar name[LongestName];
    UErrorCode error = U_ZERO_ERROR;
    const int length =
        uloc_getDisplayCountry(country.constData(), language.toLatin1().constData(), name, LongestName, &error);
    const bool isKnown = U_SUCCESS(error) && length > 0 && length <= LongestName;
    return isKnown ? QString(reinterpret_cast<const QChar*>(name), length) : code.toUpper();
}

}  // namespace

QString Countries::name(const QString& code) { return nameIn(Change::GetLangName(), code); }

QString Countries::englishName(const QString& code) { return nameIn(QStringLiteral("en"), code); }

// SPDX-License-Identifier: MIT
#include "Languages.h"

#include <QLocale>
#include <utility>

#include "Change.h"
#include "CommonUtils.h"

namespace {

const QString Group = QStringLiteral("Host");
const QString Key = QStringLiteral("language");
const QString English = QStringLiteral("en");

}  // namespace

QString Languages::title(const QString& code) {
    // Qt names these after one country.
    if (code == English) return QStringLiteral("English");
    if (code == QLatin1String("es")) return QStringLiteral("español");
    return QLocale(code).nativeLanguageName();
}

void Languages::useStored() {
    QStringList candidates = QLocale::system().uiLanguages();
    candidates.prepend(CommonUtils::GetSettings(Group, Key));
    candidates.append(English);
    for (const QString& code : std::as_const(candidates)) {
        if (Change::SetLanguage(code)) return;
    }
}

bool Languages::store(const QString& code) { return CommonUtils::SetSettings(Group, Key, code); }

// SPDX-License-Identifier: MIT
#include "Message.h"

#include <clocale>

#include "Change.h"
#include "TextValues.h"

namespace {

const char English[] = "en";
const char Context[] = "Programs";

QString variable(const char* name) { return QString::fromLatin1(qgetenv(name)); }

// Empty for the locale without a language.
QString localeOfMessages() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString locale = variable(name);
        if (locale.isEmpty()) continue;
        const QString language = locale.section('.', 0, 0);
        return language == "C" || language == "POSIX" ? QString() : locale;
    }
    return QString();
}

}  // namespace

void useLanguageOfLocale() {
    const QString locale = localeOfMessages();
    if (locale.isEmpty()) return;
    const QStringList codes = variable("LANGUAGE").split(':', Qt::SkipEmptyParts) + QStringList(locale);
    for (const QString& code : codes)
        if (code.startsWith(English) || Change::SetLanguage(code)) return;
}

void useEnglish() {
    std::setlocale(LC_MESSAGES, "C");  // what the system says, too
    if (Change::GetLangName() != English) Change::SetLanguage(English);
}

QString message(const char* english, const QStringList& values) {
    const bool isForeign = Change::GetLangName() != English;
    const QString text = isForeign ? Change::tr(QString::fromUtf8(english), Context) : QString();
    return TextValues::filled(text.isEmpty() ? QString::fromUtf8(english) : text, values);
}

QString withReason(const QString& subject, const QString& reason) { return message("%1: %2", {subject, reason}); }

QString withDetails(const QString& text, const QString& details) {
    return details.isEmpty() ? text : message("%1 (%2)", {text, details});
}

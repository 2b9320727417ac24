// SPDX-License-Identifier: MIT
// What the programs say to a person on a terminal, in the seven languages of the window. What scripts read is English
// for ever.
#ifndef ORBISDIAL_PROGRAMS_MESSAGE_H
#define ORBISDIAL_PROGRAMS_MESSAGE_H

#include <QStringList>

// The language that LC_ALL, LC_MESSAGES or LANG names, and LANGUAGE before it, as gettext reads them; English where
// none of ours is named. English needs no file. Comes after the application object.
void useLanguageOfLocale();

void useEnglish();

// The English text in the current language, with "%1", "%2" and so on replaced by the values. A text that does not
// stand in such a call, but in a table, is marked with QT_TRANSLATE_NOOP("Programs", ...).
QString message(const char* english, const QStringList& values = {});

// "FILE: reason", and the like.
QString withReason(const QString& subject, const QString& reason);

// The text, with what somebody else said about it in parentheses, unless that is nothing.
QString withDetails(const QString& text, const QString& details);

#endif

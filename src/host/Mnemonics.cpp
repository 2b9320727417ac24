// SPDX-License-Identifier: MIT
#include "Mnemonics.h"

#include <QKeySequence>
#include <QMenu>
#include <QSet>

namespace {

using Letters = QSet<QString>;

QString mnemonicOf(const QString& text) { return QKeySequence::mnemonic(text).toString().right(1).toLower(); }

// Of an alphabet that its speakers' keyboards have a key for each letter of.
bool isKey(QChar c) {
    return c.isLetter() && (c.script() == QChar::Script_Latin || c.script() == QChar::Script_Cyrillic);
}

bool isFree(QChar c, const Letters& taken) { return isKey(c) && !taken.contains(QString(c.toLower())); }

// The first of a word, else any; -1 when there is none.
int placeIn(const QString& text, const Letters& taken) {
    for (int i = 0; i < text.size(); ++i)
        if (isFree(text[i], taken) && (i == 0 || !text[i - 1].isLetter())) return i;
    for (int i = 0; i < text.size(); ++i)
        if (isFree(text[i], taken)) return i;
    return -1;
}

// In parentheses behind the words, as in Chinese and Arabic: a letter of the text's ID, as other programs take one of
// the English word.
QString withLetterBehind(QString text, const QString& id, const Letters& taken) {
    const int end = text.endsWith(QChar(0x2026)) ? text.size() - 1 : text.size();
    const QString candidates = id.section(QLatin1Char('_'), 2) + QLatin1String("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    for (const QChar letter : candidates)
        if (isFree(letter, taken)) return text.insert(end, QStringLiteral("(&%1)").arg(letter));
    return text;
}

}  // namespace

void Mnemonics::keep(QMenu* menu) {
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { give(menu); });
}

void Mnemonics::give(QMenu* menu) {
    Letters taken;
    for (const QAction* action : menu->actions()) taken.insert(mnemonicOf(action->text()));
    for (QAction* action : menu->actions()) {
        QString text = action->text();
        if (action->isSeparator() || !mnemonicOf(text).isEmpty()) continue;
        const int place = placeIn(text, taken);
        text = place < 0 ? withLetterBehind(text, action->objectName(), taken) : text.insert(place, QLatin1Char('&'));
        action->setText(text);
        taken.insert(mnemonicOf(text));
    }
}

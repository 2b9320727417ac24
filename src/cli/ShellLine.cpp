// SPDX-License-Identifier: MIT
#include "ShellLine.h"

#include <QDir>

ShellLine::ShellLine(const QString& line) {
    for (const QChar c : line) step(c);
    for (QString& word : m_Words)
        if (word == "~" || word.startsWith("~/")) word.replace(0, 1, QDir::homePath());
}

void ShellLine::step(QChar c) {
    QString& word = m_Words.last();
    if (m_bEscaped) {
        m_bEscaped = false;
        const bool isKept = m_Quote == '"' && !QString("\"\\$`").contains(c);
        word += isKept ? QString('\\') + c : QString(c);
    } else if (c == '\\' && m_Quote != '\'') {
        m_bEscaped = true;
    } else if (!m_Quote.isNull()) {
        c == m_Quote ? void(m_Quote = QChar()) : void(word += c);
    } else if (c == '"' || c == '\'') {
        m_Quote = c;
    } else if (c.isSpace()) {
        endWord();
    } else if (QString(";|&").contains(c)) {
        m_Words = QStringList{QString()};
    } else {
        word += c;
        if (QString("=:@").contains(c)) m_nBroken = word.size();
    }
    const bool isBetween = c.isSpace() || m_Words == QStringList(QString());
    m_bInWord = !isBetween || m_bEscaped || !m_Quote.isNull();
}

void ShellLine::endWord() {
    m_nBroken = 0;
    if (!m_Words.last().isEmpty() || m_bInWord) m_Words.append(QString());
}

QString ShellLine::reply(const QString& word) const {
    const QString rest = word.mid(m_nBroken);
    if (m_Quote == '\'') return QString(rest).replace('\'', "'\\''");
    const QString special = m_Quote.isNull() ? " !\"#$&'()*;<>?[\\]^`{|}~" : "\"\\$`";
    QString escaped;
    for (const QChar c : rest) escaped += special.contains(c) ? QString('\\') + c : QString(c);
    return escaped;
}

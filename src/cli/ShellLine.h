// SPDX-License-Identifier: MIT
// A line of shell input up to the cursor.
#ifndef ORBISDIAL_CLI_SHELLLINE_H
#define ORBISDIAL_CLI_SHELLLINE_H

#include <QStringList>

// Splits as a POSIX shell does, without expanding anything but a tilde that stands for the home folder. What stands
// before the last ;, | or & is another command.
class ShellLine {
public:
    explicit ShellLine(const QString& line);

    // Their quotes are removed. The last one is at the cursor, and may be empty.
    const QStringList& words() const { return m_Words; }

    // A word for the one at the cursor, as bash wants it: in the quotes that were begun, or with its special characters
    // escaped, and without what stands before the last sign at which bash breaks words.
    QString reply(const QString& word) const;

private:
    void step(QChar c);
    void endWord();

    QStringList m_Words{QString()};
    QChar m_Quote;
    bool m_bInWord = false;
    bool m_bEscaped = false;
    int m_nBroken = 0;  // characters of the word before the last break
};

#endif

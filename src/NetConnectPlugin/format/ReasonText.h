// SPDX-License-Identifier: MIT
// Why something is wrong with a file or a value, for a person.
#ifndef ORBISDIAL_REASONTEXT_H
#define ORBISDIAL_REASONTEXT_H

#include <QCoreApplication>
#include <QString>
#include <vector>

// The English text in the program's language; itself where no translator of the application has one. Values take the
// places of "%1" and so on afterwards.
inline QString reasonText(const char* english) { return QCoreApplication::translate("Reasons", english); }

// A reason that outlives a change of the language: it is said in the one of the moment in which it is asked for.
class Reason {
public:
    Reason() : m_pEnglish(nullptr) {}

    // The text is a literal.
    explicit Reason(const char* english) : m_pEnglish(english) {}

    // What somebody else said, as it is.
    explicit Reason(const QString& words) : m_pEnglish(nullptr), m_strWords(words) {}

    // With one more value; at most two.
    Reason arg(const Reason& value) const {
        Reason filled(*this);
        filled.m_Values.push_back(value);
        return filled;
    }
    Reason arg(const QString& value) const { return arg(Reason(value)); }

    bool isEmpty() const { return !m_pEnglish && m_strWords.isEmpty(); }

    QString text() const {
        if (!m_pEnglish) return m_strWords;
        const QString said = reasonText(m_pEnglish);
        if (m_Values.empty()) return said;
        if (m_Values.size() == 1) return said.arg(m_Values[0].text());
        return said.arg(m_Values[0].text(), m_Values[1].text());
    }

private:
    const char* m_pEnglish;  // null: the words
    QString m_strWords;
    std::vector<Reason> m_Values;
};

#endif

// SPDX-License-Identifier: MIT
// Walks through one file as its readers do, and finds what they would pass over without a word.
#ifndef ORBISDIAL_CHECK_DOCUMENTCHECK_H
#define ORBISDIAL_CHECK_DOCUMENTCHECK_H

#include <QXmlStreamReader>
#include <vector>

#include "FileFindings.h"

// An element that may stand in another one, with the attributes that it may have, between blanks. The root's parent is
// empty.
struct ElementRule {
    const char* parent;
    const char* name;
    const char* attributes;
};

struct XmlElement {
    QString name;
    QString parent;  // empty for the root
    QXmlStreamAttributes attributes;
    XmlPlace place;

    bool has(const char* attribute) const { return attributes.hasAttribute(QLatin1String(attribute)); }
    QString value(const char* attribute) const { return attributes.value(QLatin1String(attribute)).toString(); }
};

class DocumentCheck {
public:
    DocumentCheck(FileFindings* findings, std::vector<ElementRule> rules)
        : m_Findings(findings), m_Rules(std::move(rules)) {}
    virtual ~DocumentCheck() = default;

    // Goes through the whole document, or to the first place where it is broken.
    void check(const QByteArray& content);

    // False for a document that is broken: what it says is not all that it was meant to say.
    bool isWhole() const { return m_bWhole; }

protected:
    // An element that stands where it may. The second is told when it ends.
    virtual void start(const XmlElement& element) = 0;
    virtual void end(const QString& /*name*/) {}

    // Behind the root.
    virtual void finish() {}

    // Then what follows need not be looked at.
    bool isFull() const { return m_Findings->isFull(); }

    void find(const XmlPlace& place, const QString& text, const QString& remedy) {
        m_Findings->add(place, text, remedy);
    }

    // The attribute, of which no element may do without.
    QString required(const XmlElement& element, const char* attribute);

private:
    struct Open {
        QString name;
        XmlPlace place;
        bool isKnown;
    };

    void startElement(const XmlElement& element);
    void checkAttributes(const XmlElement& element, const ElementRule& rule);
    void endElement();
    void checkText(const QXmlStreamReader& reader, const XmlPlace& place);
    void tellError(const QXmlStreamReader& reader);
    const ElementRule* ruleOf(const XmlElement& element) const;
    QStringList namesIn(const QString& parent) const;

    FileFindings* const m_Findings;
    const std::vector<ElementRule> m_Rules;
    std::vector<Open> m_Open;
    bool m_bWhole = false;
};

#endif

// SPDX-License-Identifier: MIT
// Whether the scanner says of a document what Qt's reader says of it, or nothing.
#ifndef ORBISDIAL_TESTS_SCANNERORACLE_H
#define ORBISDIAL_TESTS_SCANNERORACLE_H

#include "NetConnectConfigDocument.h"
#include "ProfileDocument.h"
#include "XmlText.h"

namespace ScannerOracle {

inline bool isSame(const DialupProfile& a, const DialupProfile& b) {
    for (const DialupProfileField& field : DialupProfileFields)
        if (a.*field.member != b.*field.member) return false;
    return true;
}

inline bool isSame(const ProfileDocument& a, const ProfileDocument& b) {
    if (a.profiles.size() != b.profiles.size() || a.defaults.size() != b.defaults.size()) return false;
    for (int i = 0; i < a.profiles.size(); ++i)
        if (!isSame(a.profiles.at(i), b.profiles.at(i))) return false;
    for (int i = 0; i < a.defaults.size(); ++i)
        if (a.defaults.at(i).kind != b.defaults.at(i).kind || a.defaults.at(i).value != b.defaults.at(i).value)
            return false;
    return true;
}

// Here an attribute that is not there and an empty one are two things.
inline bool isSame(const QString& a, const QString& b) { return a == b && a.isNull() == b.isNull(); }

inline bool isSame(const NetConnectConfigElement& a, const NetConnectConfigElement& b) {
    return a.kind == b.kind && isSame(a.name, b.name) && isSame(a.value, b.value) && isSame(a.type, b.type);
}

inline bool isSame(const NetConnectConfigDocument::Stretch& a, const NetConnectConfigDocument::Stretch& b) {
    if (!isSame(a.group, b.group) || !isSame(a.module, b.module) || a.elements.size() != b.elements.size())
        return false;
    for (int i = 0; i < a.elements.size(); ++i)
        if (!isSame(a.elements.at(i), b.elements.at(i))) return false;
    return true;
}

inline bool isSame(const NetConnectConfigDocument& a, const NetConnectConfigDocument& b) {
    if (a.promptItems != b.promptItems || a.stretches.size() != b.stretches.size()) return false;
    for (int i = 0; i < a.stretches.size(); ++i)
        if (!isSame(a.stretches.at(i), b.stretches.at(i))) return false;
    return true;
}

enum Answer { Differs, Unknown, Agrees };

template <class Document>
Answer answer(const QByteArray& content) {
    Document scanned;
    if (!scanned.scan(content)) return isSame(scanned, Document()) ? Unknown : Differs;
    Document read;
    QXmlStreamReader reader(content);
    if (XmlText::refusal(content).isEmpty()) read.read(reader);
    return reader.atEnd() && !reader.hasError() && isSame(scanned, read) ? Agrees : Differs;
}

}  // namespace ScannerOracle

#endif

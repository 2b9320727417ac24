// SPDX-License-Identifier: MIT
// Writes documents of the profile format into memory.
#ifndef ORBISDIAL_PROFILEDOCUMENTWRITER_H
#define ORBISDIAL_PROFILEDOCUMENTWRITER_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVector>

#include "NetConnectRecords.h"

// Usage: make one, which writes the root; write; finish(). The bytes are those that QXmlStreamWriter makes with
// automatic formatting, in a fraction of its time. Names are ASCII and stay where they are until finish().
class ProfileDocumentWriter {
public:
    ProfileDocumentWriter();

    // Elements stand in the root, or in the last one that was started and not ended.
    void startElement(const char* name);
    void endElement();
    void emptyElement(const char* name);

    // Of the element that was begun last.
    void attribute(const char* name, const QString& value);

    // Starts the group in which profiles and the template stand.
    void startGroup();

    void writeProfiles(const QList<DialupProfile>& profiles);

    // The whole document as UTF-8; empty when a text held what XML can't, or there are too many elements to read.
    QByteArray finish();

    // Whether every text so far is what XmlText::clean() leaves of it.
    bool isClean() const { return m_IsClean; }

private:
    Q_DISABLE_COPY(ProfileDocumentWriter)

    enum TagState { Closed, Started, Empty };

    // Where the fields of a profile stand in the text: each from its blank to the next one's, or to the end.
    typedef int FieldPlaces[DialupProfileFieldCount + 1];

    void beginTag(const char* name, TagState state);
    void closeTag();
    void breakLine();
    void append(const char* text, int size);
    void repeat(int begin, int size);
    void appendValue(const QString& value);
    void appendFields(const DialupProfile& profile, FieldPlaces places);
    void appendFieldsAfter(const DialupProfile& former, const DialupProfile& profile, FieldPlaces places);
    void appendField(const DialupProfile& profile, int field);
    void makeRoom(int size);

    QByteArray m_Text;  // its size is what there is room for
    int m_Size;
    QVector<const char*> m_Open;  // the elements that were started and not ended
    TagState m_Tag;               // of the element that was begun last
    int m_Elements;
    bool m_HasError;
    bool m_IsClean;
};

#endif

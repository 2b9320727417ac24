// SPDX-License-Identifier: MIT
// What NetConnectConfig.xml says, element by element: the file is parsed once, however many of its parts are asked for.
#ifndef ORBISDIAL_NETCONNECTCONFIGDOCUMENT_H
#define ORBISDIAL_NETCONNECTCONFIGDOCUMENT_H

#include <QList>
#include <QPair>
#include <QString>
#include <QVector>
#include <QXmlStreamReader>

#include "NetConnectRecords.h"
#include "QtCompat.h"

struct NetConnectConfigElement {
    enum Kind { Other, TemplateSection, FunctionSection, ProfileListSection, IMSISection, ModeDefaultSection, Item };

    NetConnectConfigElement() : kind(Other) {}

    // The start element that the reader stands on.
    static NetConnectConfigElement of(const QXmlStreamReader& reader);

    Kind kind;
    QString name;  // an item's; of an IMSI section the IMSI's first digits
    QString value;
    QString type;
};
Q_DECLARE_TYPEINFO(NetConnectConfigElement, Q_MOVABLE_TYPE);

struct NetConnectConfigDocument {
    // Elements that follow one another in the same module of the same group.
    struct Stretch {
        QString group;
        QString module;
        QVector<NetConnectConfigElement> elements;
    };
    typedef QPair<QString UserPrompt::*, QString> PromptItem;

    // Becomes what a document in our own tools' form says; false, and nothing, for any other, which read() reads.
    bool scan(const QByteArray& content);

    // Reads on to the end, or to the first error; what was read before it stays.
    void read(QXmlStreamReader& reader);

    // The prompt's field that an item of this name fills; null for other names.
    static QString UserPrompt::*promptField(const TextPart& name);

    QList<Stretch> stretches;
    QList<PromptItem> promptItems;  // of the whole file

private:
    // The group and the module that an element stands in.
    struct Place {
        Place() : hasStretch(false) {}

        void enter(QString* part, const QString& name) {
            *part = name;
            hasStretch = false;
        }
        void leaveModule() { enter(&module, QString()); }

        QString group;
        QString module;
        bool hasStretch;  // the last one is this place's
    };

    template <class Element>
    void start(const Element& element, Place* place);
    NetConnectConfigElement* append(Place* place);
};

#endif

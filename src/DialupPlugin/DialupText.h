// The dial-up plug-in's texts.
#ifndef ORBISDIAL_DIALUPTEXT_H
#define ORBISDIAL_DIALUPTEXT_H

#include "Change.h"

// The text of a string ID; "%1" in it becomes the name, which may hold any characters.
inline QString dialupText(const char* id, const QString& name = QString()) {
    return Change::tr(QString::fromLatin1(id), QStringLiteral("DialupPlugin")).replace(QLatin1String("%1"), name);
}

#endif

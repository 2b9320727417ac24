// SPDX-License-Identifier: MIT
// The reader of profile files. Whatever it takes in can be written as the user's file and reads back the same.

#include "FuzzFolder.h"
#include "NetConnectXMLParse.h"
#include "XmlText.h"

namespace {

struct Content {
    QList<DialupProfile> profiles;
    NetConnectDefault chosen;
};

int read(const QString& file, Content* content) {
    return NetConnectXMLParse::GetInstance()->GetAllProfileFromUserDataXML(&content->profiles, &content->chosen.name,
                                                                           file, &content->chosen.isUserSet);
}

bool isWrittenAs(const DialupProfile& profile, const DialupProfile& written) {
    for (const DialupProfileField& field : DialupProfileFields)
        if (XmlText::clean(profile.*field.member) != written.*field.member) return false;
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const FuzzFolder folder;
    NetConnectXMLParse* files = NetConnectXMLParse::GetInstance();
    const QString file = folder.path("fuzzed.prof");
    FuzzFolder::write(file, data, size);
    Content content;
    const int status = read(file, &content);
    require(status == 0 || status == 6);
    require(files->lastProblem().isNull() == (status == 0));

    require(files->SaveProfileToXML(content.profiles, content.chosen.name, QString(), content.chosen.isUserSet) == 0);
    NetConnectXMLParse::Destroy();  // which knows what it has just written
    Content written;
    require(read(QString(), &written) == 0);
    require(written.profiles.size() == content.profiles.size());
    for (int i = 0; i < written.profiles.size(); ++i)
        require(isWrittenAs(content.profiles.at(i), written.profiles.at(i)));
    require(written.chosen.name == XmlText::clean(content.chosen.name));
    require(written.chosen.isUserSet == content.chosen.isUserSet);
    return 0;
}

// SPDX-License-Identifier: MIT
// The scanner of our own form, beside Qt's reader: what it takes both say the same of, and what we write it takes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "ScannerOracle.h"

static void require(bool holds) {
    if (!holds) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray content(reinterpret_cast<const char*>(data), int(size));
    require(ScannerOracle::answer<ProfileDocument>(content) != ScannerOracle::Differs);
    require(ScannerOracle::answer<NetConnectConfigDocument>(content) != ScannerOracle::Differs);

    ProfileDocument scanned;
    ProfileDocument looked;
    require(scanned.scan(content) == looked.look(content));
    for (int i = 0; i < scanned.profiles.size(); ++i) {
        DialupProfile found;
        require(looked.unread->find(scanned.profiles.at(i).name, &found));
        require(found.name == scanned.profiles.at(i).name);
    }
    looked.readRest();
    require(ScannerOracle::isSame(scanned, looked));

    ProfileDocument document;
    QXmlStreamReader reader(content);
    if (!XmlText::refusal(content).isEmpty()) return 0;
    document.read(reader);
    document.clean();
    const QByteArray own = document.write();
    ProfileDocument written;
    if (own.contains("\xef\xbb\xbf")) return 0;  // a byte order mark within a text is left to the reader
    require(written.scan(own));
    require(written.profiles.size() == document.profiles.size());
    for (int i = 0; i < written.profiles.size(); ++i)
        require(ScannerOracle::isSame(written.profiles.at(i), document.profiles.at(i)));
    return 0;
}

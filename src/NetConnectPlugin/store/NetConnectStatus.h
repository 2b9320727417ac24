// SPDX-License-Identifier: MIT
// The status numbers of the profile logic and of the file layer, which hosts and other plug-ins see.
#ifndef ORBISDIAL_NETCONNECTSTATUS_H
#define ORBISDIAL_NETCONNECTSTATUS_H

namespace NetConnectStatus {
enum {
    Success = 0,
    NoXMLParse = 1,
    ReadError = 6,       // a file is not well-formed
    ObjectMissing = 13,  // a needed object is missing
    NameRefused = 22,    // a profile can't have the name
    FileMissing = 23,    // also: an argument that must not be null is null
    FileNotOpened = 25,  // a file can't be opened, written or locked
    NothingImported = 113,
    NameTaken = 114  // another profile has the name
};
}

#endif

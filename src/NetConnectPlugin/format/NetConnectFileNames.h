// SPDX-License-Identifier: MIT
// What the plug-in's files are called.
#ifndef ORBISDIAL_NETCONNECTFILENAMES_H
#define ORBISDIAL_NETCONNECTFILENAMES_H

namespace NetConnectFileNames {

const char User[] = "UserProfile.prof";               // in the user data directory
const char Library[] = "ProfileLib.prof";             // these in the library path
const char System[] = "SysProfile.prof";              // the template of new profiles
const char Configuration[] = "NetConnectConfig.xml";  // or in a configuration folder
const char Operators[] = "Operators.xml";

}  // namespace NetConnectFileNames

#endif

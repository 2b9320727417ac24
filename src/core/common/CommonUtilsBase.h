// SPDX-License-Identifier: MIT
// What the host core library offers without a window: settings, places, sealed texts.
//
// Encrypt, Decrypt, CryptLocalFree, ParanthesisCorrection, GetConfigurationFolders and GetPluginLibraryPath are safe
// from any thread; the settings are for the thread that runs the application.
#ifndef ORBISDIAL_COMMONUTILSBASE_H
#define ORBISDIAL_COMMONUTILSBASE_H

#include <QString>
#include <QStringList>

#include "HostCoreExport.h"

// The part of CommonUtils that needs neither Qt Gui nor Qt Widgets. Whoever may show windows includes CommonUtils.h.
class HOSTCORE_EXPORT CommonUtilsBase {
public:
    // A value of the host's settings file, in the user's XDG configuration directory or in
    // $ORBISDIAL_CONFIG_DIR; empty when it is not set.
    static QString GetSettings(const QString& group, const QString& key);

    // Stores a value; false when the settings file can't be written. A folder that is missing is made for the
    // user alone.
    static bool SetSettings(const QString& group, const QString& key, const QString& value);

    // Where they are, to be watched for what other programs store; the file may be missing, and its folder.
    static QString GetSettingsFile();

    // Where a configuration may lie that takes the shipped one's place, the first that counts first, without a slash
    // at the end: $ORBISDIAL_CONFIG_DIR or "orbisdial" in the user's XDG configuration directory, then in those of
    // $XDG_CONFIG_DIRS, then /etc/orbisdial. None while $ORBISDIAL_LIBRARY_PATH names a set of files, which is
    // whole. The folders may be missing.
    static QStringList GetConfigurationFolders();

    // The directory that holds "plugins" and "lang", without a slash at its end: $ORBISDIAL_LIBRARY_PATH, or
    // else "orbisdial" beside this library.
    static QString GetPluginLibraryPath();

    // Corrects parentheses in right-to-left text. Qt mirrors them when it draws, so the text comes back as is.
    static QString ParanthesisCorrection(const QString& text);

    // Seals a zero-terminated text under a key: libsodium's authenticated box (XSalsa20-Poly1305) with a
    // random nonce under a hash of the key, as ASCII text that begins with a version mark. out becomes a new
    // text to free with CryptLocalFree, or null on failure (a null argument, no libsodium).
    static void Encrypt(const char* data, const char* key, char*& out);

    // Opens what Encrypt sealed. Text that Encrypt did not make comes back unchanged; a sealed text that was
    // changed, or sealed under another key, gives null.
    static void Decrypt(const char* data, const char* key, char*& out);

    // Wipes and frees a result of Encrypt or Decrypt; null is ignored.
    static void CryptLocalFree(char* text);
};

#endif

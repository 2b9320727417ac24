// SPDX-License-Identifier: MIT
// The host's command line.
#ifndef ORBISDIAL_OPTIONS_H
#define ORBISDIAL_OPTIONS_H

#include <QString>

class QCoreApplication;

struct Options {
    QString device;      // empty: what the environment says
    QString screenshot;  // the file to write; empty: none
    QString page;        // of the settings, which it opens; empty: none
    QString file;        // absolute path of a profile file to import; empty: none
    bool tray = false;   // start without a window where there is a tray
    bool trace = false;

    // Reads the application's arguments and makes the language current: the one that they name, or the stored one, or
    // the system's. Ends the process for --help, --version and a wrong usage.
    static Options fromArguments(const QCoreApplication& application);
};

#endif

// SPDX-License-Identifier: MIT
// Ends the program as closing its window does when the system asks it to end.
#ifndef ORBISDIAL_ENDSIGNALS_H
#define ORBISDIAL_ENDSIGNALS_H

#include <QObject>

// While it lives, SIGINT, SIGTERM and SIGHUP leave the event loop, so that plug-ins are stopped as ever: the connection
// goes down, and no default is left behind that only the SIM card proposed. An open edit is dropped without a question.
// A signal that comes again kills the program; one that was ignored when the program started stays ignored. One
// instance, on the GUI thread.
class EndSignals : public QObject {
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;

private:
    Q_DISABLE_COPY(EndSignals)
};

#endif

#pragma once

#include "CtlCommandLine.h"

#include <QVariant>

class OrgLarkmoorNightreel1Interface;

// What a command came to: the exit status, the recorder's answer to print, or the message
// for standard error.
struct CtlResult {
    enum Status { Done = 0, Refused = 1, BadArguments = 2, NoRecorder = 3 };
    int status = Done;
    QVariant answer;
    QString error;
};

// Carries out a command line's request as calls on the recorder's interface.
class CtlCommands {
public:
    explicit CtlCommands(OrgLarkmoorNightreel1Interface& recorder);

    CtlResult Run(const CtlRequest& request);

private:
    CtlResult Add(const CtlRequest& request);

    OrgLarkmoorNightreel1Interface& m_recorder;
};

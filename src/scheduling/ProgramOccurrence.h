#pragma once

#include <QString>
#include <QtGlobal>

// One occurrence of a program, as the next-program search finds it: when it runs and the
// row's values that go with it. Side values that are NULL in an old row are already read
// with their documented defaults.
struct ProgramOccurrence {
    qint32 programId = 0;
    QString description;
    double startDateTime = 0.0;
    double endDateTime = 0.0;
    qint32 avgBytesPerSec = 0;
    QString internetLink;
    qint16 internetLinkDelay = 0;
    QString launchAppPrior;
    qint16 launchAppDelay = 0;
    QString mixerProfileBefore;
    QString mixerProfileAfter;
    QString streamingPlayerClose;
    bool hangupInternetConnection = false;
    // The internet stream the program records; empty for the sound server's input.
    QString streamUrl;
};

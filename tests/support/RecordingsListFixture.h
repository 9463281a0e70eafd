#pragma once

#include "StoreParts.h"
#include "recordingslist/RecordingsList.h"

#include <QDir>

// An open database whose recording folder exists, with the recordings list on it; the files
// in `busy` count as being written.
struct RecordingsListFixture : StoreParts {
    RecordingsListFixture()
    {
        QDir().mkpath(Folder());
        options.DefaultRecordingDirectory = Folder();
    }
    QString Folder() const { return Root() + "/rec"; }
    QString File(const QString& name) const { return Folder() + "/" + name; }

    QStringList busy;
    RecordingsList list{database, log, options, clock, [this] {
                            return busy;
                        }};
};

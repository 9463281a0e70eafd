#pragma once

#include "TestContext.h"
#include "recordingslist/RecordingsList.h"

#include <QDir>

// An open database whose recording folder exists, with the recordings list on it.
struct RecordingsListFixture {
    RecordingsListFixture()
    {
        tc.OpenDatabase();
        QDir().mkpath(Folder());
        tc.ctx->options.DefaultRecordingDirectory = Folder();
    }
    QString Folder() const { return tc.Root() + "/rec"; }
    QString File(const QString& name) const { return Folder() + "/" + name; }

    TestContext tc;
    RecordingsList& list = tc.ctx->recordingsList;
};

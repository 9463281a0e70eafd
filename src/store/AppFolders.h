#pragma once

#include <QString>

// Where the system keeps its files: the data folder (database, mixer profiles, saved lists)
// and the runtime folder (parameter files for the recording task).
struct AppFolders {
    QString dataFolder;
    QString runtimeFolder;

    // The user's folders: the application data location and $XDG_RUNTIME_DIR/nightreel
    // (the temp folder where that is unset). Both are created, the runtime one private.
    static AppFolders ForCurrentUser();
    // Folders under one root, for tests and portable use.
    static AppFolders Under(const QString& root);

    QString DatabaseFile() const;
    QString TempDatabaseFile() const;
    // Puts the empty database in place when the data folder is new: what an installer did.
    void InstallDatabaseOnFirstRun() const;
};

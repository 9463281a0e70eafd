#pragma once

#include <QString>
#include <QStringList>

class AppDatabase;
class RecordingsList;

// Recordings lists saved under a name: one file per list in the recrdlst folder of the
// data folder, each line a path between double quotes, ended by CR LF. Only the paths
// survive: loading reads each file again as if it were added by hand.
class SavedLists {
public:
    // The lists lie in the recrdlst folder below dataFolder.
    SavedLists(AppDatabase& database, RecordingsList& list, const QString& dataFolder);

    QString Folder() const;
    QString PathOf(const QString& name) const;
    // The names of the saved lists, without extension, in the order of the listing.
    QStringList Names() const;
    // Writes the list in the order of its sort; an empty list makes no file.
    void Save(const QString& name);
    // Replaces the list, or merges into it, with the files of the saved list.
    void LoadList(const QString& name, bool merge);

private:
    AppDatabase& m_database;
    RecordingsList& m_list;
    const QString m_dataFolder;
};

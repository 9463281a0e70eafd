#include "recordingslist/SavedLists.h"

#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "recordingslist/ListFile.h"
#include "recordingslist/RecordingsList.h"
#include "store/AppDatabase.h"

#include <QDir>
#include <QFile>

SavedLists::SavedLists(AppDatabase& database, RecordingsList& list, const QString& dataFolder)
    : m_database(database)
    , m_list(list)
    , m_dataFolder(dataFolder)
{
}

QString SavedLists::Folder() const
{
    return m_dataFolder + QStringLiteral("/recrdlst");
}

QString SavedLists::PathOf(const QString& name) const
{
    return Folder() + u'/' + Text::Trim(name) + QStringLiteral(".LST");
}

QStringList SavedLists::Names() const
{
    QStringList names;
    const QStringList files = QDir(Folder()).entryList({QStringLiteral("*.LST")}, QDir::Files);
    for (const QString& file : files)
        names << file.left(file.size() - 4);
    return names;
}

void SavedLists::Save(const QString& name)
{
    Recordset rs = m_database.DataRecordings.recordset().Clone();
    if (rs.IsEOF())
        return;
    QFile file(PathOf(name));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw RuntimeError(ErrorNumber::PathFileAccess, file.errorString());
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext())
        file.write('"' + QFile::encodeName(rs.Value(QStringLiteral("File")).toString()) + "\"\r\n");
}

void SavedLists::LoadList(const QString& name, bool merge)
{
    if (!merge)
        m_database.db.Execute(QStringLiteral("DELETE FROM [Recordings]"));
    QFile file(PathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorNumber::FileNotFound, file.errorString());
    for (const QString& path : ListFile::ReadItems(file.readAll()))
        m_list.AddFileToRecordingsList(path);
    m_database.DataRecordings.Refresh();
}

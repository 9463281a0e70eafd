#pragma once

#include <QSqlDatabase>
#include <QString>

// One open database file. Opening never creates a file: a missing file and a file that
// is not a database are errors, as they were for the original engine.
class Database {
public:
    Database();
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void Open(const QString& path);
    void Close();
    bool IsOpen() const { return m_open; }
    const QString& Path() const { return m_path; }
    const QString& ConnectionName() const { return m_connectionName; }
    QSqlDatabase Connection() const;

    void Execute(const QString& sql);
    bool TableHasColumn(const QString& table, const QString& column);
    // VACUUM INTO: a compacted copy of the open file.
    void CompactInto(const QString& target);

private:
    QString m_connectionName;
    QString m_path;
    bool m_open = false;
};

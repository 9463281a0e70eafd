#pragma once

#include "store/Recordset.h"

#include <QObject>

class Database;

// The binding between a grid and the database: the recordset on show and the statement
// it comes from. Setting a statement and refreshing opens a new recordset from it; a
// refresh without a statement requeries the recordset in place.
class DataControl : public QObject {
    Q_OBJECT
public:
    explicit DataControl(Database& db, QObject* parent = nullptr);

    Recordset& recordset() { return m_recordset; }
    void SetRecordset(const Recordset& rs);
    const QString& RecordSource() const { return m_recordSource; }
    void SetRecordSource(const QString& statement) { m_recordSource = statement; }
    void Refresh();
    // Reads the rows of the recordset on show anew.
    void Requery();
    // Forgets recordset and statement, as an unloaded form does.
    void Unbind();

signals:
    // The recordset was replaced or requeried: views reload.
    void RecordsetChanged();

private:
    Database& m_db;
    Recordset m_recordset;
    QString m_recordSource;
};

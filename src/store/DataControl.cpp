#include "store/DataControl.h"

#include "store/Database.h"

DataControl::DataControl(Database& db, QObject* parent)
    : QObject(parent)
    , m_db(db)
{
}

void DataControl::SetRecordset(const Recordset& rs)
{
    m_recordset = rs;
    emit RecordsetChanged();
}

void DataControl::Refresh()
{
    if (!m_recordSource.isEmpty())
        m_recordset = Recordset::Open(m_db, m_recordSource);
    else
        m_recordset.Requery();
    emit RecordsetChanged();
}

void DataControl::Requery()
{
    m_recordset.Requery();
    emit RecordsetChanged();
}

void DataControl::Unbind()
{
    m_recordset.Close();
    m_recordSource.clear();
    emit RecordsetChanged();
}

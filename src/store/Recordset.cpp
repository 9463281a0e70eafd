#include "store/Recordset.h"

#include "common/RuntimeError.h"
#include "store/Database.h"

#include <QRegularExpression>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

const QString kRowIdColumn = QStringLiteral("_nightreel_rowid_");

QString TableOf(const QString& source)
{
    static const QRegularExpression from(
        QStringLiteral("^\\s*SELECT\\s+\\*\\s+FROM\\s+\\[?([A-Za-z0-9_]+)\\]?"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = from.match(source);
    return match.hasMatch() ? match.captured(1) : source.trimmed();
}

// The select that also brings each row's identity.
QString SelectWithRowId(const QString& source, const QString& table)
{
    static const QRegularExpression selectStar(QStringLiteral("^\\s*SELECT\\s+\\*"),
                                               QRegularExpression::CaseInsensitiveOption);
    const QString head = QStringLiteral("SELECT rowid AS %1, *").arg(kRowIdColumn);
    if (selectStar.match(source).hasMatch())
        return QString(source).replace(selectStar, head);
    return QStringLiteral("%1 FROM [%2]").arg(head, table);
}

[[noreturn]] void ThrowQueryError(const QSqlQuery& query)
{
    throw RuntimeError(ErrorNumber::DatabaseEngine, query.lastError().text());
}

QSqlQuery PreparedQuery(const QString& connectionName, const QString& sql)
{
    QSqlQuery query(QSqlDatabase::database(connectionName, false));
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        ThrowQueryError(query);
    return query;
}

void ExecQuery(QSqlQuery& query)
{
    if (!query.exec())
        ThrowQueryError(query);
}

} // namespace

Recordset Recordset::Open(Database& db, const QString& nameOrSelect)
{
    if (!db.IsOpen())
        throw RuntimeError(ErrorNumber::ObjectRequired, QStringLiteral("Object required"));
    Recordset rs;
    rs.m_data = Load(db.ConnectionName(), nameOrSelect);
    rs.m_pos = rs.m_data->rows.empty() ? -1 : 0;
    rs.SkipDeletedForward();
    return rs;
}

std::shared_ptr<Recordset::Data> Recordset::Load(const QString& connectionName,
                                                 const QString& source)
{
    auto data = std::make_shared<Data>();
    data->connectionName = connectionName;
    data->source = source;
    data->table = TableOf(source);
    QSqlQuery query = PreparedQuery(connectionName, SelectWithRowId(source, data->table));
    ExecQuery(query);
    const QSqlRecord record = query.record();
    for (int i = 1; i < record.count(); ++i) {
        data->fields << record.fieldName(i);
        data->indexOfLowerName.insert(record.fieldName(i).toLower(), i - 1);
    }
    const int fieldCount = int(data->fields.size());
    while (query.next()) {
        Row row;
        row.rowid = query.value(0).toLongLong();
        row.values.reserve(fieldCount);
        for (int i = 0; i < fieldCount; ++i)
            row.values.push_back(query.value(i + 1));
        data->rows.push_back(std::move(row));
    }
    return data;
}

void Recordset::Close()
{
    m_data.reset();
    m_pos = -1;
    m_editMode = EditMode::None;
}

Recordset Recordset::Clone() const
{
    RequireOpen();
    Recordset clone;
    clone.m_data = m_data;
    clone.m_pos = -1;
    return clone;
}

void Recordset::Requery()
{
    RequireOpen();
    // The rows are read anew in place, so clones and views stay with this recordset.
    std::shared_ptr<Data> fresh = Load(m_data->connectionName, m_data->source);
    m_data->fields = std::move(fresh->fields);
    m_data->indexOfLowerName = std::move(fresh->indexOfLowerName);
    m_data->rows = std::move(fresh->rows);
    m_data->deletedCount = 0;
    m_editMode = EditMode::None;
    m_pos = m_data->rows.empty() ? -1 : 0;
    NotifyChanged();
}

const QString& Recordset::Table() const
{
    RequireOpen();
    return m_data->table;
}

void Recordset::RequireOpen() const
{
    if (!m_data)
        throw RuntimeError(ErrorNumber::ObjectRequired, QStringLiteral("Object required"));
}

bool Recordset::IsEOF() const
{
    RequireOpen();
    return m_pos >= int(m_data->rows.size()) || RecordCount() == 0;
}

bool Recordset::IsBOF() const
{
    RequireOpen();
    return m_pos < 0 || RecordCount() == 0;
}

int Recordset::RecordCount() const
{
    RequireOpen();
    return int(m_data->rows.size()) - m_data->deletedCount;
}

int Recordset::AbsolutePosition() const
{
    RequireOpen();
    if (m_pos < 0 || m_pos >= int(m_data->rows.size()) || m_data->rows[m_pos].deleted)
        return -1;
    int position = 0;
    for (int i = 0; i < m_pos; ++i)
        position += m_data->rows[i].deleted ? 0 : 1;
    return position;
}

void Recordset::SkipDeletedForward()
{
    const int size = int(m_data->rows.size());
    while (m_pos >= 0 && m_pos < size && m_data->rows[m_pos].deleted)
        ++m_pos;
}

void Recordset::SkipDeletedBackward()
{
    while (m_pos >= 0 && m_data->rows[m_pos].deleted)
        --m_pos;
}

void Recordset::MoveFirst()
{
    RequireOpen();
    m_pos = 0;
    SkipDeletedForward();
}

void Recordset::MoveLast()
{
    RequireOpen();
    m_pos = int(m_data->rows.size()) - 1;
    SkipDeletedBackward();
}

void Recordset::MoveNext()
{
    RequireOpen();
    if (IsEOF())
        throw RuntimeError(ErrorNumber::NoCurrentRecord, QStringLiteral("No current record."));
    ++m_pos;
    SkipDeletedForward();
}

void Recordset::MovePrevious()
{
    RequireOpen();
    if (IsBOF())
        throw RuntimeError(ErrorNumber::NoCurrentRecord, QStringLiteral("No current record."));
    --m_pos;
    SkipDeletedBackward();
}

void Recordset::FindFirst(const QString& criteria)
{
    RequireOpen();
    QSqlQuery query = PreparedQuery(
        m_data->connectionName,
        QStringLiteral("SELECT rowid FROM [%1] WHERE %2").arg(m_data->table, criteria));
    ExecQuery(query);
    QSet<qint64> matches;
    while (query.next())
        matches.insert(query.value(0).toLongLong());
    for (int i = 0; i < int(m_data->rows.size()); ++i) {
        const Row& row = m_data->rows[i];
        if (!row.deleted && matches.contains(row.rowid)) {
            m_pos = i;
            m_noMatch = false;
            return;
        }
    }
    m_noMatch = true;
}

const Recordset::Row& Recordset::CurrentRow() const
{
    RequireOpen();
    if (m_pos < 0 || m_pos >= int(m_data->rows.size()))
        throw RuntimeError(ErrorNumber::NoCurrentRecord, QStringLiteral("No current record."));
    const Row& row = m_data->rows[m_pos];
    if (row.deleted)
        throw RuntimeError(ErrorNumber::RecordDeleted, QStringLiteral("Record is deleted."));
    return row;
}

qint64 Recordset::Bookmark() const
{
    return CurrentRow().rowid;
}

void Recordset::SetBookmark(qint64 bookmark)
{
    RequireOpen();
    for (int i = 0; i < int(m_data->rows.size()); ++i) {
        if (m_data->rows[i].rowid == bookmark && !m_data->rows[i].deleted) {
            m_pos = i;
            return;
        }
    }
    throw RuntimeError(ErrorNumber::NoCurrentRecord, QStringLiteral("Not a valid bookmark."));
}

QStringList Recordset::FieldNames() const
{
    RequireOpen();
    return m_data->fields;
}

int Recordset::FieldIndex(const QString& field) const
{
    RequireOpen();
    return m_data->indexOfLowerName.value(field.toLower(), -1);
}

int Recordset::RequireField(const QString& field) const
{
    const int index = FieldIndex(field);
    if (index < 0)
        throw RuntimeError(ErrorNumber::ItemNotFound,
                           QStringLiteral("Item not found in this collection. (%1)").arg(field));
    return index;
}

QVariant Recordset::Value(int index) const
{
    if (m_editMode != EditMode::None)
        return m_buffer.at(index);
    return CurrentRow().values.at(index);
}

QVariant Recordset::Value(const QString& field) const
{
    return Value(RequireField(field));
}

void Recordset::SetValue(const QString& field, const QVariant& value)
{
    const int index = RequireField(field);
    if (m_editMode == EditMode::None)
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit,
                           QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    m_buffer[index] = value;
    m_changed[index] = true;
}

QByteArray Recordset::GetChunk(const QString& field, int offset, int count) const
{
    return Value(field).toByteArray().mid(offset, count);
}

void Recordset::AppendChunk(const QString& field, const QByteArray& bytes)
{
    const QVariant current = m_editMode == EditMode::None ? QVariant() : Value(field);
    SetValue(field, current.toByteArray() + bytes);
}

void Recordset::AddNew()
{
    RequireOpen();
    m_editMode = EditMode::AddNew;
    m_buffer.assign(m_data->fields.size(), QVariant());
    m_changed.assign(m_data->fields.size(), false);
}

void Recordset::Edit()
{
    m_buffer = CurrentRow().values;
    m_changed.assign(m_data->fields.size(), false);
    m_editMode = EditMode::Edit;
}

void Recordset::CancelUpdate()
{
    m_editMode = EditMode::None;
}

void Recordset::Update()
{
    RequireOpen();
    if (m_editMode == EditMode::None)
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit,
                           QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    QStringList columns;
    QVariantList values;
    for (int i = 0; i < int(m_changed.size()); ++i) {
        if (m_changed[i]) {
            columns << QLatin1Char('[') + m_data->fields[i] + QLatin1Char(']');
            values << m_buffer[i];
        }
    }
    if (m_editMode == EditMode::AddNew) {
        const QString sql =
            columns.isEmpty()
                ? QStringLiteral("INSERT INTO [%1] DEFAULT VALUES").arg(m_data->table)
                : QStringLiteral("INSERT INTO [%1] (%2) VALUES (%3)")
                      .arg(m_data->table, columns.join(u','),
                           QStringList(columns.size(), QStringLiteral("?")).join(u','));
        QSqlQuery query = PreparedQuery(m_data->connectionName, sql);
        for (const QVariant& v : values)
            query.addBindValue(v);
        ExecQuery(query);
        Row row;
        row.rowid = query.lastInsertId().toLongLong();
        row.values = ReadRow(row.rowid);
        m_data->rows.push_back(std::move(row));
        m_lastModified = m_data->rows.back().rowid;
    } else {
        Row& row = m_data->rows[m_pos];
        if (!columns.isEmpty()) {
            QSqlQuery query =
                PreparedQuery(m_data->connectionName,
                              QStringLiteral("UPDATE [%1] SET %2 = ? WHERE rowid = ?")
                                  .arg(m_data->table, columns.join(QStringLiteral(" = ?, "))));
            for (const QVariant& v : values)
                query.addBindValue(v);
            query.addBindValue(row.rowid);
            ExecQuery(query);
            row.values = m_buffer;
        }
        m_lastModified = row.rowid;
    }
    m_editMode = EditMode::None;
    NotifyChanged();
}

std::vector<QVariant> Recordset::ReadRow(qint64 rowid) const
{
    QSqlQuery query =
        PreparedQuery(m_data->connectionName,
                      QStringLiteral("SELECT * FROM [%1] WHERE rowid = ?").arg(m_data->table));
    query.addBindValue(rowid);
    ExecQuery(query);
    std::vector<QVariant> values(m_data->fields.size());
    if (query.next()) {
        const QSqlRecord record = query.record();
        for (int i = 0; i < int(values.size()); ++i)
            values[i] = record.value(m_data->fields[i]);
    }
    return values;
}

void Recordset::Delete()
{
    const qint64 rowid = CurrentRow().rowid;
    QSqlQuery query =
        PreparedQuery(m_data->connectionName,
                      QStringLiteral("DELETE FROM [%1] WHERE rowid = ?").arg(m_data->table));
    query.addBindValue(rowid);
    ExecQuery(query);
    m_data->rows[m_pos].deleted = true;
    ++m_data->deletedCount;
    NotifyChanged();
}

int Recordset::SlotCount() const
{
    return m_data ? int(m_data->rows.size()) : 0;
}

bool Recordset::IsDeletedAt(int slot) const
{
    return m_data->rows.at(slot).deleted;
}

QVariant Recordset::ValueAt(int slot, int field) const
{
    return m_data->rows.at(slot).values.at(field);
}

qint64 Recordset::BookmarkAt(int slot) const
{
    return m_data->rows.at(slot).rowid;
}

int Recordset::Subscribe(std::function<void()> callback) const
{
    RequireOpen();
    const int id = m_data->nextSubscription++;
    m_data->observers.emplace_back(id, std::move(callback));
    return id;
}

void Recordset::Unsubscribe(int subscription) const
{
    if (!m_data)
        return;
    std::erase_if(m_data->observers,
                  [subscription](const auto& entry) { return entry.first == subscription; });
}

void Recordset::NotifyChanged() const
{
    // A copy: a callback may subscribe or unsubscribe.
    const auto observers = m_data->observers;
    for (const auto& entry : observers)
        entry.second();
}

namespace Field {

bool ToBool(const QVariant& value)
{
    if (value.isNull())
        return false;
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok ? number != 0.0 : value.toBool();
}

} // namespace Field

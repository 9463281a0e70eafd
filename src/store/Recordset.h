#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <vector>

class Database;

// The database operations the system's routines are written against: a dynaset over one
// table, opened by table name or by "SELECT * FROM [Table] ...". Its rows are read when it
// is opened or requeried; clones share those rows and see each other's changes, each with
// a position of its own. Every change is written through to the file at once.
// A bookmark is the row's identity (its ID where the table has one).
class Recordset {
public:
    Recordset() = default;
    static Recordset Open(Database& db, const QString& nameOrSelect);

    bool IsOpen() const { return m_data != nullptr; }
    void Close();
    Recordset Clone() const;
    void Requery();

    bool IsEOF() const;
    bool IsBOF() const;
    int RecordCount() const;
    // -1 without a current row.
    int AbsolutePosition() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    // Criteria are SQL conditions on the table, e.g. "Id = 5" or "File = 'x'".
    void FindFirst(const QString& criteria);
    bool NoMatch() const { return m_noMatch; }

    qint64 Bookmark() const;
    void SetBookmark(qint64 bookmark);
    qint64 LastModified() const { return m_lastModified; }

    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();

    QStringList FieldNames() const;
    // -1 for a name the recordset does not have; names match without regard to case.
    int FieldIndex(const QString& field) const;
    QVariant Value(const QString& field) const;
    QVariant Value(int index) const;
    bool IsNull(const QString& field) const { return Value(field).isNull(); }
    void SetValue(const QString& field, const QVariant& value);
    QByteArray GetChunk(const QString& field, int offset, int count) const;
    void AppendChunk(const QString& field, const QByteArray& bytes);

    const QString& Table() const;

    // For views: every row slot in order, deleted ones included, read without moving.
    int SlotCount() const;
    bool IsDeletedAt(int slot) const;
    QVariant ValueAt(int slot, int field) const;
    qint64 BookmarkAt(int slot) const;
    // Calls back after every change of a row, through this recordset or any clone of it.
    int Subscribe(std::function<void()> callback) const;
    void Unsubscribe(int subscription) const;

private:
    struct Row {
        qint64 rowid = 0;
        std::vector<QVariant> values;
        bool deleted = false;
    };
    struct Data {
        QString connectionName;
        QString source;
        QString table;
        QStringList fields;
        QHash<QString, int> indexOfLowerName;
        std::vector<Row> rows;
        int deletedCount = 0;
        std::vector<std::pair<int, std::function<void()>>> observers;
        int nextSubscription = 1;
    };
    enum class EditMode { None, Edit, AddNew };

    static std::shared_ptr<Data> Load(const QString& connectionName, const QString& source);
    std::vector<QVariant> ReadRow(qint64 rowid) const;
    const Row& CurrentRow() const;
    int RequireField(const QString& field) const;
    void RequireOpen() const;
    void SkipDeletedForward();
    void SkipDeletedBackward();
    void NotifyChanged() const;

    std::shared_ptr<Data> m_data;
    int m_pos = -1;
    bool m_noMatch = false;
    qint64 m_lastModified = 0;
    EditMode m_editMode = EditMode::None;
    std::vector<QVariant> m_buffer;
    std::vector<bool> m_changed;
};

// Readers with the system's rules for values of the file.
namespace Field {
// Any non-zero number reads as True; NULL reads as false.
bool ToBool(const QVariant& value);
// True and False as the file stores them.
inline QVariant FromBool(bool value)
{
    return value ? -1 : 0;
}
} // namespace Field

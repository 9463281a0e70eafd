#include "store/Database.h"

#include "common/RuntimeError.h"
#include "common/TextHelpers.h"

#include <QAtomicInt>
#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <sqlite3.h>

namespace {

QAtomicInt connectionCounter;

// UCASE and its kin of the original engine's SQL, so statements read as the system wrote them.
void UpperCase(sqlite3_context* context, int argc, sqlite3_value** argv)
{
    if (argc != 1 || sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
    const QByteArray upper = QString::fromUtf8(text).toUpper().toUtf8();
    sqlite3_result_text(context, upper.constData(), int(upper.size()), SQLITE_TRANSIENT);
}

void RegisterFunctions(const QSqlDatabase& db)
{
    const QVariant handle = db.driver()->handle();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0)
        return;
    sqlite3* sqlite = *static_cast<sqlite3* const*>(handle.data());
    if (sqlite)
        sqlite3_create_function(sqlite, "UCASE", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                UpperCase, nullptr, nullptr);
}

[[noreturn]] void ThrowSqlError(const QSqlError& error)
{
    throw RuntimeError(ErrorNumber::DatabaseEngine, error.text());
}

} // namespace

Database::Database()
    : m_connectionName(QStringLiteral("nightreel-%1").arg(connectionCounter.fetchAndAddRelaxed(1)))
{
}

Database::~Database()
{
    Close();
}

QSqlDatabase Database::Connection() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

void Database::Open(const QString& path)
{
    Close();
    if (!QFileInfo(path).isFile())
        throw RuntimeError(ErrorNumber::CouldNotFindFile,
                           QStringLiteral("Couldn't find file '%1'.").arg(path));
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
        db.setDatabaseName(path);
        if (!db.open()) {
            const QSqlError error = db.lastError();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_connectionName);
            ThrowSqlError(error);
        }
        // SQLite opens anything; the first read tells whether it is a database.
        QSqlQuery probe(db);
        if (!probe.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
            probe = QSqlQuery();
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(m_connectionName);
            throw RuntimeError(ErrorNumber::UnrecognizedDatabase,
                               QStringLiteral("Unrecognized database format '%1'.").arg(path));
        }
        RegisterFunctions(db);
    }
    m_path = path;
    m_open = true;
}

void Database::Close()
{
    if (!m_open)
        return;
    {
        QSqlDatabase db = Connection();
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connectionName);
    m_open = false;
}

void Database::Execute(const QString& sql)
{
    if (!m_open)
        throw RuntimeError(ErrorNumber::ObjectRequired, QStringLiteral("Object required"));
    QSqlQuery query(Connection());
    if (!query.exec(sql))
        ThrowSqlError(query.lastError());
}

bool Database::TableHasColumn(const QString& table, const QString& column)
{
    if (!m_open)
        throw RuntimeError(ErrorNumber::ObjectRequired, QStringLiteral("Object required"));
    QSqlQuery query(Connection());
    if (!query.exec(QStringLiteral("PRAGMA table_info(%1)").arg(Text::SqlQuoted(table))))
        ThrowSqlError(query.lastError());
    while (query.next()) {
        if (query.value(1).toString().compare(column, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

void Database::CompactInto(const QString& target)
{
    Execute(QStringLiteral("VACUUM INTO %1").arg(Text::SqlQuoted(target)));
}

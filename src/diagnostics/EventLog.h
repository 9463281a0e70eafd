#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>

class AppDatabase;
class Clock;
class RuntimeError;
class clsError;

enum EventType : qint16 { EventInformation = 0, EventWarning = 1, EventError = 2 };

// The one way to write the event log. Every entry is also written to the program's
// diagnostic output, so that what happens while the database is unusable is not lost.
class EventLog {
public:
    // The log lives in the database; its fill state and unviewed entries go to the error
    // state.
    EventLog(AppDatabase& database, clsError& error, const Clock& clock);

    static constexpr int FullAt = 951;
    static constexpr int LimitRows = 1000;

    // Never fails to the caller.
    void LogEvent(qint16 type, const QString& message, const QString& details);
    // The standard end of a routine's trap: an error entry naming the routine.
    void LogRuntimeError(const QString& procedureName, const RuntimeError& error);
    static QString RuntimeErrorDetails(const QString& procedureName, const RuntimeError& error);

    // Hears every entry, written or not (a full log drops it): the desktop notifications
    // follow the log. One listener; an empty one ends the listening. It must not throw.
    using Listener =
        std::function<void(qint16 type, const QString& message, const QString& details)>;
    void SetListener(Listener listener) { m_listener = std::move(listener); }

private:
    int CountEventLogRows();

    AppDatabase& m_database;
    clsError& m_error;
    const Clock& m_clock;
    Listener m_listener;

    Q_DECLARE_TR_FUNCTIONS(EventLog)
};

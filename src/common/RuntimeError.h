#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <exception>
#include <utility>

// A failure inside a routine, with the number and text that the trap of its entry point
// reports to the log, under the name of the routine where it arose when one marked it.
// Numbers follow the database engine's and the run time's where the system knew them.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString text)
        : m_number(number)
        , m_text(std::move(text))
        , m_what(m_text.toUtf8())
    {
    }
    int Number() const { return m_number; }
    const QString& Text() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }
    // The innermost routine that marked the error names it in the log; outer ones keep it.
    const QString& Routine() const { return m_routine; }
    void MarkRoutine(const char* routine)
    {
        if (m_routine.isEmpty())
            m_routine = QString::fromLatin1(routine);
    }

private:
    int m_number;
    QString m_text;
    QByteArray m_what;
    QString m_routine;
};

namespace ErrorNumber {
constexpr int Overflow = 6;
// Failures of the C++ library (allocation, bad access) carry no number of their own.
constexpr int InternalError = 51;
constexpr int InvalidUseOfNull = 94;
constexpr int FileNotFound = 53;
constexpr int PathFileAccess = 75;
constexpr int ObjectRequired = 424;
constexpr int DatabaseEngine = 3000;
constexpr int NoCurrentRecord = 3021;
constexpr int CouldNotFindFile = 3024;
constexpr int OperationNotSupported = 3251;
constexpr int ItemNotFound = 3265;
constexpr int RecordDeleted = 3167;
constexpr int UpdateWithoutEdit = 3020;
constexpr int UnrecognizedDatabase = 3343;
} // namespace ErrorNumber

// The run time's error for a NULL read where a value is required.
[[noreturn]] inline void ThrowInvalidUseOfNull()
{
    throw RuntimeError(ErrorNumber::InvalidUseOfNull, QStringLiteral("Invalid use of Null"));
}

// A value the system reads without a NULL test: a NULL there fails as the run time did.
inline QVariant NotNull(const QVariant& value)
{
    if (value.isNull())
        ThrowInvalidUseOfNull();
    return value;
}

// The failures of a routine that went on after its steps failed, thrown together at its end.
// Each step marked its own; the entry point's trap reports each, in order.
class StepFailures : public std::exception {
public:
    explicit StepFailures(QList<std::exception_ptr> failures)
        : m_failures(std::move(failures))
    {
    }
    const QList<std::exception_ptr>& Failures() const { return m_failures; }
    const char* what() const noexcept override { return "Several steps failed"; }

private:
    QList<std::exception_ptr> m_failures;
};

// Throws what a routine's steps left: nothing, the one failure as it was, or all together.
inline void ThrowFailures(const QList<std::exception_ptr>& failures)
{
    if (failures.size() == 1)
        std::rethrow_exception(failures.first());
    if (failures.size() > 1)
        throw StepFailures(failures);
}

// Runs a routine's body and lets any failure pass on, marked with the routine's name: the
// trap of the entry point logs it under that name, as the routine's own trap once did. The
// error is not handled here.
template <typename Body> decltype(auto) InRoutine(const char* routine, Body&& body)
{
    try {
        return body();
    } catch (RuntimeError& error) {
        error.MarkRoutine(routine);
        throw;
    } catch (const StepFailures&) {
        throw;
    } catch (const std::exception& error) {
        RuntimeError marked(ErrorNumber::InternalError, QString::fromLocal8Bit(error.what()));
        marked.MarkRoutine(routine);
        throw marked;
    }
}

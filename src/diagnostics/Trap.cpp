#include "diagnostics/Trap.h"

#include "diagnostics/EventLog.h"

namespace TrapDetail {

void Report(EventLog& log, const char* procedureName, const RuntimeError& error)
{
    log.LogRuntimeError(
        error.Routine().isEmpty() ? QString::fromLatin1(procedureName) : error.Routine(), error);
}

void Report(EventLog& log, const char* procedureName, const std::exception& error)
{
    log.LogRuntimeError(
        QString::fromLatin1(procedureName),
        RuntimeError(ErrorNumber::InternalError, QString::fromLocal8Bit(error.what())));
}

} // namespace TrapDetail

void ReportEach(EventLog& log, const char* procedureName, const QList<std::exception_ptr>& failures)
{
    for (const std::exception_ptr& failure : failures)
        Trap(log, procedureName, [&] { std::rethrow_exception(failure); });
}

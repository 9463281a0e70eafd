#include "diagnostics/Trap.h"

#include "diagnostics/EventLog.h"

namespace TrapDetail {

void Report(EventLog& log, const char* procedureName, const RuntimeError& error)
{
    log.LogRuntimeError(QString::fromLatin1(procedureName), error);
}

void Report(EventLog& log, const char* procedureName, const std::exception& error)
{
    // Failures of the C++ library (allocation, bad access) carry no number of their own.
    constexpr int InternalError = 51;
    log.LogRuntimeError(QString::fromLatin1(procedureName),
                        RuntimeError(InternalError, QString::fromLocal8Bit(error.what())));
}

} // namespace TrapDetail

void ReportEach(EventLog& log, const char* procedureName, const QList<std::exception_ptr>& failures)
{
    for (const std::exception_ptr& failure : failures)
        Trap(log, procedureName, [&] { std::rethrow_exception(failure); });
}

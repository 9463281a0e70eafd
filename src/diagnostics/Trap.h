#pragma once

#include "common/RuntimeError.h"

#include <QList>
#include <QString>
#include <exception>

class EventLog;

// The error trap of an entry point (a timer, a handler, a message of the task): runs the
// body and, when it fails, reports under the name of the routine where the error arose
// (InRoutine), else under the entry point's own, and returns false. Nothing is repaired;
// the caller goes on as the routine's rules say.
namespace TrapDetail {
void Report(EventLog& log, const char* procedureName, const RuntimeError& error);
void Report(EventLog& log, const char* procedureName, const std::exception& error);
} // namespace TrapDetail

// Reports each failure that a routine which carries on after errors gave back, under the
// routine's name.
void ReportEach(EventLog& log, const char* procedureName,
                const QList<std::exception_ptr>& failures);

template <typename Body> bool Trap(EventLog& log, const char* procedureName, Body&& body)
{
    try {
        body();
        return true;
    } catch (const RuntimeError& error) {
        TrapDetail::Report(log, procedureName, error);
    } catch (const StepFailures& failures) {
        ReportEach(log, procedureName, failures.Failures());
    } catch (const std::exception& error) {
        TrapDetail::Report(log, procedureName, error);
    }
    return false;
}

// Runs each step in turn under one routine's trap: a failing step is reported and the next
// still runs, as a routine that carries on after an error does.
template <typename... Steps>
void TrapEach(EventLog& log, const char* procedureName, Steps&&... steps)
{
    (Trap(log, procedureName, steps), ...);
}

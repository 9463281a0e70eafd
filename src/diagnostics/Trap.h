#pragma once

#include "common/RuntimeError.h"

#include <QString>
#include <exception>

class EventLog;

// A routine's error trap: runs the body and, when it fails, reports under the routine's
// own name and returns false. Nothing is repaired; the caller goes on as the routine's
// rules say.
namespace TrapDetail {
void Report(EventLog& log, const char* procedureName, const RuntimeError& error);
void Report(EventLog& log, const char* procedureName, const std::exception& error);
} // namespace TrapDetail

template <typename Body> bool Trap(EventLog& log, const char* procedureName, Body&& body)
{
    try {
        body();
        return true;
    } catch (const RuntimeError& error) {
        TrapDetail::Report(log, procedureName, error);
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

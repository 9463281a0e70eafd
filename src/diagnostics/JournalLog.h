#pragma once

// Sends the program's diagnostic output (every event log entry among it) to standard error,
// each line led by its syslog priority ("<3>" for an error, "<4>" a warning, "<6>"
// information), as the journal reads the output of a service.
namespace JournalLog {
void Install();
} // namespace JournalLog

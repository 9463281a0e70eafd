#pragma once

#include <QString>
#include <QVariant>

class QTextStream;

// Prints the recorder's answer to a command: as lines for a person, or as JSON for a script
// (an object, an array of objects, or for the commands that answer nothing, nothing).
namespace CtlOutput {
void Print(const QString& command, const QVariant& answer, bool json, QTextStream& out);
} // namespace CtlOutput

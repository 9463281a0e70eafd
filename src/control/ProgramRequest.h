#pragma once

#include "scheduling/ProgramEditor.h"
#include "scheduling/ProgramValidator.h"

#include <QVariantMap>
#include <optional>

// A program as a caller on the bus writes it: a map of the keys the interface lists, read
// into the values the program editor holds, and the editor's values written back as such
// a map.
namespace ProgramRequest {

// Sets the values the map names and leaves the rest; says what is wrong with a key that
// can't be read (an unknown format, a time that is no time, an unknown key).
std::optional<QString> Apply(const QVariantMap& request, ProgramFormValues& values);

// What the editor's checks read, as its controls would hold these values.
ProgramCheckValues CheckValues(const ProgramFormValues& values, bool editingExisting,
                               qint32 editProgramId);

QVariantMap ToMap(qint32 id, const ProgramFormValues& values);

} // namespace ProgramRequest

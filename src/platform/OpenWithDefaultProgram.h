#pragma once

#include <QString>

// Opens the file in the desktop's default program for its type. Returns a value above 32
// on success; otherwise the reason, in the numbers the players' messages show:
//  2 the file or the handler's program was not found, 5 access was refused,
// 11 the handler is not a program, 27 the handler could not be started for another reason,
// 31 no program is associated with the file's type.
int OpenWithDefaultProgram(const QString& file);

namespace DefaultProgramResult {
constexpr int Started = 42;
constexpr int FileNotFound = 2;
constexpr int AccessDenied = 5;
constexpr int BadFormat = 11;
constexpr int AssociationIncomplete = 27;
constexpr int NoAssociation = 31;
} // namespace DefaultProgramResult

#pragma once

#include <QString>

// True when the name holds a character that no file name may hold: / \ : * ? " < > |
bool InvalidFilenameCharacters(const QString& name);

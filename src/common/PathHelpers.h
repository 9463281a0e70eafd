#pragma once

#include <QString>

// True when the name holds a character that no file name may hold: / \ : * ? " < > |
bool InvalidFilenameCharacters(const QString& name);

// A file name the user typed, as it is stored: trimmed, without a trailing ".MP3" or ".WAV"
// of any case (the recording gets its own), and trimmed again. Empty when nothing is left.
QString UserFilenameBase(const QString& typed);

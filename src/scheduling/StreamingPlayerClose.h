#pragma once

#include <QString>

namespace StreamingPlayerClose {

// The program's StreamingPlayerClose value that leaves the player open after a recording.
inline const QString DoNotClose = QStringLiteral("DO_NOT_CLOSE");

} // namespace StreamingPlayerClose

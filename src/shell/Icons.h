#pragma once

#include <QIcon>

namespace Icons {
// The pictures of the tool bars, by name; they follow the application's palette.
QIcon Named(const QString& name);
// The program's own picture, for its windows.
QIcon Application();
} // namespace Icons

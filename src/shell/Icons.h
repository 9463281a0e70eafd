#pragma once

#include <QIcon>

// The pictures of the tool bars, drawn or taken from the style.
namespace Icons {
QIcon Named(const QString& name);
} // namespace Icons

#pragma once

#include <QByteArray>
#include <QStringList>

// The content of a saved recordings list: each path between double quotes, CR LF after
// each. Paths hold no double quote, so nothing is escaped.
namespace ListFile {

QByteArray Line(const QString& path);
// The quoted items in order; a text that ends inside an item gives the items before it.
QStringList ReadItems(const QByteArray& content);

} // namespace ListFile

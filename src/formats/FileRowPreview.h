#pragma once

#include <QString>

class QTextStream;

// "nightreel --inspect FILE": prints the row that the recordings list would get for the
// file, one "Name: value" a line (Title, File, Start, End, Format, Size), and returns 0.
// A file that no reader takes prints nothing and returns 1. The database is not touched.
int InspectFile(const QString& path, QTextStream& out);

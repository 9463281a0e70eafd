#pragma once

#include <QString>

// Text rules of the system's run time, kept where the system depends on them.
namespace Text {

// Trims blanks only (not tabs or line ends), as the system's readers do.
QString Trim(const QString& text);
// The number as a number-to-text conversion with a sign place gives it: " 5", "-5".
QString Str(qint64 number);
// The leading numeric value of a text ("12abc" is 12, "abc" is 0), blanks ignored.
double Val(const QString& text);
// Rounds half to even, as the system's integer conversions do.
qint64 RoundHalfEven(double value);
// A text for SQL: each ' doubled, the whole between single quotes.
QString SqlQuoted(const QString& text);
// The first n characters.
QString Left(const QString& text, int n);

} // namespace Text

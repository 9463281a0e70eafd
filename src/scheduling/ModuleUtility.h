#pragma once

#include <QString>
#include <array>

// Whether two time ranges [a0, a1) and [b0, b1) overlap. Ranges that only touch do not; a
// zero-length range inside the other does.
bool TimeRangesOverlap(double a0, double a1, double b0, double b1);

// The days of a weekly program as the grid shows them (index 0 is Sunday): runs of three
// or more days as a range ("Mon-Fri"), other days as names joined by commas; "" for none.
QString DaysString(const std::array<bool, 7>& days);

// How many days in a row are set from start on, counting towards Saturday only.
int ConsecDays(int start, const std::array<bool, 7>& days);

class QVariant;
class Recordset;

// The rows of the recordset, counted on a clone so that the caller's position stays.
qint32 RecordsetCount(const Recordset& rs);

#pragma once

#include "store/Options.h"

#include <QString>

// The texts and steps that both player panels show.
namespace PlayTime {

// Whole seconds as hours, ":", minutes and seconds with two digits each: "1:02:03".
QString HourMinSecsText(qint64 seconds);
// The clock time of a moment seconds after startTime (an automation date), in the system's
// time format: what the panels show when the recording's own clock is wanted.
QString ClockText(double startTime, qint64 seconds);
// "15 sec", "2 min".
QString StepLabel(const Options::PlayStep& step);
int StepSeconds(const Options::PlayStep& step);

} // namespace PlayTime

#include "player/PlayTime.h"

#include <QCoreApplication>

namespace PlayTime {

QString HourMinSecsText(qint64 seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

QString ClockText(double startTime, qint64 seconds)
{
    return Options::TimeText(startTime + double(seconds) / 86400.0);
}

QString StepLabel(const Options::PlayStep& step)
{
    return QString::number(step.Value) + (step.Minute
                                              ? QCoreApplication::translate("PlayTime", " min")
                                              : QCoreApplication::translate("PlayTime", " sec"));
}

int StepSeconds(const Options::PlayStep& step)
{
    return step.Minute ? step.Value * 60 : step.Value;
}

} // namespace PlayTime

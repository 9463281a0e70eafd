#pragma once

#include "common/AutomationDate.h"

#include <QDateTime>
#include <QVariantHash>

// Rows of Programs as the program editor writes them, for tests.
namespace Programs {

inline double At(int year, int month, int day, const QString& time)
{
    return AutomationDate::FromDateTime(
        QDateTime(QDate(year, month, day), QTime::fromString(time, "HH:mm:ss")));
}

inline double TimeOfDay(const QString& time)
{
    return AutomationDate::TimePart(At(1899, 12, 30, time));
}

// days: seven characters from Sunday to Saturday, "1" for a day of the program.
inline QVariantHash Weekly(const QString& description, const QString& start, const QString& end,
                           const QString& days)
{
    QVariantHash row{{"Enabled", -1},
                     {"Description", description},
                     {"DescriptionText", description},
                     {"Frequency", 1},
                     {"StartTime", TimeOfDay(start)},
                     {"EndTime", TimeOfDay(end)},
                     {"OneTimeDay", At(2026, 1, 1, "00:00:00")},
                     {"RecordingCancelled", 0},
                     {"StreamingPlayerClose", "DO_NOT_CLOSE"},
                     {"InternetLinkDelay", 0},
                     {"LaunchAppDelay", 0}};
    const char* names[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (int d = 0; d < 7; ++d)
        row.insert(names[d], days.at(d) == u'1' ? -1 : 0);
    return row;
}

// Mono PCM, as the program editor writes it.
inline QVariantHash WithPcmFormat(QVariantHash row, int rate = 44100, int bits = 16,
                                  const QString& text = "PCM 44,100 Hz, 16 Bit, Mono")
{
    row.insert({{"wfx_wFormatTag", 1},
                {"wfx_nChannels", 1},
                {"wfx_nSamplesPerSec", rate},
                {"wfx_nAvgBytesPerSec", rate * bits / 8},
                {"wfx_nBlockAlign", bits / 8},
                {"wfx_nBitsPerSample", bits},
                {"wfx_cbSize", 0},
                {"Flags", 0},
                {"CompressionMethod", text}});
    return row;
}

inline QVariantHash OneTime(const QString& description, double day, const QString& start,
                            const QString& end)
{
    QVariantHash row = Weekly(description, start, end, "0000000");
    row["Frequency"] = 0;
    row["OneTimeDay"] = day;
    return row;
}

} // namespace Programs

#include "store/Options.h"

#include "common/AutomationDate.h"
#include "common/FileHelpers.h"
#include "common/TextHelpers.h"
#include "store/RegKeys.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>
#include <limits>
#include <optional>

namespace {

const QString kSection = QStringLiteral("Settings");

QString Read(RegKeys& registry, const QString& name, const QString& defaultValue = {})
{
    return registry.GetSetting(kSection, name, defaultValue);
}

void Write(RegKeys& registry, const QString& name, const QString& value)
{
    registry.SaveSetting(kSection, name, value);
}

QString BoolText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

// The locale's long time format without the time zone: a stored time of day is local and
// zone-free, and a zone name would not read back.
QString LocaleTimeFormat()
{
    static const QRegularExpression zone(QStringLiteral("\\s*\\bt+\\b"));
    QString format = QLocale().timeFormat(QLocale::LongFormat);
    format.remove(zone);
    return format.trimmed();
}

// The locale's short date with the year written in full: a two-digit year would read back
// in the wrong century.
QString LocaleDateFormat()
{
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy")))
        format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return format;
}

// Some locales separate the time from AM/PM with a no-break space; texts typed by hand use
// a plain one.
QString NormalizedSpaces(const QString& text)
{
    QString normalized = text;
    normalized.replace(QChar(0x202F), u' ').replace(QChar(0x00A0), u' ');
    return normalized.simplified();
}

QTime ParseTime(const QString& text)
{
    const QLocale locale = QLocale();
    QTime time = locale.toTime(text, LocaleTimeFormat());
    if (time.isValid())
        return time;
    // Single letters take one or two digits, so "0:0:0" and "09:05:00" both read.
    static const QStringList fixed = {QStringLiteral("h:m:s AP"), QStringLiteral("h:m AP"),
                                      QStringLiteral("H:m:s"), QStringLiteral("H:m")};
    for (const QString& format : fixed) {
        time = QTime::fromString(text, format);
        if (time.isValid())
            return time;
    }
    return {};
}

QDate ParseDate(const QString& text)
{
    const QLocale locale = QLocale();
    QDate date = locale.toDate(text, LocaleDateFormat());
    if (!date.isValid())
        date = locale.toDate(text, locale.dateFormat(QLocale::ShortFormat));
    if (!date.isValid())
        date = QDate::fromString(text, QStringLiteral("M/d/yyyy"));
    return date;
}

// The numeric value of a trimmed text rounded to 16 bits, or nothing for an empty text or
// one beyond 16 bits.
std::optional<qint16> Int16Value(const QString& text)
{
    const QString trimmed = Text::Trim(text);
    if (trimmed.isEmpty())
        return std::nullopt;
    const double value = Text::Val(trimmed);
    // Tested before rounding so that huge values and infinities never reach the cast.
    if (!(value > -32769.0 && value < 32768.0))
        return std::nullopt;
    const qint64 rounded = Text::RoundHalfEven(value);
    if (rounded < std::numeric_limits<qint16>::min() ||
        rounded > std::numeric_limits<qint16>::max())
        return std::nullopt;
    return qint16(rounded);
}

} // namespace

void Options::GetIntOption(RegKeys& registry, const QString& name, qint16& variable, qint16 min,
                           qint16 max, qint16 defaultValue)
{
    const std::optional<qint16> value = Int16Value(Read(registry, name));
    if (value && *value >= min && *value <= max) {
        variable = *value;
        return;
    }
    variable = defaultValue;
    Write(registry, name, QString::number(defaultValue));
}

void Options::GetBlnOption(RegKeys& registry, const QString& name, bool& variable,
                           bool defaultValue)
{
    // Exact on purpose: only the two texts the program writes are accepted.
    const QString text = Read(registry, name);
    if (text == QLatin1String("True")) {
        variable = true;
    } else if (text == QLatin1String("False")) {
        variable = false;
    } else {
        variable = defaultValue;
        Write(registry, name, BoolText(defaultValue));
    }
}

void Options::GetTimeOption(RegKeys& registry, const QString& name, double& variable)
{
    double date = 0.0;
    if (ParseDateText(Read(registry, name), date)) {
        variable = AutomationDate::TimePart(date);
        return;
    }
    variable = 0.0;
    Write(registry, name, DefaultTimeText);
}

void Options::GetMixerPath(RegKeys& registry)
{
    QString path = Text::Trim(Read(registry, QStringLiteral("MixerFilePath")));
    if (!path.isEmpty()) {
        // A bare program name is looked for on the PATH, as the launcher will find it;
        // anything with a folder in it must be a file with content.
        const bool exists = path.contains(u'/') ? FileExistsOrClear(path)
                                                : !QStandardPaths::findExecutable(path).isEmpty();
        if (!exists)
            path.clear();
    }
    if (path.isEmpty()) {
        path = DefaultMixerFilePath;
        Write(registry, QStringLiteral("MixerFilePath"), path);
    }
    MixerFilePath = path;
}

void Options::GetPlayStepSizes(RegKeys& registry)
{
    std::array<PlayStep, 6> read{};
    bool fault = false;
    for (size_t n = 0; n < read.size(); ++n) {
        const QString index = QString::number(n);
        // The read defaults are invalid on purpose: a missing value resets the table.
        bool minuteOk = false;
        bool valueOk = false;
        const int minute = Text::Trim(Read(registry, QStringLiteral("PlayStepSizeMinute") + index,
                                           QStringLiteral("10")))
                               .toInt(&minuteOk);
        const int value = Text::Trim(Read(registry, QStringLiteral("PlayStepSizeValue") + index,
                                          QStringLiteral("100")))
                              .toInt(&valueOk);
        if (!minuteOk || !valueOk || (minute != 0 && minute != 1) || value < 1 || value > 59)
            fault = true;
        read[n] = {minute == 1, value};
    }
    if (fault) {
        PlayStepSizes = FactoryPlayStepSizes;
        SaveCurrentStepSizeSettings(registry);
    } else {
        PlayStepSizes = read;
    }
}

void Options::SaveCurrentStepSizeSettings(RegKeys& registry) const
{
    for (size_t n = 0; n < PlayStepSizes.size(); ++n) {
        const QString index = QString::number(n);
        Write(registry, QStringLiteral("PlayStepSizeMinute") + index,
              PlayStepSizes[n].Minute ? QStringLiteral("1") : QStringLiteral("0"));
        Write(registry, QStringLiteral("PlayStepSizeValue") + index,
              QString::number(PlayStepSizes[n].Value));
    }
}

void Options::GetRecentRecording(RegKeys& registry)
{
    RecentRecordingFilename = Text::Trim(Read(registry, QStringLiteral("RecentRecordingFilename")));
    RecentRecordingDescription =
        Text::Trim(Read(registry, QStringLiteral("RecentRecordingDescription")));
    double time = 0.0;
    RecentRecordingTime =
        ParseDateText(
            Read(registry, QStringLiteral("RecentRecordingTime"), QStringLiteral("0:0:0")), time)
            ? time
            : 0.0;
    if (!RecentRecordingFilename.isEmpty() && !FileExistsOrClear(RecentRecordingFilename))
        SaveRecentRecording(registry, QString(), QString(), 0.0);
}

void Options::SaveRecentRecording(RegKeys& registry, const QString& filename,
                                  const QString& description, double startTime)
{
    RecentRecordingFilename = filename;
    RecentRecordingDescription = description;
    RecentRecordingTime = startTime;
    Write(registry, QStringLiteral("RecentRecordingFilename"), filename);
    Write(registry, QStringLiteral("RecentRecordingDescription"), description);
    Write(registry, QStringLiteral("RecentRecordingTime"), DateText(startTime));
}

void Options::GetOptions(RegKeys& registry)
{
    // Recording and disk
    DefaultRecordingDirectory =
        Text::Trim(Read(registry, QStringLiteral("DefaultRecordingDirectory")));
    RecordingInput = Read(registry, QStringLiteral("RecordingInput")).trimmed();
    GetIntOption(registry, QStringLiteral("WarnRecMegsLeft"), WarnRecMegsLeft, 10, 20000,
                 DefaultWarnRecMegsLeft);
    GetIntOption(registry, QStringLiteral("StopRecMegsLeft"), StopRecMegsLeft, 5, 20000,
                 DefaultStopRecMegsLeft);
    GetIntOption(registry, QStringLiteral("LongRecordingHours"), LongRecordingHours, 1, 23, 3);
    GetBlnOption(registry, QStringLiteral("ConfirmLongRecordings"), ConfirmLongRecordings, true);
    GetIntOption(registry, QStringLiteral("DefaultRecordFileNameFormat"),
                 DefaultRecordFileNameFormat, 0, 2, 0);
    GetBlnOption(registry, QStringLiteral("SaveMP3FileExtension"), SaveMP3FileExtension, true);
    GetBlnOption(registry, QStringLiteral("ConvertToMP3"), ConvertToMP3, false);

    // Manual recording
    GetIntOption(registry, QStringLiteral("DefaultManualRecordingDurationHours"),
                 DefaultManualRecordingDurationHours, 0, 23, 1);
    GetIntOption(registry, QStringLiteral("DefaultManualRecordingDurationMinutes"),
                 DefaultManualRecordingDurationMinutes, 0, 59, 0);
    GetIntOption(registry, QStringLiteral("DefaultManualRecordingDurationSeconds"),
                 DefaultManualRecordingDurationSeconds, 0, 59, 0);
    GetBlnOption(registry, QStringLiteral("ConfirmStopManualRecording"), ConfirmStopManualRecording,
                 true);
    GetBlnOption(registry, QStringLiteral("DisableKeyboardActivatedRecording"),
                 DisableKeyboardActivatedRecording, false);
    GetBlnOption(registry, QStringLiteral("AllowJoystickActivation"), AllowJoystickActivation,
                 false);
    GetBlnOption(registry, QStringLiteral("EnableJoystickButton1"), EnableJoystickButton1, true);
    GetBlnOption(registry, QStringLiteral("EnableJoystickButton2"), EnableJoystickButton2, true);
    GetBlnOption(registry, QStringLiteral("EnableJoystickButton3"), EnableJoystickButton3, true);
    GetBlnOption(registry, QStringLiteral("EnableJoystickButton4"), EnableJoystickButton4, true);

    // Purge
    GetBlnOption(registry, QStringLiteral("PurgeRecordings"), PurgeRecordings, false);
    GetIntOption(registry, QStringLiteral("PurgeDays"), PurgeDays, 3, 999, 30);
    GetTimeOption(registry, QStringLiteral("PurgeTime"), PurgeTime);

    // General
    GetBlnOption(registry, QStringLiteral("RemoveExpiredPrograms"), RemoveExpiredPrograms, true);
    GetBlnOption(registry, QStringLiteral("RemoveMixerBtn"), RemoveMixerBtn, false);
    GetMixerPath(registry);
    GetBlnOption(registry, QStringLiteral("ShowActualTimeInPlayer"), ShowActualTimeInPlayer, false);
    GetBlnOption(registry, QStringLiteral("ShowRecordingTimeInTaskBar"), ShowRecordingTimeInTaskBar,
                 false);
    GetBlnOption(registry, QStringLiteral("HiddenWindowStatupMode"), HiddenWindowStatupMode, false);
    GetBlnOption(registry, QStringLiteral("ShowSplashScreen"), ShowSplashScreen, true);

    GetRecentRecording(registry);
    GetPlayStepSizes(registry);

    // Unattended running
    GetBlnOption(registry, QStringLiteral("KeepAwakeForRecordings"), KeepAwakeForRecordings, true);
    GetBlnOption(registry, QStringLiteral("SilenceAlarm"), SilenceAlarm, true);
    GetIntOption(registry, QStringLiteral("SilenceThresholdDb"), SilenceThresholdDb, -90, -1, -60);
    GetIntOption(registry, QStringLiteral("SilenceAlarmSeconds"), SilenceAlarmSeconds, 1, 32767,
                 120);
    GetBlnOption(registry, QStringLiteral("ShowDesktopNotifications"), ShowDesktopNotifications,
                 true);
    GetIntOption(registry, QStringLiteral("PaddingSeconds"), PaddingSeconds, 0, MaxPaddingSeconds,
                 0);

    // A warning that comes after the stop would never be seen: both go back to the defaults.
    if (WarnRecMegsLeft < StopRecMegsLeft) {
        WarnRecMegsLeft = DefaultWarnRecMegsLeft;
        StopRecMegsLeft = DefaultStopRecMegsLeft;
        Write(registry, QStringLiteral("WarnRecMegsLeft"), QString::number(WarnRecMegsLeft));
        Write(registry, QStringLiteral("StopRecMegsLeft"), QString::number(StopRecMegsLeft));
    }
}

void Options::SaveStartupMode(RegKeys& registry) const
{
    Write(registry, QStringLiteral("HiddenWindowStatupMode"), BoolText(HiddenWindowStatupMode));
}

void Options::SaveOptions(RegKeys& registry) const
{
    const auto saveBool = [&registry](const QString& name, bool value) {
        Write(registry, name, BoolText(value));
    };
    const auto saveInt = [&registry](const QString& name, qint16 value) {
        Write(registry, name, QString::number(value));
    };

    // Recording and disk
    Write(registry, QStringLiteral("DefaultRecordingDirectory"), DefaultRecordingDirectory);
    Write(registry, QStringLiteral("RecordingInput"), RecordingInput);
    saveInt(QStringLiteral("WarnRecMegsLeft"), WarnRecMegsLeft);
    saveInt(QStringLiteral("StopRecMegsLeft"), StopRecMegsLeft);
    saveInt(QStringLiteral("LongRecordingHours"), LongRecordingHours);
    saveBool(QStringLiteral("ConfirmLongRecordings"), ConfirmLongRecordings);
    saveInt(QStringLiteral("DefaultRecordFileNameFormat"), DefaultRecordFileNameFormat);

    // Manual recording
    saveInt(QStringLiteral("DefaultManualRecordingDurationHours"),
            DefaultManualRecordingDurationHours);
    saveInt(QStringLiteral("DefaultManualRecordingDurationMinutes"),
            DefaultManualRecordingDurationMinutes);
    saveInt(QStringLiteral("DefaultManualRecordingDurationSeconds"),
            DefaultManualRecordingDurationSeconds);
    saveBool(QStringLiteral("ConfirmStopManualRecording"), ConfirmStopManualRecording);
    saveBool(QStringLiteral("AllowJoystickActivation"), AllowJoystickActivation);

    // Purge
    saveBool(QStringLiteral("PurgeRecordings"), PurgeRecordings);
    saveInt(QStringLiteral("PurgeDays"), PurgeDays);
    Write(registry, QStringLiteral("PurgeTime"), TimeText(PurgeTime));

    // General
    saveBool(QStringLiteral("RemoveExpiredPrograms"), RemoveExpiredPrograms);
    Write(registry, QStringLiteral("MixerFilePath"), MixerFilePath);
    saveBool(QStringLiteral("ShowActualTimeInPlayer"), ShowActualTimeInPlayer);
    saveBool(QStringLiteral("ShowRecordingTimeInTaskBar"), ShowRecordingTimeInTaskBar);
    SaveStartupMode(registry);
    saveBool(QStringLiteral("ShowSplashScreen"), ShowSplashScreen);
    Write(registry, QStringLiteral("WavPlayer"), WavPlayer);
    Write(registry, QStringLiteral("Mp3Player"), Mp3Player);

    // Unattended running
    saveBool(QStringLiteral("KeepAwakeForRecordings"), KeepAwakeForRecordings);
    saveBool(QStringLiteral("SilenceAlarm"), SilenceAlarm);
    saveBool(QStringLiteral("ShowDesktopNotifications"), ShowDesktopNotifications);
    saveInt(QStringLiteral("PaddingSeconds"), PaddingSeconds);
}

QString Options::TimeText(double time)
{
    return QLocale().toString(AutomationDate::ToDateTime(time).time(), LocaleTimeFormat());
}

QString Options::DateText(double date)
{
    // As a date variable prints: no time when it is midnight, no date when it is day 0.
    const QDateTime moment = AutomationDate::ToDateTime(date);
    const QLocale locale = QLocale();
    const bool hasDate = AutomationDate::DatePart(date) != 0.0;
    const bool hasTime = moment.time() != QTime(0, 0);
    if (!hasDate)
        return TimeText(date);
    const QString day = locale.toString(moment.date(), LocaleDateFormat());
    return hasTime ? day + u' ' + TimeText(date) : day;
}

bool Options::ParseTimeText(const QString& text, double& time)
{
    const QTime parsed = ParseTime(NormalizedSpaces(text));
    if (!parsed.isValid())
        return false;
    time = AutomationDate::FromTime(parsed.hour(), parsed.minute(), parsed.second());
    return true;
}

bool Options::ParseDateText(const QString& text, double& date)
{
    const QString normalized = NormalizedSpaces(text);
    if (normalized.isEmpty())
        return false;
    if (ParseTimeText(normalized, date))
        return true;
    QDate day = ParseDate(normalized);
    if (day.isValid()) {
        date = AutomationDate::FromDate(day);
        return true;
    }
    // A date followed by a time; the date itself may hold blanks ("1 Jun 2026").
    for (qsizetype space = normalized.indexOf(u' '); space >= 0;
         space = normalized.indexOf(u' ', space + 1)) {
        day = ParseDate(normalized.left(space));
        const QTime time = ParseTime(normalized.mid(space + 1));
        if (day.isValid() && time.isValid()) {
            date = AutomationDate::FromDateTime(QDateTime(day, time));
            return true;
        }
    }
    return false;
}

#pragma once

#include <QString>
#include <QtGlobal>
#include <array>

class RegKeys;

// The user's options as the program holds them during a run: read once at start-up from
// the section "Settings", written back when the options dialog sets the members.
// Members carry the names of their settings.
//
// The typed readers share one rule: a value that is absent or not acceptable gives the
// default, and the default is written back, so that the store always ends up holding a
// valid value for everything the program has read.
class Options {
public:
    // One row of the players' forward/back step table.
    struct PlayStep {
        bool Minute; // false: Value counts seconds
        int Value;   // 1 to 59
    };
    static constexpr std::array<PlayStep, 6> FactoryPlayStepSizes{
        {{false, 15}, {false, 30}, {true, 1}, {true, 2}, {true, 5}, {true, 10}}};

    static constexpr qint16 DefaultWarnRecMegsLeft = 50;
    static constexpr qint16 DefaultStopRecMegsLeft = 25;
    static inline const QString DefaultMixerFilePath = QStringLiteral("pavucontrol");
    // The text stored for a time of day that is missing: midnight.
    static inline const QString DefaultTimeText = QStringLiteral("12:00:00 AM");

    // Recording and disk
    QString DefaultRecordingDirectory;
    // The sound server's source that recordings are taken from, by its name; empty for the
    // server's default. A program may name its own.
    QString RecordingInput;
    qint16 WarnRecMegsLeft = DefaultWarnRecMegsLeft; // Mbytes free at which to warn
    qint16 StopRecMegsLeft = DefaultStopRecMegsLeft; // Mbytes free at which to stop
    qint16 LongRecordingHours = 3;
    bool ConfirmLongRecordings = true;
    qint16 DefaultRecordFileNameFormat = 0;
    bool SaveMP3FileExtension = true;
    bool ConvertToMP3 = false;

    // Manual recording
    qint16 DefaultManualRecordingDurationHours = 1;
    qint16 DefaultManualRecordingDurationMinutes = 0;
    qint16 DefaultManualRecordingDurationSeconds = 0;
    bool ConfirmStopManualRecording = true;
    bool DisableKeyboardActivatedRecording = false;
    bool AllowJoystickActivation = false;
    bool EnableJoystickButton1 = true;
    bool EnableJoystickButton2 = true;
    bool EnableJoystickButton3 = true;
    bool EnableJoystickButton4 = true;

    // Purge
    bool PurgeRecordings = false;
    qint16 PurgeDays = 30;
    double PurgeTime = 0.0; // time of day as a fraction of a day

    // General
    bool RemoveExpiredPrograms = true;
    bool RemoveMixerBtn = false;
    QString MixerFilePath = DefaultMixerFilePath;
    bool ShowActualTimeInPlayer = false;
    bool ShowRecordingTimeInTaskBar = false;
    bool HiddenWindowStatupMode = false; // spelled so in every store; keep the name
    bool ShowSplashScreen = true;
    // Not read by GetOptions: the player choice sets these at the first activation, once
    // it knows whether the enhanced player can run.
    QString WavPlayer;
    QString Mp3Player;

    // Most recent recording
    QString RecentRecordingFilename;
    QString RecentRecordingDescription;
    double RecentRecordingTime = 0.0; // automation date; 0 when there is none

    std::array<PlayStep, 6> PlayStepSizes = FactoryPlayStepSizes;

    // Unattended running: the machine kept awake from a program's pre-launch time to the end
    // of its recording and conversion, and a warning when a recording's input stays below
    // the threshold (dBFS) for the given seconds.
    bool KeepAwakeForRecordings = true;
    bool SilenceAlarm = true;
    qint16 SilenceThresholdDb = -60;
    qint16 SilenceAlarmSeconds = 120;
    // What goes wrong while nobody watches also goes to the desktop's notifications.
    bool ShowDesktopNotifications = true;
    // Scheduled recordings start this many seconds early and end as many late, since radio
    // programs seldom keep their times.
    static constexpr qint16 MaxPaddingSeconds = 600;
    qint16 PaddingSeconds = 0;

    // Reads every option but the window layout and the player choice, in a fixed order,
    // then repairs a warning limit set below the stopping limit.
    void GetOptions(RegKeys& registry);
    // Writes every option the options dialog edits, each under its setting's name. The step
    // table and the most recent recording have savers of their own.
    void SaveOptions(RegKeys& registry) const;
    // The start-up mode alone: the dialog keeps it even when it refuses the rest.
    void SaveStartupMode(RegKeys& registry) const;

    // A whole number within min..max; anything else (no value, no number, beyond 16 bits,
    // out of range) takes defaultValue and stores it.
    static void GetIntOption(RegKeys& registry, const QString& name, qint16& variable, qint16 min,
                             qint16 max, qint16 defaultValue);
    // Exactly "True" or "False"; anything else, "true" too, takes defaultValue and stores it.
    static void GetBlnOption(RegKeys& registry, const QString& name, bool& variable,
                             bool defaultValue);
    // The time of day of the stored text. A missing or unreadable text gives midnight and
    // stores DefaultTimeText.
    static void GetTimeOption(RegKeys& registry, const QString& name, double& variable);

    // MixerFilePath, if it names an existing file or a program on the PATH; otherwise the
    // default mixer, which is stored.
    void GetMixerPath(RegKeys& registry);
    // The step table; one bad value anywhere puts back the whole factory table and stores it.
    void GetPlayStepSizes(RegKeys& registry);
    void SaveCurrentStepSizeSettings(RegKeys& registry) const;

    // The most recent recording. A file that is gone clears all three, here and in the
    // store, so the Play button never offers what isn't there.
    void GetRecentRecording(RegKeys& registry);
    void SaveRecentRecording(RegKeys& registry, const QString& filename, const QString& description,
                             double startTime);

    // Texts of times and dates as the store keeps them: in the default locale (the user's,
    // unless the application sets another), read back tolerantly (12- and 24-hour clocks,
    // with or without seconds). Parsing gives false for a text that is no time or date.
    static QString TimeText(double time);
    static QString DateText(double date);
    static bool ParseTimeText(const QString& text, double& time);
    static bool ParseDateText(const QString& text, double& date);
};

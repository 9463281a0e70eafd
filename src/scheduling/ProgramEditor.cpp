#include "scheduling/ProgramEditor.h"

#include "common/AutomationDate.h"
#include "common/FileHelpers.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "formats/FormatStore.h"
#include "scheduling/ModuleUtility.h"
#include "scheduling/clsWeekdays.h"
#include "store/AppDatabase.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <algorithm>

namespace ProgramEditor {

namespace {

const char* const kDayColumns[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

// A profile counts only while its file is there with content.
QString ExistingProfile(const QString& mixerFolder, const QString& name)
{
    if (name.isEmpty())
        return QString();
    return FileExistsOrClear(mixerFolder + u'/' + name + QStringLiteral(".mxr")) ? name : QString();
}

// The padded window of an occurrence on its real date, in whole seconds; an end before the
// start is on the next day.
void RealRange(double day, double startTime, double endTime, int padSeconds, double& begin,
               double& end)
{
    const double date = AutomationDate::DatePart(day);
    double endDate = date + AutomationDate::TimePart(endTime);
    if (AutomationDate::TimePart(startTime) > AutomationDate::TimePart(endTime))
        endDate += 1.0;
    begin = double(AutomationDate::WholeSeconds(date + AutomationDate::TimePart(startTime)) -
                   padSeconds);
    end = double(AutomationDate::WholeSeconds(endDate) + padSeconds);
}

} // namespace

qint16 DelayFromText(const QString& text)
{
    const qint64 number = Text::RoundHalfEven(Text::Val(Text::Trim(text)));
    if (number < -32768 || number > 32767)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
    return qint16(std::clamp<qint64>(number, 0, 120));
}

qint32 DurationSeconds(double startTime, double endTime)
{
    const double start = AutomationDate::TimePart(startTime);
    double end = AutomationDate::TimePart(endTime);
    if (end < start)
        end += 1.0;
    return qint32(AutomationDate::SecondsBetween(start, end));
}

QString DurationText(qint32 seconds)
{
    return QString::number(seconds / 3600) +
           QCoreApplication::translate("ProgramEditor", " hours ") +
           QString::number(seconds % 3600 / 60) +
           QCoreApplication::translate("ProgramEditor", " min ") + QString::number(seconds % 60) +
           QCoreApplication::translate("ProgramEditor", " sec");
}

QString DiskSpaceText(float mbytes)
{
    if (mbytes >= 10.0f)
        return QString::number(double(mbytes), 'f', 1) +
               QCoreApplication::translate("ProgramEditor", " Mbytes");
    return QString::number(double(mbytes * 1024.0f), 'f', 1) +
           QCoreApplication::translate("ProgramEditor", " Kbytes");
}

QString DescriptionText(const QString& description, bool enabled)
{
    return enabled ? description : Text::Left(description, 25) + DisabledMark();
}

ProgramFormValues NewProgramValues(double now)
{
    ProgramFormValues v;
    const double inOneHour = AutomationDate::AddSeconds(now, 3600);
    const double inTwoHours = AutomationDate::AddSeconds(now, 7200);
    v.FormStartTime = AutomationDate::FromTime(AutomationDate::Hour(inOneHour), 0, 0);
    v.FormEndTime = AutomationDate::FromTime(AutomationDate::Hour(inTwoHours), 0, 0);
    v.FormOneTimeDay = AutomationDate::DatePart(inOneHour);
    return v;
}

ProgramFormValues ReadProgramRow(const QString& mixerFolder, Recordset& rs)
{
    ProgramFormValues v;
    const ProgramRow row = ProgramRow::Read(rs);
    ReadFormat(v.FormFormat, rs);
    v.FormFormat.CalculateTextCompressionMethodString();
    v.FormCompressionMethod = rs.Value(QStringLiteral("CompressionMethod")).toString();
    v.FormEnabled = Field::ToBool(rs.Value(QStringLiteral("Enabled")));
    v.FormDescription = row.Description;
    v.FormStartTime = rs.Value(QStringLiteral("StartTime")).toDouble();
    v.FormEndTime = rs.Value(QStringLiteral("EndTime")).toDouble();
    const QVariant frequency = rs.Value(QStringLiteral("Frequency"));
    v.FormFrequency = !frequency.isNull() && frequency.toInt() == 0 ? 0 : 1;
    v.FormOneTimeDay = rs.Value(QStringLiteral("OneTimeDay")).toDouble();
    for (int d = 0; d < 7; ++d)
        v.FormDays[d] = Field::ToBool(rs.Value(QString::fromLatin1(kDayColumns[d])));

    v.FormFilenameUser = row.FilenameUser;
    if (v.FormFilenameUser.isEmpty()) {
        v.FormFilenamePrefix = row.FilenamePrefix;
        v.FormFilenameSuffix = row.FilenameSuffix;
    }
    v.FormLaunchAppPrior = row.LaunchAppPrior;
    v.FormLaunchAppDelay = v.FormLaunchAppPrior.isEmpty() ? 0 : row.LaunchAppDelay;
    v.FormLaunchAppAfter = row.LaunchAppAfter;
    v.FormLaunchAfterOnlyIfOk = row.LaunchAfterOnlyIfOk;
    v.FormInternetLink = row.InternetLink;
    if (!v.FormInternetLink.isEmpty()) {
        v.FormInternetLinkDelay = row.InternetLinkDelay;
        v.FormHangupInternetConnection = row.HangupInternetConnection;
    }
    v.FormStreamingPlayerClose = row.StreamingPlayerClose;
    v.FormMixerProfileBefore = ExistingProfile(mixerFolder, row.MixerProfileBefore);
    v.FormMixerProfileAfter = ExistingProfile(mixerFolder, row.MixerProfileAfter);
    v.FormStreamUrl = row.StreamUrl;
    v.FormInputName = row.InputName;
    return v;
}

bool ProgramingConflict(AppDatabase& database, const ConflictQuery& query, QString& description)
{
    description.clear();
    const int pad = query.paddingSeconds;
    clsWeekdays mine(pad);
    if (query.oneTime)
        mine.OneTimeDtm(query.oneTimeDay, query.startTime, query.endTime);
    else
        mine.Weekdays(query.days, query.startTime, query.endTime);

    Recordset rs = database.DataPrograms.recordset().Clone();
    if (rs.RecordCount() < 1)
        return false;
    for (rs.MoveFirst(); !rs.IsEOF(); rs.MoveNext()) {
        if (query.editingExisting && rs.Value(QStringLiteral("ID")).toInt() == query.editProgramId)
            continue;
        if (!Field::ToBool(rs.Value(QStringLiteral("Enabled"))))
            continue;
        const QVariant frequency = rs.Value(QStringLiteral("Frequency"));
        const bool rowOneTime = !frequency.isNull() && frequency.toInt() == 0;
        const double rowDay = rs.Value(QStringLiteral("OneTimeDay")).toDouble();
        const double rowStart = rs.Value(QStringLiteral("StartTime")).toDouble();
        const double rowEnd = rs.Value(QStringLiteral("EndTime")).toDouble();
        bool conflict = false;
        if (query.oneTime && rowOneTime) {
            double a0, a1, b0, b1;
            RealRange(query.oneTimeDay, query.startTime, query.endTime, pad, a0, a1);
            RealRange(rowDay, rowStart, rowEnd, pad, b0, b1);
            conflict = TimeRangesOverlap(a0, a1, b0, b1);
        } else {
            // A weekly program's days hold every week, so a one-time program meets it on
            // its weekday whatever the date.
            clsWeekdays theirs(pad);
            if (rowOneTime) {
                theirs.OneTimeDtm(rowDay, rowStart, rowEnd);
            } else {
                std::array<bool, 7> days{};
                for (int d = 0; d < 7; ++d)
                    days[d] = Field::ToBool(rs.Value(QString::fromLatin1(kDayColumns[d])));
                theirs.Weekdays(days, rowStart, rowEnd);
            }
            conflict = mine.IsConflictWith(theirs);
        }
        if (conflict) {
            description = rs.Value(QStringLiteral("Description")).toString();
            return true;
        }
    }
    return false;
}

qint32 UpdateDbFromProgramForm(DataControl& programs, const ProgramFormValues& v, UpdateMode mode)
{
    Recordset& rs = programs.recordset();
    if (mode == UpdateMode::Edit)
        rs.Edit();
    else
        rs.AddNew();
    const auto set = [&rs](const char* column, const QVariant& value) {
        rs.SetValue(QString::fromLatin1(column), value);
    };
    set("Enabled", Field::FromBool(v.FormEnabled));
    set("Description", v.FormDescription);
    set("DescriptionText", DescriptionText(v.FormDescription, v.FormEnabled));
    set("CompressionMethod", v.FormCompressionMethod);
    set("StartTime", v.FormStartTime);
    set("EndTime", v.FormEndTime);
    set("Frequency", v.FormFrequency);
    set("OneTimeDay", v.FormOneTimeDay);
    for (int d = 0; d < 7; ++d)
        set(kDayColumns[d], Field::FromBool(v.FormDays[d]));
    WriteFormat(v.FormFormat, rs);
    // Saving brings a stopped or expired program back to life, even when nothing changed.
    set("RecordingCancelled", Field::FromBool(false));
    set("FilenamePrefix", v.FormFilenamePrefix);
    set("FilenameSuffix", v.FormFilenameSuffix);
    set("FilenameUser", v.FormFilenameUser);
    set("LaunchAppPrior", v.FormLaunchAppPrior);
    set("LaunchAppDelay", v.FormLaunchAppDelay);
    set("LaunchAppAfter", v.FormLaunchAppAfter);
    set("LaunchAfterOnlyIfOk", Field::FromBool(v.FormLaunchAfterOnlyIfOk));
    set("InternetLink", v.FormInternetLink);
    set("InternetLinkDelay", v.FormInternetLinkDelay);
    set("HangupInternetConnection", Field::FromBool(v.FormHangupInternetConnection));
    set("StreamingPlayerClose", v.FormStreamingPlayerClose);
    set("MixerProfileBefore", v.FormMixerProfileBefore);
    set("MixerProfileAfter", v.FormMixerProfileAfter);
    set("StreamUrl", v.FormStreamUrl.trimmed());
    set("InputName", v.FormStreamUrl.trimmed().isEmpty() ? v.FormInputName.trimmed() : QString());
    QString frequencyText =
        v.FormFrequency != 0
            ? DaysString(v.FormDays)
            : QLocale().toString(AutomationDate::ToDateTime(v.FormOneTimeDay).date(),
                                 QLocale::ShortFormat);
    if (frequencyText.isEmpty())
        frequencyText = QStringLiteral(" ");
    set("FrequencyText", frequencyText);
    rs.Update();
    const qint32 id = qint32(mode == UpdateMode::Edit ? rs.Bookmark() : rs.LastModified());
    programs.Requery();
    Recordset& shown = programs.recordset();
    shown.FindFirst(QStringLiteral("Id = ") + QString::number(id));
    return id;
}

} // namespace ProgramEditor

#include "control/ProgramRequest.h"

#include "common/AutomationDate.h"
#include "control/RecordingFormatName.h"

#include <QCoreApplication>
#include <QDate>
#include <QStringList>
#include <QTime>

namespace ProgramRequest {
namespace {

const QStringList kDayNames = {"sun", "mon", "tue", "wed", "thu", "fri", "sat"};

std::optional<double> TimeOfDay(const QString& text)
{
    QTime time = QTime::fromString(text, QStringLiteral("HH:mm:ss"));
    if (!time.isValid())
        time = QTime::fromString(text, QStringLiteral("HH:mm"));
    if (!time.isValid())
        return std::nullopt;
    return AutomationDate::FromTime(time.hour(), time.minute(), time.second());
}

QString TimeText(double timeOfDay)
{
    return AutomationDate::ToDateTime(timeOfDay).time().toString(QStringLiteral("HH:mm:ss"));
}

QString Invalid(const QString& key, const QVariant& value)
{
    return QCoreApplication::translate("ProgramRequest", "Invalid value for %1: %2")
        .arg(key, value.toString());
}

} // namespace

std::optional<QString> Apply(const QVariantMap& request, ProgramFormValues& v)
{
    for (auto it = request.begin(); it != request.end(); ++it) {
        const QString& key = it.key();
        const QVariant& value = it.value();
        if (key == QStringLiteral("description")) {
            v.FormDescription = value.toString();
        } else if (key == QStringLiteral("enabled")) {
            v.FormEnabled = value.toBool();
        } else if (key == QStringLiteral("start") || key == QStringLiteral("end")) {
            const auto time = TimeOfDay(value.toString());
            if (!time)
                return Invalid(key, value);
            (key == QStringLiteral("start") ? v.FormStartTime : v.FormEndTime) = *time;
        } else if (key == QStringLiteral("once")) {
            const QDate day = QDate::fromString(value.toString(), Qt::ISODate);
            if (!day.isValid())
                return Invalid(key, value);
            v.FormFrequency = 0;
            v.FormOneTimeDay = AutomationDate::FromDate(day);
        } else if (key == QStringLiteral("days")) {
            v.FormFrequency = 1;
            v.FormDays.fill(false);
            // A list of names, or one text of names between commas.
            const QStringList names = value.typeId() == QMetaType::QString
                                          ? value.toString().split(u',')
                                          : value.toStringList();
            for (const QString& name : names) {
                const qsizetype day = kDayNames.indexOf(name.trimmed().left(3).toLower());
                if (day < 0)
                    return Invalid(key, name);
                v.FormDays[day] = true;
            }
        } else if (key == QStringLiteral("format")) {
            const auto format = RecordingFormatFromName(value.toString());
            if (!format)
                return Invalid(key, value);
            v.FormFormat.CopyFrom(*format);
            v.FormCompressionMethod = v.FormFormat.TextCompressionMethod;
        } else if (key == QStringLiteral("stream")) {
            // Empty: the sound server's input again.
            v.FormStreamUrl = value.toString().trimmed();
        } else if (key == QStringLiteral("input")) {
            // A sound server source by its name; empty: the options' input again.
            v.FormInputName = value.toString().trimmed();
        } else if (key == QStringLiteral("filename")) {
            v.FormFilenameUser = value.toString().trimmed();
        } else if (key == QStringLiteral("prefix")) {
            v.FormFilenamePrefix = value.toString();
        } else if (key == QStringLiteral("suffix")) {
            v.FormFilenameSuffix = value.toString();
        } else if (key != QStringLiteral("confirmed")) {
            return QCoreApplication::translate("ProgramRequest", "Unknown key: ") + key;
        }
    }
    // As in the editor: a file name of the user's own leaves no prefix or suffix.
    if (!v.FormFilenameUser.isEmpty()) {
        v.FormFilenamePrefix.clear();
        v.FormFilenameSuffix.clear();
    }
    return std::nullopt;
}

ProgramCheckValues CheckValues(const ProgramFormValues& v, bool editingExisting, qint32 id)
{
    ProgramCheckValues c;
    c.schedule.oneTime = v.FormFrequency == 0;
    c.schedule.oneTimeDay = v.FormOneTimeDay;
    c.schedule.startTime = v.FormStartTime;
    c.schedule.endTime = v.FormEndTime;
    c.schedule.days = v.FormDays;
    c.schedule.editingExisting = editingExisting;
    c.schedule.editProgramId = id;
    c.enabled = v.FormEnabled;
    c.description = v.FormDescription;
    // The editor's file name choice: a name of the user's own replaces prefix and suffix.
    c.userFilename = !v.FormFilenameUser.isEmpty();
    c.filenameUser = v.FormFilenameUser;
    c.prefixChecked = !v.FormFilenamePrefix.isEmpty();
    c.prefix = v.FormFilenamePrefix;
    c.suffixChecked = !v.FormFilenameSuffix.isEmpty();
    c.suffix = v.FormFilenameSuffix;
    c.streamSource = !v.FormStreamUrl.isEmpty();
    c.streamUrl = v.FormStreamUrl;
    return c;
}

QVariantMap ToMap(qint32 id, const ProgramFormValues& v)
{
    QVariantMap map{{"id", id},
                    {"description", v.FormDescription},
                    {"enabled", v.FormEnabled},
                    {"start", TimeText(v.FormStartTime)},
                    {"end", TimeText(v.FormEndTime)},
                    {"format", v.FormCompressionMethod}};
    if (v.FormFrequency == 0) {
        map.insert("once",
                   AutomationDate::ToDateTime(v.FormOneTimeDay).date().toString(Qt::ISODate));
    } else {
        QStringList days;
        for (int d = 0; d < 7; ++d)
            if (v.FormDays[d])
                days << kDayNames[d];
        map.insert("days", days);
    }
    for (const auto& [key, value] :
         {std::pair{"filename", v.FormFilenameUser}, std::pair{"prefix", v.FormFilenamePrefix},
          std::pair{"suffix", v.FormFilenameSuffix}, std::pair{"stream", v.FormStreamUrl},
          std::pair{"input", v.FormInputName}})
        if (!value.isEmpty())
            map.insert(QString::fromLatin1(key), value);
    return map;
}

} // namespace ProgramRequest

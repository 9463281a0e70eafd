#include "store/ProgramRow.h"

#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "store/Recordset.h"

QString TrimmedText(const QVariant& value, const QString& ifNull)
{
    return value.isNull() ? ifNull : Text::Trim(value.toString());
}

qint16 DelayColumnValue(const QVariant& value)
{
    if (value.isNull())
        return 0;
    const qint64 number = Text::RoundHalfEven(Text::Val(Text::Trim(value.toString())));
    if (number < -32768 || number > 32767)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
    return qint16(number);
}

ProgramRow ProgramRow::Read(const Recordset& rs)
{
    const auto value = [&rs](const char* column) {
        return rs.Value(QLatin1String(column));
    };
    const auto text = [&](const char* column) {
        return TrimmedText(value(column));
    };
    ProgramRow row;
    row.Description = value("Description").toString();
    row.DescriptionNull = value("Description").isNull();
    row.FilenameUser = text("FilenameUser");
    row.FilenamePrefix = value("FilenamePrefix").toString();
    row.FilenameSuffix = value("FilenameSuffix").toString();
    row.LaunchAppPrior = text("LaunchAppPrior");
    row.LaunchAppDelay = DelayColumnValue(value("LaunchAppDelay"));
    row.LaunchAppAfter = text("LaunchAppAfter");
    row.LaunchAfterOnlyIfOk = Field::ToBool(value("LaunchAfterOnlyIfOk"));
    row.InternetLink = text("InternetLink");
    row.InternetLinkDelay = DelayColumnValue(value("InternetLinkDelay"));
    row.HangupInternetConnection = Field::ToBool(value("HangupInternetConnection"));
    row.StreamingPlayerClose =
        TrimmedText(value("StreamingPlayerClose"), StreamingPlayerClose::DoNotClose);
    row.StreamingPlayerCloseNull = value("StreamingPlayerClose").isNull();
    row.MixerProfileBefore = text("MixerProfileBefore");
    row.MixerProfileAfter = text("MixerProfileAfter");
    row.MixerProfileAfterNull = value("MixerProfileAfter").isNull();
    row.StreamUrl = text("StreamUrl");
    row.InputName = text("InputName");
    return row;
}

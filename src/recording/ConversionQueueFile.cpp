#include "recording/ConversionQueueFile.h"

#include "common/RuntimeError.h"
#include "taskcontract/WaveFormatRecord.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

QJsonObject ToJson(const clsConvertToMP3Request& r)
{
    return {{QStringLiteral("SourceFile"), r.SourceFile},
            {QStringLiteral("DestinationFile"), r.DestinationFile},
            {QStringLiteral("SourceFormat"), QString::fromLatin1(r.SourceFormat.Record().toHex())},
            {QStringLiteral("DestinationFormat"),
             QString::fromLatin1(r.DestinationFormat.Record().toHex())},
            {QStringLiteral("SaveMP3FileExtension"), r.DestinationFormat.SaveMP3FileExtension},
            {QStringLiteral("Description"), r.Description},
            {QStringLiteral("SoftwareName"), r.SoftwareName},
            {QStringLiteral("StartTime"), r.StartTime},
            {QStringLiteral("EndTime"), r.EndTime},
            {QStringLiteral("ManualRecording"), r.ManualRecording},
            {QStringLiteral("LaunchAppAfter"), r.LaunchAppAfter},
            {QStringLiteral("LaunchAfterOnlyIfOk"), r.LaunchAfterOnlyIfOk}};
}

// A format that no format can hold is passed over with its request, as one that can't be
// decoded: the requests after it still load.
bool ReadFormat(const QJsonValue& hex, clsRecordingFormat& format)
{
    const auto record = WaveFormatRecord::Decode(QByteArray::fromHex(hex.toString().toLatin1()));
    if (!record || record->cbSize > clsRecordingFormat::nMaxExtraBytes)
        return false;
    format.SetWaveFormatEx(*record);
    return true;
}

std::shared_ptr<clsConvertToMP3Request> FromJson(const QJsonObject& o)
{
    auto r = std::make_shared<clsConvertToMP3Request>();
    if (!ReadFormat(o.value(QStringLiteral("SourceFormat")), r->SourceFormat) ||
        !ReadFormat(o.value(QStringLiteral("DestinationFormat")), r->DestinationFormat))
        return nullptr;
    r->SourceFile = o.value(QStringLiteral("SourceFile")).toString();
    r->DestinationFile = o.value(QStringLiteral("DestinationFile")).toString();
    r->DestinationFormat.ConvertToMP3 = true;
    r->DestinationFormat.SaveMP3FileExtension =
        o.value(QStringLiteral("SaveMP3FileExtension")).toBool();
    r->Description = o.value(QStringLiteral("Description")).toString();
    r->SoftwareName = o.value(QStringLiteral("SoftwareName")).toString();
    r->StartTime = o.value(QStringLiteral("StartTime")).toDouble();
    r->EndTime = o.value(QStringLiteral("EndTime")).toDouble();
    r->ManualRecording = o.value(QStringLiteral("ManualRecording")).toBool();
    r->LaunchAppAfter = o.value(QStringLiteral("LaunchAppAfter")).toString();
    r->LaunchAfterOnlyIfOk = o.value(QStringLiteral("LaunchAfterOnlyIfOk")).toBool();
    return r;
}

} // namespace

void ConversionQueueFile::Save(const QString& path, const Mp3ConvertQueueList& requests)
{
    QJsonArray list;
    for (const auto& request : requests)
        list.append(ToJson(*request));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(list).toJson()) < 0 ||
        !file.commit())
        throw RuntimeError(
            ErrorNumber::PathFileAccess,
            QCoreApplication::translate("ConversionQueueFile", "Path/File access error: ") +
                file.errorString());
}

Mp3ConvertQueueList ConversionQueueFile::Load(const QString& path)
{
    QFile file(path);
    Mp3ConvertQueueList requests;
    if (!file.open(QIODevice::ReadOnly))
        return requests;
    for (const QJsonValue& value : QJsonDocument::fromJson(file.readAll()).array())
        if (auto request = FromJson(value.toObject()))
            requests.append(request);
    return requests;
}

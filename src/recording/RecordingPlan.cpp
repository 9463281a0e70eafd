#include "recording/RecordingPlan.h"

#include "common/AutomationDate.h"
#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QDir>

namespace {

// A direct recording needs this much above the limit whatever its length.
constexpr double kDirectRecordingMbytes = 0.5;

const QString kCaptureEnding = QStringLiteral(".WAV.TMP");

bool IsMp3(const clsRecordingFormat& format)
{
    return format.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3;
}

// The side actions and names of a program's row, or of a manual recording, which has none.
void TakeRequest(const RecordingRequest& request, const QString& recordingInput,
                 clsRecordingStatus& status, QString& userName, QString& prefix, QString& suffix)
{
    status.ProgramId = request.ProgramId;
    status.StreamingPlayerClose = StreamingPlayerClose::DoNotClose;
    status.InputName = recordingInput;
    if (!request.Program) {
        status.Description = request.Description;
        status.StreamUrl = request.StreamUrl.trimmed();
        userName = request.UserFileName;
        return;
    }
    const ProgramRow& row = *request.Program;
    status.Description = row.Description;
    status.LaunchAppAfter = row.LaunchAppAfter;
    status.LaunchAfterOnlyIfOk = row.LaunchAfterOnlyIfOk;
    status.InternetLink = row.InternetLink;
    status.MixerProfileBefore = row.MixerProfileBefore;
    status.MixerProfileAfter = row.MixerProfileAfter;
    if (!row.MixerProfileAfterNull)
        status.StreamingPlayerClose = row.StreamingPlayerClose;
    status.HangupInternetConnection = row.HangupInternetConnection;
    status.StreamUrl = row.StreamUrl;
    if (!row.InputName.isEmpty())
        status.InputName = row.InputName;
    userName = row.FilenameUser;
    prefix = row.FilenamePrefix;
    suffix = row.FilenameSuffix;
}

std::shared_ptr<clsConvertToMP3Request> ConversionOf(const RecordingPlan& plan,
                                                     const clsRecordingFormat& capture,
                                                     const QString& softwareName)
{
    auto request = std::make_shared<clsConvertToMP3Request>();
    request->SourceFile = plan.Status.RecordingFile;
    request->DestinationFile = plan.Status.FinalFile;
    request->SourceFormat.CopyFrom(capture);
    request->DestinationFormat.CopyFrom(plan.Format);
    request->Description = plan.Status.Description;
    request->SoftwareName = plan.Format.SaveMP3FileExtension ? QString() : softwareName;
    request->StartTime = plan.Status.StartTime;
    request->ManualRecording = plan.Status.ProgramId == -1;
    request->LaunchAppAfter = plan.Status.LaunchAppAfter;
    request->LaunchAfterOnlyIfOk = plan.Status.LaunchAfterOnlyIfOk;
    return request;
}

} // namespace

void RequireStartValues(const ProgramRow& row)
{
    // Intended: the NULL test looks at MixerProfileAfter, so a NULL StreamingPlayerClose
    // under an after-profile fails the start, and none under a NULL one does.
    if (row.DescriptionNull || (!row.MixerProfileAfterNull && row.StreamingPlayerCloseNull))
        ThrowInvalidUseOfNull();
}

QString RecordingFolder(const QString& folder)
{
    QString path = Text::Trim(folder.endsWith(u'/') ? folder : folder + u'/');
    if (!path.endsWith(QDir::separator()))
        path += QDir::separator();
    return path;
}

std::variant<RecordingPlan, RecordingRefusal> PlanRecording(const RecordingRequest& request,
                                                            const RecordingSettings& settings,
                                                            double now, const FileExists& exists)
{
    const bool manual = request.ProgramId == -1;
    if (!manual && !request.Program)
        return RecordingRefusal{RecordingRefusal::Reason::ProgramGone, {}, {}};
    if (manual && settings.Folder.isEmpty())
        return RecordingRefusal{
            RecordingRefusal::Reason::NoRecordingFolder,
            QCoreApplication::translate("RecordingControl", "Error"),
            QCoreApplication::translate(
                "RecordingControl",
                "Invalid Recording Directory. Select a recording directory in Options.")};

    RecordingPlan plan;
    clsRecordingStatus& status = plan.Status;
    QString userName, prefix, suffix;
    TakeRequest(request, settings.RecordingInput, status, userName, prefix, suffix);
    plan.Format.CopyFrom(request.Format);
    status.StartTime = request.StartTime;
    status.EndTime = request.EndTime;
    status.CompressionText = plan.Format.TextCompressionMethod;
    // Whole days of the span are lost on purpose: the length only feeds the parameter file
    // and the space figures, while the clock decides the end.
    const double span = request.EndTime - request.StartTime;
    status.DurationSeconds = AutomationDate::Hour(span) * 3600 + AutomationDate::Minute(span) * 60 +
                             AutomationDate::Second(span);

    // An MP3 the user wants converted is captured as 16-bit PCM and encoded afterwards.
    status.ConvertToMP3 = IsMp3(plan.Format) && plan.Format.ConvertToMP3;
    clsRecordingFormat capture;
    double spaceNeeded = kDirectRecordingMbytes;
    QString spaceNote;
    if (!status.ConvertToMP3) {
        capture.CopyFrom(plan.Format);
    } else {
        capture.SetToPcm(plan.Format.nChannels(), plan.Format.nSamplesPerSec(), 16);
        // The MP3 and its PCM source exist side by side until the conversion ends.
        spaceNeeded = double(plan.Format.CalcStorageMbytesSng(status.DurationSeconds) +
                             capture.CalcStorageMbytesSng(status.DurationSeconds));
        spaceNote = QCoreApplication::translate(
            "RecordingControl", "Note: Converted MP3 recordings require additional storage "
                                "for the initial PCM wave file recording.\r\n");
    }
    if (settings.Converting)
        spaceNote += QCoreApplication::translate(
            "RecordingControl", " Additional space is also needed for any temporary PCM files "
                                "that are currently being converted to MP3.");

    QString folder = RecordingFolder(settings.Folder);
    QString baseName, extension;
    const bool mp3Extension = IsMp3(plan.Format) && plan.Format.SaveMP3FileExtension;
    NewRecordingFileName(now, settings.FileNameFormat, userName, prefix, suffix, folder,
                         mp3Extension, baseName, extension);
    // The capture beside the final name must be free as well: it may be one still queued.
    const QStringList endings =
        status.ConvertToMP3 ? QStringList{extension, kCaptureEnding} : QStringList{extension};
    const QString freeName = FreeBaseName(folder, baseName, endings, exists);
    if (freeName != baseName)
        plan.WantedFileName = baseName + extension;
    status.FinalFile = folder + freeName + extension;
    status.RecordingFile =
        status.ConvertToMP3 ? folder + freeName + kCaptureEnding : status.FinalFile;

    // Only a manual recording is refused for space; a scheduled one is left to the disk
    // guard.
    if (manual && double(settings.StopRecMegsLeft) + spaceNeeded > settings.FreeMbytes)
        return RecordingRefusal{
            RecordingRefusal::Reason::NotEnoughSpace,
            QCoreApplication::translate("RecordingControl",
                                        "Recording not started due to insufficient disk space."),
            QCoreApplication::translate(
                "RecordingControl",
                "The recording was not started since there is not enough disk space.  "
                "Remove recordings from disk, change the recording directory to a "
                "different disk drive, or shorten the recording time. ") +
                spaceNote};

    if (status.ConvertToMP3)
        plan.Conversion = ConversionOf(plan, capture, settings.SoftwareName);
    RecParms& parms = plan.Parms;
    parms.softwareName = settings.SoftwareName;
    parms.description = status.Description;
    parms.startText = Options::DateText(request.StartTime) + u' ' +
                      Options::TimeText(AutomationDate::TimePart(request.StartTime));
    parms.outputPath = status.RecordingFile;
    parms.lengthSeconds = status.DurationSeconds;
    parms.format = capture.WaveFormat();
    parms.silenceThresholdDb = settings.SilenceThresholdDb;
    parms.silenceSeconds = settings.SilenceSeconds;
    parms.streamUrl = status.StreamUrl;
    parms.finalPath = status.FinalFile;
    parms.inputName = status.StreamUrl.isEmpty() ? status.InputName : QString();
    return plan;
}

// The start of a recording decided as a plan, before any task or sound is involved: the
// file names, the format captured, the conversion and the refusals.
#include "Programs.h"
#include "formats/CodecCatalogue.h"
#include "recording/RecordingPlan.h"

#include <QSet>
#include <QTest>
#include <cstring>

namespace {

clsRecordingFormat FormatOf(const QString& kind)
{
    clsRecordingFormat format;
    const QByteArray record = kind == "pcm" ? CodecCatalogue::PcmRecord(2, 22050, 16)
                                            : CodecCatalogue::Mp3Record(2, 22050, 64);
    std::memcpy(format.mwfx(), record.constData(), size_t(record.size()));
    format.CalcRemainingVarsFromMwfx();
    format.ConvertToMP3 = kind.startsWith("convert");
    format.SaveMP3FileExtension = kind.endsWith(".mp3");
    return format;
}

} // namespace

class TestRecordingPlan : public QObject {
    Q_OBJECT

private slots:
    // The files named are in /rec; "kind" is pcm, or mp3/convert with the extension it keeps.
    // A conversion captures PCM beside its final name.
    void planOfAStart_data()
    {
        QTest::addColumn<bool>("manual");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("userName");
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<double>("freeMb");
        QTest::addColumn<QString>("outcome"); // the final file's name, or the refusal

        const auto row = [](const char* tag, bool manual, const char* kind, const char* userName,
                            const QStringList& existing, double freeMb, const char* outcome) {
            QTest::newRow(tag) << manual << QString(kind) << QString(userName) << existing << freeMb
                               << QString(outcome);
        };
        const double plenty = 100000.0;
        row("pcm named by the clock, prefix and suffix", false, "pcm", "", {}, plenty,
            "Show_060126_120000_am.WAV");
        row("the user's name wins over the stamp", false, "pcm", " Morning ", {}, plenty,
            "Morning.WAV");
        row("mp3 in real time, kept as .MP3", false, "mp3.mp3", "Morning", {}, plenty,
            "Morning.MP3");
        row("mp3 in real time inside a wave file", false, "mp3.wav", "Morning", {}, plenty,
            "Morning.WAV");
        row("mp3 to convert is captured as pcm", false, "convert.mp3", "Morning", {}, plenty,
            "Morning.MP3");
        row("a taken name gets the next free number", false, "pcm", "Morning",
            {"Morning.WAV", "Morning (2).WAV"}, plenty, "Morning (3).WAV");
        row("a queued capture takes the name of a conversion", false, "convert.wav", "Morning",
            {"Morning.WAV.TMP"}, plenty, "Morning (2).WAV");
        row("a capture does not take the name of a direct recording", false, "pcm", "Morning",
            {"Morning.WAV.TMP"}, plenty, "Morning.WAV");
        row("a scheduled recording is never refused for space", false, "pcm", "Morning", {}, 0.0,
            "Morning.WAV");
        row("manual: half a megabyte above the limit will do", true, "pcm", "Morning", {}, 25.5,
            "Morning.WAV");
        row("manual: less is refused", true, "pcm", "Morning", {}, 25.49, "space");
        // A minute of 22 kHz stereo: about 5 Mbytes of PCM beside the MP3.
        row("manual to convert needs room for both files", true, "convert.mp3", "Morning", {}, 30.0,
            "space");
        row("manual to convert with that room", true, "convert.mp3", "Morning", {}, 31.0,
            "Morning.MP3");
        row("manual without a recording folder", true, "pcm", "Morning", {}, plenty, "folder");
        row("program gone", false, "gone", "", {}, plenty, "gone");
    }

    void planOfAStart()
    {
        QFETCH(bool, manual);
        QFETCH(QString, kind);
        QFETCH(QString, userName);
        QFETCH(QStringList, existing);
        QFETCH(double, freeMb);
        QFETCH(QString, outcome);
        const bool refused = !outcome.contains('.');

        const double now = Programs::At(2026, 6, 1, "12:00:00");
        RecordingRequest request;
        request.ProgramId = manual ? -1 : 7;
        request.StartTime = now;
        // The whole day of the span is lost: only the minute counts.
        request.EndTime = now + 1.0 + 60.0 / 86400.0;
        request.Format = FormatOf(kind);
        request.Description = "Morning show";
        if (manual) {
            request.UserFileName = userName;
        } else if (kind != "gone") {
            ProgramRow row;
            row.Description = "Morning show";
            row.FilenameUser = userName;
            row.FilenamePrefix = "Show_";
            row.FilenameSuffix = "_am";
            request.Program = row;
        }
        RecordingSettings settings;
        settings.Folder = outcome == "folder" ? QString() : QString("/rec");
        settings.StopRecMegsLeft = 25;
        settings.FreeMbytes = freeMb;
        QSet<QString> files;
        for (const QString& name : existing)
            files.insert("/rec/" + name);
        const auto planned = PlanRecording(
            request, settings, now, [&files](const QString& path) { return files.contains(path); });

        if (refused) {
            const auto* refusal = std::get_if<RecordingRefusal>(&planned);
            QVERIFY(refusal);
            const QHash<QString, RecordingRefusal::Reason> reasons{
                {"space", RecordingRefusal::Reason::NotEnoughSpace},
                {"folder", RecordingRefusal::Reason::NoRecordingFolder},
                {"gone", RecordingRefusal::Reason::ProgramGone}};
            QCOMPARE(refusal->Why, reasons.value(outcome));
            // A program that is gone ends the start without a word.
            QCOMPARE(refusal->Title.isEmpty(), outcome == "gone");
            return;
        }
        const auto* plan = std::get_if<RecordingPlan>(&planned);
        QVERIFY(plan);
        const bool converted = kind.startsWith("convert");
        const QString finalFile = "/rec/" + outcome;
        QCOMPARE(plan->Status.FinalFile, finalFile);
        QCOMPARE(plan->Status.RecordingFile,
                 converted ? finalFile.section('.', 0, -2) + ".WAV.TMP" : finalFile);
        QCOMPARE(plan->Parms.outputPath, plan->Status.RecordingFile);
        QCOMPARE(plan->Parms.finalPath, plan->Status.FinalFile);
        QCOMPARE(int(plan->Parms.format.wFormatTag), kind.startsWith("mp3") ? 85 : 1);
        QCOMPARE(plan->Parms.lengthSeconds, 60);
        QCOMPARE(plan->WantedFileName.isEmpty(), !outcome.contains('('));
        QCOMPARE(plan->Status.ConvertToMP3, converted);
        QCOMPARE(bool(plan->Conversion), converted);
        if (converted) {
            QCOMPARE(plan->Conversion->SourceFile, plan->Status.RecordingFile);
            QCOMPARE(plan->Conversion->DestinationFile, plan->Status.FinalFile);
            QCOMPARE(plan->Conversion->DestinationFormat.wFormatTag(), quint16(85));
            QCOMPARE(plan->Conversion->ManualRecording, manual);
        }
    }
};

QTEST_GUILESS_MAIN(TestRecordingPlan)
#include "test_recordingplan.moc"

#include "recording/RecordingTaskErrors.h"

#include "diagnostics/EventLog.h"
#include "taskcontract/TaskErrors.h"

#include <QCoreApplication>

RecordingTaskErrorText RecordingTaskErrorTexts(qint32 code)
{
    switch (code) {
    case TaskError::ParameterFileLocked:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error communicating with recording task"),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The scheduler communicates with the recording task via a disk file which may be "
                "locked.  Try restarting the software or rebooting system to unlock the file.  If "
                "this error re-occurs, the disk containing the TEMP folder may be full or "
                "read-only. It is also possible that the TEMP folder setting may be corrupt.")};
    case TaskError::ParameterFileBad:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error communicating with recording task"),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The scheduler communicates with the recording task via a disk file.  "
                    "There may have occurred an error during writing or reading the file.  "
                    "If problem continues, try restarting the software or rebooting system. "
                    " If this does not work, try selecting a different recording format.")};
    case TaskError::WriteFailed:
        return {QCoreApplication::translate("RecordingTaskErrors", "Error writing recording file."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was unable to advance the I/O buffer while writing "
                    "recording.  Possible causes may include insufficient system disk space "
                    "or memory or there may be a problem with the recording format. Try "
                    "closing unused programs, checking disk space, and restarting the "
                    "software.  If this does not work try a different recording format.")};
    case TaskError::AudioMetricsFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to obtain audio metrics from the "
                    "operating system.  If this problem occurs again, try restarting "
                    "the software or rebooting system.")};
    case TaskError::FormatMemoryFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to allocate memory to store wave "
                    "format information. If this problem occurs again, try restarting "
                    "the software or rebooting system.")};
    case TaskError::FormatMemoryLockFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to lock memory that stores wave "
                    "format information. If this problem occurs again, try restarting "
                    "the software or rebooting system.")};
    case TaskError::HeaderMemoryFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to allocate memory to store wave "
                    "header information. If this problem occurs again, try restarting "
                    "the software or rebooting system.")};
    case TaskError::HeaderMemoryLockFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to lock memory that stores wave "
                    "header information. If this problem occurs again, try restarting "
                    "the software or rebooting system.")};
    case TaskError::BufferMemoryFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to allocate memory to store the wave buffer. If "
                "this problem occurs again, try restarting the software or rebooting system.")};
    case TaskError::BufferMemoryLockFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to lock memory that stores the wave buffer. If "
                "this problem occurs again, try restarting the software or rebooting system.")};
    case TaskError::OpenInputFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors", "Error Opening Wave Input File."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to open the wave input file.  This error can "
                "occur if the recording format is not fully supported, the recording device in "
                "use by another program, or if recording device is locked. Stop or close any "
                "program that may be holding the sound input.  If the problem reoccurs or no "
                "other program is using the sound input, try a different recording format. If "
                "the problem persists, try restarting the software or rebooting the system.")};
    case TaskError::PrepareHeaderFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate("RecordingTaskErrors",
                                            "Error preparing header for recording")};
    case TaskError::CreateFileFailed:
        return {QCoreApplication::translate("RecordingTaskErrors", "Error Creating Wave File."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the Wave file.  Check if the "
                    "recording media is writable and has enough disk space. If this problem "
                    "occurs again, try a different recording format, recording folder, or "
                    "disk drive.  If the problem persists, try restarting system.")};
    case TaskError::RiffChunkFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to create the wave chunk portion of the recording "
                "file. Check the recording drive disk space, or try selecting a different "
                "recording format.  If this problem occurs again, try restarting system.")};
    case TaskError::FormatChunkFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to create the wave format chunk portion of the "
                "recording file. Check the recording drive disk space or try selecting a different "
                "recording format.  If this problem occurs again, try restarting system.")};
    case TaskError::FormatDataFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to create the wave format data portion of the "
                "recording file. Check the recording drive disk space or try selecting a different "
                "recording format.  If this problem occurs again, try restarting system.")};
    case TaskError::FactChunkFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the wave fact chunk "
                    "portion of the recording file. Check the recording drive disk "
                    "space, or try selecting a different recording format.  If this "
                    "problem occurs again, try restarting system.")};
    case TaskError::FactDataFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to write the wave fact portion of the recording "
                "file. Check the recording drive disk space, or try selecting a different "
                "recording format. If this problem occurs again, try restarting system.")};
    case TaskError::DataChunkFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the wave data chunk "
                    "portion of the recording file. Check the recording drive disk "
                    "space, or try selecting a different recording format.  If this "
                    "problem occurs again, try restarting system.")};
    case TaskError::WaveInfoFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to obtain the wave information "
                    "from the system.  Try selecting a different recording format. If "
                    "this problem occurs again, try restarting system.")};
    case TaskError::StartFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to start wave recording. Check the "
                    "recording drive disk space, or try selecting a different recording "
                    "format.  Check the recording drive disk space.  If this problem "
                    "occurs again, try restarting system.")};
    case TaskError::SoftwareTextFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred during recording process."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to write the software info chunk of the recording "
                "file. Check the recording drive disk space, or try selecting a different "
                "recording format.  If this problem occurs again, try restarting system.")};
    case TaskError::SubjectNameTextFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to write the subject name info "
                    "chunk of the recording file. Check the recording drive disk space, "
                    "or try selecting a different recording format.  If this problem "
                    "occurs again, try restarting system.")};
    case TaskError::AddBufferFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to add recording buffer during the recording "
                    "process. If this problem occurs again, try selecting a different recording "
                    "format. If problem persists even after changing the recording format, the "
                    "recording device may be locked as a result of a bad recording format. It this "
                    "is the case, a system restart is needed.")};
    case TaskError::StopFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task encountered an error while during the recording "
                    "stop. If this problem occurs again, try selecting a different "
                    "recording format. If problem persists, try restarting system.")};
    // Both headers' failures show the first one's text, as they always have.
    case TaskError::UnprepareHeader1Failed:
    case TaskError::UnprepareHeader2Failed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task encountered an error during the unpreparing of header 1 "
                    "during the recording process. If this problem occurs again, try selecting a "
                    "different recording format. If problem persists, try restarting system.")};
    case TaskError::CloseInputFailed:
        return {QCoreApplication::translate("RecordingTaskErrors", "Error Closing Input Device."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task encountered an error closing the sound server input "
                    "stream. If this problem occurs again, try selecting a different "
                    "recording format. If problem persists, try restarting system.")};
    case TaskError::CloseFileFailed:
        return {
            QCoreApplication::translate("RecordingTaskErrors", "Error Closing Wave File."),
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task encountered an error closing the wave file. If this problem "
                "occurs again, check the disk space of the recording drive, or try selecting a "
                "different recording format. If problem persists, try restarting system.")};
    case TaskError::ListChunkFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the wave list chunk "
                    "portion of the recording file. Check the recording drive disk "
                    "space, or try selecting a different recording format.  If this "
                    "problem occurs again, try restarting system.")};
    case TaskError::SoftwareChunkFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the wave software info "
                    "chunk portion of the recording file. Check the recording drive "
                    "disk space, or try selecting a different recording format.  If "
                    "this problem occurs again, try restarting system.")};
    case TaskError::SubjectNameChunkFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the wave subject name "
                    "info chunk portion of the recording file. Check the recording "
                    "drive disk space, or try selecting a different recording format.  "
                    "If this problem occurs again, try restarting system.")};
    case TaskError::SubjectDateChunkFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to create the wave subject date "
                    "info chunk portion of the recording file. Check the recording "
                    "drive disk space, or try selecting a different recording format.  "
                    "If this problem occurs again, try restarting system.")};
    case TaskError::SubjectDateTextFailed:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Error occurred during recording process."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The recording task was not able to write the wave wave subject "
                    "date chunk portion of the recording file. Check the recording "
                    "drive disk space, or try selecting a different recording format.  "
                    "If this problem occurs again, try restarting system.")};
    case TaskError::FlushFailed:
        // Heading and advice stand swapped for this code, as users have always seen them.
        return {
            QCoreApplication::translate(
                "RecordingTaskErrors",
                "The recording task was not able to write the wave wave subject "
                "date chunk portion of the recording file. Check the recording "
                "drive disk space, or try selecting a different recording format.  "
                "If this problem occurs again, try restarting system."),
            QCoreApplication::translate("RecordingTaskErrors", "Error flushing recording file.")};
    case TaskError::DeviceBusy:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Another application is recording audio."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "Another application is using the recording device. Stop that "
                    "application and try again to record using Nightreel.  If the recording "
                    "device is still locked, a system restart may be required.")};
    case TaskError::NoAudioDriver:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "No audio driver found for recording."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "If this error persists even after restarting the system, check that "
                    "the sound server (PulseAudio or PipeWire) is installed and running.")};
    case TaskError::OutOfMemory:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Out of memory error while opening Wave input file."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "Try recording with different recording format. If the problem "
                    "persists, try restarting the software or rebooting the system.")};
    case TaskError::BadFormat:
        return {QCoreApplication::translate("RecordingTaskErrors", "Bad Recording Format."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "Try recording with different recording format. If the problem "
                    "persists, try restarting the software or rebooting the system.")};
    case TaskError::StreamUnreachable:
        return {QCoreApplication::translate("RecordingTaskErrors",
                                            "Internet stream could not be reached."),
                QCoreApplication::translate(
                    "RecordingTaskErrors",
                    "The stream was tried again and again until the end of the "
                    "recording.  Check the address with Test in the program's Source; "
                    "the station may have moved or be off the air.")};
    default:
        // 1012 has no row and falls here, as do codes that the task should never send.
        return {
            QCoreApplication::translate("RecordingTaskErrors",
                                        "Error occurred During Recording Process"),
            QCoreApplication::translate("RecordingTaskErrors", "Error #") + QString::number(code) +
                QCoreApplication::translate("RecordingTaskErrors",
                                            " Try changing recording format, restarting system, or "
                                            "checking hardware or system software configuration.")};
    }
}

void ReportRecordingTaskError(EventLog& log, qint32 code, const QString& detail)
{
    const RecordingTaskErrorText text = RecordingTaskErrorTexts(code);
    log.LogEvent(EventError, text.message,
                 detail.isEmpty() ? text.details : detail + QStringLiteral("\r\n") + text.details);
}

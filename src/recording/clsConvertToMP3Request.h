#pragma once

#include "formats/clsRecordingFormat.h"

#include <QCoreApplication>
#include <QString>
#include <memory>

// One recording waiting to be turned from its PCM capture into the MP3 the user asked for.
// The end of a recording puts it into the conversion queue; the queue writes the row of
// Recordings and runs the launch after the recording once the MP3 exists.
class clsConvertToMP3Request {
public:
    // The ".WAV.TMP" capture and the final ".MP3" (or ".WAV") path.
    QString SourceFile;
    QString DestinationFile;
    clsRecordingFormat SourceFormat;
    clsRecordingFormat DestinationFormat;
    QString Description;
    // Empty when the file keeps the ".MP3" extension: such a file carries an ID3 tag instead.
    QString SoftwareName;
    double StartTime = 0.0;
    // Set when the capture has ended.
    double EndTime = 0.0;
    // Of this conversion, from the encoder's last step.
    qint16 PercentComplete = 0;
    qint16 Reserved = 0;
    bool ManualRecording = false;
    QString LaunchAppAfter;
    bool LaunchAfterOnlyIfOk = false;

    // The mode panel's text while this request is converted.
    QString StatusBarDisplay() const
    {
        return QStringLiteral("CONVERTING TO MP3  ") + QString::number(PercentComplete) + u'%';
    }
};

using Mp3ConvertQueueList = QList<std::shared_ptr<clsConvertToMP3Request>>;

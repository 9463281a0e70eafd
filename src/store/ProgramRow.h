#pragma once

#include <QString>
#include <QVariant>

class Recordset;

namespace StreamingPlayerClose {

// The program's StreamingPlayerClose value that leaves the player open after a recording.
inline const QString DoNotClose = QStringLiteral("DO_NOT_CLOSE");

} // namespace StreamingPlayerClose

// A text column of a program: trimmed of blanks, or ifNull when the column is NULL.
QString TrimmedText(const QVariant& value, const QString& ifNull = QString());
// A delay column in seconds: NULL reads as 0; a number beyond 16 bits is an overflow.
qint16 DelayColumnValue(const QVariant& value);

// What a row of Programs says about its recording besides the times and the format, read
// one way for the start of the recording, the scheduler and the program editor: texts
// trimmed of blanks, NULL as the empty text or the column's default.
struct ProgramRow {
    QString Description;
    QString FilenameUser;
    // As stored: blanks between them and the time stamp are part of the name.
    QString FilenamePrefix;
    QString FilenameSuffix;
    QString LaunchAppPrior;
    qint16 LaunchAppDelay = 0;
    QString LaunchAppAfter;
    bool LaunchAfterOnlyIfOk = false;
    QString InternetLink;
    qint16 InternetLinkDelay = 0;
    bool HangupInternetConnection = false;
    // NULL is a row from before the column existed: the player was never closed then.
    QString StreamingPlayerClose;
    QString MixerProfileBefore;
    QString MixerProfileAfter;
    QString StreamUrl;
    // The sound server's source by name; empty for the one the options name.
    QString InputName;
    // The NULLs that the start of a recording tells apart from empty texts.
    bool DescriptionNull = false;
    bool StreamingPlayerCloseNull = false;
    bool MixerProfileAfterNull = false;

    // The current row of rs; throws when a delay overflows or a column is missing.
    static ProgramRow Read(const Recordset& rs);
};

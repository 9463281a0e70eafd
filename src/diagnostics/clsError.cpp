#include "diagnostics/clsError.h"

clsError::clsError(QObject* parent)
    : QObject(parent)
{
}

bool clsError::AnyCurrentErrors() const
{
    return m_noAudioRecordDevice || m_invalidRecordingDirectory || m_diskLowStopRecording ||
           m_databaseMissing;
}

void clsError::SetFlag(bool& flag, bool value)
{
    if (flag == value && !m_forceUpdate)
        return;
    flag = value;
    UpdateErrorIndication();
}

void clsError::ElogViewed()
{
    m_numUnviewedElogErrors = 0;
    UpdateErrorIndication();
}

void clsError::NewElogMsgAdded()
{
    if (m_elogVisible)
        return;
    ++m_numUnviewedElogErrors;
    UpdateErrorIndication();
}

void clsError::UpdateErrorIndication()
{
    m_forceUpdate = false;
    ErrorIndication indication;
    if (AnyCurrentErrorsOrWarnings()) {
        indication.toolTip = tr("Errors or warnings are present - Click to view");
        indication.buttonVisible = true;
        indication.errorsMenuEnabled = true;
    } else if (UnviewedElogErrors()) {
        indication.toolTip = m_numUnviewedElogErrors == 1 ? tr("Error occurred - click to view")
                                                          : tr("Errors occurred - click to view");
        indication.buttonVisible = true;
    }
    m_indication = indication;
    emit IndicationUpdated(m_indication);
}

QStringList clsError::ConditionTexts() const
{
    QStringList texts;
    if (NoAudioRecordDevice())
        texts << tr("No sound server input found.  Check that PulseAudio or "
                    "PipeWire is running and that an input is not disabled.");
    if (InvalidRecordingDirectory())
        texts << tr("Invalid Recording Folder.  "
                    "Go to View/Options and select a recording folder.");
    if (DiskLowStopRecording())
        texts << tr("Disk Low - no further recording allowed.  "
                    "Delete recordings from disk or change "
                    "recording folder. "
                    "You can also change the limit to stop recording in View/Options.");
    // The stop block already says the disk is low; the warning would repeat it.
    else if (DiskLowWarn())
        texts << tr("Disk Low Warning.  "
                    "Delete recordings from disk or change "
                    "recording folder. "
                    "You can also change the disk warning limit in View/Options.");
    if (ElogFull())
        texts << tr("The Error Log is Full. "
                    "Go to View/Error Log (or press the View Error Log "
                    "button below) and remove all event log items. ");
    if (DatabaseMissing())
        texts << tr("Database is missing. "
                    "Go to Tools/Advanced/Restore Original Database "
                    "to create new database.");
    if (RecordingSilent())
        texts << tr("Recording is silent.  "
                    "Check that the source is playing and that its mixer levels "
                    "are up; see the Error Log for the source.");
    return texts;
}

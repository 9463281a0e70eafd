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
        indication.toolTip = QStringLiteral("Errors or warnings are present - Click to view");
        indication.buttonVisible = true;
        indication.errorsMenuEnabled = true;
    } else if (UnviewedElogErrors()) {
        indication.toolTip = m_numUnviewedElogErrors == 1
                                 ? QStringLiteral("Error occurred - click to view")
                                 : QStringLiteral("Errors occurred - click to view");
        indication.buttonVisible = true;
    }
    m_indication = indication;
    emit IndicationUpdated(m_indication);
}

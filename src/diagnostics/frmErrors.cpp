#include "diagnostics/frmErrors.h"

#include "diagnostics/clsError.h"
#include "diagnostics/frmElog.h"
#include "gui/FormPlacement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString ErrorListText(const clsError& error)
{
    if (!error.AnyCurrentErrorsOrWarnings())
        return QStringLiteral("none");
    const QString end = QStringLiteral("\r\n");
    QString text;
    if (error.NoAudioRecordDevice())
        text += QStringLiteral("No sound server input found.  Check that PulseAudio or "
                               "PipeWire is running and that an input is not disabled.") +
                end;
    if (error.InvalidRecordingDirectory())
        text += QStringLiteral("Invalid Recording Folder.  "
                               "Go to View/Options and select a recording folder.") +
                end;
    if (error.DiskLowStopRecording())
        text += QStringLiteral("Disk Low - no further recording allowed.  "
                               "Delete recordings from disk or change "
                               "recording folder. "
                               "You can also change the limit to stop recording in View/Options.") +
                end;
    // The stop block already says the disk is low; the warning would repeat it.
    else if (error.DiskLowWarn())
        text += QStringLiteral("Disk Low Warning.  "
                               "Delete recordings from disk or change "
                               "recording folder. "
                               "You can also change the disk warning limit in View/Options.") +
                end;
    if (error.ElogFull())
        text += QStringLiteral("The Error Log is Full. "
                               "Go to View/Error Log (or press the View Error Log "
                               "button below) and remove all event log items. ") +
                end;
    if (error.DatabaseMissing())
        text += QStringLiteral("Database is missing. "
                               "Go to Tools/Advanced/Restore Original Database "
                               "to create new database.") +
                end;
    if (error.RecordingSilent())
        text += QStringLiteral("Recording is silent.  "
                               "Check that the source is playing and that its mixer levels "
                               "are up; see the Error Log for the source.") +
                end;
    return text;
}

} // namespace

frmErrors::frmErrors(clsError& error, AppDatabase& database, RegKeys& registry,
                     MessageBoxPresenter& messageBox, QWidget* owner)
    : QDialog(owner)
    , m_error(error)
    , m_database(database)
    , m_registry(registry)
    , m_messageBox(messageBox)
    , m_txtbxErrors(new QPlainTextEdit)
    , m_lblNumErrors(new QLabel)
    , m_btnViewElog(new QPushButton(QStringLiteral("&View Error Log")))
    , m_btnExit(new QPushButton(QStringLiteral("E&xit")))
{
    setObjectName(QStringLiteral("frmErrors"));
    setWindowTitle(QStringLiteral("Errors/Warnings"));

    auto* head = new QLabel(QStringLiteral("The following error/warning conditions are present:"));
    head->setObjectName(QStringLiteral("lblHead"));
    m_txtbxErrors->setObjectName(QStringLiteral("txtbxErrors"));
    m_txtbxErrors->setReadOnly(true);
    m_lblNumErrors->setObjectName(QStringLiteral("lblNumErrors"));
    m_btnViewElog->setObjectName(QStringLiteral("btnViewElog"));
    m_btnExit->setObjectName(QStringLiteral("btnExit"));
    m_btnExit->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_btnViewElog);
    buttons->addWidget(m_btnExit);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(head);
    layout->addWidget(m_txtbxErrors, 1);
    layout->addWidget(m_lblNumErrors);
    layout->addLayout(buttons);

    connect(m_btnViewElog, &QPushButton::clicked, this, &frmErrors::btnViewElog_Click);
    connect(m_btnExit, &QPushButton::clicked, this, &QDialog::accept);

    resize(460, 260);
    FormPlacement::PlaceAtMainForm(this, owner, 100);
    RefreshErrorList();
}

void frmErrors::RefreshErrorList()
{
    const clsError& error = m_error;
    m_txtbxErrors->setPlainText(ErrorListText(error));
    if (error.UnviewedElogErrors()) {
        const int count = error.NumUnviewedElogErrors();
        m_lblNumErrors->setText(
            count == 1 ? QStringLiteral("There is an unviewed error/warning in the error log.")
                       : QStringLiteral("There are ") + QString::number(count) +
                             QStringLiteral(" unviewed errors/warnings in the error log."));
        m_btnViewElog->setEnabled(true);
    } else {
        m_lblNumErrors->clear();
        m_btnViewElog->setEnabled(false);
    }
    if (error.ElogFull())
        m_btnViewElog->setEnabled(true);
}

void frmErrors::btnViewElog_Click()
{
    frmElog elog(m_database, m_error, m_registry, m_messageBox, this);
    elog.exec();
    RefreshErrorList();
}

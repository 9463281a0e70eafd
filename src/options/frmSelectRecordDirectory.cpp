#include "options/frmSelectRecordDirectory.h"

#include "common/MessageBox.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "options/FolderBrowser.h"
#include "options/FolderPaths.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// The hourglass for the length of a scope.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

frmSelectRecordDirectory::frmSelectRecordDirectory(EventLog& log, MessageBoxPresenter& messageBox,
                                                   QWidget* owner, const QString& proposed)
    : QDialog(owner)
    , m_log(log)
    , m_messageBox(messageBox)
    , m_browser(new FolderBrowser(this))
    , m_txtPath(new QLineEdit)
{
    setObjectName(QStringLiteral("frmSelectRecordDirectory"));
    setWindowTitle(tr("Select Recording Folder"));
    m_txtPath->setObjectName(QStringLiteral("txtPath"));

    auto* lblPrompt = new QLabel(tr("Enter or select recording directory."));
    lblPrompt->setObjectName(QStringLiteral("lblPrompt"));
    const FolderBrowser::Buttons buttons =
        m_browser->LayOutForm(this, lblPrompt, m_txtPath, tr("Drives"), tr("Directories"));
    resize(420, 360);

    connect(buttons.btnOK, &QPushButton::clicked, this, &frmSelectRecordDirectory::btnOK_Click);
    connect(buttons.btnCancel, &QPushButton::clicked, this,
            &frmSelectRecordDirectory::btnCancel_Click);
    connect(m_browser, &FolderBrowser::PathChanged, this,
            &frmSelectRecordDirectory::dirDirs_Change);

    // Load
    FormPlacement::PlaceAtMainForm(this, owner, 300);
    m_selectedRecordingFolder.clear();
    {
        WaitCursor wait;
        // A proposed folder that does not exist leaves the list on the root.
        m_browser->SetPath(QDir::rootPath());
        m_browser->SetPath(proposed);
    }
    m_txtPath->setText(proposed);
    m_txtPath->selectAll();
    m_txtPath->setFocus();
}

QString frmSelectRecordDirectory::Choose(EventLog& log, MessageBoxPresenter& messageBox,
                                         QWidget* owner, const QString& proposed)
{
    frmSelectRecordDirectory form(log, messageBox, owner, proposed);
    form.exec();
    return form.SelectedRecordingFolder();
}

void frmSelectRecordDirectory::dirDirs_Change(const QString& folder)
{
    if (m_inDirChange)
        return;
    m_inDirChange = true;
    m_txtPath->setText(folder);
    m_inDirChange = false;
}

void frmSelectRecordDirectory::btnOK_Click()
{
    WaitCursor wait;
    Trap(m_log, "Select Recording Folder btnOk_Click", [this] { OkClicked(); });
}

void frmSelectRecordDirectory::OkClicked()
{
    m_selectedRecordingFolder.clear();
    QString path;
    if (!FolderPaths::FullPathName(m_txtPath->text(), path)) {
        m_messageBox.Show(tr("Invalid Recording Directory"),
                          tr("A valid Recording folder is required.") +
                              tr(" Reselect directory or cancel."),
                          MsgIcon::Exclamation, MsgButtons::Ok);
        return;
    }
    if (FolderPaths::FolderListingFinds(path)) {
        m_selectedRecordingFolder = path;
        accept();
        return;
    }
    const MsgResult answer = m_messageBox.Show(
        tr("Create Folder"), tr("Folder ") + path + tr(" does not exist.  Create it?"),
        MsgIcon::None, MsgButtons::YesNo);
    if (answer != MsgResult::Yes)
        return;
    path = FolderPaths::WithClosingSeparator(path.trimmed());
    if (FolderPaths::CreateFolderPath(path)) {
        m_selectedRecordingFolder = path;
        accept();
        return;
    }
    m_messageBox.Show(tr("Can not create folder"),
                      tr("Media may be full or read-only.") + tr(" Reselect drive and directory."),
                      MsgIcon::Exclamation, MsgButtons::Ok);
}

void frmSelectRecordDirectory::btnCancel_Click()
{
    m_selectedRecordingFolder.clear();
    reject();
}

#include "options/frmSelectExistingRecordDirectory.h"

#include "gui/FormPlacement.h"
#include "options/FolderBrowser.h"
#include "options/FolderPaths.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>

frmSelectExistingRecordDirectory::frmSelectExistingRecordDirectory(QWidget* owner,
                                                                   const QString& startFolder)
    : QDialog(owner)
    , m_browser(new FolderBrowser(this))
    , m_lblPrompt(new QLabel(tr("Select disk drive and folder.")))
{
    setObjectName(QStringLiteral("frmSelectExistingRecordDirectory"));
    setWindowTitle(tr("Select Folder"));
    m_lblPrompt->setObjectName(QStringLiteral("lblPrompt"));

    const FolderBrowser::Buttons buttons =
        m_browser->LayOutForm(this, m_lblPrompt, nullptr, tr("Drive"), tr("Folder"));
    resize(400, 340);

    connect(buttons.btnOK, &QPushButton::clicked, this,
            &frmSelectExistingRecordDirectory::btnOK_Click);
    connect(buttons.btnCancel, &QPushButton::clicked, this, &QDialog::reject);

    FormPlacement::PlaceAtMainForm(this, owner, 100);
    if (!m_browser->SetPath(startFolder))
        m_browser->SetPath(QDir::currentPath());
}

QString frmSelectExistingRecordDirectory::Choose(QWidget* owner, const QString& startFolder)
{
    frmSelectExistingRecordDirectory form(owner, startFolder);
    form.exec();
    return form.SelectedFolder();
}

void frmSelectExistingRecordDirectory::btnOK_Click()
{
    // The caller's scan of the folder can take a while; say so before it starts.
    m_lblPrompt->setText(tr("Please wait ..."));
    m_lblPrompt->repaint();
    m_selectedFolder = FolderPaths::WithClosingSeparator(m_browser->Path());
    accept();
}

#include "options/frmSelectExistingRecordDirectory.h"

#include "options/FolderBrowser.h"
#include "options/FolderPaths.h"
#include "shell/FormPlacement.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

frmSelectExistingRecordDirectory::frmSelectExistingRecordDirectory(QWidget* owner,
                                                                   const QString& startFolder)
    : QDialog(owner)
    , m_browser(new FolderBrowser(this))
    , m_lblPrompt(new QLabel(QStringLiteral("Select disk drive and folder.")))
{
    setObjectName(QStringLiteral("frmSelectExistingRecordDirectory"));
    setWindowTitle(QStringLiteral("Select Folder"));
    m_lblPrompt->setObjectName(QStringLiteral("lblPrompt"));

    auto* btnOK = new QPushButton(QStringLiteral("&OK"));
    btnOK->setObjectName(QStringLiteral("btnOK"));
    btnOK->setDefault(true);
    auto* btnCancel = new QPushButton(QStringLiteral("&Cancel"));
    btnCancel->setObjectName(QStringLiteral("btnCancel"));

    auto* lblDrive = new QLabel(QStringLiteral("Drive"));
    lblDrive->setBuddy(m_browser->drvDrives());
    auto* lblFolder = new QLabel(QStringLiteral("Folder"));
    lblFolder->setBuddy(m_browser->dirDirs());
    auto* fields = new QGridLayout;
    fields->addWidget(m_lblPrompt, 0, 0, 1, 2);
    fields->addWidget(lblDrive, 1, 0);
    fields->addWidget(m_browser->drvDrives(), 1, 1);
    fields->addWidget(lblFolder, 2, 0, Qt::AlignTop);
    fields->addWidget(m_browser->dirDirs(), 2, 1);
    fields->setRowStretch(2, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnOK);
    buttons->addWidget(btnCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields, 1);
    layout->addLayout(buttons);
    resize(400, 340);

    connect(btnOK, &QPushButton::clicked, this, &frmSelectExistingRecordDirectory::btnOK_Click);
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);

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
    m_lblPrompt->setText(QStringLiteral("Please wait ..."));
    m_lblPrompt->repaint();
    m_selectedFolder = FolderPaths::WithClosingSeparator(m_browser->Path());
    accept();
}

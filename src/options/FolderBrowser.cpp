#include "options/FolderBrowser.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStorageInfo>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

FolderBrowser::FolderBrowser(QObject* parent)
    : QObject(parent)
    , m_drives(new QComboBox)
    , m_dirs(new QTreeView)
    , m_model(new QFileSystemModel(this))
{
    m_drives->setObjectName(QStringLiteral("drvDrives"));
    m_dirs->setObjectName(QStringLiteral("dirDirs"));

    QStringList drives;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && volume.isReady())
            drives.append(volume.rootPath());
    }
    drives.sort();
    drives.removeDuplicates();
    for (const QString& drive : drives)
        m_drives->addItem(drive, drive);

    m_model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Hidden);
    m_model->setReadOnly(true);
    m_model->setRootPath(QDir::rootPath());
    m_dirs->setModel(m_model);
    for (int column = 1; column < m_model->columnCount(); ++column)
        m_dirs->hideColumn(column);
    m_dirs->header()->hide();
    m_dirs->setSelectionMode(QAbstractItemView::SingleSelection);

    // The folders are read in the background; the current one is brought into view once
    // the folder that holds it has been read.
    // The folders are read in the background and rows keep arriving after the list is
    // shown; the current folder is brought into view once they have settled.
    m_scrollTimer = new QTimer(this);
    m_scrollTimer->setSingleShot(true);
    m_scrollTimer->setInterval(100);
    connect(m_scrollTimer, &QTimer::timeout, this, &FolderBrowser::ShowCurrent);
    auto settle = [this] {
        m_scrollTimer->start();
    };
    connect(m_model, &QFileSystemModel::directoryLoaded, this, settle);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, settle);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, settle);
    m_dirs->installEventFilter(this);
    connect(m_drives, &QComboBox::activated, this, &FolderBrowser::OnDriveChosen);
    connect(m_dirs->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FolderBrowser::OnFolderChosen);
}

void FolderBrowser::ShowCurrent()
{
    if (m_dirs->currentIndex().isValid())
        m_dirs->scrollTo(m_dirs->currentIndex(), QAbstractItemView::PositionAtCenter);
}

bool FolderBrowser::eventFilter(QObject* watched, QEvent* event)
{
    // Scrolling means nothing before the list has its size; do it again once it is shown.
    if (watched == m_dirs && event->type() == QEvent::Show)
        m_scrollTimer->start();
    return QObject::eventFilter(watched, event);
}

QString FolderBrowser::DriveOf(const QString& path)
{
    const QStorageInfo volume(path);
    return volume.isValid() ? volume.rootPath() : QDir::rootPath();
}

void FolderBrowser::ShowDrive(const QString& drive)
{
    int index = m_drives->findData(drive);
    if (index < 0) {
        m_drives->addItem(drive, drive);
        index = m_drives->count() - 1;
    }
    m_drives->setCurrentIndex(index);
    m_dirs->setRootIndex(m_model->index(drive));
}

bool FolderBrowser::SetPath(const QString& folder)
{
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.isDir() || !info.isReadable())
        return false;
    const QString path = QDir::cleanPath(info.absoluteFilePath());
    const bool wasBusy = m_busy;
    m_busy = true;
    ShowDrive(DriveOf(path));
    const QModelIndex index = m_model->index(path);
    if (index.isValid() && index != m_dirs->rootIndex()) {
        for (QModelIndex level = index.parent(); level.isValid() && level != m_dirs->rootIndex();
             level = level.parent())
            m_dirs->expand(level);
        m_dirs->setCurrentIndex(index);
        m_dirs->scrollTo(index, QAbstractItemView::PositionAtCenter);
    } else {
        m_dirs->setCurrentIndex(QModelIndex());
    }
    m_busy = wasBusy;
    m_path = path;
    emit PathChanged(m_path);
    return true;
}

void FolderBrowser::OnDriveChosen(int index)
{
    // A drive that can't be read leaves the list on the folder it had.
    if (!SetPath(m_drives->itemData(index).toString()))
        ShowDrive(DriveOf(m_path));
}

void FolderBrowser::OnFolderChosen()
{
    if (m_busy)
        return;
    const QModelIndex index = m_dirs->currentIndex();
    if (!index.isValid())
        return;
    // The user's own choice is in view already.
    m_scrollTimer->stop();
    const QString folder = m_model->filePath(index);
    if (!SetPath(folder)) {
        // The folder can't be opened: the list goes back to the one it had.
        const bool wasBusy = m_busy;
        m_busy = true;
        m_dirs->setCurrentIndex(m_model->index(m_path));
        m_busy = wasBusy;
    }
}

FolderBrowser::Buttons FolderBrowser::LayOutForm(QDialog* form, QLabel* prompt, QLineEdit* path,
                                                 const QString& drives,
                                                 const QString& folders) const
{
    const auto caption = [](const QString& text, QWidget* buddy) {
        auto* label = new QLabel(text);
        label->setBuddy(buddy);
        return label;
    };
    auto* fields = new QGridLayout;
    int row = 0;
    fields->addWidget(prompt, row++, 0, 1, 2);
    if (path) {
        fields->addWidget(caption(tr("Path"), path), row, 0);
        fields->addWidget(path, row++, 1);
    }
    fields->addWidget(caption(drives, m_drives), row, 0);
    fields->addWidget(m_drives, row++, 1);
    fields->addWidget(caption(folders, m_dirs), row, 0, Qt::AlignTop);
    fields->addWidget(m_dirs, row, 1);
    fields->setRowStretch(row, 1);

    Buttons buttons{new QPushButton(tr("&OK")), new QPushButton(tr("&Cancel"))};
    buttons.btnOK->setObjectName(QStringLiteral("btnOK"));
    buttons.btnOK->setDefault(true);
    buttons.btnCancel->setObjectName(QStringLiteral("btnCancel"));
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addStretch();
    buttonRow->addWidget(buttons.btnOK);
    buttonRow->addWidget(buttons.btnCancel);
    auto* layout = new QVBoxLayout(form);
    layout->addLayout(fields, 1);
    layout->addLayout(buttonRow);
    return buttons;
}

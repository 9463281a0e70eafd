#include "store/frmSaveList.h"

#include "common/MessageBox.h"
#include "common/PathHelpers.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "store/AppDatabase.h"
#include "store/SavedLists.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmSaveList::frmSaveList(SavedLists& lists, AppDatabase& database, EventLog& log,
                         MessageBoxPresenter& messageBox, QWidget* owner)
    : QDialog(owner)
    , m_lists(lists)
    , m_database(database)
    , m_log(log)
    , m_messageBox(messageBox)
    , m_combo1(new QComboBox)
{
    setObjectName(QStringLiteral("frmSaveList"));
    setWindowTitle(tr("Save Recordings List"));
    m_combo1->setObjectName(QStringLiteral("Combo1"));
    m_combo1->setEditable(true);
    auto* save = new QPushButton(tr("&Save"));
    save->setObjectName(QStringLiteral("frmSave"));
    save->setDefault(true);
    auto* exit = new QPushButton(tr("&Exit"));
    exit->setObjectName(QStringLiteral("btnExit"));
    connect(save, &QPushButton::clicked, this, &frmSaveList::frmSave_Click);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(exit);
    auto* layout = new QVBoxLayout(this);
    auto* prompt = new QLabel(tr("Enter list name"));
    prompt->setBuddy(m_combo1);
    layout->addWidget(prompt);
    layout->addWidget(m_combo1);
    layout->addLayout(buttons);
    setMinimumWidth(320);
    FormPlacement::PlaceAtMainForm(this, owner, 500);

    Trap(m_log, "Save Recordings List form load", [&] {
        const SavedLists& lists = m_lists;
        QDir().mkpath(lists.Folder());
        m_combo1->addItems(lists.Names());
        m_combo1->setCurrentText(QString());
    });
}

void frmSaveList::frmSave_Click()
{
    Trap(m_log, "frmSave_Click", [&] {
        const auto warn = [this](const QString& title, const QString& text) {
            m_messageBox.Show(title, text, MsgIcon::Exclamation, MsgButtons::Ok);
        };
        if (m_database.DataRecordings.recordset().RecordCount() == 0) {
            warn(QString(), tr("No recordings in current list"));
            return;
        }
        const QString name = m_combo1->currentText();
        if (InvalidFilenameCharacters(name)) {
            warn(tr("Invalid list name"),
                 tr("The recordings list name cannot contain any of the following "
                    "characters:\r\n\\ / : * ? \" < > | "));
            return;
        }
        if (Text::Trim(name).isEmpty()) {
            warn(tr("Invalid list name"), tr("The recordings list name cannot be blank"));
            return;
        }
        SavedLists& lists = m_lists;
        const QString path = lists.PathOf(name);
        if (QFile::exists(path)) {
            if (m_messageBox.Show(tr("Overwrite list"),
                                  tr("Are you sure you want to overwrite existing "
                                     "recordings list with same name?"),
                                  MsgIcon::Question, MsgButtons::YesNo) != MsgResult::Yes)
                return;
            QFile::remove(path);
        }
        lists.Save(name);
        accept();
    });
}

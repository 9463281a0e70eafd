#include "store/frmLoadList.h"

#include "common/MessageBox.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "store/SavedLists.h"

#include <QCheckBox>
#include <QFile>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmLoadList::frmLoadList(SavedLists& lists, EventLog& log, MessageBoxPresenter& messageBox,
                         QWidget* owner)
    : QDialog(owner)
    , m_lists(lists)
    , m_log(log)
    , m_messageBox(messageBox)
    , m_list1(new QListWidget)
    , m_chkMerge(new QCheckBox(tr("&Merge into current recordings list")))
    , m_btnLoad(new QPushButton(tr("&Load")))
    , m_btnRemove(new QPushButton(tr("&Remove")))
{
    setObjectName(QStringLiteral("frmLoadList"));
    setWindowTitle(tr("Load Recordings List"));
    m_list1->setObjectName(QStringLiteral("List1"));
    m_chkMerge->setObjectName(QStringLiteral("chkMerge"));
    m_btnLoad->setObjectName(QStringLiteral("btnLoad"));
    m_btnRemove->setObjectName(QStringLiteral("btnRemove"));
    auto* exit = new QPushButton(tr("&Exit"));
    exit->setObjectName(QStringLiteral("btnExit"));
    connect(m_btnLoad, &QPushButton::clicked, this, &frmLoadList::btnLoad_Click);
    connect(m_btnRemove, &QPushButton::clicked, this, &frmLoadList::btnRemove_Click);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(m_btnLoad);
    buttons->addWidget(m_btnRemove);
    buttons->addStretch();
    buttons->addWidget(exit);
    auto* top = new QHBoxLayout;
    top->addWidget(m_list1);
    top->addLayout(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_chkMerge);
    if (owner)
        move(FormPlacement::MainForm(owner)->pos() +
             QPoint(Twips::ToPixels(350), Twips::ToPixels(500)));

    Trap(m_log, "Load List form load", [&] {
        m_list1->addItems(m_lists.Names());
        m_list1->setCurrentRow(0);
    });
}

void frmLoadList::Open(SavedLists& lists, EventLog& log, MessageBoxPresenter& messageBox,
                       QWidget* owner)
{
    if (lists.Names().isEmpty()) {
        messageBox.Show(tr("No list exists"),
                        tr("No recordings list files exist.  Please save a "
                           "recordings list first."),
                        MsgIcon::None, MsgButtons::Ok);
        return;
    }
    frmLoadList(lists, log, messageBox, owner).exec();
}

void frmLoadList::btnLoad_Click()
{
    QListWidgetItem* item = m_list1->currentItem();
    if (!item)
        return;
    const bool merge = m_chkMerge->isChecked();
    const QString text = merge
                             ? tr("Recordings from the selected saved list will be merged into the "
                                  "current recordings list. Proceed?")
                             : tr("The current recordings list will be replaced with the selected "
                                  "saved list. Proceed?");
    if (m_messageBox.Show(tr("Load Recordings List"), text, MsgIcon::Question, MsgButtons::YesNo) !=
        MsgResult::Yes)
        return;
    Trap(m_log, "LoadList", [&] { m_lists.LoadList(item->text(), merge); });
    accept();
}

void frmLoadList::btnRemove_Click()
{
    const int row = m_list1->currentRow();
    if (row < 0)
        return;
    if (m_messageBox.Show(tr("Remove Recordings List"),
                          tr("The selected recordings list will be permanently "
                             "removed. Proceed?"),
                          MsgIcon::Question, MsgButtons::YesNo) != MsgResult::Yes)
        return;
    QFile::remove(m_lists.PathOf(m_list1->item(row)->text()));
    delete m_list1->takeItem(row);
    // The name before the removed one, or the new first one.
    m_list1->setCurrentRow(m_list1->count() == 0 ? -1 : std::max(0, row - 1));
    const bool any = m_list1->count() > 0;
    m_btnRemove->setEnabled(any);
    m_btnLoad->setEnabled(any);
    m_chkMerge->setEnabled(any);
}

#pragma once

#include <QDialog>

class EventLog;
class MessageBoxPresenter;
class SavedLists;
class QCheckBox;
class QListWidget;
class QPushButton;

// Brings a saved recordings list back, replacing the list or merged into it.
class frmLoadList : public QDialog {
    Q_OBJECT
public:
    frmLoadList(SavedLists& lists, EventLog& log, MessageBoxPresenter& messageBox, QWidget* owner);
    // Shows the form, or says that no list exists yet.
    static void Open(SavedLists& lists, EventLog& log, MessageBoxPresenter& messageBox,
                     QWidget* owner);

    void btnLoad_Click();
    void btnRemove_Click();

private:
    SavedLists& m_lists;
    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    QListWidget* m_list1;
    QCheckBox* m_chkMerge;
    QPushButton* m_btnLoad;
    QPushButton* m_btnRemove;
};

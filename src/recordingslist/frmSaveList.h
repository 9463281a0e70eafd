#pragma once

#include <QDialog>

class AppDatabase;
class EventLog;
class MessageBoxPresenter;
class SavedLists;
class QComboBox;

// Saves the recordings list under a name.
class frmSaveList : public QDialog {
    Q_OBJECT
public:
    frmSaveList(SavedLists& lists, AppDatabase& database, EventLog& log,
                MessageBoxPresenter& messageBox, QWidget* owner);
    void frmSave_Click();

private:
    SavedLists& m_lists;
    AppDatabase& m_database;
    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    QComboBox* m_combo1;
};

#pragma once

#include <QDialog>

class AppDatabase;
class MessageBoxPresenter;
class RegKeys;
class clsError;
class QLabel;
class QPlainTextEdit;
class QPushButton;

// What is wrong right now and what to do about it, with the way to the event log.
class frmErrors : public QDialog {
    Q_OBJECT
public:
    // The database, settings and message boxes are the event log form's, opened from here.
    frmErrors(clsError& error, AppDatabase& database, RegKeys& registry,
              MessageBoxPresenter& messageBox, QWidget* owner);

    // Fills the list of present conditions and the unviewed count from clsError.
    void RefreshErrorList();

private:
    void btnViewElog_Click();

    clsError& m_error;
    AppDatabase& m_database;
    RegKeys& m_registry;
    MessageBoxPresenter& m_messageBox;
    QPlainTextEdit* m_txtbxErrors;
    QLabel* m_lblNumErrors;
    QPushButton* m_btnViewElog;
    QPushButton* m_btnExit;
};

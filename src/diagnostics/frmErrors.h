#pragma once

#include <QDialog>

class AppContext;
class QLabel;
class QPlainTextEdit;
class QPushButton;

// What is wrong right now and what to do about it, with the way to the event log.
class frmErrors : public QDialog {
    Q_OBJECT
public:
    frmErrors(AppContext& ctx, QWidget* owner);

    // Fills the list of present conditions and the unviewed count from clsError.
    void RefreshErrorList();

private:
    void btnViewElog_Click();

    AppContext& m_ctx;
    QPlainTextEdit* m_txtbxErrors;
    QLabel* m_lblNumErrors;
    QPushButton* m_btnViewElog;
    QPushButton* m_btnExit;
};

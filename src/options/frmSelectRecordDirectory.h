#pragma once

#include <QDialog>

class EventLog;
class FolderBrowser;
class MessageBoxPresenter;
class QLineEdit;

// Asks for the recording folder and offers to create it when it does not exist.
class frmSelectRecordDirectory : public QDialog {
    Q_OBJECT
public:
    frmSelectRecordDirectory(EventLog& log, MessageBoxPresenter& messageBox, QWidget* owner,
                             const QString& proposed);

    // Shows the form modally with the proposed folder; returns the chosen folder, or an
    // empty text when the user cancelled.
    static QString Choose(EventLog& log, MessageBoxPresenter& messageBox, QWidget* owner,
                          const QString& proposed);

    // Empty unless OK accepted a folder.
    QString SelectedRecordingFolder() const { return m_selectedRecordingFolder; }

private:
    void btnOK_Click();
    void OkClicked();
    void btnCancel_Click();
    void dirDirs_Change(const QString& folder);

    EventLog& m_log;
    MessageBoxPresenter& m_messageBox;
    FolderBrowser* m_browser;
    QLineEdit* m_txtPath;
    QString m_selectedRecordingFolder;
    bool m_inDirChange = false;
};

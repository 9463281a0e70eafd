#pragma once

#include <QDialog>

class FolderBrowser;
class QLabel;

// Picks a folder that exists, for adding the recordings in it to the list.
class frmSelectExistingRecordDirectory : public QDialog {
    Q_OBJECT
public:
    // The folder list starts on startFolder, or on the process's current folder when that
    // is empty or can't be read.
    explicit frmSelectExistingRecordDirectory(QWidget* owner, const QString& startFolder = {});

    // Shows the form modally; returns the chosen folder with a closing separator, or an
    // empty text when the user cancelled.
    static QString Choose(QWidget* owner, const QString& startFolder = {});

    QString SelectedFolder() const { return m_selectedFolder; }

private:
    void btnOK_Click();

    FolderBrowser* m_browser;
    QLabel* m_lblPrompt;
    QString m_selectedFolder;
};

#pragma once

#include <QObject>
#include <QString>

class QComboBox;
class QDialog;
class QFileSystemModel;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;
class QTreeView;

// The drive list and the folder list of the folder forms. A "drive" is a mounted file
// system; the folder list shows the folders of the drive in use, the current one selected.
class FolderBrowser : public QObject {
    Q_OBJECT
public:
    explicit FolderBrowser(QObject* parent = nullptr);

    // Widgets for the form's layout, which takes them over.
    QComboBox* drvDrives() const { return m_drives; }
    QTreeView* dirDirs() const { return m_dirs; }

    // Points the folder list at a readable folder; false leaves the list as it was.
    bool SetPath(const QString& folder);
    QString Path() const { return m_path; }
    // The mounted file system that holds the path.
    static QString DriveOf(const QString& path);

    // The OK and Cancel buttons of a folder form.
    struct Buttons {
        QPushButton* btnOK;
        QPushButton* btnCancel;
    };
    // Lays out a folder form: the prompt, the path box when there is one, the drive and
    // folder lists with their captions, and OK and Cancel.
    Buttons LayOutForm(QDialog* form, QLabel* prompt, QLineEdit* path, const QString& drives,
                       const QString& folders) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The folder list now stands on another folder, by the user's choice or by SetPath.
    void PathChanged(const QString& folder);

private:
    void ShowDrive(const QString& drive);
    void ShowCurrent();
    void OnDriveChosen(int index);
    void OnFolderChosen();

    QComboBox* m_drives;
    QTreeView* m_dirs;
    QFileSystemModel* m_model;
    QTimer* m_scrollTimer;
    QString m_path;
    bool m_busy = false;
};

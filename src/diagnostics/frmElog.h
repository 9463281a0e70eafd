#pragma once

#include "ui_frmElog.h"

#include <QDialog>

class AppDatabase;
class MessageBoxPresenter;
class QTimer;
class RecordsetModel;
class RegKeys;
class clsError;

// The event log, newest entry on top. Bringing it to the front counts as having viewed the
// log: the unviewed count goes back to 0 and entries logged while it is on screen add none.
// Entries logged while it is open appear by themselves a moment later.
class frmElog : public QDialog, private Ui::frmElog {
    Q_OBJECT
public:
    frmElog(AppDatabase& database, clsError& error, RegKeys& registry,
            MessageBoxPresenter& messageBox, QWidget* owner);
    ~frmElog() override;

    // The current row (the first one if none was chosen) in frmElogDetails, modally.
    void ShowElogDetails();
    // Asks, then removes every entry, whatever is selected.
    void RemoveElogItems();
    void UpdateElogButtons();

    void done(int result) override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void RestoreGeometry(QWidget* owner);
    int ReadSetting(const char* name, int defaultValue) const;
    void FormActivate();
    void FormResize();
    void FitMessageColumn();
    void SaveSettings();
    void RefreshDataElog();
    void OnRowsChanged();
    void tmrRefresh_Timer();
    void ToggleSelectAll();
    bool GridMousePress(QMouseEvent* event);

    AppDatabase& m_database;
    clsError& m_error;
    RegKeys& m_registry;
    MessageBoxPresenter& m_messageBox;
    RecordsetModel* m_model;
    QTimer* m_tmrRefresh;

    bool m_resizeActive = false;
    bool m_firstActivation = true;
    bool m_returnFromDetails = false;
    bool m_refreshing = false;
    int m_mouseY = -1;
};

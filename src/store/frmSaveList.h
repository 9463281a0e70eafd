#pragma once

#include <QDialog>

class AppContext;
class QComboBox;

// Saves the recordings list under a name.
class frmSaveList : public QDialog {
    Q_OBJECT
public:
    frmSaveList(AppContext& ctx, QWidget* owner);
    void frmSave_Click();

private:
    AppContext& m_ctx;
    QComboBox* m_combo1;
};

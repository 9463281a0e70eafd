#pragma once

#include <QDialog>

class AppContext;
class QCheckBox;
class QListWidget;
class QPushButton;

// Brings a saved recordings list back, replacing the list or merged into it.
class frmLoadList : public QDialog {
    Q_OBJECT
public:
    frmLoadList(AppContext& ctx, QWidget* owner);
    // Shows the form, or says that no list exists yet.
    static void Open(AppContext& ctx, QWidget* owner);

    void btnLoad_Click();
    void btnRemove_Click();

private:
    AppContext& m_ctx;
    QListWidget* m_list1;
    QCheckBox* m_chkMerge;
    QPushButton* m_btnLoad;
    QPushButton* m_btnRemove;
};

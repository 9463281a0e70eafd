#pragma once

#include <QDialog>

// Asks whether the selected programs are to be enabled or disabled.
class frmEnableDisablePrograms : public QDialog {
    Q_OBJECT
public:
    explicit frmEnableDisablePrograms(QWidget* owner);

    // 0 enable, 1 disable, 2 cancel (also when the window is closed).
    int EnableDisableChoice() const { return m_choice; }

    // Shows the dialog modally and gives its answer.
    static int Ask(QWidget* owner);

private:
    void Choose(int choice);

    int m_choice = 2;
};

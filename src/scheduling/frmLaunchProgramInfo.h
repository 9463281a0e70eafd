#pragma once

#include <QDialog>

// The help card on the symbols that the command launched after a recording may hold.
class frmLaunchProgramInfo : public QDialog {
    Q_OBJECT
public:
    explicit frmLaunchProgramInfo(QWidget* owner);

    // The card's text, line by line, in the order shown.
    static QStringList Lines();
};

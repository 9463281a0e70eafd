#pragma once

#include <QDialog>

class Options;
class RegKeys;
class QCheckBox;
class QLabel;

// The two cautions about MPEG Layer-3 recording share one form and one setting: ticking
// "Do not show this warning again" sets ShowMp3Warning to "N" when the form closes.
class Mp3WarningForm : public QDialog {
    Q_OBJECT
public:
    Mp3WarningForm(RegKeys& registry, Options& options, const QString& objectName,
                   const QString& text, QWidget* parent);

    // True when the setting ShowMp3Warning asks for the warning: empty or "Y".
    static bool WarningDue(const RegKeys& registry);

    void done(int result) override;

private:
    RegKeys& m_registry;
    Options& m_options;
    QLabel* m_label;
    QCheckBox* m_showAgain;
};

// The caution against real-time MP3 recording on Windows 95, 98 and Me.
class frmMP3Warning : public Mp3WarningForm {
    Q_OBJECT
public:
    frmMP3Warning(RegKeys& registry, Options& options, QWidget* parent);
};

#pragma once

#include <QDialog>

// How to get to an MP3 recording format, shown from the format dialog's info button.
class frmMp3RecordingFormatInfo : public QDialog {
    Q_OBJECT
public:
    explicit frmMp3RecordingFormatInfo(QWidget* parent);
};

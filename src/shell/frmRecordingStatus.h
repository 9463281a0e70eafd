#pragma once

#include <QWidget>

// A window without controls whose only purpose is its title on the task bar: the elapsed
// time of the recording. It always stays minimised.
class frmRecordingStatus : public QWidget {
    Q_OBJECT
public:
    explicit frmRecordingStatus(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
};

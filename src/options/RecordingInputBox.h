#pragma once

#include <QGroupBox>

class AudioDevices;
class InputChooser;
class InputLevelMeter;

// The input that recordings are taken from unless a program names its own, with the live
// level of the chosen one beside it.
class RecordingInputBox : public QGroupBox {
    Q_OBJECT
public:
    explicit RecordingInputBox(AudioDevices& devices, QWidget* parent = nullptr);

    // By source name; empty for the server's default input.
    void SetInputName(const QString& name);
    QString InputName() const;

    InputChooser* cboRecordingInput;
    InputLevelMeter* meterRecordingInput;
};

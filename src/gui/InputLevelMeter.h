#pragma once

#include <QProgressBar>
#include <QTimer>
#include <memory>

class AudioDevices;
class InputLevel;

// The live level of one sound server input, so that a user sees that sound arrives before
// the first recording. It listens only while it is shown; without a server it stays empty.
class InputLevelMeter : public QProgressBar {
    Q_OBJECT
public:
    explicit InputLevelMeter(AudioDevices& devices, QWidget* parent = nullptr);
    ~InputLevelMeter() override;

    // An empty name is the server's default input.
    void SetInputName(const QString& name);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Listen();
    void ShowPeak();

    AudioDevices& m_devices;
    QString m_inputName;
    std::unique_ptr<InputLevel> m_level;
    QTimer m_refresh;
};

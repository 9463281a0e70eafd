#pragma once

#include "player/PlaybackEngine.h"

#include <QTimer>
#include <QWidget>

class EventLog;
class Options;
class PlayStepButtons;
class QLabel;
class QPushButton;
class QSlider;
class QToolButton;
class TimeSlider;
class clsAppStatus;

// The enhanced player: WAV and MP3, the six skip buttons, a time slider that jumps where it
// is clicked, volume, balance and rate, and the recording's clock time if the options ask
// for it. Not modal; it plays on while a recording runs. Closing it clears Playing.
class frmPlayPanelMP : public QWidget {
    Q_OBJECT
public:
    // volume is the level kept for the run (hundredths of a decibel); the panel starts at it
    // and leaves the last one set there.
    frmPlayPanelMP(EventLog& log, const Options& options, clsAppStatus& appStatus, int& volume,
                   QWidget* mainForm);
    ~frmPlayPanelMP() override;

    // The load: places the form, shows the steps and the starting time, and opens the file
    // (it plays when told to). startTime is the recording's, an automation date.
    void Form_Load(const QString& file, double startTime);

    PlaybackEngine& Engine() { return m_engine; }

    void btnPlay_Click();
    void btnPause_Click();
    void btnStop_Click();
    void btnBeginning_Click();
    void btnEnd_Click();
    void btnForward_Click(int index);
    void btnReverse_Click(int index);
    void sldTime_Jump(int value);
    // The keys of the panel; true when the key was one of them.
    bool CheckKeys(int key, Qt::KeyboardModifiers modifiers);

    QToolButton* btnPlay;
    QToolButton* btnPause;
    QToolButton* btnStop;
    QToolButton* btnBeginning;
    QToolButton* btnEnd;
    QPushButton* btnExit;
    PlayStepButtons* steps;
    TimeSlider* sldTime;
    QSlider* VSliderVolume;
    QSlider* HSliderBalance;
    QSlider* HSliderRate;
    QLabel* lblStatus;
    QLabel* lblTime;
    QLabel* lblLength;
    QLabel* lblError;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildForm();
    void OpenStateChange();
    void UpdateCurrentPlayTime();
    void UpdateButtonEnables();
    void VSliderVolume_Change(int value);
    int TimeSliderValue() const;
    void Resume();
    void SkipTo(double position, const char* procedureName);

    EventLog& m_log;
    const Options& m_options;
    clsAppStatus& m_appStatus;
    int& m_volume;
    QWidget* m_mainForm;
    PlaybackEngine m_engine;
    QTimer m_timer1;
    double m_startTime = 0.0;
    bool m_loaded = false;
};

#pragma once

#include "player/PlayPanelForm.h"
#include "ui_frmPlayPanelMP.h"

// The enhanced player: WAV and MP3, the six skip buttons, a time slider that jumps where it
// is clicked, volume, balance and rate, and the recording's clock time if the options ask
// for it. Not modal; it plays on while a recording runs. Closing it clears Playing.
// The enhanced player: WAV and MP3, opened at the load and played when told to; volume,
// balance and rate of its own, and the transport buttons of a media player.
class frmPlayPanelMP : public PlayPanelForm, public Ui::frmPlayPanelMP {
    Q_OBJECT
public:
    // volume is the level kept for the run (hundredths of a decibel); the panel starts at it
    // and leaves the last one set there.
    frmPlayPanelMP(EventLog& log, const Options& options, clsAppStatus& appStatus, int& volume,
                   QWidget* mainForm);

    // The load: places the form, shows the steps and the starting time, and opens the file.
    // startTime is the recording's, an automation date.
    void Form_Load(const QString& file, double startTime);

    void btnPlay_Click();
    void btnPause_Click();
    void btnStop_Click();
    void btnBeginning_Click();
    void btnEnd_Click();
    void btnForward_Click(int index);
    void btnReverse_Click(int index);
    void sldTime_Jump(int value);
    bool CheckKeys(int key, Qt::KeyboardModifiers modifiers) override;

private:
    void BuildForm();
    void OpenStateChange();
    void UpdateCurrentPlayTime();
    void UpdateButtonEnables();
    void VSliderVolume_Change(int value);
    int TimeSliderValue() const;
    void Resume();
    void SkipTo(double position, const char* procedureName);

    int& m_volume;
    bool m_loaded = false;
};

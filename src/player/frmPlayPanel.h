#pragma once

#include "player/PlayPanelForm.h"

class Mixer;
class QFrame;
class QSlider;
class QToolButton;

// The classic player: WAV files, played as soon as the panel opens. Its transport row has
// Prev, Next, Play, Pause and Stop; its volume slider sets the master volume of the
// default sink, which stays set after the panel closes.
class frmPlayPanel : public PlayPanelForm {
    Q_OBJECT
public:
    frmPlayPanel(EventLog& log, const Options& options, clsAppStatus& appStatus, Mixer& mixer,
                 QWidget* mainForm);

    // The load: opens the file, waits until its length is known (OpenTimeoutMs at most) and
    // starts playing. A failure is logged and leaves the panel open and idle. Then the master
    // volume is shown; a mixer library that can't be loaded throws.
    void Form_Load(const QString& file, double startTime);

    void mciWave_PrevClick();
    void mciWave_NextClick();
    void btnForward_Click(int index);
    void btnReverse_Click(int index);
    void sldTime_MouseDown(int value);
    bool CheckKeys(int key, Qt::KeyboardModifiers modifiers) override;

    static constexpr int OpenTimeoutMs = 10000;

    QFrame* mciWave;
    QToolButton* btnPrev;
    QToolButton* btnNext;
    QToolButton* btnPlay;
    QToolButton* btnPause;
    QToolButton* btnStop;
    QSlider* VSlider1;

private:
    void BuildForm();
    void OpenAndPlay(const QString& file);
    void mciWave_StatusUpdate();
    void SeekAndPlay(qint64 toMs);
    void Step(int index, int direction, const char* procedureName);
    qint64 PositionMs() const;
    qint64 LengthMs() const;

    Mixer& m_mixer;
};

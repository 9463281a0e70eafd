#pragma once

#include "player/PlaybackEngine.h"

#include <QTimer>
#include <QWidget>

class EventLog;
class Mixer;
class Options;
class PlayStepButtons;
class QFrame;
class QLabel;
class QPushButton;
class QSlider;
class QToolButton;
class TimeSlider;
class clsAppStatus;

// The classic player: WAV files, played as soon as the panel opens. Its transport row has
// Prev, Next, Play, Pause and Stop; beside the six skip buttons its volume slider sets the
// master volume of the default sink, which stays set after the panel closes. Closing it
// clears Playing.
class frmPlayPanel : public QWidget {
    Q_OBJECT
public:
    frmPlayPanel(EventLog& log, const Options& options, clsAppStatus& appStatus, Mixer& mixer,
                 QWidget* mainForm);
    ~frmPlayPanel() override;

    // The load: opens the file, waits until its length is known (a few seconds at most)
    // and starts playing. A failure is logged and leaves the panel open and idle.
    void Form_Load(const QString& file, double startTime);

    PlaybackEngine& Engine() { return m_engine; }

    void mciWave_PrevClick();
    void mciWave_NextClick();
    void btnForward_Click(int index);
    void btnReverse_Click(int index);
    void sldTime_MouseDown(int value);
    bool CheckKeys(int key, Qt::KeyboardModifiers modifiers);

    // How long the load waits for the file to open.
    static constexpr int OpenTimeoutMs = 10000;

    QFrame* mciWave;
    QToolButton* btnPrev;
    QToolButton* btnNext;
    QToolButton* btnPlay;
    QToolButton* btnPause;
    QToolButton* btnStop;
    PlayStepButtons* steps;
    TimeSlider* sldTime;
    QSlider* VSlider1;
    QLabel* lblTime;
    QLabel* lblLength;
    QPushButton* btnExit;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildForm();
    void mciWave_StatusUpdate();
    QString StartTimeText() const;
    void SeekAndPlay(qint64 toMs);
    qint64 PositionMs() const;
    qint64 LengthMs() const;

    EventLog& m_log;
    const Options& m_options;
    clsAppStatus& m_appStatus;
    Mixer& m_mixer;
    QWidget* m_mainForm;
    PlaybackEngine m_engine;
    QTimer m_statusTimer;
    double m_startTime = 0.0;
};

#pragma once

#include "player/PlaybackEngine.h"

#include <QTimer>
#include <QWidget>

class EventLog;
class Options;
class PlayStepButtons;
class QLabel;
class QPushButton;
class QToolButton;
class TimeSlider;
class clsAppStatus;

// What the two player panels share: the engine, the six skip buttons, the time slider and
// the time labels, the Exit button, the keys seen before the control with the focus, and
// the end of a play when the panel closes (Playing cleared). Not modal; it plays on while
// a recording runs.
class PlayPanelForm : public QWidget {
    Q_OBJECT
public:
    PlayPanelForm(EventLog& log, const Options& options, clsAppStatus& appStatus,
                  QWidget* mainForm);
    ~PlayPanelForm() override;

    PlaybackEngine& Engine() { return m_engine; }
    // The panel's keys; true when the key was one of them.
    virtual bool CheckKeys(int key, Qt::KeyboardModifiers modifiers) = 0;

    PlayStepButtons* steps;
    TimeSlider* sldTime;
    QLabel* lblTime;
    QLabel* lblLength;
    QPushButton* btnExit;

protected:
    // A transport button showing the style's picture of icon.
    static QToolButton* MediaButton(QWidget* parent, const char* name, int icon,
                                    const QString& tip);
    // Seconds of the step table's row.
    int StepSeconds(int index) const;
    // The time shown seconds into the file: the recording's clock time if the options ask
    // for it, else the time from the start.
    QString TimeText(qint64 seconds) const;
    // Shift, Ctrl and Alt of the modifiers, nothing else: keys count in exact states only.
    static Qt::KeyboardModifiers ShiftState(Qt::KeyboardModifiers modifiers);
    // After the form is built: every child's keys go through CheckKeys first.
    void WatchKeys();
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    EventLog& m_log;
    const Options& m_options;
    clsAppStatus& m_appStatus;
    QWidget* m_mainForm;
    PlaybackEngine m_engine;
    // The panel's display update.
    QTimer m_timer;
    double m_startTime = 0.0;
};

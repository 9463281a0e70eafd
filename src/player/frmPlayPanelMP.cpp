#include "player/frmPlayPanelMP.h"

#include "common/clsAppStatus.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "player/PlayStepButtons.h"
#include "player/PlayTime.h"
#include "player/TimeSlider.h"
#include "store/Options.h"

#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <algorithm>
#include <cmath>

frmPlayPanelMP::frmPlayPanelMP(EventLog& log, const Options& options, clsAppStatus& appStatus,
                               int& volume, QWidget* mainForm)
    : PlayPanelForm(log, options, appStatus, mainForm)
    , m_volume(volume)
{
    setObjectName(QStringLiteral("frmPlayPanelMP"));
    BuildForm();
    m_timer.setInterval(250);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!m_loaded)
            return;
        Trap(m_log, "MP:Timer", [this] {
            UpdateCurrentPlayTime();
            UpdateButtonEnables();
        });
    });
    connect(&m_engine, &PlaybackEngine::Opened, this, &frmPlayPanelMP::OpenStateChange);
    connect(&m_engine, &PlaybackEngine::PlayStateChanged, this, [this] {
        if (m_loaded)
            Trap(m_log, "MP:PlayStateChange", [this] { UpdateButtonEnables(); });
    });
    connect(&m_engine, &PlaybackEngine::Failed, this, [this] {
        lblStatus->setText(tr("Error"));
        lblError->setText(m_engine.ErrorDescription());
    });
    connect(&m_engine, &PlaybackEngine::Warning, this,
            [this](const QString& text) { lblError->setText(text); });
}

void frmPlayPanelMP::BuildForm()
{
    setupUi(this);
    for (auto [button, icon] :
         {std::pair{btnBeginning, QStyle::SP_MediaSkipBackward},
          std::pair{btnPlay, QStyle::SP_MediaPlay}, std::pair{btnPause, QStyle::SP_MediaPause},
          std::pair{btnStop, QStyle::SP_MediaStop}, std::pair{btnEnd, QStyle::SP_MediaSkipForward}})
        button->setIcon(style()->standardIcon(icon));
    QPalette errorPalette = lblError->palette();
    errorPalette.setColor(QPalette::WindowText, Qt::darkRed);
    lblError->setPalette(errorPalette);

    // The parts both panels share are made by the base and take their places here.
    leftColumn->insertWidget(0, sldTime);
    timesRow->insertWidget(0, lblTime);
    timesRow->addWidget(lblLength);
    leftColumn->insertWidget(3, steps);
    bottomRow->addWidget(btnExit, 0, Qt::AlignBottom);

    connect(btnPlay, &QToolButton::clicked, this, &frmPlayPanelMP::btnPlay_Click);
    connect(btnPause, &QToolButton::clicked, this, &frmPlayPanelMP::btnPause_Click);
    connect(btnStop, &QToolButton::clicked, this, &frmPlayPanelMP::btnStop_Click);
    connect(btnBeginning, &QToolButton::clicked, this, &frmPlayPanelMP::btnBeginning_Click);
    connect(btnEnd, &QToolButton::clicked, this, &frmPlayPanelMP::btnEnd_Click);
    connect(steps, &PlayStepButtons::Forward, this, &frmPlayPanelMP::btnForward_Click);
    connect(steps, &PlayStepButtons::Reverse, this, &frmPlayPanelMP::btnReverse_Click);
    connect(sldTime, &TimeSlider::Jumped, this, &frmPlayPanelMP::sldTime_Jump);
    // 0 at the top is full volume; the scale is logarithmic in the level (see the change).
    connect(VSliderVolume, &QSlider::valueChanged, this, &frmPlayPanelMP::VSliderVolume_Change);
    connect(HSliderBalance, &QSlider::valueChanged, this,
            [this](int value) { m_engine.SetBalance(value); });
    connect(HSliderRate, &QSlider::valueChanged, this,
            [this](int value) { m_engine.SetRate(value / 100.0); });
    WatchKeys();
}

void frmPlayPanelMP::Form_Load(const QString& file, double startTime)
{
    InRoutine("MP:Form_Load", [&] {
        FormPlacement::PlaceAtMainForm(this, m_mainForm, 500);
        m_startTime = startTime;
        m_loaded = false;
        lblTime->setText(TimeText(0));
        sldTime->setValue(0);
        m_volume = std::clamp(m_volume, -10000, 0);
        m_engine.SetVolume(m_volume);
        VSliderVolume->setValue(int(std::lround(25.0 * std::log10(1.0 - m_volume))));
        UpdateButtonEnables();
        m_engine.Open(file);
        if (m_engine.Failure() == PlaybackEngine::FailureKind::None)
            lblStatus->setText(tr("Loading"));
        m_timer.start();
    });
}

void frmPlayPanelMP::OpenStateChange()
{
    Trap(m_log, "MediaPlayer1_OpenStateChange", [&] {
        m_loaded = true;
        lblLength->setText(PlayTime::HourMinSecsText(std::llround(m_engine.Duration())));
        lblStatus->clear();
        UpdateButtonEnables();
    });
}

int frmPlayPanelMP::TimeSliderValue() const
{
    return InRoutine("TimeSliderValue", [&] {
        const double duration = m_engine.Duration();
        if (duration <= 0)
            return 0;
        return int(m_engine.CurrentPosition() / duration *
                       (sldTime->maximum() - sldTime->minimum()) +
                   sldTime->minimum());
    });
}

void frmPlayPanelMP::UpdateCurrentPlayTime()
{
    InRoutine("MP:UpdateCurrentPlayTime", [&] {
        sldTime->setValue(TimeSliderValue());
        const qint64 seconds = std::llround(std::max(m_engine.CurrentPosition(), 0.0));
        lblTime->setText(TimeText(seconds));
    });
}

void frmPlayPanelMP::UpdateButtonEnables()
{
    InRoutine("MP:UpdateButtonEnables", [&] {
        const double position = m_engine.CurrentPosition();
        const PlaybackEngine::PlayState state = m_engine.State();
        btnEnd->setEnabled(m_engine.IsOpen() && position < m_engine.Duration() - 0.1);
        btnBeginning->setEnabled(m_engine.IsOpen() && position != 0.0);
        btnPlay->setEnabled(state != PlaybackEngine::PlayState::Playing);
        btnStop->setEnabled(state != PlaybackEngine::PlayState::Stopped);
        btnPause->setEnabled(state != PlaybackEngine::PlayState::Stopped);
    });
}

void frmPlayPanelMP::Resume()
{
    if (m_engine.State() != PlaybackEngine::PlayState::Playing)
        m_engine.Play();
}

void frmPlayPanelMP::btnPlay_Click()
{
    if (m_engine.CurrentPosition() != -1.0)
        m_engine.Play();
}

void frmPlayPanelMP::btnPause_Click()
{
    Trap(m_log, "MP:btnPause_Click", [&] {
        if (m_engine.CurrentPosition() == -1.0)
            return;
        if (m_engine.State() == PlaybackEngine::PlayState::Paused)
            m_engine.Play();
        else
            m_engine.Pause();
    });
}

void frmPlayPanelMP::btnStop_Click()
{
    Trap(m_log, "MP:btnStop_Click", [&] {
        if (m_engine.CurrentPosition() == -1.0)
            return;
        m_engine.Stop();
        sldTime->setValue(TimeSliderValue());
    });
}

void frmPlayPanelMP::btnBeginning_Click()
{
    Trap(m_log, "btnBeginning_Click", [&] {
        sldTime->setValue(0);
        m_engine.SetCurrentPosition(0.0);
        Resume();
    });
}

void frmPlayPanelMP::btnEnd_Click()
{
    Trap(m_log, "btnEnd_Click", [&] {
        sldTime->setValue(sldTime->maximum());
        m_engine.SetCurrentPosition(m_engine.Duration());
    });
}

void frmPlayPanelMP::SkipTo(double position, const char* procedureName)
{
    Trap(m_log, procedureName, [&] {
        if (!m_engine.IsOpen())
            return;
        m_engine.SetCurrentPosition(position);
        Resume();
        sldTime->setValue(TimeSliderValue());
    });
}

void frmPlayPanelMP::btnForward_Click(int index)
{
    const double step = StepSeconds(index);
    double position = std::round(m_engine.CurrentPosition() + step);
    // Past the end lands a second before it, so that the end is still heard.
    if (position > m_engine.Duration())
        position = std::round(m_engine.Duration() - 1.0);
    SkipTo(position, "Play Panel btnForward_Click");
}

void frmPlayPanelMP::btnReverse_Click(int index)
{
    const double step = StepSeconds(index);
    SkipTo(std::max(std::round(m_engine.CurrentPosition() - step), 0.0),
           "Play Panel btnReverse_Click");
}

void frmPlayPanelMP::sldTime_Jump(int value)
{
    if (sldTime->maximum() == 0 || !m_engine.IsOpen())
        return;
    m_engine.SetCurrentPosition(std::round(m_engine.Duration() * value / sldTime->maximum()));
    Resume();
}

void frmPlayPanelMP::VSliderVolume_Change(int value)
{
    Trap(m_log, "MP:VsliderVolume_Change", [&] {
        const double level = std::round(1.0 - std::pow(10.0, value * 0.04));
        m_engine.SetVolume(int(std::clamp(level, -10000.0, 0.0)));
        m_volume = m_engine.Volume();
    });
}

bool frmPlayPanelMP::CheckKeys(int key, Qt::KeyboardModifiers modifiers)
{
    bool handled = false;
    Trap(m_log, "MP:CheckKeys", [&] {
        // Only an exact state counts: Ctrl and Alt together do nothing.
        const Qt::KeyboardModifiers state = ShiftState(modifiers);
        const bool step = key >= Qt::Key_1 && key <= Qt::Key_6;
        if (state == Qt::AltModifier) {
            handled = true;
            if (step)
                btnForward_Click(key - Qt::Key_1);
            else if (key == Qt::Key_B && btnBeginning->isEnabled())
                btnBeginning_Click();
            else if (key == Qt::Key_E && btnEnd->isEnabled())
                btnEnd_Click();
            else if (key == Qt::Key_P && btnPlay->isEnabled())
                btnPlay_Click();
            else if (key == Qt::Key_U)
                btnPause_Click();
            else if (key == Qt::Key_S && btnStop->isEnabled())
                btnStop_Click();
            else
                handled =
                    key == Qt::Key_B || key == Qt::Key_E || key == Qt::Key_P || key == Qt::Key_S;
        } else if (state == Qt::ControlModifier && step) {
            handled = true;
            btnReverse_Click(key - Qt::Key_1);
        }
    });
    return handled;
}

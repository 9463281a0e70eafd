#include "player/frmPlayPanel.h"

#include "common/RuntimeError.h"
#include "common/clsAppStatus.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "gui/FormPlacement.h"
#include "player/PlayStepButtons.h"
#include "player/PlayTime.h"
#include "player/TimeSlider.h"
#include "sideactions/Volume.h"
#include "store/Options.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace {

// The device's numbers for what can go wrong in the load, with the texts of the log.
constexpr int kInvalidDeviceId = 30257;
constexpr int kDeviceNotOpen = 30263;
constexpr int kDriverNotLoaded = 30266;
constexpr int kActionNotAvailable = 30274;
constexpr int kInvalidFilename = 30304;
// A position beyond the file's end.
constexpr int kOutOfRange = 30282;

int LoadErrorNumber(PlaybackEngine::FailureKind kind)
{
    using Kind = PlaybackEngine::FailureKind;
    switch (kind) {
    case Kind::FileNotFound:
        return kInvalidFilename;
    case Kind::NoOutput:
    case Kind::None: // not open within the time-out
        return kDeviceNotOpen;
    case Kind::MissingDecoder:
        return kDriverNotLoaded;
    case Kind::BadContent:
        return kActionNotAvailable;
    case Kind::Other:
        break;
    }
    return kInvalidDeviceId;
}

QString LoadErrorDetails(int number)
{
    switch (number) {
    case kInvalidDeviceId:
        return QCoreApplication::translate("frmPlayPanel", "Invalid device id.");
    case kDeviceNotOpen:
        return QCoreApplication::translate("frmPlayPanel",
                                           "The device is not open or is not known.");
    case kDriverNotLoaded:
        return QCoreApplication::translate("frmPlayPanel", "Error load media device driver.");
    case kActionNotAvailable:
        return QCoreApplication::translate("frmPlayPanel", "Action not available for this device.");
    case kInvalidFilename:
        return QCoreApplication::translate("frmPlayPanel", "Invalid filename.");
    default:
        return QCoreApplication::translate("frmPlayPanel", "Play Panel Form Load Error (") +
               QString::number(number) + QStringLiteral(").");
    }
}

} // namespace

frmPlayPanel::frmPlayPanel(EventLog& log, const Options& options, clsAppStatus& appStatus,
                           Mixer& mixer, QWidget* mainForm)
    : PlayPanelForm(log, options, appStatus, mainForm)
    , m_mixer(mixer)
{
    setObjectName(QStringLiteral("frmPlayPanel"));
    BuildForm();
    m_timer.setInterval(100);
    connect(&m_timer, &QTimer::timeout, this, &frmPlayPanel::mciWave_StatusUpdate);
}

void frmPlayPanel::BuildForm()
{
    mciWave = new QFrame(this);
    mciWave->setObjectName(QStringLiteral("mciWave"));
    mciWave->setFrameShape(QFrame::StyledPanel);
    btnPrev = MediaButton(mciWave, "btnPrev", QStyle::SP_MediaSkipBackward, tr("Prev"));
    btnNext = MediaButton(mciWave, "btnNext", QStyle::SP_MediaSkipForward, tr("Next"));
    btnPlay = MediaButton(mciWave, "btnPlay", QStyle::SP_MediaPlay, tr("Play"));
    btnPause = MediaButton(mciWave, "btnPause", QStyle::SP_MediaPause, tr("Pause"));
    btnStop = MediaButton(mciWave, "btnStop", QStyle::SP_MediaStop, tr("Stop"));
    auto* device = new QHBoxLayout(mciWave);
    device->setContentsMargins(2, 2, 2, 2);
    device->setSpacing(1);
    for (QToolButton* b : {btnPrev, btnNext, btnPlay, btnPause, btnStop})
        device->addWidget(b);

    // Upside down: 0 at the top is full volume.
    VSlider1 = new QSlider(Qt::Vertical, this);
    VSlider1->setObjectName(QStringLiteral("VSlider1"));
    VSlider1->setRange(0, 100);
    VSlider1->setInvertedAppearance(true);
    // At the bottom until the master volume is read, also when it can't be.
    VSlider1->setValue(100);
    VSlider1->setToolTip(tr("Volume"));

    auto* times = new QHBoxLayout;
    times->addWidget(lblTime);
    times->addStretch(1);
    times->addWidget(lblLength);
    auto* left = new QVBoxLayout;
    left->addWidget(mciWave, 0, Qt::AlignLeft);
    left->addWidget(sldTime);
    left->addLayout(times);
    left->addWidget(steps);
    auto* top = new QHBoxLayout;
    top->addLayout(left, 1);
    top->addWidget(VSlider1);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(btnExit);
    auto* form = new QVBoxLayout(this);
    form->addLayout(top);
    form->addLayout(bottom);

    connect(btnPrev, &QToolButton::clicked, this, &frmPlayPanel::mciWave_PrevClick);
    connect(btnNext, &QToolButton::clicked, this, &frmPlayPanel::mciWave_NextClick);
    connect(btnPlay, &QToolButton::clicked, this, [this] { m_engine.Play(); });
    connect(btnPause, &QToolButton::clicked, this, [this] { m_engine.Pause(); });
    connect(btnStop, &QToolButton::clicked, this, [this] { m_engine.Stop(); });
    connect(steps, &PlayStepButtons::Forward, this, &frmPlayPanel::btnForward_Click);
    connect(steps, &PlayStepButtons::Reverse, this, &frmPlayPanel::btnReverse_Click);
    connect(sldTime, &TimeSlider::Jumped, this, &frmPlayPanel::sldTime_MouseDown);
    connect(VSlider1, &QSlider::valueChanged, this, [this](int value) {
        Trap(m_log, "VSlider1_Change", [&] { Volume::SetVolume(m_mixer, 100 - value); });
    });
    WatchKeys();
}

qint64 frmPlayPanel::PositionMs() const
{
    return std::llround(std::max(m_engine.CurrentPosition(), 0.0) * 1000.0);
}

qint64 frmPlayPanel::LengthMs() const
{
    return std::llround(m_engine.Duration() * 1000.0);
}

void frmPlayPanel::Form_Load(const QString& file, double startTime)
{
    FormPlacement::PlaceAtMainForm(this, m_mainForm, 500);
    m_startTime = startTime;
    OpenAndPlay(file);
    // Last, so that the file plays also when the volume can't be read; that failure goes on
    // to the play command. Showing the master volume must not set it.
    const QSignalBlocker quiet(VSlider1);
    // A reading without a server (-1) gives 101, which the slider takes as its bottom.
    VSlider1->setValue(100 - Volume::GetVolume(m_mixer));
}

void frmPlayPanel::OpenAndPlay(const QString& file)
{
    m_engine.Open(file);
    lblTime->setText(TimeText(0));
    sldTime->setValue(0);
    if (!m_engine.WaitForOpen(OpenTimeoutMs)) {
        const int number = LoadErrorNumber(m_engine.Failure());
        m_log.LogEvent(2, tr("Error in Loading Play Panel"), LoadErrorDetails(number));
        return;
    }
    lblLength->setText(PlayTime::HourMinSecsText(LengthMs() / 1000));
    m_timer.start();
    m_engine.Play();
}

void frmPlayPanel::mciWave_StatusUpdate()
{
    Trap(m_log, "mciWave_StatusUpdate", [&] {
        if (!m_engine.IsOpen())
            return;
        const qint64 position = PositionMs();
        const qint64 seconds = std::llround(position / 1000.0);
        // The clock rounds to the nearest second; the count from the start only counts
        // whole seconds played.
        lblTime->setText(m_options.ShowActualTimeInPlayer ? TimeText(seconds)
                                                          : TimeText(position / 1000));
        const qint64 length = LengthMs();
        sldTime->setValue(length == 0 ? 0 : int(double(position) / length * sldTime->maximum()));
        // The device's buttons offer what can be done in its present mode.
        const PlaybackEngine::PlayState state = m_engine.State();
        btnPlay->setEnabled(state != PlaybackEngine::PlayState::Playing);
        btnPause->setEnabled(state == PlaybackEngine::PlayState::Playing);
        btnStop->setEnabled(state != PlaybackEngine::PlayState::Stopped);
    });
}

void frmPlayPanel::mciWave_PrevClick()
{
    Trap(m_log, "mciWave_PrevClick", [&] {
        m_engine.SetCurrentPosition(0.0);
        lblTime->setText(TimeText(0));
        sldTime->setValue(0);
        m_engine.Play();
    });
}

void frmPlayPanel::mciWave_NextClick()
{
    Trap(m_log, "mciWave_NextClick", [&] {
        const qint64 seconds = std::llround(LengthMs() / 1000.0);
        m_engine.SetCurrentPosition(m_engine.Duration());
        lblTime->setText(m_options.ShowActualTimeInPlayer ? TimeText(seconds) : lblLength->text());
        sldTime->setValue(sldTime->maximum());
    });
}

void frmPlayPanel::SeekAndPlay(qint64 toMs)
{
    // The device refuses a position beyond the end; the position stays where it was.
    if (toMs > LengthMs())
        throw RuntimeError(kOutOfRange, QStringLiteral("The specified parameter is out of range "
                                                       "for the specified command."));
    m_engine.SetCurrentPosition(toMs / 1000.0);
    m_engine.Play();
}

void frmPlayPanel::Step(int index, int direction, const char* procedureName)
{
    Trap(m_log, procedureName, [&] {
        SeekAndPlay(std::max<qint64>(PositionMs() + direction * StepSeconds(index) * 1000LL, 0));
    });
}

void frmPlayPanel::btnForward_Click(int index)
{
    Step(index, 1, "Play Panel btnForward_Click");
}

void frmPlayPanel::btnReverse_Click(int index)
{
    Step(index, -1, "Play Panel btnReverse_Click");
}

void frmPlayPanel::sldTime_MouseDown(int value)
{
    Trap(m_log, "sldTime_MouseDown", [&] {
        if (sldTime->maximum() == 0)
            return;
        SeekAndPlay(LengthMs() * value / sldTime->maximum());
    });
}

bool frmPlayPanel::CheckKeys(int key, Qt::KeyboardModifiers modifiers)
{
    const Qt::KeyboardModifiers state = ShiftState(modifiers);
    if (key < Qt::Key_1 || key > Qt::Key_6)
        return false;
    if (state == Qt::AltModifier)
        btnForward_Click(key - Qt::Key_1);
    else if (state == Qt::ControlModifier)
        btnReverse_Click(key - Qt::Key_1);
    else
        return false;
    return true;
}

#include "player/PlayPanelForm.h"

#include "common/clsAppStatus.h"
#include "player/PlayStepButtons.h"
#include "player/PlayTime.h"
#include "player/TimeSlider.h"
#include "store/Options.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

PlayPanelForm::PlayPanelForm(EventLog& log, const Options& options, clsAppStatus& appStatus,
                             QWidget* mainForm)
    : QWidget(nullptr, Qt::Window)
    , m_log(log)
    , m_options(options)
    , m_appStatus(appStatus)
    , m_mainForm(mainForm)
{
    setWindowTitle(tr("Play Recording"));
    steps = new PlayStepButtons(options.PlayStepSizes, this);
    sldTime = new TimeSlider(this);
    sldTime->setObjectName(QStringLiteral("sldTime"));
    lblTime = new QLabel(QStringLiteral("0:00:00"), this);
    lblTime->setObjectName(QStringLiteral("lblTime"));
    lblLength = new QLabel(this);
    lblLength->setObjectName(QStringLiteral("lblLength"));
    btnExit = new QPushButton(tr("E&xit"), this);
    btnExit->setObjectName(QStringLiteral("btnExit"));
    connect(btnExit, &QPushButton::clicked, this, &QWidget::close);
}

PlayPanelForm::~PlayPanelForm() = default;

QToolButton* PlayPanelForm::MediaButton(QWidget* parent, const char* name, int icon,
                                        const QString& tip)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setIcon(parent->style()->standardIcon(QStyle::StandardPixmap(icon)));
    button->setToolTip(tip);
    button->setIconSize(QSize(24, 24));
    return button;
}

int PlayPanelForm::StepSeconds(int index) const
{
    return PlayTime::StepSeconds(m_options.PlayStepSizes[size_t(index)]);
}

QString PlayPanelForm::TimeText(qint64 seconds) const
{
    return m_options.ShowActualTimeInPlayer ? PlayTime::ClockText(m_startTime, seconds)
                                            : PlayTime::HourMinSecsText(seconds);
}

Qt::KeyboardModifiers PlayPanelForm::ShiftState(Qt::KeyboardModifiers modifiers)
{
    return modifiers & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
}

void PlayPanelForm::WatchKeys()
{
    installEventFilter(this);
    for (QWidget* child : findChildren<QWidget*>())
        child->installEventFilter(this);
}

bool PlayPanelForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (CheckKeys(key->key(), key->modifiers()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void PlayPanelForm::closeEvent(QCloseEvent* event)
{
    m_timer.stop();
    m_engine.Close();
    m_appStatus.SetPlaying(false);
    QWidget::closeEvent(event);
}

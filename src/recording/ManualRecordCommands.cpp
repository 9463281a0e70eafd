#include "recording/ManualRecordCommands.h"

#include "common/RuntimeError.h"
#include "common/clsAppStatus.h"
#include "diagnostics/Trap.h"
#include "recording/Recorder.h"
#include "store/EachStep.h"
#include "store/Options.h"

#include <QKeyEvent>
#include <QWidget>

ManualRecordCommands::ManualRecordCommands(const ManualRecordServices& services, Recorder& recorder,
                                           QWidget* owner)
    : QObject(owner)
    , m_s(services)
    , m_recorder(recorder)
    , m_owner(owner)
{
}

void ManualRecordCommands::ToolbarRecord()
{
    m_s.request.Requested = false;
    {
        frmManualRecord form(m_s, false, m_owner);
        form.exec();
    }
    if (m_s.request.Requested && !m_s.appStatus.Recording())
        Trap(m_s.log, "ToolbarRecord", [this] { m_recorder.StartManualRecording(); });
}

void ManualRecordCommands::QuickStart()
{
    Trap(m_s.log, "QuickStart", [this] { StartQuickly(); });
}

void ManualRecordCommands::StartQuickly()
{
    if (m_s.appStatus.Recording())
        return;
    // Intended: a request whose checks failed (a size limit reached) still starts, with what
    // the last request left behind. The entry's trap reports both failures, in turn.
    ThrowFailures(EachStep(
        [this] {
            frmManualRecord form(m_s, true, m_owner);
            form.TakeRequest();
        },
        [this] {
            if (!m_s.appStatus.Recording())
                m_recorder.StartManualRecording();
        }));
}

bool ManualRecordCommands::HandleCommandKey(int keyCode, Qt::KeyboardModifiers shift)
{
    const Qt::KeyboardModifiers held =
        shift & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (m_s.options.DisableKeyboardActivatedRecording || held != Qt::ControlModifier)
        return false;
    const auto command = [this](auto&& body) {
        Trap(m_s.log, "HandleCommandKey", body);
        return true;
    };
    switch (keyCode) {
    case Qt::Key_R:
        return command([this] { StartQuickly(); });
    case Qt::Key_S:
        return command([this] { m_recorder.StopCommand(m_s.options.ConfirmStopManualRecording); });
    case Qt::Key_P:
        return command([this] { m_recorder.PauseCommand(QStringLiteral("P")); });
    case Qt::Key_U:
        return command([this] { m_recorder.PauseCommand(QStringLiteral("R")); });
    case Qt::Key_T:
        return command([this] { m_recorder.PauseCommand(QStringLiteral("T")); });
    default:
        return false;
    }
}

bool ManualRecordCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<const QKeyEvent*>(event);
    // A held key repeats: one press is one command.
    if (key->isAutoRepeat())
        return false;
    return HandleCommandKey(key->key(), key->modifiers());
}

void ManualRecordCommands::JoystickButtonPress(int button)
{
    // A controller with more than four buttons reports the others here, as errors.
    Trap(m_s.log, "Joystick_ButtonPress", [&] {
        // Off until the options allow it: a pad left on a chair must not start anything.
        if (!m_s.options.AllowJoystickActivation)
            return;
        if (button < 1 || button > 4)
            throw RuntimeError(5, QStringLiteral("Invalid procedure call or argument"));
        const Options& options = m_s.options;
        const bool enabled[] = {options.EnableJoystickButton1, options.EnableJoystickButton2,
                                options.EnableJoystickButton3, options.EnableJoystickButton4};
        if (!enabled[button - 1])
            return;
        switch (button) {
        case 1:
            m_recorder.PauseCommand(QStringLiteral("R"));
            break;
        case 2:
            m_recorder.PauseCommand(QStringLiteral("P"));
            break;
        case 3:
            StartQuickly();
            break;
        default:
            m_recorder.StopCommand(false);
            break;
        }
    });
}

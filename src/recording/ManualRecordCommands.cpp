#include "recording/ManualRecordCommands.h"

#include "common/RuntimeError.h"
#include "common/clsAppStatus.h"
#include "diagnostics/Trap.h"
#include "recording/Recorder.h"
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
        m_recorder.StartManualRecording();
}

void ManualRecordCommands::QuickStart()
{
    if (m_s.appStatus.Recording())
        return;
    {
        frmManualRecord form(m_s, true, m_owner);
        form.CommandOk_Click();
    }
    // Intended: a request whose checks failed (a size limit reached) still starts, with what
    // the last request left behind.
    if (!m_s.appStatus.Recording())
        m_recorder.StartManualRecording();
}

bool ManualRecordCommands::HandleCommandKey(int keyCode, Qt::KeyboardModifiers shift)
{
    const Qt::KeyboardModifiers held =
        shift & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (m_s.options.DisableKeyboardActivatedRecording || held != Qt::ControlModifier)
        return false;
    switch (keyCode) {
    case Qt::Key_R:
        QuickStart();
        return true;
    case Qt::Key_S:
        m_recorder.StopCommand(m_s.options.ConfirmStopManualRecording);
        return true;
    case Qt::Key_P:
        m_recorder.PauseCommand(QStringLiteral("P"));
        return true;
    case Qt::Key_U:
        m_recorder.PauseCommand(QStringLiteral("R"));
        return true;
    case Qt::Key_T:
        m_recorder.PauseCommand(QStringLiteral("T"));
        return true;
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
            QuickStart();
            break;
        default:
            m_recorder.StopCommand(false);
            break;
        }
    });
}

#include "gui/InputLevelMeter.h"

#include "platform/AudioDevices.h"

#include <cmath>

namespace {

// The meter spans this many decibels below full scale.
constexpr double FloorDb = -60.0;

} // namespace

InputLevelMeter::InputLevelMeter(AudioDevices& devices, QWidget* parent)
    : QProgressBar(parent)
    , m_devices(devices)
{
    setRange(0, int(-FloorDb));
    setValue(0);
    setTextVisible(false);
    setAccessibleName(tr("Input level"));
    m_refresh.setInterval(1000 / 10);
    connect(&m_refresh, &QTimer::timeout, this, &InputLevelMeter::ShowPeak);
}

InputLevelMeter::~InputLevelMeter() = default;

void InputLevelMeter::SetInputName(const QString& name)
{
    m_inputName = name;
    if (m_level)
        Listen();
}

void InputLevelMeter::showEvent(QShowEvent* event)
{
    QProgressBar::showEvent(event);
    Listen();
}

void InputLevelMeter::hideEvent(QHideEvent* event)
{
    m_refresh.stop();
    m_level.reset();
    setValue(0);
    QProgressBar::hideEvent(event);
}

void InputLevelMeter::Listen()
{
    // The old input's stream ends before the new one's starts.
    m_level.reset();
    m_level = m_devices.ListenToInput(m_inputName);
    m_refresh.start();
}

void InputLevelMeter::ShowPeak()
{
    const float peak = m_level ? m_level->TakePeak() : 0.0f;
    const double db = peak > 0.0f ? 20.0 * std::log10(double(peak)) : FloorDb;
    setValue(int(std::lround(qBound(FloorDb, db, 0.0) - FloorDb)));
}

#include "gui/InputChooser.h"

#include "platform/AudioDevices.h"

#include <algorithm>

namespace {

// Set on the items of named inputs, which a refresh replaces.
constexpr int NamedInputRole = Qt::UserRole + 2;

} // namespace

InputChooser::InputChooser(QWidget* parent)
    : QComboBox(parent)
{
    addItem(tr("The sound server's default input"), QString());
}

void InputChooser::SetInputName(const QString& name)
{
    setCurrentIndex(0);
    if (m_devices)
        Rebuild(name);
}

QString InputChooser::InputName() const
{
    return currentData(NamedInputRole).toBool() ? currentData().toString() : QString();
}

void InputChooser::ListInputs(AudioDevices& devices)
{
    m_devices = &devices;
}

void InputChooser::showPopup()
{
    if (m_devices)
        Rebuild(InputName());
    QComboBox::showPopup();
}

void InputChooser::Rebuild(const QString& chosen)
{
    // An owner's item after the inputs is found again by its place from the end.
    const int fromEnd = count() - currentIndex();
    const bool ownerItemChosen = currentIndex() > 0 && InputName().isEmpty();
    {
        const QSignalBlocker quiet(this);
        while (count() > 1 && itemData(1, NamedInputRole).toBool())
            removeItem(1);
        QList<CaptureSource> sources = m_devices->CaptureSources();
        const auto known = [&sources](const QString& name) {
            return std::any_of(sources.cbegin(), sources.cend(),
                               [&name](const CaptureSource& s) { return s.name == name; });
        };
        if (!chosen.isEmpty() && !known(chosen))
            sources.append({chosen, tr("%1 (not available now)").arg(chosen)});
        int at = 1;
        for (const CaptureSource& source : sources) {
            insertItem(at, source.description.isEmpty() ? source.name : source.description,
                       source.name);
            setItemData(at, source.name, Qt::ToolTipRole);
            setItemData(at, true, NamedInputRole);
            ++at;
        }
    }
    if (ownerItemChosen)
        setCurrentIndex(count() - fromEnd);
    else
        setCurrentIndex(chosen.isEmpty() ? 0 : findData(chosen));
}

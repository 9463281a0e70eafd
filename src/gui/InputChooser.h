#pragma once

#include <QComboBox>

class AudioDevices;

// A list of the sound server's inputs by their descriptions, the monitors of the outputs
// included, after "The sound server's default input"; each item holds its source's name. The
// list is read again each time it opens, so a device plugged in since shows up. Items an
// owner adds after the inputs stay where they are. Until it is given the sound system to
// list, it holds its first item (and an owner's) alone.
class InputChooser : public QComboBox {
    Q_OBJECT
public:
    explicit InputChooser(QWidget* parent = nullptr);

    // An empty name chooses the default input; a name the server does not know (a device
    // unplugged) stays in the list as it is, so that it is not lost by opening a form.
    void SetInputName(const QString& name);
    // Empty for the default input and for any item that is not an input.
    QString InputName() const;
    void ListInputs(AudioDevices& devices);

    void showPopup() override;

private:
    // Reads the server's inputs again and chooses the named one (the default when empty),
    // unless an owner's item was chosen.
    void Rebuild(const QString& chosen);

    AudioDevices* m_devices = nullptr;
};

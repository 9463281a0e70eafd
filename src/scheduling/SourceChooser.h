#pragma once

#include <QGroupBox>

class AudioDevices;
class InputChooser;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class StreamTest;

// Where a recording's sound comes from: a sound server input or an internet stream. The list
// holds the inputs first (the options' input; the server's named ones where a form lists
// them) and the stream last; choosing the stream enables its address and its Test, which reads a
// few seconds of the stream and shows what it found or why it failed.
class SourceChooser : public QGroupBox {
    Q_OBJECT
public:
    // Forms make it from their layout files and name the recording task, which runs the
    // test, before it is shown.
    explicit SourceChooser(QWidget* parent = nullptr);
    ~SourceChooser() override;

    void SetTaskProgram(const QString& taskProgram);
    // Offers the server's inputs by name after the options' one (the program editor).
    void ListInputs(AudioDevices& devices);

    // An empty address chooses the first item, the options' input.
    void SetStreamUrl(const QString& address);
    // Empty when an input is chosen.
    QString StreamUrl() const;
    bool StreamChosen() const;
    // With the inputs listed: the chosen input's name, empty for the options' input.
    void SetInputName(const QString& name);
    QString InputName() const;

    QComboBox* cboSource;
    QLineEdit* txtStreamUrl;
    QPushButton* btnTestStream;
    QLabel* lblStreamTest;

private:
    void UpdateEnables();
    void btnTestStream_Click();

    StreamTest* m_test;
    InputChooser* m_inputs;
};

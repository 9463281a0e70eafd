#pragma once

#include <QGroupBox>

class InputChooser;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class StreamTest;

// Where a recording's sound comes from: a sound server input or an internet stream. The list
// holds the inputs first (the options' input alone, or the server's inputs to choose from) and
// the stream last; choosing the stream enables its address and its Test, which reads a few
// seconds of the stream and shows what it found or why it failed.
class SourceChooser : public QGroupBox {
    Q_OBJECT
public:
    enum class Inputs { OptionsInput, Listed };
    // taskProgram is the recording task, which runs the test.
    SourceChooser(const QString& taskProgram, Inputs inputs, QWidget* parent = nullptr);
    ~SourceChooser() override;

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
    // Null unless the inputs are listed.
    InputChooser* m_inputs = nullptr;
};

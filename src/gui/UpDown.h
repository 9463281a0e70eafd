#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

// A pair of arrow buttons that steps the number in a text box within its limits. The box
// stays a plain text box: what the user types there is taken as typed, and the form checks
// it where its rules say (a spin box would correct it before anyone could look).
class UpDown : public QWidget {
    Q_OBJECT
public:
    UpDown(QLineEdit* buddy, int min, int max, QWidget* parent = nullptr);

    int Min() const { return m_min; }
    int Max() const { return m_max; }
    // The box's number; a step starts from it.
    int Value() const;
    // Steps by delta within the limits, writes the value into the box with at least two
    // digits and selects it.
    void Step(int delta);

signals:
    void Changed(int value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_buddy;
    QToolButton* m_up;
    QToolButton* m_down;
    int m_min;
    int m_max;
};

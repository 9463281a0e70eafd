#pragma once

#include <QSlider>

// The players' time slider: a press of the mouse jumps to where it was pressed at once,
// instead of paging towards it, and says so.
class TimeSlider : public QSlider {
    Q_OBJECT
public:
    explicit TimeSlider(QWidget* parent = nullptr);

Q_SIGNALS:
    void Jumped(int value);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

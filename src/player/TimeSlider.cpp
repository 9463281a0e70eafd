#include "player/TimeSlider.h"

#include <QMouseEvent>

TimeSlider::TimeSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setToolTip(tr("Time Control"));
    setRange(0, 1000);
}

void TimeSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QSlider::mousePressEvent(event);
        return;
    }
    const double x = event->position().x();
    const int value = width() == 0 ? int(maximum() * x) : int(x / width() * maximum());
    setValue(value);
    Q_EMIT Jumped(this->value());
    event->accept();
}

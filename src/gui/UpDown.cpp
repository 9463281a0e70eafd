#include "gui/UpDown.h"

#include "common/TextHelpers.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

UpDown::UpDown(QLineEdit* buddy, int min, int max, QWidget* parent)
    : QWidget(parent)
    , m_buddy(buddy)
    , m_up(new QToolButton(this))
    , m_down(new QToolButton(this))
    , m_min(min)
    , m_max(max)
{
    const int half = qMax(8, buddy->sizeHint().height() / 2);
    for (QToolButton* button : {m_up, m_down}) {
        button->setFixedSize(16, half);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
    }
    m_up->setArrowType(Qt::UpArrow);
    m_down->setArrowType(Qt::DownArrow);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    connect(m_up, &QToolButton::clicked, this, [this] { Step(1); });
    connect(m_down, &QToolButton::clicked, this, [this] { Step(-1); });
    // The arrow keys in the box step as the buttons do.
    m_buddy->installEventFilter(this);
}

int UpDown::Value() const
{
    return int(
        qBound(qint64(m_min), Text::RoundHalfEven(Text::Val(m_buddy->text())), qint64(m_max)));
}

void UpDown::Step(int delta)
{
    const int value = qBound(m_min, Value() + delta, m_max);
    m_buddy->setText(QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')));
    m_buddy->selectAll();
    emit Changed(value);
}

bool UpDown::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_buddy && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

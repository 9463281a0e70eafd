#include "shell/frmRecordingStatus.h"

#include <QEvent>
#include <QTimer>

frmRecordingStatus::frmRecordingStatus(QWidget* parent)
    : QWidget(parent, Qt::Window)
{
    setObjectName(QStringLiteral("frmRecordingStatus"));
    setWindowState(Qt::WindowMinimized);
}

void frmRecordingStatus::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    // It can't be opened: any other state goes back to minimised.
    if (event->type() == QEvent::WindowStateChange && !isMinimized())
        QTimer::singleShot(0, this, [this] { setWindowState(Qt::WindowMinimized); });
}

#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

// A control of a form by its object name; a missing one ends the run, as no test can go on.
template <typename T = QWidget> T* Control(QWidget* form, const QString& name)
{
    T* control = form->findChild<T*>(name);
    if (!control)
        qFatal("no control %s", qPrintable(name));
    return control;
}

// Acts on the next modal dialog once it is on screen, from inside its own event loop, so a
// test can answer a form that the code under test shows with exec().
template <typename Action> void WhenModalOpens(Action action)
{
    auto* poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, [poll, action] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll->stop();
        poll->deleteLater();
        action(dialog);
    });
    poll->start();
}

#pragma once

#include <QObject>
#include <QString>

// The buttons of a game controller: a way to start, pause and stop a recording from across
// the room. Without a controller nothing is ever reported, and nothing is said about it.
class Joystick : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    // A button went down; buttons are numbered from 1. Releases are not reported.
    void ButtonPressed(int button);
};

#pragma once

#include <QWidget>

// Shown while the main form loads: name, version and notice, nothing else. The start-up
// shows it, lets it paint, and closes it when the main form is loaded.
class frmSplash : public QWidget {
    Q_OBJECT
public:
    explicit frmSplash(QWidget* parent = nullptr);
};

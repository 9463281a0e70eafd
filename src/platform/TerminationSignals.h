#pragma once

#include <QObject>

class QSocketNotifier;

// SIGTERM (the service manager's stop) and SIGINT (Ctrl+C in a terminal) as a Qt signal in
// the event loop: the handler only writes a byte to a pipe, which is all a signal handler
// may safely do.
class TerminationSignals : public QObject {
    Q_OBJECT
public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void TerminationRequested();

private:
    QSocketNotifier* m_notifier = nullptr;
};

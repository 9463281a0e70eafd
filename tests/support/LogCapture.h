#pragma once

#include <QStringList>
#include <QtGlobal>

// Collects what the program writes to its diagnostic output while it lives.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    bool Contains(const QString& text) const;

    QStringList lines;

private:
    QtMessageHandler m_previous;
};

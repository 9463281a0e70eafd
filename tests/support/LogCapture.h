#pragma once

#include <QStringList>
#include <QtGlobal>
#include <algorithm>

// Collects what the program writes to its diagnostic output while it lives.
class LogCapture {
public:
    LogCapture()
        : m_previous(qInstallMessageHandler(Collect))
    {
        Current() = this;
    }
    ~LogCapture()
    {
        Current() = nullptr;
        qInstallMessageHandler(m_previous);
    }
    bool Contains(const QString& text) const
    {
        return std::any_of(lines.cbegin(), lines.cend(),
                           [&text](const QString& line) { return line.contains(text); });
    }

    QStringList lines;

private:
    static LogCapture*& Current()
    {
        static LogCapture* current = nullptr;
        return current;
    }
    static void Collect(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        if (Current())
            Current()->lines << message;
    }

    QtMessageHandler m_previous;
};

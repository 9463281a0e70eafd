#include "LogCapture.h"

namespace {
LogCapture* current = nullptr;

void Collect(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (current)
        current->lines << message;
}
} // namespace

LogCapture::LogCapture()
    : m_previous(qInstallMessageHandler(Collect))
{
    current = this;
}

LogCapture::~LogCapture()
{
    current = nullptr;
    qInstallMessageHandler(m_previous);
}

bool LogCapture::Contains(const QString& text) const
{
    for (const QString& line : lines) {
        if (line.contains(text))
            return true;
    }
    return false;
}

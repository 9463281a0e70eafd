#include "diagnostics/JournalLog.h"

#include <QString>
#include <cstdio>

namespace JournalLog {
namespace {

int Priority(QtMsgType type)
{
    switch (type) {
    case QtFatalMsg:
        return 2;
    case QtCriticalMsg:
        return 3;
    case QtWarningMsg:
        return 4;
    case QtInfoMsg:
        return 6;
    default:
        return 7;
    }
}

void Write(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    // The journal takes one entry per line: a line break inside a message would start an
    // entry without a priority.
    QString text = message;
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" / "));
    text.replace(u'\n', QStringLiteral(" / "));
    std::fprintf(stderr, "<%d>%s\n", Priority(type), text.toLocal8Bit().constData());
    std::fflush(stderr);
}

} // namespace

void Install()
{
    qInstallMessageHandler(Write);
}

} // namespace JournalLog

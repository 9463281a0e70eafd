#include "sideactions/LaunchCommands.h"

#include "common/RuntimeError.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "platform/ProcessLauncher.h"

#include <QCoreApplication>
#include <QDir>

namespace {

const QChar kSeparator = QDir::separator();

// The last four characters are taken for a dot and a three-letter extension.
constexpr int kShortestWithExtension = 5;

} // namespace

QString GetDirectory(const QString& path)
{
    qsizetype last = path.lastIndexOf(kSeparator);
    // The search stops at the last character: of two separators that close the text, the
    // last is not taken.
    if (last > 0 && last == path.size() - 1 && path.at(last - 1) == kSeparator)
        --last;
    return last >= 0 ? path.left(last + 1) : QString();
}

QString GetFilename(EventLog& log, const QString& path)
{
    const qsizetype last = path.lastIndexOf(kSeparator);
    if (last >= 0)
        return path.mid(last + 1);
    // The caller's mistake is reported as the run time's error and the command goes on.
    log.LogRuntimeError(QStringLiteral("GetFilename"),
                        RuntimeError(5, QStringLiteral("Invalid procedure call or argument")));
    return QString();
}

QString GetFileBase(const QString& name)
{
    const QString trimmed = Text::Trim(name);
    return trimmed.size() >= kShortestWithExtension ? trimmed.left(trimmed.size() - 4) : QString();
}

QString GetFileExtension(const QString& name)
{
    const QString trimmed = Text::Trim(name);
    return trimmed.size() >= kShortestWithExtension ? trimmed.right(3) : QString();
}

QString InterpretCommand(EventLog& log, const QString& command, const QString& fileName)
{
    return InRoutine("InterpretCommand", [&] {
        const QString directory = GetDirectory(fileName);
        const QString name = GetFilename(log, fileName);
        const QString base = GetFileBase(name);
        const QString extension = GetFileExtension(name);
        QString result;
        for (qsizetype i = 0; i < command.size(); ++i) {
            const QChar c = command.at(i);
            if (c != u'%' || i + 1 == command.size()) {
                result += c;
                continue;
            }
            // What is put in is not looked at again, so a % in a file name is safe.
            switch (command.at(i + 1).toLower().unicode()) {
            case 'd':
                result += directory;
                break;
            case 'p':
                result += Text::Trim(fileName);
                break;
            case 'f':
                result += name;
                break;
            case 'b':
                result += base;
                break;
            case 'e':
                result += extension;
                break;
            case '%':
                result += u'%';
                break;
            default:
                result += c;
                continue;
            }
            ++i;
        }
        return result;
    });
}

void LaunchAfterRecording(EventLog& log, ProcessLauncher& launcher, bool recordingOk,
                          const QString& command, bool onlyIfOk, const QString& fileName)
{
    if (Text::Trim(command).isEmpty() || (!recordingOk && onlyIfOk))
        return;
    const QString expanded = InterpretCommand(log, command, fileName);
    if (launcher.StartDetached(expanded, WindowStyleMinimizedNoActivate))
        return;
    // One letter differs from the text of the launch ahead of a recording; both stand.
    log.LogEvent(
        EventWarning,
        QCoreApplication::translate("LaunchCommands", "Invalid Launch Application command"),
        QCoreApplication::translate("LaunchCommands",
                                    "The command to launch an application is invalid.  Check "
                                    "the file paths and that the application exists.\r\n"
                                    "Command= ") +
            expanded);
}

#include "sideactions/LaunchCommands.h"

#include "common/ProcessLauncher.h"
#include "common/TextHelpers.h"
#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"

#include <QCoreApplication>
#include <QDir>

namespace {

const QChar kSeparator = QDir::separator();

// The last four characters are taken for a dot and a three-letter extension.
constexpr int kShortestWithExtension = 5;

} // namespace

QString GetDirectory(EventLog& log, const QString& path)
{
    QString directory;
    Trap(log, "GetDirectory", [&] {
        qsizetype last = path.lastIndexOf(kSeparator);
        // The search stops at the last character: of two separators that close the text,
        // the last is not taken.
        if (last > 0 && last == path.size() - 1 && path.at(last - 1) == kSeparator)
            --last;
        if (last >= 0)
            directory = path.left(last + 1);
    });
    return directory;
}

QString GetFilename(EventLog& log, const QString& path)
{
    QString name;
    Trap(log, "GetFilename", [&] {
        const qsizetype last = path.lastIndexOf(kSeparator);
        if (last < 0)
            throw RuntimeError(5, QStringLiteral("Invalid procedure call or argument"));
        name = path.mid(last + 1);
    });
    return name;
}

QString GetFileBase(EventLog& log, const QString& name)
{
    QString base;
    Trap(log, "GetFileBase", [&] {
        const QString trimmed = Text::Trim(name);
        if (trimmed.size() >= kShortestWithExtension)
            base = trimmed.left(trimmed.size() - 4);
    });
    return base;
}

QString GetFileExtension(EventLog& log, const QString& name)
{
    QString extension;
    Trap(log, "GetFileExtension", [&] {
        const QString trimmed = Text::Trim(name);
        if (trimmed.size() >= kShortestWithExtension)
            extension = trimmed.right(3);
    });
    return extension;
}

QString InterpretCommand(EventLog& log, const QString& command, const QString& fileName)
{
    QString result;
    Trap(log, "InterpretCommand", [&] {
        const QString directory = GetDirectory(log, fileName);
        const QString name = GetFilename(log, fileName);
        const QString base = GetFileBase(log, name);
        const QString extension = GetFileExtension(log, name);
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
    });
    return result;
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

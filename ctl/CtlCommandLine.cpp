#include "CtlCommandLine.h"

#include <QList>

namespace CtlCommandLine {
namespace {

struct CommandUsage {
    QString name;
    QString usage;
    QString summary;
    int leastWords;
    int mostWords;
    QStringList options;
};

const QList<CommandUsage>& Commands()
{
    static const QList<CommandUsage> commands = {
        {"status", "status", "What the recorder does now and which program comes next.", 0, 0, {}},
        {"next",
         "next [N]",
         "The next N occurrences of programs (5 when N is left out).",
         0,
         1,
         {}},
        {"programs", "programs", "The program list.", 0, 0, {}},
        {"add",
         "add --once YYYY-MM-DD | --weekly mon,wed,... --start HH:MM[:SS] --end HH:MM[:SS]\n"
         "    --desc TEXT [--format wav|mp3-128|...] [--stream URL | --input NAME] [--yes]",
         "Adds a program, with the program editor's checks. An end before the start lies on "
         "the next day. --input records from a sound server source by its name (pactl list short "
         "sources) instead of the options' input. --yes confirms a recording longer than the "
         "options allow.",
         0,
         0,
         {"once", "weekly", "start", "end", "desc", "format", "stream", "input", "yes"}},
        {"remove", "remove ID", "Removes a program.", 1, 1, {}},
        {"enable", "enable ID", "Enables a program.", 1, 1, {}},
        {"disable", "disable ID", "Disables a program.", 1, 1, {}},
        {"record",
         "record SECONDS [--desc TEXT]",
         "Records at once for so many seconds in the default format.",
         1,
         1,
         {"desc"}},
        {"stop", "stop", "Stops the recording in progress, or else the MP3 conversion.", 0, 0, {}},
        {"pause", "pause", "Pauses the recording in progress, or resumes it.", 0, 0, {}},
        {"recordings", "recordings", "The list of recordings.", 0, 0, {}},
        {"log",
         "log [N]",
         "The newest N entries of the event log (20 when N is left out).",
         0,
         1,
         {}},
    };
    return commands;
}

const CommandUsage* Find(const QString& name)
{
    for (const CommandUsage& command : Commands())
        if (command.name == name)
            return &command;
    return nullptr;
}

// Options that take a value; the others are flags.
const QStringList kValueOptions = {"once", "weekly", "start",  "end",
                                   "desc", "format", "stream", "input"};

} // namespace

QString Usage(const QString& command)
{
    if (const CommandUsage* usage = Find(command))
        return QStringLiteral("Usage: nightreel-ctl [--json] %1\n\n%2\n")
            .arg(usage->usage, usage->summary);
    QString text =
        QStringLiteral("Usage: nightreel-ctl [--json] COMMAND [ARGUMENTS]\n\n"
                       "Controls the Nightreel 2000 recorder of this user over the session bus.\n\n"
                       "Commands:\n");
    for (const CommandUsage& each : Commands())
        text += QStringLiteral("  %1\n").arg(each.usage.section(u'\n', 0, 0));
    text += QStringLiteral(
        "\nOptions:\n"
        "  --json   print the answer as JSON\n"
        "  --help   print this text, or a command's usage after the command\n\n"
        "Exit status: 0 done, 1 refused by the recorder (its message on standard error),\n"
        "2 bad arguments, 3 no recorder running.\n");
    return text;
}

Parsed Parse(const QStringList& arguments)
{
    CtlRequest request;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& word = arguments[i];
        if (!word.startsWith(QStringLiteral("--"))) {
            if (request.command.isEmpty())
                request.command = word;
            else
                request.arguments << word;
            continue;
        }
        QString name = word.mid(2);
        QString value;
        if (const qsizetype equals = name.indexOf(u'='); equals >= 0) {
            value = name.mid(equals + 1);
            name = name.left(equals);
        } else if (kValueOptions.contains(name)) {
            if (++i >= arguments.size())
                return {std::nullopt, QStringLiteral("--%1 needs a value").arg(name)};
            value = arguments[i];
        }
        if (name == QStringLiteral("json"))
            request.json = true;
        else if (name == QStringLiteral("help"))
            request.help = true;
        else
            request.options.insert(name, value);
    }
    if (request.help)
        return {request, {}};
    const CommandUsage* usage = Find(request.command);
    if (!usage)
        return {std::nullopt, request.command.isEmpty()
                                  ? QStringLiteral("a command is needed")
                                  : QStringLiteral("unknown command: ") + request.command};
    for (auto it = request.options.cbegin(); it != request.options.cend(); ++it)
        if (!usage->options.contains(it.key()))
            return {std::nullopt,
                    QStringLiteral("%1 takes no option --%2").arg(usage->name, it.key())};
    if (request.arguments.size() < usage->leastWords || request.arguments.size() > usage->mostWords)
        return {std::nullopt, QStringLiteral("wrong number of arguments for ") + usage->name};
    return {request, {}};
}

} // namespace CtlCommandLine

#include "CtlCommands.h"

#include "nightreelproxy.h"

#include <QDate>
#include <QTime>

namespace {

// The answer of a call, or what the bus said instead.
template <typename Reply> CtlResult Answer(Reply reply)
{
    reply.waitForFinished();
    CtlResult result;
    if (!reply.isError()) {
        if constexpr (Reply::Count > 0)
            result.answer = QVariant::fromValue(reply.value());
        return result;
    }
    const QDBusError error = reply.error();
    result.error = error.message();
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
    case QDBusError::NoServer:
        result.status = CtlResult::NoRecorder;
        result.error = QStringLiteral("No recorder is running.");
        break;
    default:
        result.status = error.name().endsWith(QStringLiteral(".InvalidArgument"))
                            ? CtlResult::BadArguments
                            : CtlResult::Refused;
    }
    return result;
}

CtlResult BadArguments(const QString& text)
{
    return {CtlResult::BadArguments, {}, text};
}

std::optional<int> Number(const CtlRequest& request, int fallback)
{
    if (request.arguments.isEmpty())
        return fallback;
    bool ok = false;
    const int value = request.arguments.first().toInt(&ok);
    return ok && value >= 0 ? std::optional(value) : std::nullopt;
}

bool IsTime(const QString& text)
{
    return QTime::fromString(text, QStringLiteral("HH:mm:ss")).isValid() ||
           QTime::fromString(text, QStringLiteral("HH:mm")).isValid();
}

} // namespace

CtlCommands::CtlCommands(OrgLarkmoorNightreel1Interface& recorder)
    : m_recorder(recorder)
{
}

CtlResult CtlCommands::Run(const CtlRequest& request)
{
    const QString& command = request.command;
    if (command == QStringLiteral("status"))
        return Answer(m_recorder.Status());
    if (command == QStringLiteral("programs"))
        return Answer(m_recorder.Programs());
    if (command == QStringLiteral("recordings"))
        return Answer(m_recorder.Recordings());
    if (command == QStringLiteral("stop"))
        return Answer(m_recorder.Stop());
    if (command == QStringLiteral("pause"))
        return Answer(m_recorder.PauseResume());
    if (command == QStringLiteral("add"))
        return Add(request);
    if (command == QStringLiteral("next") || command == QStringLiteral("log")) {
        const auto count = Number(request, command == QStringLiteral("next") ? 5 : 20);
        if (!count)
            return BadArguments(QStringLiteral("N must be a number"));
        return command == QStringLiteral("next") ? Answer(m_recorder.NextPrograms(*count))
                                                 : Answer(m_recorder.EventLog(*count));
    }
    // The rest name a program or a length by their one word.
    const auto number = Number(request, 0);
    if (!number)
        return BadArguments(command + QStringLiteral(" needs a number"));
    if (command == QStringLiteral("remove"))
        return Answer(m_recorder.RemoveProgram(*number));
    if (command == QStringLiteral("enable") || command == QStringLiteral("disable"))
        return Answer(m_recorder.SetProgramEnabled(*number, command == QStringLiteral("enable")));
    // The manual recording dialog's own default description.
    const QString description =
        request.options.value(QStringLiteral("desc"), QStringLiteral("Manual Record"));
    return Answer(m_recorder.StartManual(uint(*number), description));
}

CtlResult CtlCommands::Add(const CtlRequest& request)
{
    const auto& o = request.options;
    if (o.contains(QStringLiteral("once")) == o.contains(QStringLiteral("weekly")))
        return BadArguments(QStringLiteral("add needs either --once or --weekly"));
    for (const char* needed : {"start", "end", "desc"})
        if (!o.contains(QString::fromLatin1(needed)))
            return BadArguments(QStringLiteral("add needs --") + QString::fromLatin1(needed));
    if (!IsTime(o.value(QStringLiteral("start"))) || !IsTime(o.value(QStringLiteral("end"))))
        return BadArguments(QStringLiteral("times are written HH:MM or HH:MM:SS"));
    QVariantMap program{{"description", o.value(QStringLiteral("desc"))},
                        {"start", o.value(QStringLiteral("start"))},
                        {"end", o.value(QStringLiteral("end"))}};
    if (o.contains(QStringLiteral("once"))) {
        if (!QDate::fromString(o.value(QStringLiteral("once")), Qt::ISODate).isValid())
            return BadArguments(QStringLiteral("a date is written YYYY-MM-DD"));
        program.insert("once", o.value(QStringLiteral("once")));
    } else {
        program.insert("days", o.value(QStringLiteral("weekly")).split(u',', Qt::SkipEmptyParts));
    }
    if (o.contains(QStringLiteral("format")))
        program.insert("format", o.value(QStringLiteral("format")));
    for (const char* source : {"stream", "input"})
        if (o.contains(QLatin1String(source)))
            program.insert(QLatin1String(source), o.value(QLatin1String(source)));
    if (o.contains(QStringLiteral("yes")))
        program.insert("confirmed", true);
    return Answer(m_recorder.AddProgram(program));
}

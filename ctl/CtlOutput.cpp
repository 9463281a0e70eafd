#include "CtlOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace CtlOutput {
namespace {

QString Text(const QVariantMap& map, const char* key)
{
    return map.value(QString::fromLatin1(key)).toString();
}

QString Elapsed(uint seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

void PrintStatus(const QVariantMap& s, QTextStream& out)
{
    out << "Mode: " << Text(s, "mode") << '\n';
    if (s.value(QStringLiteral("recording")).toBool()) {
        out << "Recording: " << Text(s, "description") << '\n'
            << "File: " << Text(s, "file") << '\n'
            << "Elapsed: " << Elapsed(s.value(QStringLiteral("elapsed")).toUInt()) << ", ends "
            << Text(s, "end") << '\n';
    }
    if (s.contains(QStringLiteral("next_id")))
        out << "Next: " << Text(s, "next_description") << " at " << Text(s, "next_start")
            << " (program " << Text(s, "next_id") << ")\n";
    else
        out << "Next: none\n";
}

QString ProgramLine(const QVariantMap& p)
{
    const QString when = p.contains(QStringLiteral("once"))
                             ? Text(p, "once")
                             : p.value(QStringLiteral("days")).toStringList().join(u',');
    return QStringLiteral("%1\t%2\t%3 %4-%5\t%6\t%7")
        .arg(Text(p, "id"),
             p.value(QStringLiteral("enabled")).toBool() ? QStringLiteral("enabled")
                                                         : QStringLiteral("disabled"),
             when, Text(p, "start"), Text(p, "end"), Text(p, "format"), Text(p, "description"));
}

QString Line(const QString& command, const QVariantMap& row)
{
    if (command == QStringLiteral("programs"))
        return ProgramLine(row);
    if (command == QStringLiteral("next"))
        return QStringLiteral("%1 - %2\t%3\t%4")
            .arg(Text(row, "start"), Text(row, "end"), Text(row, "id"), Text(row, "description"));
    if (command == QStringLiteral("recordings"))
        return QStringLiteral("%1\t%2\t%3\t%4")
            .arg(Text(row, "id"), Text(row, "start"), Text(row, "file"), Text(row, "description"));
    QString details = Text(row, "details");
    details.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    return QStringLiteral("%1\t%2\t%3: %4")
        .arg(Text(row, "time"), Text(row, "type"), Text(row, "message"), details);
}

void PrintJson(const QString& command, const QVariant& answer, QTextStream& out)
{
    QJsonDocument document;
    if (answer.canConvert<QList<QVariantMap>>() &&
        answer.metaType() != QMetaType::fromType<QVariantMap>()) {
        QJsonArray rows;
        for (const QVariantMap& row : answer.value<QList<QVariantMap>>())
            rows.append(QJsonObject::fromVariantMap(row));
        document.setArray(rows);
    } else if (answer.metaType() == QMetaType::fromType<QVariantMap>()) {
        document.setObject(QJsonObject::fromVariantMap(answer.toMap()));
    } else if (command == QStringLiteral("add")) {
        document.setObject({{"id", answer.toInt()}});
    } else if (command == QStringLiteral("record")) {
        document.setObject({{"file", answer.toString()}});
    } else if (command == QStringLiteral("pause")) {
        document.setObject({{"paused", answer.toBool()}});
    } else {
        return;
    }
    out << document.toJson(QJsonDocument::Indented);
}

} // namespace

void Print(const QString& command, const QVariant& answer, bool json, QTextStream& out)
{
    if (json)
        return PrintJson(command, answer, out);
    if (command == QStringLiteral("status"))
        PrintStatus(answer.toMap(), out);
    else if (answer.canConvert<QList<QVariantMap>>())
        for (const QVariantMap& row : answer.value<QList<QVariantMap>>())
            out << Line(command, row) << '\n';
    else if (command == QStringLiteral("add"))
        out << "Added program " << answer.toInt() << '\n';
    else if (command == QStringLiteral("record"))
        out << "Recording to " << answer.toString() << '\n';
    else if (command == QStringLiteral("pause"))
        out << (answer.toBool() ? "Paused\n" : "Resumed\n");
}

} // namespace CtlOutput

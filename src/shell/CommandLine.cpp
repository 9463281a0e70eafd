#include "shell/CommandLine.h"

#include "common/TextHelpers.h"
#include "common/Translations.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QTextStream>

CommandLine CommandLine::Parse(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Nightreel 2000 records sound at the times of the programs you list."));
    // Qt's own help option would offer --help-all for Qt's options, which this early reading
    // cannot serve.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QCommandLineParser::tr("Displays help on commandline options."));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption inspect(
        QStringLiteral("inspect"),
        tr("Print the row the recordings list would show for <file>, then end."), tr("file"));
    parser.addOption(inspect);
    const QCommandLineOption headless(
        QStringLiteral("headless"),
        tr("Record without a window or display, controlled by nightreel-ctl."));
    parser.addOption(headless);
    parser.addPositionalArgument(
        QStringLiteral("word"),
        tr("1: start hidden in the tray. 2: start even if Nightreel 2000 is "
           "already running."),
        QStringLiteral("[1|2]"));

    CommandLine line;
    if (!parser.parse(arguments)) {
        err << parser.errorText() << Qt::endl << tr("Try \"nightreel --help\".") << Qt::endl;
        line.exitCode = 1;
        return line;
    }
    if (parser.isSet(help)) {
        // The usage line names the program by the path it was started from; it gets the name
        // a user types, in whatever language the line is.
        QString text = parser.helpText();
        text.replace(QRegularExpression(QStringLiteral("^([^\\n]*: )\\S+")),
                     QStringLiteral("\\1nightreel"));
        out << text;
        line.exitCode = 0;
        return line;
    }
    if (parser.isSet(version)) {
        out << QStringLiteral("Nightreel 2000 %1.%2.%3")
                   .arg(NIGHTREEL_VERSION_MAJOR)
                   .arg(NIGHTREEL_VERSION_MINOR)
                   .arg(NIGHTREEL_VERSION_REV)
            << Qt::endl;
        line.exitCode = 0;
        return line;
    }
    line.inspectFile = parser.value(inspect);
    line.headless = parser.isSet(headless);
    const QStringList words = parser.positionalArguments();
    const QString word = words.isEmpty() ? QString() : Text::Trim(words.first());
    line.startHidden = word == QStringLiteral("1");
    line.allowSecondInstance = word == QStringLiteral("2");
    return line;
}

CommandLine CommandLine::Parse(int argc, char* argv[])
{
    // An application object of its own, only for the translations of the help.
    QCoreApplication reading(argc, argv);
    Translations::Install();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return Parse(arguments, out, err);
}

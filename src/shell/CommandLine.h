#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <optional>

class QTextStream;

// What the command line asks of this start. It is read before the start's own application
// object exists, so that --help and --version answer without a display.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    // The start-up words of earlier versions: "1" starts hidden in the tray, "2" allows a
    // second instance. Any other word is ignored, as it always was.
    bool startHidden = false;
    bool allowSecondInstance = false;
    // --headless: the recorder without a window, controlled over the session bus.
    bool headless = false;
    // --inspect FILE: print the recordings list's row for the file and end.
    QString inspectFile;
    // Set when the program is to end at once (after --help, --version or a wrong option).
    std::optional<int> exitCode;

    // arguments starts with the program's name, as argv does. Help and version go to out,
    // errors to err.
    static CommandLine Parse(const QStringList& arguments, QTextStream& out, QTextStream& err);
    // The program's own command line, with the help in the user's language.
    static CommandLine Parse(int argc, char* argv[]);
};

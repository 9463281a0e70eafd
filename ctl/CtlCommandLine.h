#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

// One run of nightreel-ctl as its command line asks it: the command, its words and options.
struct CtlRequest {
    QString command;
    QStringList arguments;
    // Options given with their values ("once" -> "2030-01-01"); flags have an empty value.
    QMap<QString, QString> options;
    bool json = false;
    // "--help", alone or after a command: the usage is printed and nothing is asked.
    bool help = false;
};

// Reads the command line; what is wrong with it is the text of the error. Each command takes
// only the options and number of words its usage names.
namespace CtlCommandLine {

struct Parsed {
    std::optional<CtlRequest> request;
    QString error;
};
Parsed Parse(const QStringList& arguments);

// The usage of one command, or of all of them for an empty or unknown name.
QString Usage(const QString& command);

} // namespace CtlCommandLine

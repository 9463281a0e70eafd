// nightreel-rec: records one recording for the scheduler whose channel is named on the
// command line, then leaves.
#include "RecordingTask.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2)
        return 2;
    RecordingTask task(args.at(1));
    if (!task.Begin())
        return 1;
    return app.exec();
}

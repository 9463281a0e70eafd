// nightreel-rec: records one recording for the scheduler whose channel is named on the
// command line, then leaves. With --probe and an address it tests an internet stream; with
// --primed before the channel it is started ahead of its recording (see RecordingTask).
#include "RecordingTask.h"
#include "StreamProbe.h"

#include <QCoreApplication>
#include <memory>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() == 3 && args.at(1) == QLatin1String("--probe")) {
        StreamProbe probe(args.at(2));
        return app.exec();
    }
    const bool primed = args.size() == 3 && args.at(1) == QLatin1String("--primed");
    if (args.size() != 2 && !primed)
        return 2;
    RecordingTask task(args.last(), primed);
    if (!task.Begin())
        return 1;
    return app.exec();
}

#include "sideactions/LaunchMixer.h"

#include "common/ProcessLauncher.h"
#include "diagnostics/EventLog.h"

#include <QCoreApplication>

namespace {

// The launcher splits a command line into words; quoted whole, the path stays one word
// (a quote inside is tripled, the splitter's way of writing a literal quote).
QString AsOneWord(QString path)
{
    path.replace(u'"', QStringLiteral("\"\"\""));
    return u'"' + path + u'"';
}

} // namespace

void LaunchMixer(EventLog& log, ProcessLauncher& launcher, const QString& mixerPath)
{
    if (launcher.StartDetached(AsOneWord(mixerPath)))
        return;
    log.LogEvent(EventError, QCoreApplication::translate("LaunchMixer", "Mixer Control Not Found"),
                 QCoreApplication::translate(
                     "LaunchMixer",
                     "Install the sound server's volume control or a 3rd party mixer.  To install "
                     "the volume control, open the desktop's software manager, search for "
                     "PulseAudio Volume Control (package pavucontrol), and install it.\r\n"
                     "To install a 3rd party mixer, bring up the Options form from the "
                     "View/Options menu, select the Advanced tab, and press the Modify mixer "
                     "control button."));
}

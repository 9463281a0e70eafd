#include "formats/frmMP3WarningNT.h"

frmMP3WarningNT::frmMP3WarningNT(RegKeys& registry, Options& options, QWidget* parent)
    : Mp3WarningForm(
          registry, options, QStringLiteral("frmMP3WarningNT"),
          QStringLiteral("The convert option is intended for Windows 95/98/Me systems because "
                         "these versions of Windows are not able to record on the fly with the "
                         "MP3 codec.  It is recommended to turn the convert selection off with "
                         "your version of Windows since conversion is very slow."),
          parent)
{
}

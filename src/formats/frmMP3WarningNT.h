#pragma once

#include "formats/frmMP3Warning.h"

// The advice against the convert option on the Windows versions that record MP3 on the
// fly; this platform is one of them.
class frmMP3WarningNT : public Mp3WarningForm {
    Q_OBJECT
public:
    frmMP3WarningNT(RegKeys& registry, Options& options, QWidget* parent);
};

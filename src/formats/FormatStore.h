#pragma once

#include <QtGlobal>

class DataControl;
class Options;
class Recordset;
class RegKeys;
class clsRecordingFormat;

// Where recording formats are kept: each Programs row holds its program's format; the Info
// row and two settings hold the default format.

// Reads the format of the Programs row that rs is on: the seven wfx_ columns, wfxExtra and
// the MP3 flags of Flags. A NULL column or more extra bytes than a format holds is an error.
void ReadFormat(clsRecordingFormat& format, const Recordset& rs);
// Whether ReadFormat can read the row's format: for those that only look ahead, and leave
// the report of a bad format to the start of its recording.
bool FormatReadable(const Recordset& rs);
// Writes the format into the Programs row being edited or added: the seven wfx_ columns,
// Flags and wfxExtra. Failures are left to the caller's trap.
void WriteFormat(const clsRecordingFormat& format, Recordset& rs);

// The default format: the Info row of the database (its one row) and the settings
// SaveMP3FileExtension and ConvertToMP3, which the options mirror.
class DefaultFormatStore {
public:
    DefaultFormatStore(RegKeys& registry, Options& options, DataControl& dataInfo);

    // Replaces the Info row by one of this format and saves the two flags; a format other
    // than MP3 saves the flags' defaults, into the format as well. Throws, marked with the
    // routine's name.
    void SaveDefaultFormatInfo(clsRecordingFormat& format);
    // Throws when the row or the settings can't be read, or the row holds more extra bytes
    // than a format can.
    void ReadDefaultFormatInfo(clsRecordingFormat& format);
    // The default format into WfxDefault; a row that can't be read is replaced by phone
    // quality, and a failure to save that throws.
    void GetWfxDefault(clsRecordingFormat& WfxDefault);

private:
    RegKeys& m_registry;
    Options& m_options;
    DataControl& m_dataInfo;
};

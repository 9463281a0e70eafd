#pragma once

#include <QtGlobal>

// The bit flags kept in the Flags column of a program row. Flags is public because it is
// what goes to and from the database; the properties are views of single bits of it.
class clsProgramFlags {
public:
    qint32 Flags = 0;

    // Bit 1: the recording gets the .mp3 extension.
    bool SaveMP3FileExtension() const;
    // Only True (-1) sets the bit; any other value, 1 included, clears it.
    void SetSaveMP3FileExtension(int value);
    void SetSaveMP3FileExtension(bool value);

    // Bit 2: the recording is converted to MP3 after the fact.
    bool ConvertToMP3() const;
    // Only True (-1) sets the bit; any other value, 1 included, clears it.
    void SetConvertToMP3(int value);
    void SetConvertToMP3(bool value);

private:
    void SetBit(qint32 bit, bool on);
};

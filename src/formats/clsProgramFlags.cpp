#include "formats/clsProgramFlags.h"

namespace {

constexpr qint32 kSaveMP3FileExtension = 1;
constexpr qint32 kConvertToMP3 = 2;
// True as the system stores Booleans: all bits on.
constexpr int kTrue = -1;

} // namespace

bool clsProgramFlags::SaveMP3FileExtension() const
{
    return (Flags & kSaveMP3FileExtension) != 0;
}

void clsProgramFlags::SetSaveMP3FileExtension(int value)
{
    SetBit(kSaveMP3FileExtension, value == kTrue);
}

void clsProgramFlags::SetSaveMP3FileExtension(bool value)
{
    SetBit(kSaveMP3FileExtension, value);
}

bool clsProgramFlags::ConvertToMP3() const
{
    return (Flags & kConvertToMP3) != 0;
}

void clsProgramFlags::SetConvertToMP3(int value)
{
    SetBit(kConvertToMP3, value == kTrue);
}

void clsProgramFlags::SetConvertToMP3(bool value)
{
    SetBit(kConvertToMP3, value);
}

void clsProgramFlags::SetBit(qint32 bit, bool on)
{
    if (on)
        Flags |= bit;
    else
        Flags &= ~bit;
}

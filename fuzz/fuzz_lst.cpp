// Any bytes through the reader of saved recordings lists: every item it gives must be
// the text between a pair of quotes of the input.
#include "recordingslist/ListFile.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const QStringList items = ListFile::ReadItems(bytes);
    qsizetype quotes = bytes.count('"');
    if (items.size() > quotes / 2)
        __builtin_trap();
    for (const QString& item : items) {
        if (item.contains(u'"'))
            __builtin_trap();
    }
    return 0;
}

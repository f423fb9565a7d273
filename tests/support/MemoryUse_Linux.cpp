#include "MemoryUse.h"

#include <QFile>

#include <malloc.h>
#include <unistd.h>

MemoryUse MemoryUse::now()
{
    // So that what is free but not yet given back is not counted.
    malloc_trim(0);
    const auto heap = mallinfo2();
    QFile file(QStringLiteral("/proc/self/statm"));
    qint64 pages = 0;
    if (file.open(QIODevice::ReadOnly))
        pages = file.readLine().split(' ').value(1).toLongLong();
    return {static_cast<qint64>(heap.uordblks + heap.hblkhd), pages * sysconf(_SC_PAGESIZE)};
}

bool MemoryUse::isMeaningful()
{
#if defined(__SANITIZE_ADDRESS__)
    return false;
#elif defined(__has_feature)
    return !__has_feature(address_sanitizer);
#else
    return true;
#endif
}

#ifndef MEMORYUSE_H
#define MEMORYUSE_H

#include <QtGlobal>

/// What this process holds at a moment, for tests that nothing stays behind.
struct MemoryUse
{
    qint64 allocated; ///< bytes on the heap that were asked for and not given back
    qint64 resident;  ///< bytes of the process that stand in physical memory

    static MemoryUse now();

    /// Whether the figures tell anything: a sanitizer's heap keeps what was given back.
    static bool isMeaningful();
};

#endif

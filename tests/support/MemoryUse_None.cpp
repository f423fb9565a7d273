#include "MemoryUse.h"

// A system whose figures nobody has taught us to read.
MemoryUse MemoryUse::now()
{
    return {};
}

bool MemoryUse::isMeaningful()
{
    return false;
}

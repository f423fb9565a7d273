#include "Invariants.h"

#include <QtGlobal>

void require(bool holds, const char *what)
{
    if (!holds)
        qFatal("This does not hold: %s", what);
}

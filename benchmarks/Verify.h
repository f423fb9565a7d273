#ifndef VERIFY_H
#define VERIFY_H

#include <QtGlobal>

/// Ends the process with a message when a benchmark did not do what it is timed for.
inline void verify(bool done, const char *what)
{
    if (!done)
        qFatal("Not as it should be: %s", what);
}

#endif

#ifndef PROGRESS_H
#define PROGRESS_H

#include <QString>

#include <cstdio>

/// Tells on the terminal, beside the tables, what is being measured.
inline void progress(const QString &what)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(what));
}

#endif

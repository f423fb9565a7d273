#ifndef LOADEDFILE_H
#define LOADEDFILE_H

#include <QString>

/// Whether a shared library or plug-in file is in the memory of this process, whoever loaded it.
bool isLoadedFile(const QString &fileName);

#endif

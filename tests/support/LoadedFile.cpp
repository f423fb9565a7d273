#include "LoadedFile.h"

#include <QFile>

#include <dlfcn.h>

bool isLoadedFile(const QString &fileName)
{
    void *const handle = dlopen(QFile::encodeName(fileName).constData(), RTLD_LAZY | RTLD_NOLOAD);
    // Asking has added a reference.
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

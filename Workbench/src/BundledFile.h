#ifndef BUNDLEDFILE_H
#define BUNDLEDFILE_H

#include <QString>

/// What the user means by a name: the file, if there is one; otherwise the bundled JSON file of
/// that name, if there is one; otherwise the file that is missing.
///
/// @param folder "sites" or "scenarios"
QString bundledOrFile(const QString &folder, const QString &name);

#endif

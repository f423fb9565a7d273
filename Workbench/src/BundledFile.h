#ifndef BUNDLEDFILE_H
#define BUNDLEDFILE_H

#include <QString>

/// What the user means by a name: the bundled JSON file of that name, if there is one, otherwise a
/// file. A file that is named like a bundled one is meant by "./name".
///
/// @param folder "sites" or "scenarios"
QString bundledOrFile(const QString &folder, const QString &name);

#endif

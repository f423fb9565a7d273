#include "BundledFile.h"

#include <QFile>

QString bundledOrFile(const QString &folder, const QString &name)
{
    const QString bundled = QStringLiteral(":/workbench/%1/%2.json").arg(folder, name);
    return !name.contains(u'/') && QFile::exists(bundled) ? bundled : name;
}

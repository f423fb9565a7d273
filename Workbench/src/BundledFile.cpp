#include "BundledFile.h"

#include <QFileInfo>

QString bundledOrFile(const QString &folder, const QString &name)
{
    const QString bundled = QStringLiteral(":/workbench/%1/%2.json").arg(folder, name);
    return !QFileInfo::exists(name) && QFileInfo::exists(bundled) ? bundled : name;
}

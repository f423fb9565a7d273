#include "FakeFiles.h"

QString FakeFiles::resolve(const QString &path) const
{
    return path.startsWith(u'/') ? path : QStringLiteral("/home/user/Documents/") + path;
}

bool FakeFiles::exists(const QString &path) const
{
    return texts.contains(path);
}

QString FakeFiles::write(const QString &path, const QString &text)
{
    if (obstacle.isEmpty())
        texts.insert(path, text);
    return obstacle;
}

QString FakeFiles::content(const QString &path) const
{
    return texts.value(path);
}

#include "Display.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

#include <unistd.h>

namespace {

void setDefault(const char *name, const QByteArray &value)
{
    if (!qEnvironmentVariableIsSet(name))
        qputenv(name, value);
}

} // namespace

bool hasDisplay(const QProcessEnvironment &environment)
{
    const QString platform = environment.value(QStringLiteral("QT_QPA_PLATFORM"));
    if (!platform.isEmpty())
        return !platform.startsWith(QLatin1String("offscreen"))
               && !platform.startsWith(QLatin1String("minimal"));
    return !environment.value(QStringLiteral("DISPLAY")).isEmpty()
           || !environment.value(QStringLiteral("WAYLAND_DISPLAY")).isEmpty();
}

void drawOffscreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    setDefault("QT_QUICK_BACKEND", "software");
    // Outside a login session Qt makes such a folder itself, and complains.
    const QString folder = QDir::tempPath() + QStringLiteral("/runtime-%1").arg(geteuid());
    setDefault("XDG_RUNTIME_DIR", QFile::encodeName(folder));
}

#include "Preferences.h"

#include <QDebug>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

namespace {

const QString KeyDark = QStringLiteral("dashboard/dark");
const QString KeyZoom = QStringLiteral("dashboard/zoom");

} // namespace

Preferences::Preferences(QString fileName)
    : m_fileName(std::move(fileName))
{ }

QString Preferences::usualFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
           + QStringLiteral("/settings.ini");
}

bool Preferences::isDark() const
{
    return value(KeyDark).toString() != QStringLiteral("false");
}

void Preferences::setDark(bool isDark)
{
    keep(KeyDark, isDark);
}

double Preferences::zoom() const
{
    const double zoom = value(KeyZoom).toDouble();
    return zoom > 0 ? zoom : 1;
}

void Preferences::setZoom(double zoom)
{
    keep(KeyZoom, zoom);
}

// A file that was damaged is as good as none.
QVariant Preferences::value(const QString &key) const
{
    return m_fileName.isEmpty() ? QVariant()
                                : QSettings(m_fileName, QSettings::IniFormat).value(key);
}

void Preferences::keep(const QString &key, const QVariant &value)
{
    if (m_fileName.isEmpty())
        return;
    QSettings settings(m_fileName, QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qWarning().noquote() << tr("%1 cannot be written").arg(m_fileName);
}

#include "Preferences.h"

#include <QDebug>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

namespace {

const QString KeyDark = QStringLiteral("dashboard/dark");

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
    // A file that was damaged is as good as none.
    return m_fileName.isEmpty()
           || QSettings(m_fileName, QSettings::IniFormat).value(KeyDark).toString()
                  != QStringLiteral("false");
}

void Preferences::setDark(bool isDark)
{
    if (m_fileName.isEmpty())
        return;
    QSettings settings(m_fileName, QSettings::IniFormat);
    settings.setValue(KeyDark, isDark);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qWarning().noquote() << tr("%1 cannot be written").arg(m_fileName);
}

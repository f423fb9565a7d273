#include "JournalWriter.h"

#include "Clock.h"
#include "EnvironmentThresholds.h"
#include "InputError.h"
#include "JournalKeys.h"

#include <QDateTime>
#include <QJsonDocument>

JournalWriter::JournalWriter(const QString &fileName, const QString &pluginId, const Clock &clock)
    : m_file(fileName)
    , m_clock(clock)
    , m_startMs(clock.elapsedMs())
{
    if (m_file.exists())
        throw InputError(tr("%1: expected a new file, found one that is there").arg(fileName));
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        throw InputError(tr("%1: cannot be written: %2").arg(fileName, m_file.errorString()));
    writeLine({{JournalKeys::Journal, JournalKeys::Kind},
               {JournalKeys::Version, JournalKeys::CurrentVersion},
               {JournalKeys::Plugin, pluginId},
               {JournalKeys::Workbench, QCoreApplication::applicationVersion()},
               {JournalKeys::Recorded, QDateTime::currentDateTime().toString(Qt::ISODate)},
               {JournalKeys::Environment, thresholdsOfEnvironment()}});
    if (!m_failure.isEmpty()) {
        m_file.remove();
        throw InputError(m_failure);
    }
}

void JournalWriter::write(QJsonObject entry)
{
    entry.insert(JournalKeys::At, m_clock.elapsedMs() - m_startMs);
    writeLine(entry);
}

void JournalWriter::writeLine(const QJsonObject &object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    // A disk that is nearly full takes a part, and tells what is wrong when it is given the rest.
    for (qint64 written = 0; written < line.size() && m_failure.isEmpty();) {
        const qint64 taken = m_file.write(line.constData() + written, line.size() - written);
        if (taken <= 0)
            m_failure =
                tr("%1: cannot be written: %2").arg(m_file.fileName(), m_file.errorString());
        written += taken;
    }
}

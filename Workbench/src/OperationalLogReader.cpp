#include "OperationalLogReader.h"

#include "OperationalLogPlugin.h"
#include "OperationalLogStore.h"

#include <QVariantMap>

#include <algorithm>

namespace {

QStringList texts(const QVariantList &values)
{
    QStringList texts;
    for (const QVariant &value : values)
        texts.append(value.toString());
    return texts;
}

// What writers call their entries is meant for programs.
QString nameInWords(const QString &name)
{
    return name == QStringLiteral("AddDashboardSnooze") ? OperationalLogReader::tr("Error snoozed")
                                                        : name;
}

} // namespace

OperationalLogReader::OperationalLogReader(const OperationalLogStore &log,
                                           const OperationalLogPlugin &plugin, QObject *parent)
    : QObject(parent)
    , m_log(log)
{
    connect(&plugin, &OperationalLogPlugin::entryAdded, this, &OperationalLogReader::changed);
}

QVariantList OperationalLogReader::newest(int limit, const QString &text) const
{
    const auto matches = [&text](const OperationalLogEntry &entry) {
        const QStringList candidates = texts(entry.parameters) << nameInWords(entry.name);
        return std::any_of(candidates.cbegin(), candidates.cend(), [&text](const QString &value) {
            return value.contains(text, Qt::CaseInsensitive);
        });
    };
    QVariantList list;
    for (const OperationalLogEntry &entry : m_log.newest(limit, matches)) {
        list.append(QVariantMap{{QStringLiteral("time"), entry.time.toMSecsSinceEpoch()},
                                {QStringLiteral("name"), nameInWords(entry.name)},
                                {QStringLiteral("parameters"), texts(entry.parameters)}});
    }
    return list;
}

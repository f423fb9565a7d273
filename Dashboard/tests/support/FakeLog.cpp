#include "FakeLog.h"

QVariantList FakeLog::newest(int limit, const QString &text)
{
    ++reads;
    QVariantList found;
    for (const QVariant &entry : std::as_const(entries)) {
        const QVariantMap map = entry.toMap();
        const QStringList texts = map.value(QStringLiteral("parameters")).toStringList()
                                  << map.value(QStringLiteral("name")).toString();
        if (!texts.filter(text, Qt::CaseInsensitive).isEmpty() && found.size() < limit)
            found.append(entry);
    }
    return found;
}

void FakeLog::add(double time, const QString &name, const QStringList &parameters)
{
    entries.prepend(QVariantMap{{QStringLiteral("time"), time},
                                {QStringLiteral("name"), name},
                                {QStringLiteral("parameters"), parameters}});
    Q_EMIT changed();
}

void FakeLog::addMany(int count, double oldest)
{
    for (int i = 0; i < count; ++i)
        add(oldest + i * 1000.0, QStringLiteral("Entry %1").arg(i), {});
}

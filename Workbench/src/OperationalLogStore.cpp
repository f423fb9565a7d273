#include "OperationalLogStore.h"

#include "InputError.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace {

constexpr const char *CreateTable = "CREATE TABLE IF NOT EXISTS operational_log ("
                                    "id INTEGER PRIMARY KEY, time INTEGER NOT NULL, "
                                    "name TEXT NOT NULL, parameters TEXT NOT NULL)";
constexpr const char *Insert =
    "INSERT INTO operational_log (time, name, parameters) VALUES (?, ?, ?)";
constexpr const char *SelectNewestFirst =
    "SELECT time, name, parameters FROM operational_log ORDER BY id DESC";

QString toJson(const QVariantList &list)
{
    return QString::fromUtf8(
        QJsonDocument(QJsonArray::fromVariantList(list)).toJson(QJsonDocument::Compact));
}

QVariantList fromJson(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).array().toVariantList();
}

// An empty name would make SQLite keep a file of its own.
QString databaseName(const QString &fileName)
{
    return fileName.isEmpty() ? QStringLiteral(":memory:") : fileName;
}

} // namespace

OperationalLogStore::OperationalLogStore(const QString &fileName)
    : m_connectionName(QUuid::createUuid().toString())
{
    if (!fileName.isEmpty())
        QDir().mkpath(QFileInfo(fileName).absolutePath());
    QString failure;
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
        database.setDatabaseName(databaseName(fileName));
        QSqlQuery query(database);
        if (!database.open())
            failure = database.lastError().databaseText();
        else if (!query.exec(QLatin1String(CreateTable)))
            failure = query.lastError().databaseText();
    }
    if (!failure.isEmpty()) {
        QSqlDatabase::removeDatabase(m_connectionName);
        throw InputError(
            tr("%1: cannot be used for the operational log: %2").arg(fileName, failure));
    }
}

OperationalLogStore::~OperationalLogStore()
{
    QSqlDatabase::removeDatabase(m_connectionName);
}

bool OperationalLogStore::add(const OperationalLogEntry &entry)
{
    QSqlQuery query(QSqlDatabase::database(m_connectionName));
    query.prepare(QLatin1String(Insert));
    query.addBindValue(entry.time.toMSecsSinceEpoch());
    query.addBindValue(entry.name);
    query.addBindValue(toJson(entry.parameters));
    return query.exec();
}

QList<OperationalLogEntry> OperationalLogStore::newest(int limit) const
{
    return newest(limit, [](const OperationalLogEntry &) { return true; });
}

QList<OperationalLogEntry>
OperationalLogStore::newest(int limit,
                            const std::function<bool(const OperationalLogEntry &)> &accepts) const
{
    QSqlQuery query(QSqlDatabase::database(m_connectionName));
    query.setForwardOnly(true);
    query.exec(QLatin1String(SelectNewestFirst));
    QList<OperationalLogEntry> entries;
    while (entries.size() < limit && query.next()) {
        const OperationalLogEntry entry{QDateTime::fromMSecsSinceEpoch(query.value(0).toLongLong()),
                                        query.value(1).toString(),
                                        fromJson(query.value(2).toString())};
        if (accepts(entry))
            entries.append(entry);
    }
    return entries;
}

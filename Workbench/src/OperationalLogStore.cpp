#include "OperationalLogStore.h"

#include "InputError.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <utility>

namespace {

constexpr const char *CreateTable = "CREATE TABLE IF NOT EXISTS operational_log ("
                                    "id INTEGER PRIMARY KEY, time INTEGER NOT NULL, "
                                    "name TEXT NOT NULL, parameters TEXT NOT NULL)";
constexpr const char *Insert =
    "INSERT INTO operational_log (time, name, parameters) VALUES (?, ?, ?)";
constexpr const char *SelectNewestFirst =
    "SELECT time, name, parameters FROM operational_log ORDER BY id DESC LIMIT ?";
constexpr const char *Prune =
    "DELETE FROM operational_log WHERE id <= (SELECT max(id) FROM operational_log) - ?";
constexpr const char *OtherTables =
    "SELECT count(*) FROM sqlite_schema WHERE tbl_name <> 'operational_log'";

constexpr int ApplicationId = 0x536e7a32; // tells this kind of file from other SQLite files

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
    : m_fileName(fileName)
    , m_connectionName(QUuid::createUuid().toString())
{
    m_commitDue.setSingleShot(true);
    QObject::connect(&m_commitDue, &QTimer::timeout, &m_commitDue, [this] { commit(); });
    if (!fileName.isEmpty())
        QDir().mkpath(QFileInfo(fileName).absolutePath());
    try {
        open();
    } catch (const QString &failure) {
        QSqlDatabase::removeDatabase(m_connectionName);
        throw InputError(
            tr("%1: cannot be used for the operational log: %2").arg(fileName, failure));
    }
}

OperationalLogStore::~OperationalLogStore()
{
    commit();
    QSqlDatabase::removeDatabase(m_connectionName);
}

// Throws a text, and has written nothing then. Logs of earlier versions have no application id.
//
// A power cut may take the last entries, in exchange for which nobody waits for the disk.
void OperationalLogStore::open()
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    database.setDatabaseName(databaseName(m_fileName));
    if (!database.open())
        throw database.lastError().databaseText();
    const int id = run(QStringLiteral("PRAGMA application_id")).toInt();
    if (id != ApplicationId && (id != 0 || run(QLatin1String(OtherTables)).toInt() > 0))
        throw tr("an SQLite file of another kind");
    run(QStringLiteral("PRAGMA journal_mode = WAL"));
    run(QStringLiteral("PRAGMA synchronous = NORMAL"));
    run(QLatin1String(CreateTable));
    run(QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId));
    run(QLatin1String(Prune), MaxEntries);
}

// The first value of the result. Throws a text.
QVariant OperationalLogStore::run(const QString &statement, const QVariant &value)
{
    QSqlQuery query(QSqlDatabase::database(m_connectionName));
    bool isDone = query.prepare(statement);
    if (isDone && value.isValid())
        query.addBindValue(value);
    isDone = isDone && query.exec();
    if (!isDone)
        throw query.lastError().databaseText();
    return query.next() ? query.value(0) : QVariant();
}

// However many entries there are in one turn of the event loop, they are written together.
void OperationalLogStore::commitLater()
{
    if (m_hasUncommitted)
        return;
    m_hasUncommitted = QSqlDatabase::database(m_connectionName).transaction();
    m_commitDue.start(0);
}

void OperationalLogStore::commit()
{
    if (!std::exchange(m_hasUncommitted, false))
        return;
    QSqlDatabase database = QSqlDatabase::database(m_connectionName);
    const bool isWritten = database.commit();
    const QString failure = database.lastError().databaseText();
    if (!isWritten)
        database.rollback();
    report(isWritten, failure);
}

// A full disk fails each entry; saying so once is enough.
bool OperationalLogStore::report(bool isWritten, const QString &failure)
{
    if (!isWritten && !std::exchange(m_hasWarned, true))
        qWarning().noquote() << tr("%1: cannot be written: %2").arg(m_fileName, failure);
    return isWritten;
}

bool OperationalLogStore::add(const OperationalLogEntry &entry)
{
    commitLater();
    QSqlQuery query(QSqlDatabase::database(m_connectionName));
    query.prepare(QLatin1String(Insert));
    query.addBindValue(entry.time.toMSecsSinceEpoch());
    query.addBindValue(entry.name);
    query.addBindValue(toJson(entry.parameters));
    const bool isWritten = query.exec();
    return report(isWritten, query.lastError().databaseText());
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
    query.prepare(QLatin1String(SelectNewestFirst));
    query.addBindValue(MaxEntries);
    query.exec();
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

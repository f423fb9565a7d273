#include "SnoozeStore.h"

#include "InputError.h"

#include <QDebug>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <algorithm>

namespace {

constexpr int ApplicationId = 0x536e7a31; // tells this kind of file from other SQLite files
constexpr int FormatVersion = 1;

constexpr const char *CreateTable =
    "CREATE TABLE IF NOT EXISTS snoozes (node_id TEXT PRIMARY KEY NOT NULL, "
    "error_type INTEGER NOT NULL, end_seconds INTEGER NOT NULL) STRICT, WITHOUT ROWID";
constexpr const char *Select =
    "SELECT node_id, error_type, end_seconds FROM snoozes ORDER BY node_id";
constexpr const char *Replace =
    "INSERT OR REPLACE INTO snoozes (node_id, error_type, end_seconds) VALUES (?, ?, ?)";
constexpr const char *Delete = "DELETE FROM snoozes WHERE node_id = ?";

// Runs statements one after another, and throws what went wrong with one of them.
class Session
{
    Q_DECLARE_TR_FUNCTIONS(SnoozeStore)

public:
    explicit Session(const QSqlDatabase &database)
        : m_query(database)
    { }

    void run(const QString &statement)
    {
        if (!m_query.exec(statement))
            throw m_query.lastError().databaseText();
    }

    QString value(const QString &statement)
    {
        run(statement);
        QString text = m_query.next() ? m_query.value(0).toString() : QString();
        m_query.finish();
        return text;
    }

    int number(const QString &statement) { return value(statement).toInt(); }

    void expectSound()
    {
        const QString verdict = value(QStringLiteral("PRAGMA quick_check(1)"));
        if (verdict != QStringLiteral("ok"))
            throw tr("the file is damaged: %1").arg(verdict);
    }

    void expectOwnKind()
    {
        const int id = number(QStringLiteral("PRAGMA application_id"));
        const int version = number(QStringLiteral("PRAGMA user_version"));
        const bool isNew = id == 0 && version == 0
                           && number(QStringLiteral("SELECT count(*) FROM sqlite_schema")) == 0;
        if (isNew)
            return;
        if (id != ApplicationId)
            throw tr("an SQLite file of another kind");
        if (version != FormatVersion)
            throw tr("a file of version %1").arg(version);
    }

private:
    QSqlQuery m_query;
};

} // namespace

SnoozeStore::SnoozeStore(const QString &fileName)
    : m_fileName(fileName)
    , m_connectionName(QUuid::createUuid().toString())
{
    try {
        open();
    } catch (const QString &failure) {
        QSqlDatabase::removeDatabase(m_connectionName);
        throw InputError(tr("%1: expected a file of snoozes that can be written, found: %2")
                             .arg(m_fileName, failure));
    }
}

SnoozeStore::~SnoozeStore()
{
    QSqlDatabase::removeDatabase(m_connectionName);
}

// Throws a text. Nothing is written before the file has proved to be sound and of this kind.
//
// With a write-ahead log a change costs one sync, and the mode FULL makes it wait for that sync;
// what a killed process leaves in the log is taken up by the next one. The exclusive lock keeps a
// second process from snoozing what the first one does not know of.
void SnoozeStore::open()
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    database.setDatabaseName(m_fileName);
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=1000"));
    if (!database.open())
        throw database.lastError().databaseText();
    Session session(database);
    session.run(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
    session.expectSound();
    session.expectOwnKind();
    session.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    session.run(QStringLiteral("PRAGMA synchronous = FULL"));
    session.run(QStringLiteral("BEGIN IMMEDIATE"));
    session.run(QLatin1String(CreateTable));
    session.run(QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId));
    session.run(QStringLiteral("PRAGMA user_version = %1").arg(FormatVersion));
    session.run(QStringLiteral("COMMIT"));
}

std::vector<Snooze> SnoozeStore::snoozes() const
{
    QSqlQuery query(QSqlDatabase::database(m_connectionName));
    query.exec(QLatin1String(Select));
    std::vector<Snooze> snoozes;
    while (query.next())
        snoozes.push_back(
            {query.value(0).toString(), query.value(1).toInt(), query.value(2).toLongLong()});
    return snoozes;
}

bool SnoozeStore::set(const std::vector<Snooze> &snoozes)
{
    return inTransaction([&snoozes](QSqlQuery &query) {
        query.prepare(QLatin1String(Replace));
        return std::all_of(snoozes.begin(), snoozes.end(), [&query](const Snooze &snooze) {
            query.addBindValue(snooze.nodeId);
            query.addBindValue(snooze.errorType);
            query.addBindValue(snooze.endSeconds);
            return query.exec();
        });
    });
}

bool SnoozeStore::remove(const QStringList &nodeIds)
{
    return inTransaction([&nodeIds](QSqlQuery &query) {
        query.prepare(QLatin1String(Delete));
        return std::all_of(nodeIds.begin(), nodeIds.end(), [&query](const QString &nodeId) {
            query.addBindValue(nodeId);
            return query.exec();
        });
    });
}

// However many rows there are, the commit is the one sync.
bool SnoozeStore::inTransaction(const std::function<bool(QSqlQuery &)> &change)
{
    QSqlDatabase database = QSqlDatabase::database(m_connectionName);
    if (!database.transaction())
        return report(false, database.lastError().databaseText());
    QSqlQuery query(database);
    if (!change(query)) {
        const QString failure = query.lastError().databaseText();
        query.finish();
        database.rollback();
        return report(false, failure);
    }
    query.finish();
    const bool isWritten = database.commit();
    const QString failure = database.lastError().databaseText();
    if (!isWritten)
        database.rollback();
    return report(isWritten, failure);
}

bool SnoozeStore::report(bool isWritten, const QString &failure) const
{
    if (!isWritten)
        qWarning().noquote() << tr("%1: cannot be written: %2").arg(m_fileName, failure);
    return isWritten;
}

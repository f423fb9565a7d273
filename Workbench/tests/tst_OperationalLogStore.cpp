#include "OperationalLogStore.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

namespace {

OperationalLogEntry entry(qint64 ms, const QString &name, const QVariantList &parameters = {})
{
    return {QDateTime::fromMSecsSinceEpoch(ms), name, parameters};
}

QStringList names(const QList<OperationalLogEntry> &entries)
{
    QStringList names;
    for (const OperationalLogEntry &entry : entries)
        names.append(entry.name);
    return names;
}

// The first value of the last statement's result, as another program gets it.
QVariant runSql(const QString &fileName, const QStringList &statements)
{
    QVariant value;
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("tool"));
        database.setDatabaseName(fileName);
        QSqlQuery query(database);
        if (!database.open())
            return {};
        for (const QString &statement : statements)
            query.exec(statement);
        if (query.next())
            value = query.value(0);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("tool"));
    return value;
}

QVariant valueOf(const QString &fileName, const QString &statement)
{
    return runSql(fileName, {statement});
}

} // namespace

class tst_OperationalLogStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEntriesInMemory();
    void entriesComeBackAsTheyWere();
    void newestEntriesComeFirst();
    void fileKeepsEntriesForLater();
    void fileCanBeReadWithOrdinaryTools();
    void folderIsMade();
    void unusableFilesAreNamed();
    void filesOfOtherKindsAreLeftAlone();
    void logsOfEarlierVersionsAreTakenUp();
    void entriesOfOneTurnAreWrittenTogether();
    void oldEntriesGoWhenTheFileIsOpened();
};

void tst_OperationalLogStore::keepsEntriesInMemory()
{
    OperationalLogStore first{QString()};
    OperationalLogStore second{QString()};
    QVERIFY(first.add(entry(1, QStringLiteral("a"))));
    QCOMPARE(names(first.newest(10)), QStringList{QStringLiteral("a")});
    QCOMPARE(names(second.newest(10)), QStringList());
}

void tst_OperationalLogStore::entriesComeBackAsTheyWere()
{
    const QVariantList parameters{QStringLiteral("Kamera \"Süd\" / %1"), QStringLiteral(""), 3};
    OperationalLogStore log{QString()};
    QVERIFY(log.add(entry(1'780'660'800'123, QStringLiteral("AddDashboardSnooze"), parameters)));
    const OperationalLogEntry read = log.newest(1).at(0);
    QCOMPARE(read.time.toMSecsSinceEpoch(), 1'780'660'800'123);
    QCOMPARE(read.name, QStringLiteral("AddDashboardSnooze"));
    QCOMPARE(read.parameters, parameters);
}

void tst_OperationalLogStore::newestEntriesComeFirst()
{
    OperationalLogStore log{QString()};
    for (const char *const name : {"a", "b", "c"})
        log.add(entry(1, QString::fromLatin1(name)));
    QCOMPARE(names(log.newest(2)), QStringList({QStringLiteral("c"), QStringLiteral("b")}));
    QCOMPARE(names(log.newest(0)), QStringList());
}

void tst_OperationalLogStore::fileKeepsEntriesForLater()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("log.sqlite"));
    OperationalLogStore(file).add(entry(1, QStringLiteral("a")));
    OperationalLogStore(file).add(entry(2, QStringLiteral("b")));
    QCOMPARE(names(OperationalLogStore(file).newest(10)),
             QStringList({QStringLiteral("b"), QStringLiteral("a")}));
}

void tst_OperationalLogStore::fileCanBeReadWithOrdinaryTools()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("log.sqlite"));
    OperationalLogStore(file).add(entry(5, QStringLiteral("a"), {QStringLiteral("x")}));
    const QString connection = QStringLiteral("reader");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(file);
        QVERIFY(database.open());
        QSqlQuery query(QStringLiteral("SELECT id, time, name, parameters FROM operational_log"),
                        database);
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toInt(), 1);
        QCOMPARE(query.value(1).toLongLong(), 5);
        QCOMPARE(query.value(2).toString(), QStringLiteral("a"));
        QCOMPARE(query.value(3).toString(), QStringLiteral("[\"x\"]"));
    }
    QSqlDatabase::removeDatabase(connection);
}

void tst_OperationalLogStore::folderIsMade()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("deep/down/log.sqlite"));
    QVERIFY(OperationalLogStore(file).add(entry(1, QStringLiteral("a"))));
    QVERIFY(QFile::exists(file));
}

void tst_OperationalLogStore::unusableFilesAreNamed()
{
    const TextFile noDatabase(QByteArray(4096, 'x'), QStringLiteral("log.sqlite"));
    for (const QString &path : {noDatabase.path(), noDatabase.path() + QStringLiteral("/log")}) {
        const QString message = inputFailure([&path] { const OperationalLogStore log(path); });
        QVERIFY2(message.startsWith(path + QStringLiteral(": cannot be used")),
                 qPrintable(message));
    }
}

void tst_OperationalLogStore::filesOfOtherKindsAreLeftAlone()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("other.sqlite"));
    runSql(file, {QStringLiteral("CREATE TABLE customers (name TEXT)")});
    const QString message = inputFailure([&file] { const OperationalLogStore log(file); });
    QCOMPARE(message, file
                          + QStringLiteral(": cannot be used for the operational log: an SQLite "
                                           "file of another kind"));
    QCOMPARE(valueOf(file, QStringLiteral("SELECT count(*) FROM sqlite_schema")).toInt(), 1);
}

void tst_OperationalLogStore::logsOfEarlierVersionsAreTakenUp()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("log.sqlite"));
    OperationalLogStore(file).add(entry(1, QStringLiteral("a")));
    runSql(file, {QStringLiteral("PRAGMA application_id = 0")});
    QCOMPARE(names(OperationalLogStore(file).newest(10)), QStringList{QStringLiteral("a")});
}

void tst_OperationalLogStore::entriesOfOneTurnAreWrittenTogether()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("log.sqlite"));
    const QString count = QStringLiteral("SELECT count(*) FROM operational_log");
    OperationalLogStore log(file);
    QVERIFY(log.add(entry(1, QStringLiteral("a"))));
    QVERIFY(log.add(entry(2, QStringLiteral("b"))));
    QCOMPARE(log.newest(10).size(), 2);
    QCOMPARE(valueOf(file, count).toInt(), 0);
    QTRY_COMPARE(valueOf(file, count).toInt(), 2);
    QVERIFY(log.add(entry(3, QStringLiteral("c"))));
    QTRY_COMPARE(valueOf(file, count).toInt(), 3);
}

void tst_OperationalLogStore::oldEntriesGoWhenTheFileIsOpened()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("log.sqlite"));
    {
        OperationalLogStore log(file);
        for (int i = 0; i < OperationalLogStore::MaxEntries + 5; ++i)
            log.add(entry(i, QStringLiteral("a")));
    }
    const OperationalLogStore log(file);
    QCOMPARE(valueOf(file, QStringLiteral("SELECT min(time) FROM operational_log")).toInt(), 5);
    QCOMPARE(log.newest(1).at(0).time.toMSecsSinceEpoch(), OperationalLogStore::MaxEntries + 4);
}

QTEST_GUILESS_MAIN(tst_OperationalLogStore)
#include "tst_OperationalLogStore.moc"

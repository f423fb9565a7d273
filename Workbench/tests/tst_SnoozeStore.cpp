#include "SnoozeStore.h"

#include "FullDisk.h"
#include "InputFailure.h"
#include "TextFile.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

namespace {

QStringList printed(const std::vector<Snooze> &snoozes)
{
    QStringList lines;
    for (const Snooze &snooze : snoozes)
        lines.append(snooze.nodeId
                     + QStringLiteral(" %1 %2").arg(snooze.errorType).arg(snooze.endSeconds));
    return lines;
}

QStringList contentsOf(const QString &fileName)
{
    return printed(SnoozeStore(fileName).snoozes());
}

QString failureOf(const QString &fileName)
{
    return inputFailure(fileName, [&fileName] { const SnoozeStore store(fileName); });
}

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void runSql(const QString &fileName, const QStringList &statements)
{
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("tool"));
        database.setDatabaseName(fileName);
        QVERIFY(database.open());
        for (const QString &statement : statements)
            QVERIFY2(QSqlQuery(database).exec(statement), qPrintable(statement));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("tool"));
}

} // namespace

class tst_SnoozeStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void newFileIsEmpty();
    void keepsSnoozesForLater();
    void laterSnoozeOfANodeReplacesTheEarlier();
    void snoozesAreSetTogether();
    void removedSnoozesAreGone();
    void eachChangeIsSyncedToTheDisk();
    void anyTextMayBeAnId();
    void fileCanBeReadWithOrdinaryTools();

    void unusablePlacesAreNamed_data();
    void unusablePlacesAreNamed();
    void fileThatIsNotAllowedToBeWrittenIsNamed();
    void damagedFilesAreRefusedAndLeftAlone_data();
    void damagedFilesAreRefusedAndLeftAlone();
    void filesOfOtherKindsAreRefusedAndLeftAlone_data();
    void filesOfOtherKindsAreRefusedAndLeftAlone();
    void fileBelongsToOneAtATime();
    void failedWriteIsReportedAndChangesNothing();

private:
    QString path(const char *name) const { return m_directory.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_directory;
};

void tst_SnoozeStore::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void tst_SnoozeStore::newFileIsEmpty()
{
    QCOMPARE(contentsOf(path("new.sqlite")), QStringList());
    QCOMPARE(contentsOf(path("new.sqlite")), QStringList());
}

void tst_SnoozeStore::keepsSnoozesForLater()
{
    {
        SnoozeStore store(path("kept.sqlite"));
        QVERIFY(store.set({{QStringLiteral("south"), 4, 253'402'300'799}}));
        QVERIFY(store.set({{QStringLiteral("north/c1"), 3, 1'780'660'800}}));
        QCOMPARE(store.snoozes().size(), std::size_t(2));
    }
    QCOMPARE(contentsOf(path("kept.sqlite")),
             QStringList({QStringLiteral("north/c1 3 1780660800"),
                          QStringLiteral("south 4 253402300799")}));
}

void tst_SnoozeStore::laterSnoozeOfANodeReplacesTheEarlier()
{
    SnoozeStore store(path("replaced.sqlite"));
    QVERIFY(store.set({{QStringLiteral("a"), 3, 100}}));
    QVERIFY(store.set({{QStringLiteral("a"), 4, 50}}));
    QCOMPARE(printed(store.snoozes()), QStringList{QStringLiteral("a 4 50")});
}

void tst_SnoozeStore::snoozesAreSetTogether()
{
    SnoozeStore store(path("together.sqlite"));
    QVERIFY(store.set({}));
    QVERIFY(store.set({{QStringLiteral("b"), 3, 100}, {QStringLiteral("a"), 4, 50}}));
    QCOMPARE(printed(store.snoozes()),
             QStringList({QStringLiteral("a 4 50"), QStringLiteral("b 3 100")}));
}

// No kill of a process shows this: what it has written is the system's, which only a power cut
// takes back. Both are settings of the connection, so it is the store's own that is asked.
void tst_SnoozeStore::eachChangeIsSyncedToTheDisk()
{
    const QStringList before = QSqlDatabase::connectionNames();
    const SnoozeStore store(path("synced.sqlite"));
    QStringList own = QSqlDatabase::connectionNames();
    own.removeIf([&before](const QString &name) { return before.contains(name); });
    QCOMPARE(own.size(), 1);
    QSqlQuery query(QSqlDatabase::database(own.constFirst()));
    QVERIFY(query.exec(QStringLiteral("PRAGMA synchronous")) && query.next());
    QCOMPARE(query.value(0).toInt(), 2);
    QVERIFY(query.exec(QStringLiteral("PRAGMA journal_mode")) && query.next());
    QCOMPARE(query.value(0).toString(), QStringLiteral("wal"));
}

void tst_SnoozeStore::removedSnoozesAreGone()
{
    {
        SnoozeStore store(path("removed.sqlite"));
        for (const char *const id : {"a", "b", "c"})
            store.set({{QString::fromLatin1(id), 3, 100}});
        QVERIFY(store.remove({QStringLiteral("a"), QStringLiteral("c"), QStringLiteral("none")}));
        QVERIFY(store.remove({}));
    }
    QCOMPARE(contentsOf(path("removed.sqlite")), QStringList{QStringLiteral("b 3 100")});
}

void tst_SnoozeStore::anyTextMayBeAnId()
{
    const QString id = QStringLiteral("Süd '; DROP TABLE snoozes; -- \"%1\"");
    {
        SnoozeStore store(path("text.sqlite"));
        QVERIFY(store.set({{id, 3, 100}}));
    }
    QCOMPARE(contentsOf(path("text.sqlite")), QStringList{id + QStringLiteral(" 3 100")});
}

void tst_SnoozeStore::fileCanBeReadWithOrdinaryTools()
{
    {
        SnoozeStore store(path("tools.sqlite"));
        store.set({{QStringLiteral("a"), 3, 100}});
    }
    runSql(path("tools.sqlite"), {QStringLiteral("UPDATE snoozes SET end_seconds = 200 "
                                                 "WHERE node_id = 'a' AND error_type = 3")});
    QCOMPARE(contentsOf(path("tools.sqlite")), QStringList{QStringLiteral("a 3 200")});
}

void tst_SnoozeStore::unusablePlacesAreNamed_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("folder") << m_directory.path();
    QTest::newRow("no such folder") << path("none/store.sqlite");
    QTest::newRow("where nobody may write") << QStringLiteral("/proc/store.sqlite");
    QTest::newRow("no name") << path("");
}

void tst_SnoozeStore::unusablePlacesAreNamed()
{
    QFETCH(QString, fileName);
    QCOMPARE(failureOf(fileName), QStringLiteral("FILE: expected a file of snoozes that can be "
                                                 "written, found: unable to open database file"));
}

void tst_SnoozeStore::fileThatIsNotAllowedToBeWrittenIsNamed()
{
    if (geteuid() == 0)
        QSKIP("root may write everywhere");
    const QString fileName = path("readonly.sqlite");
    contentsOf(fileName);
    QVERIFY(QFile::setPermissions(fileName, QFileDevice::ReadOwner));
    QVERIFY(!failureOf(fileName).isEmpty());
}

void tst_SnoozeStore::damagedFilesAreRefusedAndLeftAlone_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("length");
    QTest::newRow("header") << 0 << 64;
    QTest::newRow("table of contents") << 100 << 400;
    QTest::newRow("pages") << 4096 << 8192;
    QTest::newRow("everything") << 0 << 1'000'000;
}

void tst_SnoozeStore::damagedFilesAreRefusedAndLeftAlone()
{
    QFETCH(int, offset);
    QFETCH(int, length);
    const QString fileName = path("damaged.sqlite");
    QFile::remove(fileName);
    {
        SnoozeStore store(fileName);
        for (int i = 0; i < 12; ++i)
            store.set({{QString(1000, QChar(u'a' + i)), 3, 100}});
    }
    QByteArray bytes = bytesOf(fileName);
    QVERIFY(bytes.size() > 8192);
    bytes.replace(offset, length, QByteArray(qMin(length, int(bytes.size()) - offset), '\x5a'));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();

    const QString failure = failureOf(fileName);
    QVERIFY2(failure.startsWith(QStringLiteral("FILE: expected a file of snoozes that can be "
                                               "written, found: ")),
             qPrintable(failure));
    QCOMPARE(bytesOf(fileName), bytes);
}

void tst_SnoozeStore::filesOfOtherKindsAreRefusedAndLeftAlone_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("found");
    QTest::newRow("other tables") << QStringList{QStringLiteral("CREATE TABLE snoozes (a, b)")}
                                  << QStringLiteral("an SQLite file of another kind");
    QTest::newRow("other application") << QStringList{QStringLiteral("PRAGMA application_id = 5")}
                                       << QStringLiteral("an SQLite file of another kind");
    QTest::newRow("later version")
        << QStringList{QStringLiteral("PRAGMA application_id = 1399749169"),
                       QStringLiteral("PRAGMA user_version = 2")}
        << QStringLiteral("a file of version 2");
}

void tst_SnoozeStore::filesOfOtherKindsAreRefusedAndLeftAlone()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, found);
    const QString fileName = path("other.sqlite");
    QFile::remove(fileName);
    runSql(fileName, statements);
    const QByteArray before = bytesOf(fileName);
    QCOMPARE(failureOf(fileName),
             QStringLiteral("FILE: expected a file of snoozes that can be written, found: ")
                 + found);
    QCOMPARE(bytesOf(fileName), before);
}

void tst_SnoozeStore::fileBelongsToOneAtATime()
{
    const SnoozeStore first(path("shared.sqlite"));
    QCOMPARE(failureOf(path("shared.sqlite")),
             QStringLiteral("FILE: expected a file of snoozes that can be written, found: database "
                            "is locked"));
}

void tst_SnoozeStore::failedWriteIsReportedAndChangesNothing()
{
    const QString fileName = path("full.sqlite");
    {
        SnoozeStore store(fileName);
        QVERIFY(store.set({{QStringLiteral("a"), 3, 100}}));
        const QString warning = fileName + QStringLiteral(": cannot be written: ");
        {
            const FullDisk disk(512);
            for (int i = 0; i < 2; ++i)
                QTest::ignoreMessage(QtWarningMsg,
                                     QRegularExpression(QRegularExpression::escape(warning)));
            QVERIFY(!store.set({{QStringLiteral("b"), 3, 100}}));
            QVERIFY(!store.remove({QStringLiteral("a")}));
        }
        QCOMPARE(printed(store.snoozes()), QStringList{QStringLiteral("a 3 100")});
        QVERIFY(store.set({{QStringLiteral("c"), 3, 100}}));
    }
    QCOMPARE(contentsOf(fileName),
             QStringList({QStringLiteral("a 3 100"), QStringLiteral("c 3 100")}));
}

QTEST_GUILESS_MAIN(tst_SnoozeStore)
#include "tst_SnoozeStore.moc"

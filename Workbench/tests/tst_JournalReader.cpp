#include "JournalReader.h"

#include "InputFailure.h"
#include "TextFile.h"

#include <QTest>

namespace {

const QByteArray Header =
    R"({"journal":"plug-in inputs","plugin":"p","version":1,"environment":{"X":"20"}})"
    "\n";
const QByteArray Connected = R"({"at":5,"server":true})"
                             "\n";
const QByteArray Event = R"({"at":7,"event":"E","data":{"a":1},"source":"st"})"
                         "\n";
const QByteArray End = R"({"at":9,"end":["row"]})"
                       "\n";

Journal read(const QByteArray &text)
{
    const TextFile file(text);
    return readJournal(file.path());
}

QString failureOf(const QByteArray &text)
{
    const TextFile file(text);
    return inputFailure(file.path(), [&file] { readJournal(file.path()); });
}

} // namespace

class tst_JournalReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsHeaderEntriesAndEnd();
    void cutAnywhereLeavesAPrefix();
    void cutWithinTheHeaderIsNoJournal();
    void foreignAndDamagedFilesAreRefused_data();
    void foreignAndDamagedFilesAreRefused();
    void missingFileIsNamed();
};

void tst_JournalReader::readsHeaderEntriesAndEnd()
{
    const Journal journal = read(Header + Connected + Event + End);
    QCOMPARE(journal.pluginId, QStringLiteral("p"));
    QCOMPARE(journal.thresholds.value(QStringLiteral("X")).toString(), QStringLiteral("20"));
    QCOMPARE(journal.entries.size(), std::size_t(2));
    QCOMPARE(journal.entries.at(1).atMs, 7);
    QCOMPARE(journal.entries.at(1).line, 3);
    QCOMPARE(journal.entries.at(1).object.value(QStringLiteral("event")).toString(),
             QStringLiteral("E"));
    QCOMPARE(journal.errors, std::optional(QStringList{QStringLiteral("row")}));
}

// Whatever a crash leaves, whole entries are read and a torn one is left out.
void tst_JournalReader::cutAnywhereLeavesAPrefix()
{
    const QByteArray whole = Header + Connected + Event + End;
    for (qsizetype length = Header.size(); length < whole.size(); ++length) {
        const Journal journal = read(whole.left(length));
        const qsizetype wholeLines = whole.left(length).count('\n');
        QCOMPARE(journal.entries.size(), static_cast<std::size_t>(wholeLines - 1));
        QVERIFY(!journal.errors);
    }
}

void tst_JournalReader::cutWithinTheHeaderIsNoJournal()
{
    for (qsizetype length = 0; length < Header.size(); ++length)
        QCOMPARE(failureOf(Header.left(length)),
                 QStringLiteral("FILE: line 1: expected the header of a journal that --record has "
                                "written"));
}

void tst_JournalReader::foreignAndDamagedFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QByteArray &text, const char *message) {
        QTest::newRow(name) << text << QStringLiteral("FILE: ") + QString::fromLatin1(message);
    };
    const char *const noHeader = "line 1: expected the header of a journal that --record has "
                                 "written";
    row("scenario", "{\"events\": []}\n", noHeader);
    row("picture", QByteArray("\x89PNG\r\n\x1a\n\0\0", 10), noHeader);
    row("other journal",
        R"({"journal":"sea","plugin":"p","version":1})"
        "\n",
        noHeader);
    row("version to come",
        R"({"journal":"plug-in inputs","plugin":"p","version":2})"
        "\n",
        "line 1: expected version 1 of the journal");
    const char *const noEntry = "line 2: expected an entry of a journal";
    row("torn line within", Header + "{\"at\":5,\"ser\n" + Event, noEntry);
    row("zeros", Header + QByteArray(8, '\0') + "\n" + Event, noEntry);
    row("second header", Header + Header, noEntry);
    row("no time", Header + "{\"server\":true}\n", noEntry);
    row("time before the start", Header + "{\"at\":-1,\"server\":true}\n", noEntry);
    row("time beyond all times", Header + "{\"at\":9223372036854775807,\"server\":true}\n",
        noEntry);
    row("unknown kind", Header + "{\"at\":1,\"sleep\":true}\n", noEntry);
    row("kind of another type", Header + "{\"at\":1,\"server\":\"yes\"}\n", noEntry);
    row("call without arguments", Header + "{\"at\":1,\"call\":\"x\"}\n", noEntry);
    row("response without a target", Header + "{\"at\":1,\"response\":\"x\",\"code\":\"0\"}\n",
        noEntry);
    row("later line", Header + Event + Connected + "\n", "line 4: expected an entry of a journal");
}

void tst_JournalReader::foreignAndDamagedFilesAreRefused()
{
    QFETCH(QByteArray, text);
    QTEST(failureOf(text), "message");
}

void tst_JournalReader::missingFileIsNamed()
{
    const QString path = QStringLiteral("/nowhere/at/all.journal");
    QCOMPARE(inputFailure(path, [&path] { readJournal(path); }),
             QStringLiteral("FILE: cannot be read: No such file or directory"));
}

QTEST_GUILESS_MAIN(tst_JournalReader)
#include "tst_JournalReader.moc"

#include "JournalWriter.h"

#include "EnvironmentThresholds.h"
#include "FullDisk.h"
#include "InputFailure.h"
#include "JournalReader.h"
#include "TextFile.h"
#include "VirtualClock.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>

#include <memory>

class tst_JournalWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void headerTellsWhatIsNeededToReplay();
    void timesCountFromTheStart();
    void eachLineIsThereAtOnce();
    void fileThatIsThereIsLeftAlone();
    void fileThatCannotBeWrittenIsNamed();
    void fullDiskAtTheStartLeavesNoFile();
    void fullDiskLeavesWhatWasWritten();
    void nothingIsWrittenAfterAGap();

private:
    QByteArray content() const;
    QString newFile() const { return m_directory->filePath(QStringLiteral("new.journal")); }
    std::unique_ptr<JournalWriter> start() const;

    VirtualClock m_clock;
    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_JournalWriter::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    m_directory = std::make_unique<QTemporaryDir>();
}

QByteArray tst_JournalWriter::content() const
{
    QFile file(newFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::unique_ptr<JournalWriter> tst_JournalWriter::start() const
{
    return std::make_unique<JournalWriter>(newFile(), QStringLiteral("{id}"), m_clock);
}

void tst_JournalWriter::headerTellsWhatIsNeededToReplay()
{
    const QJsonObject thresholds{{QStringLiteral("TALO2_HIGH_CPU_USAGE"), QStringLiteral("80")}};
    setThresholdsOfEnvironment(thresholds);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    start();
    setThresholdsOfEnvironment({});
    const QJsonObject header = QJsonDocument::fromJson(content()).object();
    QCOMPARE(header.value(QStringLiteral("journal")).toString(), QStringLiteral("plug-in inputs"));
    QCOMPARE(header.value(QStringLiteral("version")).toInt(), 1);
    QCOMPARE(header.value(QStringLiteral("plugin")).toString(), QStringLiteral("{id}"));
    QCOMPARE(header.value(QStringLiteral("workbench")).toString(), QStringLiteral("1.2"));
    QVERIFY(QDateTime::fromString(header.value(QStringLiteral("recorded")).toString(), Qt::ISODate)
                .isValid());
    QCOMPARE(header.value(QStringLiteral("environment")).toObject(), thresholds);
    QCOMPARE(header.size(), 6);
    QCOMPARE(readJournal(newFile()).thresholds, thresholds);
}

void tst_JournalWriter::timesCountFromTheStart()
{
    m_clock.advance(5000);
    const auto writer = start();
    writer->write({{QStringLiteral("server"), true}});
    m_clock.advance(1250);
    m_clock.set(-3'600'000);
    writer->write({{QStringLiteral("server"), false}});
    const Journal journal = readJournal(newFile());
    QCOMPARE(journal.entries.size(), std::size_t(2));
    QCOMPARE(journal.entries.at(0).atMs, 0);
    QCOMPARE(journal.entries.at(1).atMs, 1250);
    QCOMPARE(writer->failure(), QString());
}

void tst_JournalWriter::eachLineIsThereAtOnce()
{
    const auto writer = start();
    QCOMPARE(content().count('\n'), 1);
    writer->write({{QStringLiteral("server"), true}});
    QVERIFY(content().endsWith("{\"at\":0,\"server\":true}\n"));
}

void tst_JournalWriter::fileThatIsThereIsLeftAlone()
{
    const TextFile other("precious", QStringLiteral("new.journal"));
    QCOMPARE(
        inputFailure(other.path(), [this, &other] { JournalWriter(other.path(), {}, m_clock); }),
        QStringLiteral("FILE: expected a new file, found one that is there"));
    QFile file(other.path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
}

void tst_JournalWriter::fileThatCannotBeWrittenIsNamed()
{
    const QString name = m_directory->filePath(QStringLiteral("none/x.journal"));
    QCOMPARE(inputFailure(name, [this, &name] { JournalWriter(name, {}, m_clock); }),
             QStringLiteral("FILE: cannot be written: No such file or directory"));
}

// The next attempt finds no file in its way.
void tst_JournalWriter::fullDiskAtTheStartLeavesNoFile()
{
    {
        const FullDisk disk(20);
        QCOMPARE(inputFailure(newFile(), [this] { start(); }),
                 QStringLiteral("FILE: cannot be written: File too large"));
    }
    QVERIFY(!QFile::exists(newFile()));
    start();
}

void tst_JournalWriter::fullDiskLeavesWhatWasWritten()
{
    const auto writer = start();
    writer->write({{QStringLiteral("server"), true}});
    {
        const FullDisk disk(static_cast<rlim_t>(content().size()) + 5);
        writer->write({{QStringLiteral("server"), false}});
    }
    QCOMPARE(writer->failure(), newFile() + QStringLiteral(": cannot be written: File too large"));
    const Journal journal = readJournal(newFile());
    QCOMPARE(journal.entries.size(), std::size_t(1));
    QVERIFY(!journal.errors);
}

// What follows a lost line would be replayed in the wrong state.
void tst_JournalWriter::nothingIsWrittenAfterAGap()
{
    const auto writer = start();
    {
        const FullDisk disk(static_cast<rlim_t>(content().size()));
        writer->write({{QStringLiteral("server"), true}});
    }
    const QString failure = writer->failure();
    writer->write({{QStringLiteral("server"), false}});
    QCOMPARE(content().count('\n'), 1);
    QCOMPARE(writer->failure(), failure);
}

QTEST_GUILESS_MAIN(tst_JournalWriter)
#include "tst_JournalWriter.moc"

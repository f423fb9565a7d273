#include "CpuLoad.h"
#include "CpuUsage_Linux.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

constexpr double FailedSample = -100.0;

// What the recorded trees hold, counted by hand.
constexpr float NormalIdle = 243000.0F;
constexpr float NormalTotal = 300000.0F;

QString tree(const char *name)
{
    return QFINDTESTDATA("data/proc/normal/stat").section(QLatin1Char('/'), 0, -3)
           + QLatin1Char('/') + QLatin1String(name);
}

double sample(const QString &procRoot)
{
    return CpuUsage_Linux(procRoot).getPercentage();
}

struct Aggregate
{
    double idle = 0;
    double total = 0;

    double percentage() const { return total > 0 ? (1 - idle / total) * 100 : 100; }
};

// Reads the aggregate line of the machine in another way than the sampler does.
Aggregate machineAggregate()
{
    Aggregate result;
    if (std::FILE *const file = std::fopen("/proc/stat", "r")) {
        double ticks[8] = {};
        if (std::fscanf(file, "cpu %lf %lf %lf %lf %lf %lf %lf %lf", &ticks[0], &ticks[1],
                        &ticks[2], &ticks[3], &ticks[4], &ticks[5], &ticks[6], &ticks[7])
            == 8) {
            for (const double count : ticks)
                result.total += count;
            result.idle = ticks[3] + ticks[4];
        }
        std::fclose(file);
    }
    return result;
}

} // namespace

class tst_CpuUsage_Linux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstSampleIsTheAverageSinceStart_data();
    void firstSampleIsTheAverageSinceStart();
    void eachColumnCountsForWhatItIs_data();
    void eachColumnCountsForWhatItIs();
    void nextSampleMeasuresSinceThePreviousOne();
    void noElapsedTickIsFullLoad();
    void countersThatStepBackWrap();
    void unusableFileIsAFailedSample_data();
    void unusableFileIsAFailedSample();
    void failedSampleKeepsThePreviousOne();
    void samplersShareThePreviousSample();
    void loadIsTheFractionOfThePercentage();
    void realMachineGivesItsAverageSinceStart();

private:
    QString writeStat(const QByteArray &content);

    QTemporaryDir m_directory;
};

void tst_CpuUsage_Linux::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    CalculateCPULoad(0, 0);
}

QString tst_CpuUsage_Linux::writeStat(const QByteArray &content)
{
    QFile file(m_directory.filePath(QStringLiteral("stat")));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
               ? m_directory.path()
               : QString();
}

void tst_CpuUsage_Linux::firstSampleIsTheAverageSinceStart_data()
{
    QTest::addColumn<QString>("procRoot");
    QTest::newRow("normal") << tree("normal");
    QTest::newRow("without guest columns") << tree("old_kernel");
    QTest::newRow("no final newline") << tree("no_final_newline");
}

void tst_CpuUsage_Linux::firstSampleIsTheAverageSinceStart()
{
    QFETCH(const QString, procRoot);
    QCOMPARE(sample(procRoot), double((1.0F - NormalIdle / NormalTotal) * 100.0F));
}

void tst_CpuUsage_Linux::eachColumnCountsForWhatItIs_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<double>("percentage");
    QTest::newRow("user") << QByteArray("cpu 60 0 0 20 0 0 0 0 0 0\n") << 75.0;
    QTest::newRow("nice") << QByteArray("cpu 0 60 0 20 0 0 0 0 0 0\n") << 75.0;
    QTest::newRow("system") << QByteArray("cpu 0 0 60 20 0 0 0 0 0 0\n") << 75.0;
    QTest::newRow("idle") << QByteArray("cpu 0 0 0 20 0 0 0 0 0 0\n") << 0.0;
    QTest::newRow("waiting is idle") << QByteArray("cpu 20 0 0 0 60 0 0 0 0 0\n") << 25.0;
    QTest::newRow("interrupts") << QByteArray("cpu 0 0 0 20 0 60 0 0 0 0\n") << 75.0;
    QTest::newRow("soft interrupts") << QByteArray("cpu 0 0 0 20 0 0 60 0 0 0\n") << 75.0;
    QTest::newRow("stolen time") << QByteArray("cpu 0 0 0 20 0 0 0 60 0 0\n") << 75.0;
    QTest::newRow("guest counts as user already")
        << QByteArray("cpu 20 0 0 20 0 0 0 0 20 20\n") << 50.0;
}

void tst_CpuUsage_Linux::eachColumnCountsForWhatItIs()
{
    QFETCH(const QByteArray, line);
    QTEST(sample(writeStat(line)), "percentage");
}

void tst_CpuUsage_Linux::nextSampleMeasuresSinceThePreviousOne()
{
    CpuUsage_Linux(tree("normal")).getPercentage();
    QCOMPARE(sample(tree("later")), 25.0);
}

void tst_CpuUsage_Linux::noElapsedTickIsFullLoad()
{
    CpuUsage_Linux sampler(tree("normal"));
    sampler.getPercentage();
    QCOMPARE(sampler.getPercentage(), 100.0);
}

void tst_CpuUsage_Linux::countersThatStepBackWrap()
{
    sample(tree("normal"));
    const float idleDelta = static_cast<float>(~0ULL - 19);
    QCOMPARE(sample(tree("stepping_back")), double((1.0F - idleDelta / 80.0F) * 100.0F));
}

void tst_CpuUsage_Linux::unusableFileIsAFailedSample_data()
{
    QTest::addColumn<QString>("procRoot");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing field") << tree("missing_field") << QByteArray();
    QTest::newRow("malformed field") << tree("malformed") << QByteArray();
    QTest::newRow("empty file") << tree("empty") << QByteArray();
    QTest::newRow("no file") << tree("nonexistent") << QByteArray();
    QTest::newRow("no aggregate line") << QString() << QByteArray("cpu0 1 2 3 4 5 6 7 8 9 10\n");
    QTest::newRow("nothing on the line") << QString() << QByteArray("cpu\n");
    QTest::newRow("negative field") << QString() << QByteArray("cpu 1 2 3 -4 5 6 7 8\n");
    QTest::newRow("field too large")
        << QString() << QByteArray("cpu 1 2 3 99999999999999999999 5 6 7 8\n");
    QTest::newRow("malformed last field") << QString() << QByteArray("cpu 1 2 3 4 5 6 7 8x\n");
}

void tst_CpuUsage_Linux::unusableFileIsAFailedSample()
{
    QFETCH(QString, procRoot);
    QFETCH(const QByteArray, content);
    if (procRoot.isEmpty())
        procRoot = writeStat(content);
    QCOMPARE(sample(procRoot), FailedSample);
    QCOMPARE(GetCPULoad(procRoot), -1.0F);
}

void tst_CpuUsage_Linux::failedSampleKeepsThePreviousOne()
{
    sample(tree("normal"));
    QCOMPARE(sample(tree("malformed")), FailedSample);
    QCOMPARE(GetCPULoad(tree("missing_field")), -1.0F);
    QCOMPARE(sample(tree("later")), 25.0);
}

void tst_CpuUsage_Linux::samplersShareThePreviousSample()
{
    CpuUsage_Linux first(tree("normal"));
    first.getPercentage();
    QCOMPARE(GetCPULoad(tree("later")), 0.25F);
    QCOMPARE(CpuUsage_Linux(tree("later")).getPercentage(), 100.0);
}

void tst_CpuUsage_Linux::loadIsTheFractionOfThePercentage()
{
    QCOMPARE(GetCPULoad(tree("normal")), 1.0F - NormalIdle / NormalTotal);
}

// The counters move between the readings, but only forward: the sample lies between what the
// readings around it allow. A tenth of a percent is left for rounding and for the kernel's
// corrections of idle time.
void tst_CpuUsage_Linux::realMachineGivesItsAverageSinceStart()
{
    constexpr double Tolerance = 0.1;
    const Aggregate before = machineAggregate();
    const double percentage = CpuUsage_Linux().getPercentage();
    const Aggregate after = machineAggregate();
    const double least = Aggregate{after.idle, before.total}.percentage();
    const double most = Aggregate{before.idle, after.total}.percentage();
    QVERIFY2(percentage >= least - Tolerance, qPrintable(QString::number(percentage)));
    QVERIFY2(percentage <= most + Tolerance, qPrintable(QString::number(percentage)));
}

QTEST_APPLESS_MAIN(tst_CpuUsage_Linux)
#include "tst_CpuUsage_Linux.moc"

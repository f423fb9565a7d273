#include "MemoryUsage_Linux.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

namespace {

constexpr double FailedSample = 0.0;

QString tree(const char *name)
{
    return QFINDTESTDATA("data/proc/normal/meminfo").section(QLatin1Char('/'), 0, -3)
           + QLatin1Char('/') + QLatin1String(name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double sample(const QString &procRoot)
{
    return MemoryUsage_Linux(procRoot).getPercentage();
}

// Finds a figure in another way than the sampler does.
std::optional<double> figure(const QByteArray &content, const char *name)
{
    static const QRegularExpression line(QStringLiteral("^(\\w+): +(\\d+) kB$"),
                                         QRegularExpression::MultilineOption);
    auto lines = line.globalMatch(QString::fromLatin1(content));
    while (lines.hasNext()) {
        const QRegularExpressionMatch match = lines.next();
        if (match.captured(1) == QLatin1String(name))
            return match.captured(2).toDouble();
    }
    return std::nullopt;
}

double expectedPercentage(const QByteArray &content)
{
    double used = 0;
    for (const char *name : {"AnonPages", "Shmem", "SUnreclaim", "KernelStack", "PageTables"}) {
        const auto kibibytes = figure(content, name);
        if (!kibibytes)
            return FailedSample;
        used += *kibibytes;
    }
    used += figure(content, "Percpu").value_or(0) + figure(content, "Zswap").value_or(0);
    const auto physical = figure(content, "MemTotal");
    return physical ? used / *physical * 100 : FailedSample;
}

} // namespace

class tst_MemoryUsage_Linux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void recordedMachine_data();
    void recordedMachine();
    void eachFigureCountsOnce_data();
    void eachFigureCountsOnce();
    void cachesAndFreeMemoryDoNotCount_data();
    void cachesAndFreeMemoryDoNotCount();
    void missingLineIsAFailedSample_data();
    void missingLineIsAFailedSample();
    void malformedLineIsAFailedSample_data();
    void malformedLineIsAFailedSample();
    void unusableFileIsAFailedSample_data();
    void unusableFileIsAFailedSample();
    void machineWithoutMemoryIsAFailedSample();
    void arithmeticIsInSinglePrecision();
    void realMachineGivesTheSumOfItsFigures();
    void realMachineUsesLessThanItHas();

private:
    QString writeMeminfo(const QByteArray &content);
    // The tree "normal" with another line, or none, for a name.
    QString changedMeminfo(const QByteArray &name, const QByteArray &line);

    QTemporaryDir m_directory;
};

QString tst_MemoryUsage_Linux::writeMeminfo(const QByteArray &content)
{
    QFile file(m_directory.filePath(QStringLiteral("meminfo")));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
               ? m_directory.path()
               : QString();
}

QString tst_MemoryUsage_Linux::changedMeminfo(const QByteArray &name, const QByteArray &line)
{
    QByteArrayList lines = contentOf(tree("normal") + QStringLiteral("/meminfo")).split('\n');
    for (QByteArray &candidate : lines) {
        if (candidate.startsWith(name + ':'))
            candidate = line;
    }
    return writeMeminfo(lines.join('\n'));
}

void tst_MemoryUsage_Linux::recordedMachine_data()
{
    QTest::addColumn<QString>("procRoot");
    QTest::addColumn<double>("percentage");
    QTest::newRow("normal") << tree("normal") << 25.0;
    QTest::newRow("no final newline") << tree("no_final_newline") << 25.0;
    QTest::newRow("neither Percpu nor Zswap")
        << tree("old_kernel")
        << double((350000.0F * 1024 + 26000.0F * 1024) / (2000000.0F * 1024) * 100.0F);
}

void tst_MemoryUsage_Linux::recordedMachine()
{
    QFETCH(const QString, procRoot);
    QTEST(sample(procRoot), "percentage");
}

void tst_MemoryUsage_Linux::eachFigureCountsOnce_data()
{
    // "normal" uses 4,000,000 of 16,000,000 kB; without a figure that much less.
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<float>("kibibytesWithout");
    QTest::newRow("anonymous pages") << QByteArray("AnonPages") << 1000000.0F;
    QTest::newRow("shared memory") << QByteArray("Shmem") << 3500000.0F;
    QTest::newRow("unreclaimable slab") << QByteArray("SUnreclaim") << 3800000.0F;
    QTest::newRow("kernel stacks") << QByteArray("KernelStack") << 3980000.0F;
    QTest::newRow("page tables") << QByteArray("PageTables") << 3960000.0F;
    QTest::newRow("per processor") << QByteArray("Percpu") << 3990000.0F;
    QTest::newRow("compressed") << QByteArray("Zswap") << 3770000.0F;
}

void tst_MemoryUsage_Linux::eachFigureCountsOnce()
{
    QFETCH(const QByteArray, name);
    QFETCH(const float, kibibytesWithout);
    QCOMPARE(sample(changedMeminfo(name, name + ": 0 kB")),
             double(kibibytesWithout / 16000000.0F * 100.0F));
}

void tst_MemoryUsage_Linux::cachesAndFreeMemoryDoNotCount_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"MemFree", "MemAvailable", "Buffers", "Cached", "Active", "Inactive", "Mapped",
          "SReclaimable", "Slab", "Zswapped", "SwapCached", "AnonHugePages", "Unevictable"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_MemoryUsage_Linux::cachesAndFreeMemoryDoNotCount()
{
    QFETCH(const QByteArray, name);
    QCOMPARE(sample(changedMeminfo(name, name + ": 15000000 kB")), 25.0);
}

void tst_MemoryUsage_Linux::missingLineIsAFailedSample_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<double>("percentage");
    for (const char *name :
         {"MemTotal", "AnonPages", "Shmem", "SUnreclaim", "KernelStack", "PageTables"})
        QTest::newRow(name) << QByteArray(name) << FailedSample;
    QTest::newRow("Percpu may be absent")
        << QByteArray("Percpu") << double(3990000.0F / 16000000.0F * 100.0F);
    QTest::newRow("Zswap may be absent")
        << QByteArray("Zswap") << double(3770000.0F / 16000000.0F * 100.0F);
}

void tst_MemoryUsage_Linux::missingLineIsAFailedSample()
{
    QFETCH(const QByteArray, name);
    QTEST(sample(changedMeminfo(name, QByteArray())), "percentage");
}

void tst_MemoryUsage_Linux::malformedLineIsAFailedSample_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("figure");
    for (const char *name : {"MemTotal", "AnonPages", "Shmem", "SUnreclaim", "KernelStack",
                             "PageTables", "Percpu", "Zswap"})
        QTest::addRow("letters in %s", name) << QByteArray(name) << QByteArray("many kB");
    QTest::newRow("no figure") << QByteArray("AnonPages") << QByteArray();
    QTest::newRow("no figure where the line may be absent") << QByteArray("Percpu") << QByteArray();
    QTest::newRow("no unit") << QByteArray("Shmem") << QByteArray("500000");
    QTest::newRow("other unit") << QByteArray("Shmem") << QByteArray("500000 MB");
    QTest::newRow("more words") << QByteArray("Shmem") << QByteArray("500000 kB 1");
    QTest::newRow("negative") << QByteArray("Shmem") << QByteArray("-500000 kB");
}

void tst_MemoryUsage_Linux::malformedLineIsAFailedSample()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, figure);
    QCOMPARE(sample(changedMeminfo(name, name + ": " + figure)), FailedSample);
}

void tst_MemoryUsage_Linux::unusableFileIsAFailedSample_data()
{
    QTest::addColumn<QString>("procRoot");
    QTest::newRow("missing field") << tree("missing_field");
    QTest::newRow("malformed field") << tree("malformed");
    QTest::newRow("empty file") << tree("empty");
    QTest::newRow("no file") << tree("nonexistent");
}

void tst_MemoryUsage_Linux::unusableFileIsAFailedSample()
{
    QFETCH(const QString, procRoot);
    QCOMPARE(sample(procRoot), FailedSample);
}

void tst_MemoryUsage_Linux::machineWithoutMemoryIsAFailedSample()
{
    QCOMPARE(sample(changedMeminfo("MemTotal", "MemTotal: 0 kB")), FailedSample);
}

void tst_MemoryUsage_Linux::arithmeticIsInSinglePrecision()
{
    // 2^24 + 1 is the first whole number that single precision does not hold. The other figures
    // are nothing.
    const QByteArray content = "MemTotal: 33554432 kB\nAnonPages: 16777217 kB\nShmem: 0 kB\n"
                               "SUnreclaim: 0 kB\nKernelStack: 0 kB\nPageTables: 0 kB\n";
    QVERIFY(sample(writeMeminfo(content)) == 50.0);
}

void tst_MemoryUsage_Linux::realMachineGivesTheSumOfItsFigures()
{
    // A snapshot: the figures of the live file move.
    const QByteArray content = contentOf(QStringLiteral("/proc/meminfo"));
    const double difference = sample(writeMeminfo(content)) - expectedPercentage(content);
    QVERIFY2(qAbs(difference) < 0.001, qPrintable(QString::number(difference)));
}

void tst_MemoryUsage_Linux::realMachineUsesLessThanItHas()
{
    const double percentage = MemoryUsage_Linux().getPercentage();
    QVERIFY2(percentage >= 0.0 && percentage < 100.0, qPrintable(QString::number(percentage)));
}

QTEST_APPLESS_MAIN(tst_MemoryUsage_Linux)
#include "tst_MemoryUsage_Linux.moc"

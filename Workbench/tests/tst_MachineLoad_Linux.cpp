#include "RealPrograms.h"

#include <QFile>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

namespace {

/// The time of this machine's processors so far: idle, and in all.
std::pair<double, double> processorTimes()
{
    QFile file(QStringLiteral("/proc/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> fields = file.readLine().simplified().split(' ');
    double total = 0;
    for (qsizetype i = 1; i <= 8; ++i)
        total += fields.value(i).toDouble();
    return {fields.value(4).toDouble() + fields.value(5).toDouble(), total};
}

/// The share of its processors' time that this machine works in, over a second, in percent.
double measuredLoad()
{
    const auto [idleBefore, totalBefore] = processorTimes();
    QTest::qWait(1000);
    const auto [idle, total] = processorTimes();
    return 100 - 100 * (idle - idleBefore) / (total - totalBefore);
}

/// Keeps busy what processors this process may use.
class BusyLoops
{
public:
    BusyLoops()
    {
        for (int i = 0; i < QThread::idealThreadCount(); ++i)
            m_loops.push_back(std::make_unique<Program>(
                QStringLiteral("sh"),
                QStringList{QStringLiteral("-c"), QStringLiteral("while :; do :; done")}));
    }

private:
    std::vector<std::unique_ptr<Program>> m_loops;
};

} // namespace

/// The Workbench on the machine that it runs on, which is put under load.
class tst_MachineLoad_Linux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void loadOfThisMachineRaisesAnErrorUntilItRests();
};

void tst_MachineLoad_Linux::initTestCase()
{
    if (!hasExporter())
        QSKIP("prometheus-node-exporter is not installed.");
}

// The threshold is just below what the loops bring, which other work on the machine seldom does.
void tst_MachineLoad_Linux::loadOfThisMachineRaisesAnErrorUntilItRests()
{
    auto loops = std::make_unique<BusyLoops>();
    const int threshold = static_cast<int>(0.95 * measuredLoad());
    loops.reset();
    const quint16 port = freePort();
    const auto exporter = startExporter(port, QStringLiteral("/proc"));
    HeadlessWorkbench workbench(siteWith(port), threshold);
    QVERIFY(workbench.prints({QStringLiteral("server    connected")}));

    const QString error =
        QStringLiteral("CPU utilization over %1%: Station: Recorder  [0_recorder]").arg(threshold);
    loops = std::make_unique<BusyLoops>();
    QVERIFY2(workbench.prints({QStringLiteral("raised    ") + error}), workbench.output());
    loops.reset();
    const bool hasCleared = workbench.prints({QStringLiteral("cleared   ") + error});
    if (!hasCleared && measuredLoad() >= threshold)
        QSKIP("All processors of this machine have other work all the time.");
    QVERIFY2(hasCleared, workbench.output());
}

QTEST_GUILESS_MAIN(tst_MachineLoad_Linux)
#include "tst_MachineLoad_Linux.moc"

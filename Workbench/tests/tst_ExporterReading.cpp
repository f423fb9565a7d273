#include "ExporterReading.h"

#include "MetricsText.h"

#include <QFile>
#include <QTest>

namespace {

constexpr auto Cpu = "node_cpu_seconds_total{cpu=\"0\",mode=\"idle\"} 5\n";
constexpr auto Memory = "node_memory_MemTotal_bytes 8e9\nnode_memory_MemAvailable_bytes 6e9\n";

QByteArray bytes(const char *device, const char *received, const char *sent)
{
    return QByteArray("node_network_receive_bytes_total{device=\"") + device + "\"} " + received
           + "\nnode_network_transmit_bytes_total{device=\"" + device + "\"} " + sent + '\n';
}

QStringList printed(const std::vector<InterfaceCounters> &networks)
{
    QStringList lines;
    for (const InterfaceCounters &network : networks) {
        lines.append(QStringLiteral("%1 %2 %3 %4")
                         .arg(network.name)
                         .arg(network.receivedBytes)
                         .arg(network.sentBytes)
                         .arg(network.speed.value_or(-1)));
    }
    return lines;
}

QString failure(const QByteArray &text)
{
    try {
        readExporter(text, {});
    } catch (const MetricsError &error) {
        return error.reason();
    }
    return {};
}

} // namespace

class tst_ExporterReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatAnExporterAnswered();
    void idleAndWaitingForDisksIsIdle_data();
    void idleAndWaitingForDisksIsIdle();
    void memoryIsWhatIsNotAvailable_data();
    void memoryIsWhatIsNotAvailable();
    void readsNetworks_data();
    void readsNetworks();
    void namedBandwidthComesFirst();
    void whatTellsTooLittleIsRefused_data();
    void whatTellsTooLittleIsRefused();
};

void tst_ExporterReading::readsWhatAnExporterAnswered()
{
    QFile file(QFINDTESTDATA("data/exporter/metrics.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const ExporterReading reading = readExporter(file.readAll(), {});
    QCOMPARE(reading.cpus.size(), 16);
    QCOMPARE(reading.cpus.value(QStringLiteral("0 steal")).seconds, 6.23);
    QCOMPARE(reading.memoryPercentage, 15);
    QCOMPARE(printed(reading.networks),
             QStringList({QStringLiteral("eth0 214074933 350109 -1"), QStringLiteral("ifb0 0 0 -1"),
                          QStringLiteral("ifb1 0 0 -1")}));
}

void tst_ExporterReading::idleAndWaitingForDisksIsIdle_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<bool>("isIdle");
    QTest::newRow("idle") << QByteArray("idle") << true;
    QTest::newRow("iowait") << QByteArray("iowait") << true;
    for (const char *const mode : {"user", "nice", "system", "irq", "softirq", "steal"})
        QTest::newRow(mode) << QByteArray(mode) << false;
}

void tst_ExporterReading::idleAndWaitingForDisksIsIdle()
{
    QFETCH(QByteArray, mode);
    QFETCH(bool, isIdle);
    const QByteArray text = "node_cpu_seconds_total{mode=\"" + mode + "\",cpu=\"3\"} 7.5\n";
    const ExporterReading reading = readExporter(text + Memory, {});
    const CpuCounter counter = reading.cpus.value(QStringLiteral("3 ") + QLatin1String(mode));
    QCOMPARE(counter.seconds, 7.5);
    QCOMPARE(counter.isIdle, isIdle);
}

void tst_ExporterReading::memoryIsWhatIsNotAvailable_data()
{
    QTest::addColumn<QByteArray>("total");
    QTest::addColumn<QByteArray>("available");
    QTest::addColumn<int>("percentage");
    QTest::newRow("quarter") << QByteArray("8e9") << QByteArray("6e9") << 25;
    QTest::newRow("all is available") << QByteArray("8") << QByteArray("8") << 0;
    QTest::newRow("nothing is available") << QByteArray("8") << QByteArray("0") << 100;
    QTest::newRow("more than there is") << QByteArray("8") << QByteArray("9") << 0;
    QTest::newRow("rounded") << QByteArray("1000") << QByteArray("994") << 1;
}

void tst_ExporterReading::memoryIsWhatIsNotAvailable()
{
    QFETCH(QByteArray, total);
    QFETCH(QByteArray, available);
    const QByteArray text = Cpu + QByteArray("node_memory_MemTotal_bytes ") + total
                            + "\nnode_memory_MemAvailable_bytes " + available + '\n';
    QTEST(readExporter(text, {}).memoryPercentage, "percentage");
}

void tst_ExporterReading::readsNetworks_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("networks");
    QTest::newRow("none") << QByteArray() << QStringList();
    QTest::newRow("by name") << bytes("eth1", "3", "4") + bytes("eth0", "1", "2")
                             << QStringList(
                                    {QStringLiteral("eth0 1 2 -1"), QStringLiteral("eth1 3 4 -1")});
    QTest::newRow("loopback") << bytes("lo", "1", "2") + bytes("lo0", "1", "2") << QStringList();
    QTest::newRow("large") << bytes("eth0", "2.14074933e+15", "0")
                           << QStringList{QStringLiteral("eth0 2140749330000000 0 -1")};
    QTest::newRow("speed") << bytes("eth0", "1", "2")
                                  + "node_network_speed_bytes{device=\"eth0\"} 1.25e+08\n"
                           << QStringList{QStringLiteral("eth0 1 2 1000")};
    QTest::newRow("unknown speed")
        << bytes("eth0", "1", "2") + "node_network_speed_bytes{device=\"eth0\"} -125000\n"
        << QStringList{QStringLiteral("eth0 1 2 -1")};
    QTest::newRow("one direction alone")
        << QByteArray("node_network_receive_bytes_total{device=\"eth0\"} 1\n") << QStringList();
    QTest::newRow("not a number") << bytes("eth0", "NaN", "1") << QStringList();
    QTest::newRow("infinite") << bytes("eth0", "+Inf", "1") << QStringList();
    QTest::newRow("negative") << bytes("eth0", "-1", "1") << QStringList();
    QTest::newRow("beyond all counters") << bytes("eth0", "1e300", "1") << QStringList();
}

void tst_ExporterReading::readsNetworks()
{
    QFETCH(QByteArray, text);
    QTEST(printed(readExporter(Cpu + (Memory + text), {}).networks), "networks");
}

void tst_ExporterReading::namedBandwidthComesFirst()
{
    const QByteArray text = Cpu + (Memory + bytes("eth0", "1", "2"))
                            + "node_network_speed_bytes{device=\"eth0\"} 1.25e+08\n";
    QCOMPARE(printed(readExporter(text, {{QStringLiteral("eth0"), 100.0}}).networks),
             QStringList{QStringLiteral("eth0 1 2 100")});
}

void tst_ExporterReading::whatTellsTooLittleIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const QString cpu = QStringLiteral("it tells nothing of the processors");
    const QString memory = QStringLiteral("it tells nothing of the memory");
    QTest::newRow("nothing") << QByteArray() << cpu;
    QTest::newRow("memory alone") << QByteArray(Memory) << cpu;
    QTest::newRow("processors alone") << QByteArray(Cpu) << memory;
    QTest::newRow("total alone") << QByteArray(Cpu) + "node_memory_MemTotal_bytes 8e9\n" << memory;
    QTest::newRow("no memory")
        << QByteArray(Cpu) + "node_memory_MemTotal_bytes 0\nnode_memory_MemAvailable_bytes 0\n"
        << memory;
    QTest::newRow("processors that are no numbers")
        << QByteArray(Memory) + "node_cpu_seconds_total{cpu=\"0\",mode=\"idle\"} NaN\n"
        << cpu;
    QTest::newRow("malformed") << QByteArray("<html>")
                               << QStringLiteral("line 1, column 1: expected a name");
}

void tst_ExporterReading::whatTellsTooLittleIsRefused()
{
    QFETCH(QByteArray, text);
    QTEST(failure(text), "reason");
}

QTEST_GUILESS_MAIN(tst_ExporterReading)
#include "tst_ExporterReading.moc"

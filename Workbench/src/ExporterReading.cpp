#include "ExporterReading.h"

#include "MetricsText.h"

#include <QCoreApplication>
#include <QMap>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double MbitPerByte = 8e-6;
constexpr double LargestCounter = 9e18; // the largest that a double and quint64 both take well

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(ExporterReading)

public:
    void take(const Metric &metric);
    ExporterReading reading(const QHash<QString, double> &bandwidths) const;

private:
    void takeCpu(const Metric &metric);
    int memoryPercentage() const;

    struct Interface
    {
        std::optional<double> received;
        std::optional<double> sent;
        std::optional<double> speed;
    };

    QHash<QString, CpuCounter> m_cpus;
    std::optional<double> m_totalMemory;
    std::optional<double> m_availableMemory;
    QMap<QString, Interface> m_interfaces; // sorted, so that views show the same order each time
};

bool isLoopback(const QString &device)
{
    return device == QLatin1String("lo") || device == QLatin1String("lo0");
}

void Reader::take(const Metric &metric)
{
    if (!std::isfinite(metric.value) || metric.value < 0 || metric.value > LargestCounter)
        return;
    const QString device = metric.labels.value(QStringLiteral("device"));
    if (metric.name == QLatin1String("node_cpu_seconds_total"))
        takeCpu(metric);
    else if (metric.name == QLatin1String("node_memory_MemTotal_bytes"))
        m_totalMemory = metric.value;
    else if (metric.name == QLatin1String("node_memory_MemAvailable_bytes"))
        m_availableMemory = metric.value;
    else if (metric.name == QLatin1String("node_network_receive_bytes_total"))
        m_interfaces[device].received = metric.value;
    else if (metric.name == QLatin1String("node_network_transmit_bytes_total"))
        m_interfaces[device].sent = metric.value;
    else if (metric.name == QLatin1String("node_network_speed_bytes") && metric.value > 0)
        m_interfaces[device].speed = metric.value * MbitPerByte;
}

void Reader::takeCpu(const Metric &metric)
{
    const QString mode = metric.labels.value(QStringLiteral("mode"));
    const QString key = metric.labels.value(QStringLiteral("cpu")) + u' ' + mode;
    const bool isIdle = mode == QLatin1String("idle") || mode == QLatin1String("iowait");
    m_cpus.insert(key, {isIdle, metric.value});
}

int Reader::memoryPercentage() const
{
    if (!m_totalMemory || !m_availableMemory || *m_totalMemory <= 0)
        throw MetricsError(tr("it tells nothing of the memory"));
    const double used = *m_totalMemory - *m_availableMemory;
    return std::clamp(qRound(100.0 * used / *m_totalMemory), 0, 100);
}

ExporterReading Reader::reading(const QHash<QString, double> &bandwidths) const
{
    if (m_cpus.isEmpty())
        throw MetricsError(tr("it tells nothing of the processors"));
    ExporterReading reading{m_cpus, memoryPercentage(), {}};
    for (auto found = m_interfaces.cbegin(); found != m_interfaces.cend(); ++found) {
        if (!found->received || !found->sent || isLoopback(found.key()))
            continue;
        InterfaceCounters counters{found.key(), static_cast<quint64>(*found->received),
                                   static_cast<quint64>(*found->sent), found->speed};
        if (bandwidths.contains(found.key()))
            counters.speed = bandwidths.value(found.key());
        reading.networks.push_back(counters);
    }
    return reading;
}

} // namespace

ExporterReading readExporter(const QByteArray &text, const QHash<QString, double> &bandwidths)
{
    Reader reader;
    for (const Metric &metric : parseMetrics(text))
        reader.take(metric);
    return reader.reading(bandwidths);
}

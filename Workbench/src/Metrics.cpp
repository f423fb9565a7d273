#include "Metrics.h"

#include "ErrorKind.h"
#include "MachineSample.h"
#include "OpenMetricsText.h"
#include "PluginSurface.h"
#include "ServerLink.h"
#include "ServerNames.h"
#include "Workbench.h"

namespace {

using Type = OpenMetricsText::Type;

constexpr double PerCent = 100.0;

const QList<int> ErrorTypes{0, 1, 2, 3, 4, 5, 7};

// A server of another making may send events without end, each under a new name. They would fill
// this program's memory and the monitoring system's.
const QString OtherEvents = QStringLiteral("other");

void addRatio(OpenMetricsText &out, const OpenMetricsText::Labels &labels,
              const QVariant &percentage)
{
    bool isNumber = false;
    const double value = percentage.toDouble(&isNumber);
    if (isNumber && value >= 0)
        out.addSample(labels, value / PerCent);
}

} // namespace

Metrics::Metrics(Workbench &workbench, QObject *parent)
    : QObject(parent)
    , m_workbench(workbench)
    , m_eventCounts{{ServerNames::SystemResChanged, 0}, {ServerNames::ServerReachingLimited, 0},
                    {ServerNames::SnoozeError, 0},      {ServerNames::DeviceStillError, 0},
                    {ServerNames::RemoveSnooze, 0},     {OtherEvents, 0}}
{
    followErrors();
    followServer();
    connect(&workbench.surface(), &PluginSurface::clientResourceChanged, this,
            &Metrics::takeSample);
}

QByteArray Metrics::text() const
{
    OpenMetricsText out;
    writeErrors(out);
    writeErrorCounts(out);
    writeClient(out);
    writeFocusedStation(out);
    writeServer(out);
    return out.text();
}

void Metrics::followErrors()
{
    const ErrorListWatch &watch = m_workbench.errorWatch();
    const QList<ListedError> listed = watch.listed();
    for (const ListedError &error : listed)
        m_tally.raised(error);
    connect(&watch, &ErrorListWatch::raised, this,
            [this](const ListedError &error) { m_tally.raised(error); });
    connect(&watch, &ErrorListWatch::cleared, this,
            [this](const ListedError &error) { m_tally.cleared(error); });
}

// What a station reported last says nothing of it once it is out of reach.
void Metrics::followServer()
{
    const ServerLink &link = m_workbench.link();
    connect(&m_workbench, &Workbench::eventArrived, this, &Metrics::takeEvent);
    connect(&link, &ServerLink::closed, this, [this] { m_reports.clear(); });
    connect(&link, &ServerLink::stationRemoved, this,
            [this](const QString &stationId) { m_reports.remove(stationId); });
    connect(&link, &ServerLink::nodeStatusChanged, this,
            [this](NodeType type, const QString &nodeId, bool connected) {
                if (type == NodeType::Station && !connected)
                    m_reports.remove(nodeId);
            });
}

void Metrics::takeSample(int cpu, int memory)
{
    m_cpu = MachineSample::knownCpu(cpu);
    m_memory = MachineSample::knownMemory(memory);
}

void Metrics::takeEvent(const QString &name, const QVariant &data, const QString &sourceId)
{
    ++m_eventCounts[m_eventCounts.contains(name) ? name : OtherEvents];
    if (name == ServerNames::SystemResChanged && m_workbench.link().site().findStation(sourceId))
        m_reports.insert(sourceId, data.toMap());
}

void Metrics::writeErrors(OpenMetricsText &out) const
{
    QMap<std::pair<QString, QString>, int> counts;
    const QList<ListedError> listed = m_workbench.errorWatch().listed();
    for (const ListedError &error : listed)
        ++counts[{errorKind(error.type), error.stationId}];

    out.beginFamily("system_monitor_errors", Type::Gauge, {},
                    QStringLiteral("Errors that are listed now."));
    for (auto count = counts.begin(); count != counts.end(); ++count)
        out.addSample({{"kind", count.key().first}, {"station", count.key().second}},
                      count.value());
}

void Metrics::writeErrorCounts(OpenMetricsText &out) const
{
    out.beginFamily("system_monitor_errors_raised", Type::Counter, {},
                    QStringLiteral("Errors that were added to the list."));
    for (const int type : ErrorTypes)
        out.addSample({{"kind", errorKind(type)}}, m_tally.counts().value(type).raised);
    out.beginFamily("system_monitor_errors_cleared", Type::Counter, {},
                    QStringLiteral("Errors that left the list."));
    for (const int type : ErrorTypes)
        out.addSample({{"kind", errorKind(type)}}, m_tally.counts().value(type).cleared);
}

void Metrics::writeClient(OpenMetricsText &out) const
{
    out.beginFamily("system_monitor_client_cpu_usage_ratio", Type::Gauge, "ratio",
                    QStringLiteral("CPU usage of the machine that this client runs on."));
    if (m_cpu)
        addRatio(out, {}, *m_cpu);
    out.beginFamily("system_monitor_client_memory_usage_ratio", Type::Gauge, "ratio",
                    QStringLiteral("Memory usage of the machine that this client runs on."));
    if (m_memory)
        addRatio(out, {}, *m_memory);
}

void Metrics::writeFocusedStation(OpenMetricsText &out) const
{
    const QString station =
        m_workbench.surface().plugin().property("focusStationResource").toString();
    const QVariantMap report = m_reports.value(station);

    out.beginFamily("system_monitor_station_cpu_usage_ratio", Type::Gauge, "ratio",
                    QStringLiteral("CPU usage of the station in focus."));
    addRatio(out, {{"station", station}}, report.value(ServerNames::KeyCpuPercentage));
    out.beginFamily("system_monitor_station_memory_usage_ratio", Type::Gauge, "ratio",
                    QStringLiteral("Memory usage of the station in focus."));
    addRatio(out, {{"station", station}}, report.value(ServerNames::KeyMemPercentage));

    out.beginFamily("system_monitor_station_network_usage_ratio", Type::Gauge, "ratio",
                    QStringLiteral("Use of each network interface of the station in focus."));
    QMap<QString, QVariant> interfaces; // an interface that is listed twice is one sample
    const QVariantList networks = report.value(ServerNames::KeyNetworkUsageList).toList();
    for (const QVariant &network : networks) {
        const QVariantMap usage = network.toMap();
        interfaces.insert(usage.value(ServerNames::KeyNetworkInterface).toString(),
                          usage.value(ServerNames::KeyNetworkPercentage));
    }
    for (auto usage = interfaces.begin(); usage != interfaces.end(); ++usage)
        addRatio(out, {{"station", station}, {"interface", usage.key()}}, usage.value());
}

void Metrics::writeServer(OpenMetricsText &out) const
{
    const ServerLink &link = m_workbench.link();
    out.beginFamily("system_monitor_server_connected", Type::Gauge, {},
                    QStringLiteral("Whether there is a connection to the server, 1 or 0."));
    out.addSample({}, link.isOpen() ? 1 : 0);

    out.beginFamily("system_monitor_events", Type::Counter, {},
                    QStringLiteral("Events that the server has sent."));
    for (auto count = m_eventCounts.begin(); count != m_eventCounts.end(); ++count)
        out.addSample({{"event", count.key()}}, static_cast<double>(count.value()));

    out.beginFamily("system_monitor_snooze_end_timestamp_seconds", Type::Gauge, "seconds",
                    QStringLiteral("When the snooze of a node ends, since the epoch."));
    if (!link.isOpen())
        return;
    for (const Snooze &snooze : link.snoozes())
        out.addSample({{"kind", errorKind(snooze.errorType)}, {"node", snooze.nodeId}},
                      static_cast<double>(snooze.endSeconds));
}

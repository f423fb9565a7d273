#ifndef METRICS_H
#define METRICS_H

#include "ErrorTally.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QVariantMap>

#include <optional>

class OpenMetricsText;
class Workbench;

/// The figures of a Workbench for a monitoring system; docs/headless.md lists them.
class Metrics : public QObject
{
    Q_OBJECT

public:
    /// Counts from now on. The Workbench must outlive this object.
    explicit Metrics(Workbench &workbench, QObject *parent = nullptr);

    /// All figures of this moment, as OpenMetrics text in UTF-8. A figure that is not known,
    /// because its sample failed or there was none, is absent.
    QByteArray text() const;

private:
    void followErrors();
    void followServer();
    void takeSample(int cpu, int memory);
    void takeEvent(const QString &name, const QVariant &data, const QString &sourceId);
    void writeErrors(OpenMetricsText &out) const;
    void writeErrorCounts(OpenMetricsText &out) const;
    void writeClient(OpenMetricsText &out) const;
    void writeFocusedStation(OpenMetricsText &out) const;
    void writeServer(OpenMetricsText &out) const;

    Workbench &m_workbench;
    ErrorTally m_tally;
    std::optional<int> m_cpu;              // percent
    std::optional<int> m_memory;           // percent
    QMap<QString, qint64> m_eventCounts;   // by the event's name
    QHash<QString, QVariantMap> m_reports; // the last of each connected station
};

#endif

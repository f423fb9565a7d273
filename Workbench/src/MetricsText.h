#ifndef METRICSTEXT_H
#define METRICSTEXT_H

#include <QByteArray>
#include <QHash>
#include <QString>

#include <vector>

/// One line of a metrics text: what is measured, of what, and how much.
struct Metric
{
    QString name;
    QHash<QString, QString> labels; ///< unescaped
    double value = 0.0;             ///< may be infinite or not a number
};

/// Why what a station answered cannot be used: one clause without a full stop.
class MetricsError
{
public:
    explicit MetricsError(QString reason)
        : m_reason(std::move(reason))
    { }

    const QString &reason() const { return m_reason; }

private:
    QString m_reason;
};

/// No metrics text may be longer, in bytes. An exporter that tells of a hundred processors and as
/// many interfaces stays far below.
constexpr qsizetype MaxMetricsSize = 1 << 20;

/// Reads the text format of Prometheus exporters, which OpenMetrics is a variant of. Comments,
/// empty lines, timestamps and exemplars are passed over.
///
/// Throws MetricsError, which names the line, when the text is not in that format or too long.
std::vector<Metric> parseMetrics(const QByteArray &text);

#endif

#ifndef OPENMETRICSTEXT_H
#define OPENMETRICSTEXT_H

#include <QByteArray>
#include <QList>
#include <QString>

#include <utility>

/// Puts figures into the text format of OpenMetrics 1.0, for monitoring systems to read.
class OpenMetricsText
{
public:
    enum class Type { Gauge, Counter };
    using Labels = QList<std::pair<QByteArray, QString>>;

    /// Starts a family; the samples that follow are of it.
    ///
    /// @param name letters, digits and underscores; it ends with "_" and the unit, if there is one,
    ///             and is without the "_total" of a counter's samples
    /// @param help one sentence
    void beginFamily(const QByteArray &name, Type type, const QByteArray &unit,
                     const QString &help);

    /// Adds a sample. Two samples of one family must differ in a label's value. A value that is not
    /// finite is left out.
    void addSample(const Labels &labels, double value);

    /// All that was added, with the mark of its end.
    QByteArray text() const;

private:
    QByteArray m_text;
    QByteArray m_sampleName;
};

#endif

#ifndef CPUMETER_H
#define CPUMETER_H

#include <QHash>
#include <QString>

#include <optional>

/// How long a machine's processors have spent in one way.
struct CpuCounter
{
    bool isIdle = false; ///< the processor had nothing to do, or waited for a disk
    double seconds = 0.0;
};

/// Turns counters that only grow into the load of all processors together.
class CpuMeter
{
public:
    /// The load in whole percents since the previous call. Nothing at the first call, and when the
    /// two readings do not go together: a counter has stepped back, appeared or gone, as after a
    /// new start of the machine, or none has moved.
    ///
    /// @param readings by a name of the caller's for processor and mode
    std::optional<int> measure(const QHash<QString, CpuCounter> &readings);

private:
    QHash<QString, CpuCounter> m_previous;
};

#endif

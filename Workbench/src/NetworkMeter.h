#ifndef NETWORKMETER_H
#define NETWORKMETER_H

#include "NetworkCounters.h"
#include "ResourceReport.h"

#include <QHash>

/// Turns counters that only grow into the load of each interface.
///
/// Links carry both directions at once, so the load is that of the busier one. An interface that
/// does not tell its speed is measured against 1000 Mbit/s, which then is its bandwidth, too.
class NetworkMeter
{
public:
    /// The load of each interface since the previous call. An interface that was not there then, or
    /// whose counters were set back, is left out this time.
    ///
    /// @param nowMs the time of the reading, on any clock that does not step back
    std::vector<NetworkUsage> measure(const std::vector<InterfaceCounters> &readings, qint64 nowMs);

private:
    QHash<QString, InterfaceCounters> m_previous; // by name
    qint64 m_previousMs = 0;
};

#endif

#ifndef EXPORTERREADING_H
#define EXPORTERREADING_H

#include "CpuMeter.h"
#include "NetworkCounters.h"

#include <QByteArray>

/// What a station's exporter tells at one moment.
struct ExporterReading
{
    QHash<QString, CpuCounter> cpus;
    int memoryPercentage = 0; ///< 0 to 100: what is not available to new programs
    std::vector<InterfaceCounters> networks;
};

/// Reads what an exporter answered. The loopback interface is left out, as is a counter whose value
/// is no number.
///
/// @param bandwidths the speed of interfaces in Mbit/s, by name; it overrides what the exporter
/// says
///
/// Throws MetricsError when the text cannot be read or says nothing of processors or memory.
ExporterReading readExporter(const QByteArray &text, const QHash<QString, double> &bandwidths);

#endif

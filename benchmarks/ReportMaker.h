#ifndef REPORTMAKER_H
#define REPORTMAKER_H

#include <QStringList>
#include <QVariant>

#include <array>

/// The percentages that a station reports: CPU, memory, and one for each network interface.
struct Usage
{
    static constexpr std::size_t Interfaces = 4;

    int cpu;
    int memory;
    std::array<double, Interfaces> network;
};

/// The data of a resource report, as the server sends it.
QVariant makeReport(const Usage &usage);

#endif

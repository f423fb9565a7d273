#ifndef IMEMORYUSAGE_H
#define IMEMORYUSAGE_H

/// Samples the memory in use. Called on the thread that owns the monitor.
class IMemoryUsage
{
public:
    virtual ~IMemoryUsage() = default;

    /// Application, wired and compressed memory in percent of the physical memory; 0.0 when the
    /// system gives no figures.
    virtual double getPercentage() = 0;
};

#endif

#ifndef ICPUUSAGE_H
#define ICPUUSAGE_H

/// Samples the CPU time in use. Called on the thread that owns the monitor.
class ICpuUsage
{
public:
    virtual ~ICpuUsage() = default;

    /// The load since the previous sample, in percent; -100.0 when the system gives no figures.
    ///
    /// The first sample gives the average load since the machine started. No elapsed time counts
    /// as full load.
    virtual double getPercentage() = 0;
};

#endif

#ifndef FAKEMACH_H
#define FAKEMACH_H

#include <mach/mach.h>

#include <QStringList>

/// What the fake kernel answers, and what it was asked.
struct FakeMach
{
    /// An answer of the host calls that is not KERN_SUCCESS.
    static constexpr kern_return_t Failure = 5;

    host_cpu_load_info_data_t cpu = {};
    kern_return_t cpuResult = KERN_SUCCESS;

    vm_statistics64_data_t vm = {};
    kern_return_t vmResult = KERN_SUCCESS;

    vm_size_t pageSize = 4096;
    kern_return_t pageSizeResult = KERN_SUCCESS;

    std::int64_t memorySize = 0;
    bool fillsMemorySize = true; ///< whether sysctl() writes the size
    int sysctlResult = 0;

    /// The calls in their order, each with its arguments, such as "host_page_size(host 1)". Every
    /// call of mach_host_self() hands out the next number as host.
    QStringList calls;
    host_t lastHost = 0;
};

/// The one kernel of the process; a test assigns a fresh one before it starts.
FakeMach &fakeMach();

#endif

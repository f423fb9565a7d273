#include "CpuUsage_Mac.h"

#include "CpuLoad.h"

#include <mach/mach.h>

#include <iterator>
#include <numeric>

float GetCPULoad()
{
    host_cpu_load_info_data_t info = {};
    mach_msg_type_number_t count = HOST_CPU_LOAD_INFO_COUNT;
    if (host_statistics(mach_host_self(), HOST_CPU_LOAD_INFO, reinterpret_cast<host_info_t>(&info),
                        &count)
        != KERN_SUCCESS)
        return -1.0F;

    const auto &ticks = info.cpu_ticks;
    const unsigned long long total = std::accumulate(std::begin(ticks), std::end(ticks), 0ULL);
    return CalculateCPULoad(ticks[CPU_STATE_IDLE], total);
}

double CpuUsage_Mac::getPercentage()
{
    // The -1 of a failure becomes the -100 that tells of it.
    return GetCPULoad() * 100.0F;
}

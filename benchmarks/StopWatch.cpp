#include "StopWatch.h"

#include <ctime>

namespace {

double cpuMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

StopWatch::StopWatch()
    : m_start(cpuMilliseconds())
{ }

double StopWatch::milliseconds() const
{
    return cpuMilliseconds() - m_start;
}

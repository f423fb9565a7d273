#include "SamplerTick.h"

#include "Verify.h"

#include <libproc2/meminfo.h>
#include <libproc2/stat.h>

#include <array>
#include <memory>

namespace {

class Proc2
{
public:
    Proc2()
    {
        verify(procps_stat_new(&m_stat) == 0, "procps_stat_new");
        verify(procps_meminfo_new(&m_memory) == 0, "procps_meminfo_new");
    }

    ~Proc2()
    {
        procps_stat_unref(&m_stat);
        procps_meminfo_unref(&m_memory);
    }

    Proc2(const Proc2 &) = delete;
    Proc2 &operator=(const Proc2 &) = delete;

    // Selecting reads afresh; getting single figures would do so only once a second.
    void sample()
    {
        std::array cpuItems = {STAT_TIC_SUM_IDLE, STAT_TIC_SUM_TOTAL};
        std::array memoryItems = {MEMINFO_MEM_TOTAL,        MEMINFO_MEM_ANON,
                                  MEMINFO_MEM_SHARED,       MEMINFO_MEM_SLAB_UNRECLAIM,
                                  MEMINFO_MEM_KERNEL_STACK, MEMINFO_MEM_PAGE_TABLES,
                                  MEMINFO_MEM_PER_CPU};
        verify(procps_stat_select(m_stat, cpuItems.data(), cpuItems.size()), "procps_stat_select");
        verify(procps_meminfo_select(m_memory, memoryItems.data(), memoryItems.size()),
               "procps_meminfo_select");
    }

private:
    stat_info *m_stat = nullptr;
    meminfo_info *m_memory = nullptr;
};

} // namespace

std::function<void()> proc2Tick()
{
    return [library = std::make_shared<Proc2>()] { library->sample(); };
}

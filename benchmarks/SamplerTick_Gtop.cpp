#include "SamplerTick.h"

#include <glibtop/cpu.h>
#include <glibtop/mem.h>

std::function<void()> gtopTick()
{
    return [] {
        glibtop_cpu cpu;
        glibtop_get_cpu(&cpu);
        glibtop_mem memory;
        glibtop_get_mem(&memory);
    };
}

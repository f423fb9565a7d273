#include "SamplerTick.h"

std::function<void()> proc2Tick()
{
    return {};
}

#include "SamplerTick.h"

std::function<void()> gtopTick()
{
    return {};
}

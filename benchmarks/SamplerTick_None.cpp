#include "SamplerTick.h"

std::function<void()> readingTick()
{
    return {};
}

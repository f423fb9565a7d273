#include "GigaMemory.h"

float displayGigaMemory(float bytes)
{
    constexpr float Step = 1.0F / 1024.0F;
    return bytes * Step * Step * Step;
}

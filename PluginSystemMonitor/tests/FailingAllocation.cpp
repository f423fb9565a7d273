#include "FailingAllocation.h"

#include <cstdlib>
#include <new>

namespace {

int counts[2] = {0, 0};
int failing[2] = {0, 0};
bool failed = false;

bool fails(FailingAllocation::Kind kind)
{
    if (++counts[kind] != failing[kind])
        return false;
    failed = true;
    return true;
}

} // namespace

FailingAllocation::FailingAllocation(Kind kind, int count)
{
    failed = false;
    failing[kind] = counts[kind] + count;
}

FailingAllocation::~FailingAllocation()
{
    failing[Throwing] = 0;
    failing[Nothrow] = 0;
}

bool FailingAllocation::happened()
{
    return failed;
}

int FailingAllocation::counted(Kind kind)
{
    return counts[kind];
}

void *operator new(std::size_t size)
{
    void *memory = fails(FailingAllocation::Throwing) ? nullptr : std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return fails(FailingAllocation::Nothrow) ? nullptr : std::malloc(size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, const std::nothrow_t &) noexcept
{
    std::free(memory);
}

#include "MemoryUsage_Mac.h"

#include <mach/mach.h>
#include <sys/sysctl.h>

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace {

std::int64_t physicalMemory()
{
    int name[] = {CTL_HW, HW_MEMSIZE};
    std::int64_t bytes = 0;
    std::size_t length = sizeof(bytes);
    sysctl(name, std::size(name), &bytes, &length, nullptr, 0);
    return bytes;
}

float bytesOf(natural_t pages, vm_size_t pageSize)
{
    return static_cast<float>(std::uint64_t{pages} * std::uint64_t{pageSize});
}

} // namespace

double MemoryUsage_Mac::getPercentage()
{
    const std::int64_t memory = physicalMemory();

    const host_t host = mach_host_self();
    vm_size_t pageSize = 0;
    if (host_page_size(host, &pageSize) != KERN_SUCCESS)
        return 0.0;

    vm_statistics64_data_t info = {};
    mach_msg_type_number_t count = HOST_VM_INFO64_COUNT;
    if (host_statistics64(host, HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&info), &count)
        != KERN_SUCCESS)
        return 0.0;

    // With more purgeable than internal pages the 32-bit difference wraps, and the result exceeds
    // 100.
    const float application = bytesOf(info.internal_page_count - info.purgeable_count, pageSize);
    const float wired = bytesOf(info.wire_count, pageSize);
    const float compressed = bytesOf(info.compressor_page_count, pageSize);
    return (application + wired + compressed) / static_cast<float>(memory) * 100.0F;
}

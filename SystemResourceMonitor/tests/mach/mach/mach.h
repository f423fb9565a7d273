#ifndef FAKE_MACH_MACH_H
#define FAKE_MACH_MACH_H

#include <cstdint>

// The few host calls that the samplers use, laid out as on macOS. FakeMach.h tells how to steer
// them.

using natural_t = std::uint32_t;
using integer_t = std::int32_t;
using kern_return_t = int;
using mach_port_t = natural_t;
using host_t = mach_port_t;
using host_flavor_t = integer_t;
using host_info_t = integer_t *;
using host_info64_t = integer_t *;
using mach_msg_type_number_t = natural_t;
using vm_size_t = std::uint64_t;

inline constexpr kern_return_t KERN_SUCCESS = 0;

inline constexpr host_flavor_t HOST_CPU_LOAD_INFO = 3;
inline constexpr host_flavor_t HOST_VM_INFO64 = 4;

inline constexpr int CPU_STATE_USER = 0;
inline constexpr int CPU_STATE_SYSTEM = 1;
inline constexpr int CPU_STATE_IDLE = 2;
inline constexpr int CPU_STATE_NICE = 3;
inline constexpr int CPU_STATE_MAX = 4;

struct host_cpu_load_info_data_t
{
    natural_t cpu_ticks[CPU_STATE_MAX];
};

struct vm_statistics64_data_t
{
    natural_t free_count;
    natural_t active_count;
    natural_t inactive_count;
    natural_t wire_count;
    std::uint64_t zero_fill_count;
    std::uint64_t reactivations;
    std::uint64_t pageins;
    std::uint64_t pageouts;
    std::uint64_t faults;
    std::uint64_t cow_faults;
    std::uint64_t lookups;
    std::uint64_t hits;
    std::uint64_t purges;
    natural_t purgeable_count;
    natural_t speculative_count;
    std::uint64_t decompressions;
    std::uint64_t compressions;
    std::uint64_t swapins;
    std::uint64_t swapouts;
    natural_t compressor_page_count;
    natural_t throttled_count;
    natural_t external_page_count;
    natural_t internal_page_count;
    std::uint64_t total_uncompressed_pages_in_compressor;
};

inline constexpr mach_msg_type_number_t HOST_CPU_LOAD_INFO_COUNT =
    sizeof(host_cpu_load_info_data_t) / sizeof(integer_t);
inline constexpr mach_msg_type_number_t HOST_VM_INFO64_COUNT =
    sizeof(vm_statistics64_data_t) / sizeof(integer_t);
static_assert(HOST_CPU_LOAD_INFO_COUNT == 4);
static_assert(HOST_VM_INFO64_COUNT == 38);

extern "C" {
host_t mach_host_self();
kern_return_t host_statistics(host_t host, host_flavor_t flavor, host_info_t info,
                              mach_msg_type_number_t *count);
kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t info,
                                mach_msg_type_number_t *count);
kern_return_t host_page_size(host_t host, vm_size_t *pageSize);
}

#endif

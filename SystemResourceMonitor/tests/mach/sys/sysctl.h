#ifndef FAKE_SYS_SYSCTL_H
#define FAKE_SYS_SYSCTL_H

#include <cstddef>

inline constexpr int CTL_HW = 6;
inline constexpr int HW_MEMSIZE = 24;

extern "C" int sysctl(int *name, unsigned int nameLength, void *oldValue, std::size_t *oldLength,
                      void *newValue, std::size_t newLength);

#endif
